// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/VolumeNodes.h"

#include "inventory/BootSector.h"
#include "platform/IoControl.h"
#include "platform/PlainText.h"
#include "platform/Platform.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstring>

namespace
{

const QString Fixed = QStringLiteral("FIXED");
const QString Removable = QStringLiteral("REMOVABLE");

/// A file system by its name, and the two numbers it is known by.
struct FileSystemCode {
    QLatin1String name;
    quint8 code;
    quint8 fileSystemClass;
};

constexpr quint8 Fat12Code = 0;
constexpr quint8 Fat16Code = 1;
constexpr quint8 FatClass = 2;
const FileSystemCode NtfsCode{QLatin1String("NTFS"), 7, 4};
const std::array<FileSystemCode, 4> FileSystemCodes{{
    {QLatin1String("RAW"), 4, 0},
    {QLatin1String("exFAT"), 3, 3},
    NtfsCode,
    {QLatin1String("FAT32"), 2, 2},
}};

/// The type as nodes have it; null for drives that get no node.
QString typeText(quint32 driveType)
{
    switch (driveType) {
    case io::DriveNoRootDir:
        return QStringLiteral("DRIVE_NO_ROOT_DIR");
    case io::DriveRemovable:
        return Removable;
    case io::DriveFixed:
        return Fixed;
    case io::DriveRamDisk:
        return QStringLiteral("RAMDISK");
    default:
        return QString();
    }
}

QString volumeCapacity(quint64 bytes)
{
    // Below 1 MiB the kilobytes of a volume bear this unit, too.
    return capacityText(bytes, QStringLiteral("MB"));
}

/// A lone removable disk gives its size to the volume that cannot tell its own. Without a medium there is
/// none to give.
quint64 borrowedSize(const RemovableDisks &removable)
{
    if (removable.count != 1 || !removable.first)
        return 0;
    const quint64 bytes = removable.first->pDetails->nTotalSectors * SectorSize;
    return bytes == 0 ? 0 : bytes - 1;
}

/// Takes the sizes of the volume. False if it has none and needs one to be listed.
bool readSizes(LogicalDetails *volume, const RemovableDisks &removable)
{
    quint64 total = 0;
    quint64 free = 0;
    Platform::current().GetDiskFreeSpaceExW(volume->szRoot, &total, &free);
    if (total == 0 && volume->szType != Fixed && volume->szType != Removable)
        return false;
    volume->nTotalBytes = total;
    volume->nFreeBytes = free;
    if (total == 0 && free == 0 && volume->szType == Removable)
        volume->nTotalBytes = borrowedSize(removable);
    return true;
}

/// Takes label and file system from the system, else the latter from the boot sector. False if there is no
/// volume.
bool readNames(LogicalDetails *volume)
{
    Platform::current().GetVolumeInformationW(volume->szRoot, &volume->szLabel, &volume->szFileSystem);
    volume->szLabel = plaintext::line(volume->szLabel);
    if (volume->szLabel.isEmpty())
        volume->szLabel = QStringLiteral("Local Disk");
    if (!volume->szFileSystem.isEmpty())
        return true;
    const std::optional<bootsector::Sniffed> sniffed =
        bootsector::sniffFileSystem(volume->nLetter, volume->szType == Removable, volume->nTotalBytes);
    if (!sniffed)
        return false;
    volume->szFileSystem = sniffed->fileSystem;
    volume->nTotalBytes = sniffed->totalBytes;
    return true;
}

void setFileSystemCode(LogicalDetails *volume, const FileSystemCode &code)
{
    volume->nFsCode = code.code;
    volume->nFsClass = code.fileSystemClass;
}

void readFileSystemCode(LogicalDetails *volume)
{
    if (volume->szFileSystem == QLatin1String("FAT")) {
        volume->nFsCode =
            bootsector::isFat16(bootsector::readSector(volume->nLetter, 0)) ? Fat16Code : Fat12Code;
        volume->nFsClass = FatClass;
        return;
    }
    for (const FileSystemCode &code : FileSystemCodes) {
        if (volume->szFileSystem == code.name)
            setFileSystemCode(volume, code);
    }
}

/// The size of a volume that lies on a disk but did not tell it, and another look for its file system.
void takeSizeFromExtents(LogicalDetails *volume)
{
    volume->nSectorCount = volume->nEndSector - volume->nStartSector;
    volume->nTotalBytes = volume->nSectorCount * SectorSize;
    volume->szCapacity = volumeCapacity(volume->nTotalBytes);
    static const QStringList known{QStringLiteral("NTFS"), QStringLiteral("FAT32"), QStringLiteral("FAT12"),
                                   QStringLiteral("FAT16"), QStringLiteral("exFAT")};
    if (!known.contains(volume->szFileSystem) &&
        bootsector::isNtfs(bootsector::readSector(volume->nLetter, 0))) {
        volume->szFileSystem = NtfsCode.name;
        setFileSystemCode(volume, NtfsCode);
    }
}

constexpr std::size_t ExtentBytes = 1024;

/// Extents of a volume in the room that the system call gets; further ones lie behind the first.
union ExtentBuffer {
    io::VolumeDiskExtents extents;
    quint8 bytes[ExtentBytes];
};

std::optional<VolumeExtents> readVolumeExtents(QChar letter)
{
    Platform &platform = Platform::current();
    if (platform.GetDriveTypeW(letter + QLatin1String(":\\")) == io::DriveRemote)
        return std::nullopt;
    const Platform::RawHandle handle =
        platform.CreateFileW(QStringLiteral("\\\\.\\%1:").arg(letter), io::GenericRead,
                             io::ShareRead | io::ShareWrite, io::OpenExisting);
    if (handle == Platform::InvalidHandle)
        return std::nullopt;
    ExtentBuffer buffer{};
    const bool answered = askTarget(handle, io::VolumeGetVolumeDiskExtents, &buffer);
    platform.CloseHandle(handle);
    if (!answered || buffer.extents.numberOfDiskExtents == 0)
        return std::nullopt;
    const io::DiskExtent &first = buffer.extents.extents[0];
    const auto start = static_cast<quint64>(first.startingOffset);
    VolumeExtents found{buffer.extents.numberOfDiskExtents,
                        first.diskNumber,
                        start / SectorSize,
                        (start + static_cast<quint64>(first.extentLength)) / SectorSize,
                        {}};
    std::size_t at = offsetof(io::VolumeDiskExtents, extents);
    for (quint32 i = 0; i < found.count && at + sizeof(io::DiskExtent) <= ExtentBytes; ++i) {
        io::DiskExtent extent;
        std::memcpy(&extent, buffer.bytes + at, sizeof extent);
        found.disks.append(static_cast<int>(extent.diskNumber));
        at += sizeof extent;
    }
    return found;
}

constexpr quint64 SuperblockSector = 2;

QString displayName(const LinuxPartitionEntry &entry, int number)
{
    const QString name =
        bootsector::extName(bootsector::readSector(entry.nDrive, entry.nStartSector + SuperblockSector));
    return name.isEmpty() ? QStringLiteral("Volume %1").arg(number) : name;
}

/// "%.2f" as C prints it, ties to even, with a point in every locale.
QString twoDecimals(double amount)
{
    constexpr int Decimals = 2;
    std::array<char, 64> text;
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), amount, std::chars_format::fixed, Decimals).ptr;
    return QString::fromLatin1(text.data(), static_cast<int>(end - text.data()));
}

} // namespace

