// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/RawAccess.h"

#include <array>
#include <optional>

/// What the first sectors of a volume say about its file system. Numbers on disk are little-endian. The
/// readings of bytes take any content; they look at nothing outside their array.
namespace bootsector
{

/// Bytes that tell an ext file system: two sectors and the first half of the superblock behind them.
constexpr int ExtProbeSize = 3 * SectorSize;

using Sector = std::array<unsigned char, SectorSize>;
using ExtProbe = std::array<unsigned char, ExtProbeSize>;

/// One sector of a target; all zero where it cannot be read.
Sector readSector(int driveCode, quint64 sector);

/// True if the FAT of a volume that calls itself "FAT" has 16 bits, else it has 12.
bool isFat16(const Sector &bootSector);

/// True for the boot sector of an NTFS volume, signature included.
bool isNtfs(const Sector &bootSector);

/// True if a partition of the basic-data type holds an ext file system.
bool isExt(const ExtProbe &start);

/// The name of an ext file system by the first half of its superblock: the last mount point, else the volume
/// name; at most 16 bytes, and only one that is a path. Empty if there is none.
QString extName(const Sector &superblock);

/// What sniffing finds of a volume.
struct Sniffed {
    QString fileSystem;
    quint64 totalBytes = 0;
};

/// Tells the file system of a volume that the system has no name for. `totalBytes` is the volume's size, 0
/// if unknown; it comes back as it was unless the boot sector tells the missing size. What cannot be read or
/// recognised counts as "FAT32". Nothing for a volume that is none: a fixed drive A: without a file system.
std::optional<Sniffed> sniffFileSystem(int letter, bool removable, quint64 totalBytes);

} // namespace bootsector
