// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LinuxMachine.h"

#include "platform/Log.h"
#include "platform/OwnFiles.h"
#include "platform/PlainText.h"
#include "platform/linux/LinuxTools.h"
#include "platform/linux/RawDevice.h"

#include <QByteArrayList>
#include <QFile>
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
void identifyFileSystem(inventory::Volume &volume, const QString &node)
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
    const QString mounted = QString::fromLocal8Bit(QStorageInfo(volume.mountPoint).fileSystemType());
    const QString type = found.value(QStringLiteral("TYPE"), mounted);
    volume.fileSystem = lsblk::fileSystemName(type, found.value(QStringLiteral("VERSION")));
}

void askNode(inventory::Disk *disk)
{
    const auto device = RawDevice::open(disk->node, false);
    if (!device)
        return;
    disk->medium = device->medium();
    if (disk->sectors == 0) {
        disk->sectors = static_cast<quint64>(device->size()) / 512;
        disk->bytesPerSector = device->bytesPerSector();
    }
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

lsblk::Inventory readDisks(const lsblk::Inventory &previous)
{
    const QByteArray told = linuxtools::run(QStringLiteral("lsblk"), lsblk::arguments()).output;
    lsblk::Inventory found = lsblk::parse(told, onlyNodes(), previous);
    for (inventory::Disk &disk : found.machine.disks) {
        if (QFileInfo(disk.node).isFile()) // an image, of which lsblk knows nothing
            askNode(&disk);
    }
    for (inventory::Volume &volume : found.machine.volumes) {
        const QStorageInfo storage(volume.mountPoint);
        volume.size = static_cast<quint64>(std::max<qint64>(0, storage.bytesTotal()));
        volume.free = static_cast<quint64>(std::max<qint64>(0, storage.bytesFree()));
    }
    qCDebug(logs::platform, "%d disks, %d volumes", found.machine.disks.size(), found.machine.volumes.size());
    return found;
}

lsblk::Inventory read(const lsblk::Inventory &previous)
{
    lsblk::Inventory found = readDisks(previous);
    for (inventory::Volume &volume : found.machine.volumes) {
        const QString node = found.volumeNodes.value(volume.letter);
        const bool unknown = volume.fileSystem.isEmpty();
        if (unknown)
            identifyFileSystem(volume, node);
        if (unknown || volume.label.contains(QLatin1String("\\x"))) {
            if (const QString label = labelOf(node); !label.isEmpty())
                volume.label = label;
        }
    }
    for (inventory::Disk &disk : found.machine.disks)
        askNode(&disk);
    return found;
}

std::optional<quint64> activityOf(const QString &node)
{
    // Reads, writes, discards and flushes of the kernel's own table, by place.
    constexpr int Counted[] = {0, 4, 11, 15};
    const QString name = QFileInfo(QFileInfo(node).canonicalFilePath()).fileName();
    QFile file(QStringLiteral("/sys/class/block/") + name + QStringLiteral("/stat"));
    if (name.isEmpty() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArrayList figures = file.readAll().simplified().split(' ');
    quint64 transfers = 0;
    for (const int place : Counted)
        transfers += figures.value(place).toULongLong();
    return figures.size() > Counted[1] ? std::optional<quint64>(transfers) : std::nullopt;
}

} // namespace linuxmachine
