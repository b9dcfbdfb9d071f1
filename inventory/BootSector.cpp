// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/BootSector.h"

#include "platform/PlainText.h"

#include <QtEndian>

#include <cstring>

namespace bootsector
{
namespace
{

constexpr int OemNameOffset = 3;
constexpr int SectorsPerFatOffset = 22;
constexpr int LastFat12Sectors = 12;
constexpr int ExfatLengthOffset = 72;
constexpr int SignatureOffset = 510;
constexpr int SuperblockOffset = 1024;
constexpr int MagicOffset = 56;
constexpr std::size_t VolumeNameOffset = 120;
constexpr std::size_t MountPointOffset = 136;
constexpr int NameSize = 16;

constexpr quint64 FatBackupSector = 6;
constexpr quint64 ExfatBackupSector = 12;

template<typename Number>
Number numberAt(const unsigned char *bytes, int offset)
{
    return qFromLittleEndian<Number>(bytes + offset);
}

/// True if the OEM name begins with `name`, in that very case.
bool hasOemName(const unsigned char *bootSector, const char *name)
{
    return std::memcmp(bootSector + OemNameOffset, name, std::strlen(name)) == 0;
}

/// The file system of a removable volume by the copy of its boot sector, as the first one is of no use.
QString sniffBackup(int letter, quint64 totalBytes)
{
    if (hasOemName(readSector(letter, totalBytes / SectorSize).data(), "NTFS"))
        return QStringLiteral("NTFS");
    if (hasOemName(readSector(letter, FatBackupSector).data(), "MSDOS"))
        return QStringLiteral("FAT32");
    // In capitals: such a volume bears no file system code.
    if (hasOemName(readSector(letter, ExfatBackupSector).data(), "EXFAT"))
        return QStringLiteral("EXFAT");
    return QStringLiteral("FAT32");
}

} // namespace

Sector readSector(int driveCode, quint64 sector)
{
    Sector bytes{};
    if (!ReadWriteSectors(driveCode, sector, bytes.data(), SectorSize))
        bytes.fill(0);
    return bytes;
}

bool isFat16(const Sector &bootSector)
{
    return numberAt<quint16>(bootSector.data(), SectorsPerFatOffset) > LastFat12Sectors;
}

bool isNtfs(const Sector &bootSector)
{
    constexpr quint16 Signature = 0xAA55;
    return numberAt<quint16>(bootSector.data(), SignatureOffset) == Signature &&
           hasOemName(bootSector.data(), "NTFS");
}

bool isExt(const ExtProbe &start)
{
    constexpr quint16 Magic = 0xEF53;
    for (const char *other : {"NTFS", "MS", "EXFAT"}) {
        if (hasOemName(start.data(), other))
            return false;
    }
    return numberAt<quint16>(start.data(), SuperblockOffset + MagicOffset) == Magic;
}

QString extName(const Sector &superblock)
{
    for (const std::size_t offset : {MountPointOffset, VolumeNameOffset}) {
        if (superblock[offset] == '/') {
            const char *name = reinterpret_cast<const char *>(superblock.data()) + offset;
            return plaintext::line(QString::fromLocal8Bit(name, static_cast<int>(qstrnlen(name, NameSize))));
        }
    }
    return QString();
}

std::optional<Sniffed> sniffFileSystem(int letter, bool removable, quint64 totalBytes)
{
    const Sector first = readSector(letter, 0);
    if (hasOemName(first.data(), "EXFAT"))
        return Sniffed{QStringLiteral("exFAT"),
                       totalBytes != 0 ? totalBytes
                                       : numberAt<quint64>(first.data(), ExfatLengthOffset) * SectorSize};
    if (removable)
        return Sniffed{sniffBackup(letter, totalBytes), totalBytes};
    if (letter == 0)
        return std::nullopt;
    return Sniffed{QStringLiteral("FAT32"), totalBytes};
}

} // namespace bootsector
