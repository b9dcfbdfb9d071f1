// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/StateFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace simulated
{

QString makePrivateFolder()
{
    const QString candidates[] = {QDir::tempPath(), QStringLiteral("/tmp"),
                                  QDir::rootPath() + QLatin1String("Temp"), QDir::rootPath()};
    for (const QString &parent : candidates) {
        if (parent.contains(QLatin1Char(' ')) || !QFileInfo(parent).isWritable())
            continue;
        QTemporaryDir folder(parent + QLatin1String("/halvane-pc-XXXXXX"));
        if (folder.isValid()) {
            folder.setAutoRemove(false);
            QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            return QDir(folder.path()).absolutePath();
        }
    }
    return QString();
}

bool copyFolder(const QString &from, const QString &to)
{
    bool whole = QDir().mkpath(to);
    const QDir source(from);
    QDirIterator each(from, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = each.next();
        const QString target = to + QLatin1Char('/') + source.relativeFilePath(path);
        if (each.fileInfo().isDir()) {
            whole = QDir().mkpath(target) && whole;
        } else {
            QDir().mkpath(QFileInfo(target).absolutePath());
            whole = QFile::copy(path, target) && whole;
            // The described folder may be read-only; its copy is there to be changed.
            QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
        }
    }
    return whole;
}

} // namespace simulated
