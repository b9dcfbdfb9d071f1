// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LinuxDisks.h"

#include "platform/linux/LinuxTools.h"
#include "platform/tools/MasterBootRecord.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace linuxdisks
{

namespace
{

using tools::DiskAction;
using tools::DiskOutcome;

const QString SwapPlace = QStringLiteral("[SWAP]");

/// The system runs from these folders, and from what is mounted below them.
const char *const SystemFolders[] = {"/boot", "/efi", "/etc", "/nix", "/usr", "/var"};

void collect(const QJsonArray &devices, QStringList &places)
{
    for (const QJsonValue &value : devices) {
        const QJsonObject device = value.toObject();
        for (const QJsonValue &place : device.value(QLatin1String("mountpoints")).toArray()) {
            if (!place.toString().isEmpty())
                places.append(place.toString());
        }
        collect(device.value(QLatin1String("children")).toArray(), places);
    }
}

QJsonArray devicesOf(const QByteArray &lsblkJson)
{
    return QJsonDocument::fromJson(lsblkJson).object().value(QLatin1String("blockdevices")).toArray();
}

/// The first thing that lies on one of the devices and is no partition, such as a pool; empty if there is
/// none.
QString holderIn(const QJsonArray &devices)
{
    for (const QJsonValue &value : devices) {
        const QJsonArray children = value.toObject().value(QLatin1String("children")).toArray();
        for (const QJsonValue &child : children) {
            if (child.toObject().value(QLatin1String("type")).toString() != QLatin1String("part"))
                return child.toObject().value(QLatin1String("path")).toString();
        }
        const QString below = holderIn(children);
        if (!below.isEmpty())
            return below;
    }
    return {};
}

QByteArray treeOf(const QString &node)
{
    return linuxtools::run(QStringLiteral("lsblk"), {QStringLiteral("--json"), QStringLiteral("--output"),
                                                     QStringLiteral("PATH,TYPE,MOUNTPOINTS"), node})
        .output;
}

/// Whether the kernel itself uses the disk or a part of it.
bool isHeld(const QString &node)
{
    const int descriptor =
        ::open(QFile::encodeName(node).constData(), O_RDONLY | O_EXCL | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return errno == EBUSY;
    ::close(descriptor);
    return false;
}

bool isBlockDevice(const QString &node)
{
    struct stat status = {};
    return stat(QFile::encodeName(node).constData(), &status) == 0 && S_ISBLK(status.st_mode);
}

/// Makes the kernel forget the partitions that it knows of, or read the table anew, as far as it can read
/// any.
void tellKernel(const QString &node, bool forget)
{
    if (!isBlockDevice(node))
        return;
    linuxtools::run(QStringLiteral("blockdev"), {QStringLiteral("--rereadpt"), node});
    linuxtools::run(QStringLiteral("partx"), {forget ? QStringLiteral("-d") : QStringLiteral("-u"), node});
}

QByteArray firstRecord(const QString &node)
{
    const auto device = RawDevice::open(node, false);
    QByteArray record(mbr::RecordSize, '\0');
    return device && device->read(record.data(), mbr::RecordSize) == mbr::RecordSize ? record : QByteArray();
}

DiskOutcome clean(const QString &node)
{
    const DiskUse use = release(node);
    if (use.kind != DiskUse::Free)
        return use.kind == DiskUse::System ? DiskOutcome::SystemDisk : DiskOutcome::InUse;
    const bool done =
        linuxtools::run(QStringLiteral("wipefs"), {QStringLiteral("--all"), QStringLiteral("--force"), node})
            .well;
    if (done)
        tellKernel(node, true);
    return done ? DiskOutcome::Done : DiskOutcome::DeviceError;
}

bool partition(const QString &node, const QStringList &options, const QByteArray &script)
{
    const QStringList always{QStringLiteral("--quiet"), QStringLiteral("--force"),
                             QStringLiteral("--no-reread"), QStringLiteral("--no-tell-kernel"),
                             // An old file system at that place would show up again in the new partition.
                             QStringLiteral("--wipe-partitions"), QStringLiteral("always")};
    return linuxtools::run(QStringLiteral("sfdisk"), always + options + QStringList{node}, script).well;
}

DiskOutcome convertToMbr(const QString &node)
{
    const QByteArray record = firstRecord(node);
    if (record.isEmpty())
        return DiskOutcome::DeviceError;
    if (mbr::hasPartitions(record))
        return DiskOutcome::NotEmpty;
    return partition(node, {}, "label: dos\n") ? DiskOutcome::Done : DiskOutcome::DeviceError;
}

DiskOutcome createPrimary(const QString &node)
{
    const QByteArray record = firstRecord(node);
    const bool done = mbr::hasTable(record) && !mbr::hasPartitions(record) &&
                      partition(node, {QStringLiteral("--append")}, "start=1MiB, type=7\n");
    if (done)
        tellKernel(node, false);
    return done ? DiskOutcome::Done : DiskOutcome::NoRoom;
}

} // namespace

QStringList mountPoints(const QByteArray &lsblkJson)
{
    QStringList places;
    collect(devicesOf(lsblkJson), places);
    return places;
}

bool bearsSystem(const QStringList &mountPoints)
{
    const auto isSystemPlace = [](const QString &place) {
        const auto holds = [&place](const char *folder) {
            const QString name = QLatin1String(folder);
            return place == name || place.startsWith(name + QLatin1Char('/'));
        };
        return place == QLatin1String("/") || place == SwapPlace ||
               std::any_of(std::begin(SystemFolders), std::end(SystemFolders), holds);
    };
    return std::any_of(mountPoints.cbegin(), mountPoints.cend(), isSystemPlace);
}

bool isProtected(const QString &node)
{
    if (QFileInfo(node).isFile())
        return false;
    const QByteArray tree = treeOf(node);
    const QStringList places = mountPoints(tree);
    // A disk of a pool shows no mount of its own.
    return devicesOf(tree).isEmpty() || bearsSystem(places) || (places.isEmpty() && isHeld(node));
}

DiskUse release(const QString &node)
{
    if (QFileInfo(node).isFile())
        return {};
    const QJsonArray devices = devicesOf(treeOf(node));
    QStringList places;
    collect(devices, places);
    if (devices.isEmpty())
        return {DiskUse::Unknown, {}};
    if (bearsSystem(places))
        return {DiskUse::System, {}};
    const QString holder = holderIn(devices);
    if (!holder.isEmpty())
        return {DiskUse::Held, holder};
    // Inner mounts first.
    std::sort(places.begin(), places.end(), std::greater<>());
    for (const QString &place : qAsConst(places)) {
        if (!linuxtools::run(QStringLiteral("umount"), {place}).well)
            return {DiskUse::Mounted, place};
    }
    const QStringList left = mountPoints(treeOf(node));
    if (!left.isEmpty())
        return {DiskUse::Mounted, left.first()};
    return {isHeld(node) ? DiskUse::Held : DiskUse::Free, {}};
}

std::unique_ptr<RawDevice> open(const inventory::Disk &disk, bool writable)
{
    auto device = RawDevice::open(disk.node, writable);
    const bool swapped = device && disk.medium != 0 && device->medium() != disk.medium;
    return swapped ? nullptr : std::move(device);
}

bool Scripts::has(int disk)
{
    const inventory::Disk *known = inventory::diskOf(m_machine, disk);
    return known && open(*known, false);
}

DiskOutcome Scripts::act(DiskAction action, int disk)
{
    const inventory::Disk &known = *inventory::diskOf(m_machine, disk);
    const QString node = known.node;
    if (action == DiskAction::Online)
        return DiskOutcome::AlreadyOnline;
    const bool untouchable = isProtected(node);
    if (action == DiskAction::Rescan) {
        if (!untouchable)
            tellKernel(node, false);
        return DiskOutcome::Done;
    }
    if (untouchable)
        return DiskOutcome::SystemDisk;
    if (!open(known, true))
        return DiskOutcome::AccessDenied;
    if (action == DiskAction::Clean)
        return clean(node);
    return action == DiskAction::ConvertMbr ? convertToMbr(node) : createPrimary(node);
}

} // namespace linuxdisks
