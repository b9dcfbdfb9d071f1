// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LinuxMachine.h"

#include "platform/Log.h"
#include "platform/OwnFiles.h"
#include "platform/PlainText.h"
#include "platform/linux/LinuxTools.h"
#include "platform/linux/RawDevice.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QStorageInfo>

namespace linuxmachine
{

namespace
{

/// The label as the volume has it. Other output formats of blkid, and lsblk without udev, escape letters
/// beyond ASCII.
QString labelOf(const QString &node)
{
    const QByteArray told =
        linuxtools::run(QStringLiteral("blkid"),
                        {QStringLiteral("-p"), QStringLiteral("-o"), QStringLiteral("value"),
                         QStringLiteral("-s"), QStringLiteral("LABEL"), node})
            .output;
    return plaintext::line(QString::fromUtf8(told).remove(QLatin1Char('\n')));
}

/// lsblk knows file systems from udev only. Without udev the volume itself is read; if that is not allowed,
/// the mount table tells its file system.
void identifyFileSystem(inventory::Volume &volume, const QString &node, const QStorageInfo &storage)
{
    static const QRegularExpression escape(QStringLiteral("\\\\(.)"));
    QHash<QString, QString> found;
    // The label is not asked for, as it could hold line ends and so forge further lines.
    const QString told = QString::fromUtf8(
        linuxtools::run(QStringLiteral("blkid"),
                        {QStringLiteral("-p"), QStringLiteral("-o"), QStringLiteral("export"),
                         QStringLiteral("-s"), QStringLiteral("TYPE"), QStringLiteral("-s"),
                         QStringLiteral("VERSION"), node})
            .output);
    for (QString line : told.split(QLatin1Char('\n'))) {
        line.replace(escape, QStringLiteral("\\1"));
        found.insert(line.section(QLatin1Char('='), 0, 0), line.section(QLatin1Char('='), 1));
    }
    const QString type =
        found.value(QStringLiteral("TYPE"), QString::fromLocal8Bit(storage.fileSystemType()));
    volume.fileSystem = lsblk::fileSystemName(type, found.value(QStringLiteral("VERSION")));
}

} // namespace

QStringList onlyNodes()
{
    QStringList nodes;
    for (const QString &node :
         qEnvironmentVariable("HALVANE_DISKS").split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
        const QString real = QFileInfo(node).canonicalFilePath();
        // As root, a link that another user could change is not followed. Its own name is no disk's.
        const QString stranger = ownfiles::isElevated() ? ownfiles::strangerOn(node) : QString();
        if (!stranger.isEmpty())
            qWarning("HALVANE_DISKS: %s", qUtf8Printable(stranger));
        nodes.append(real.isEmpty() || !stranger.isEmpty() ? node : real);
    }
    return nodes;
}

lsblk::Inventory read(const lsblk::Inventory &previous)
{
    const QByteArray told = linuxtools::run(QStringLiteral("lsblk"), lsblk::arguments()).output;
    lsblk::Inventory found = lsblk::parse(told, onlyNodes(), previous);
    for (inventory::Volume &volume : found.machine.volumes) {
        const QStorageInfo storage(volume.mountPoint);
        volume.size = static_cast<quint64>(std::max<qint64>(0, storage.bytesTotal()));
        volume.free = static_cast<quint64>(std::max<qint64>(0, storage.bytesFree()));
        const QString node = found.volumeNodes.value(volume.letter);
        const bool unknown = volume.fileSystem.isEmpty();
        if (unknown)
            identifyFileSystem(volume, node, storage);
        if (unknown || volume.label.contains(QLatin1String("\\x"))) {
            if (const QString label = labelOf(node); !label.isEmpty())
                volume.label = label;
        }
    }
    for (inventory::Disk &disk : found.machine.disks) {
        const auto device = RawDevice::open(disk.node, false);
        if (!device)
            continue;
        disk.medium = device->medium();
        if (disk.sectors == 0) {
            disk.sectors = static_cast<quint64>(device->size()) / 512;
            disk.bytesPerSector = device->bytesPerSector();
        }
    }
    qCDebug(logs::platform, "%d disks, %d volumes", found.machine.disks.size(), found.machine.volumes.size());
    return found;
}

} // namespace linuxmachine
