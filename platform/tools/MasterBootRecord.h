// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/// The first sector of a disk with the classic partition table. Sectors here are those of the disk, of
/// `sectorBytes` bytes each; the record itself is the first 512 bytes.
namespace mbr
{

constexpr int RecordSize = 512;

/// Whether a first sector holds a table with a partition in it; a GPT shows as such a partition.
bool hasPartitions(const QByteArray &record);

/// Whether a first sector holds a table.
bool hasTable(const QByteArray &record);

/// A record with an empty table. `diskSignature` tells disks apart.
QByteArray emptyTable(quint32 diskSignature);

/// A record with one more partition of the kind that the installable file systems use, from the first MiB of
/// the disk to its end, as far as the table can count. Empty where the disk ends before.
QByteArray withOnePartition(QByteArray record, quint64 diskSectors, quint32 sectorBytes);

} // namespace mbr
