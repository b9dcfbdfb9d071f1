// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/DiskRecords.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

/// What the Disk Partition screen says of a disk's volumes.
namespace partitiontexts
{

/// The letters of a physical disk, each with its colon, out of DiskDetails::szDrives.
QStringList driveLetters(const QString &drives);

/// The sizes in bytes behind the letters, in their order: of each the first record of the list. A letter
/// without a record adds nothing.
QList<qint64> volumeSizes(const QStringList &letters, const RecordList<LogicalDiskRecord> &volumes);

/// "C: (NTFS)", with `protectedMark` behind it where the volume is encrypted.
QString volumeName(const LogicalDiskRecord &volume, const QString &protectedMark);

/// The numbers of the disks that a volume's own extents name, by its letter with the colon; empty where the
/// list does not know them.
QVector<int> disksOfVolume(const QString &letter, const RecordList<DiskNode> &nodes);

/// "Healthy" where the system reports each of a volume's disks as "OK". Of several lines for one disk the
/// last one counts; without any it is "Not Healthy".
QString healthWord(const QVector<int> &disks, const RecordList<WmicDiskRecord> &table);

/// "38% Free".
QString percentText(const LogicalDiskRecord &volume);

/// Units of the free part of a volume, KB to TB, and of the whole one, KB to GB.
constexpr int UnitsOfFree = 4;
constexpr int UnitsOfTotal = 3;

/// A size in bytes with one decimal, in one of so many units. Empty up to 1024 bytes.
QString sizeText(qint64 bytes, int unitCount);

/// What the ring of these sizes in bytes shows, for those who hear it: "2 volumes: 80.0 GB (80 %), 20.0 GB
/// (20 %)".
QString ringText(const QList<qint64> &sizes);

/// "181.4 GB Free of 476.3 GB"; Korean puts " Available" behind it.
QString spaceText(const LogicalDiskRecord &volume, bool korean);

} // namespace partitiontexts
