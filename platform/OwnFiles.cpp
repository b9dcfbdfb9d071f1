// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/OwnFiles.h"

#include <QDateTime>
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

bool saveFile(const QString &path, const QByteArray &bytes)
{
    return saveFile(path, nullptr, bytes);
}

bool writeAll(QIODevice *to, QFile *rest, const QByteArray &bytes)
{
    constexpr qint64 Piece = 1024 * 1024;
    bool isWritten = true;
    while (rest && isWritten) {
        const QByteArray piece = rest->read(Piece);
        isWritten = to->write(piece) == piece.size();
        if (piece.isEmpty())
            break;
    }
    isWritten = isWritten && (!rest || rest->error() == QFileDevice::NoError);
    if (rest)
        rest->close(); // an open file is not replaced on Windows
    return isWritten && to->write(bytes) == bytes.size();
}

void removeUnfinished(const QString &folder)
{
    const QDateTime recent = QDateTime::currentDateTime().addSecs(-60);
    const QString name = QStringLiteral(".halvane-") + QString(32, QLatin1Char('?'));
    for (const QFileInfo &each : QDir(folder).entryInfoList({name}, QDir::Files | QDir::Hidden)) {
        if (each.lastModified() < recent)
            QFile::remove(each.filePath());
    }
}

QString irregularIn(const QString &folder)
{
    QDirIterator each(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = each.next();
        const QFileInfo info = each.fileInfo();
        // A file of another process may have gone meanwhile.
        if (info.isSymLink() || (info.exists() && !info.isDir() && !info.isFile()))
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
