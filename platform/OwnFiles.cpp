#include "platform/OwnFiles.h"

#include <QDirIterator>

#include <algorithm>

namespace ownfiles
{

QByteArray contents(const QString &path)
{
    QFile file;
    // The toolkit takes memory for all that is asked for.
    return openRegular(&file, path, QIODevice::ReadOnly) ? file.read(std::min(file.size(), MostBytes))
                                                         : QByteArray();
}

QString irregularIn(const QString &folder)
{
    QDirIterator each(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = each.next();
        const QFileInfo info = each.fileInfo();
        if (info.isSymLink() || !(info.isDir() || info.isFile()))
            return path;
    }
    return QString();
}

} // namespace ownfiles
