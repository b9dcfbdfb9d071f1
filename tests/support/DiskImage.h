// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/Files.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryDir>

/// An image file of a disk or a volume, changed by the real tools. A tool that fails ends the test program.
class DiskImage
{
public:
    /// The first tool that is missing on this machine; empty if all are there.
    static QString missingTool()
    {
        for (const char *tool : {"sfdisk", "mke2fs", "mkfs.vfat", "mkfs.ntfs", "mkfs.exfat"}) {
            if (find(QLatin1String(tool)).isEmpty())
                return QLatin1String(tool);
        }
        return QString();
    }

    explicit DiskImage(qint64 bytes)
    {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || !file.resize(bytes))
            qFatal("an image cannot be made");
    }

    QString path() const { return m_folder.filePath(QStringLiteral("image")); }

    /// Runs a tool with the image as its last argument, and returns its output.
    QByteArray run(QStringList command, const QByteArray &input = {}) const
    {
        QProcess process;
        process.start(find(command.takeFirst()), command << path());
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished(60000) || process.exitCode() != 0)
            qFatal("%s", process.readAllStandardError().constData());
        return process.readAllStandardOutput();
    }

    /// Writes the partition table of a script.
    void partition(const QByteArray &script) const { run({"sfdisk", "--quiet", "--no-tell-kernel"}, script); }

    /// The partition table as the tool that made it reads it.
    QJsonObject table() const
    {
        return QJsonDocument::fromJson(run({"sfdisk", "--json"})).object()["partitiontable"].toObject();
    }

    QByteArray contents() const { return contentOf(path()); }

    void put(qint64 offset, const QByteArray &bytes) const
    {
        QFile file(path());
        if (!file.open(QIODevice::ReadWrite) || !file.seek(offset) || file.write(bytes) != bytes.size())
            qFatal("an image cannot be written");
    }

private:
    static QString find(const QString &tool)
    {
        return QStandardPaths::findExecutable(
            tool, {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin"), QStringLiteral("/usr/bin")});
    }

    QTemporaryDir m_folder;
};

/// A file system of `bytes` as the named tool makes it: "mke2fs -q -t ext4", "mkfs.vfat -F 16", …
inline QByteArray madeBy(const QString &command, qint64 bytes)
{
    const DiskImage volume(bytes);
    volume.run(command.split(QLatin1Char(' ')));
    return volume.contents();
}
