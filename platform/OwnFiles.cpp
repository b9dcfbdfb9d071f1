// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/OwnFiles.h"

#include <QDirIterator>
#include <QMutex>
#include <QSet>

#include <algorithm>

namespace ownfiles
{

QByteArray contents(const QString &path)
{
    QFile file;
    // QFile::read() reserves memory for as much as it is asked for.
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

void complain(const QString &line)
{
    static QMutex mutex;
    static QSet<QString> said;
    const QMutexLocker lock(&mutex);
    if (!said.contains(line)) {
        said.insert(line);
        qWarning("VelmoraHalvane: %s", qUtf8Printable(line));
    }
}

} // namespace ownfiles