std::unique_ptr<DiskNode> makeVolumeNode(const QString &root, const RemovableDisks &removable)
{
    auto volume = std::make_unique<LogicalDetails>();
    volume->nLetter = static_cast<quint8>(root.at(0).toUpper().unicode() - u'A');
    volume->szRoot = root;
    // The type comes first: a network share that is gone would keep the label waiting.
    volume->szType = typeText(Platform::current().GetDriveTypeW(root));
    if (volume->szType.isNull())
        return nullptr;
    if (volume->szType == Removable)
        volume->nParentId = volume->nLetter;
    if (!readSizes(volume.get(), removable) || !readNames(volume.get()))
        return nullptr;
    volume->szCapacity = volumeCapacity(volume->nTotalBytes);
    volume->nSectorCount = volume->nTotalBytes / SectorSize;
    volume->nEndSector = volume->nSectorCount;
    readFileSystemCode(volume.get());
    auto node = std::make_unique<DiskNode>();
    node->nKind = volume->szFileSystem == QLatin1String("RAW") ? RawVolume : VolumeNode;
    node->pLogical = std::move(volume);
    return node;
}

void tieVolumeToDisk(DiskNode *node, KnownExtents *known)
{
    if ((node->nKind != VolumeNode && node->nKind != RawVolume) || node->pLogical->szType != Fixed)
        return;
    LogicalDetails &volume = *node->pLogical;
    const std::optional<VolumeExtents> extents = known->of(QChar(u'A' + volume.nLetter));
    if (!extents)
        return;
    volume.disks = extents->disks;
    volume.bSpanned = extents->count > 1 ? 1 : 0;
    if (volume.bSpanned) {
        volume.nStartSector = 0;
        volume.nEndSector = volume.nSectorCount;
        volume.nParentId = volume.nLetter;
    } else {
        volume.nStartSector = extents->startSector;
        volume.nEndSector = extents->endSector;
        volume.nParentId = static_cast<quint8>(extents->diskNumber + PhysicalDriveBase);
    }
    if (volume.nSectorCount == 0)
        takeSizeFromExtents(&volume);
}

std::optional<VolumeExtents> KnownExtents::of(QChar letter)
{
    const auto known = m_known.constFind(letter);
    return known != m_known.constEnd() ? *known : *m_known.insert(letter, readVolumeExtents(letter));
}

std::unique_ptr<DiskNode> makeLinuxNode(const LinuxPartitionEntry &entry, int number)
{
    auto node = std::make_unique<DiskNode>();
    node->nKind = LinuxPartition;
    node->pLogical = std::make_unique<LogicalDetails>();
    LogicalDetails &details = *node->pLogical;
    details.nStartSector = entry.nStartSector;
    details.nSectorCount = entry.nSectorCount;
    details.nEndSector = entry.nEndSector;
    details.nFsCode = entry.nType;
    details.nParentId = entry.nDrive;
    details.nTotalBytes = entry.nSectorCount * SectorSize;
    details.szFileSystem = QStringLiteral("EXTx");
    details.szType = QStringLiteral("FIXED");
    details.szLabel = QStringLiteral("Linux Disk");
    details.szRoot = displayName(entry, number);
    details.szCapacity = volumeCapacity(details.nTotalBytes);
    return node;
}

QString capacityText(quint64 bytes, const QString &smallUnit)
{
    const auto in = [bytes](int power, const QString &unit) {
        const double amount = static_cast<double>(bytes) / static_cast<double>(quint64(1) << power);
        return twoDecimals(amount) + QLatin1Char(' ') + unit;
    };
    if (bytes >> 30)
        return in(30, QStringLiteral("GB"));
    if (bytes >> 20)
        return in(20, QStringLiteral("MB"));
    return in(10, smallUnit);
}
