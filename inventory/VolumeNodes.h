// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/PartitionWalk.h"
#include "state/DiskRecords.h"

#include <QHash>
#include <QString>

#include <memory>
#include <optional>

/// Volumes of the operating system, and Linux partitions, as nodes of the disk list. The nodes come without
/// an id. Device-load threads only.

/// Where a volume lies, as the system tells it.
struct VolumeExtents {
    quint32 count = 0; ///< of extents, at least one; the rest is about the first one
    quint32 diskNumber = 0;
    quint64 startSector = 0;
    quint64 endSector = 0; ///< behind the last sector
    QVector<int> disks;    ///< numbers of the disks of all extents
};

/// The extents of the volumes. Each letter is opened once, when it is first asked for. A network share is
/// never opened: it may not answer for minutes. Lives for one load.
class KnownExtents
{
public:
    /// Nothing for a volume that does not open or answer.
    std::optional<VolumeExtents> of(QChar letter);

private:
    QHash<QChar, std::optional<VolumeExtents>> m_known;
};

/// What the volumes need to know of the removable disks.
struct RemovableDisks {
    int count = 0;
    const DiskNode *first = nullptr; ///< first node of that kind, null if there is none
};

/// The node of the volume at `root` ("C:\"), without its place on a disk. Null for what is not listed:
/// network and CD drives, drives of an unknown type, drives of the rarer types without a size, and a fixed
/// drive A: without a file system.
std::unique_ptr<DiskNode> makeVolumeNode(const QString &root, const RemovableDisks &removable);

/// Tells a fixed volume by its extents which disk it lies on and where. Any other node, and one whose extents
/// cannot be had, stays as it is.
void tieVolumeToDisk(DiskNode *node, KnownExtents *extents);

/// The node of a Linux partition. `number` stands in its display name where the file system has none. Reads
/// the superblock.
std::unique_ptr<DiskNode> makeLinuxNode(const LinuxPartitionEntry &entry, int number);

/// A capacity with two decimals in GB, or in MB where it is below 1 GiB. Below 1 MiB the number of kilobytes
/// with `smallUnit` behind it: a physical disk says "KB" there, a volume "MB".
QString capacityText(quint64 bytes, const QString &smallUnit);
