// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/VolumeExtents.h"
#include "state/DiskRecords.h"

#include <QString>

#include <memory>

/// Volumes of the operating system as nodes of the disk list. Device-load threads only.

/// What the volumes need to know of the removable disks.
struct RemovableDisks {
    int count = 0;
    const DiskNode *first = nullptr; ///< first node of that kind, null if there is none
};

/// The node of the volume at `root` ("C:\"), without an id and without its place on a disk. Null for what is
/// not listed: network and CD drives, drives of an unknown type, drives of the rarer types without a size,
/// and a fixed drive A: without a file system.
std::unique_ptr<DiskNode> makeVolumeNode(const QString &root, const RemovableDisks &removable);

/// Tells a fixed volume by its extents which disk it lies on and where. Any other node, and one whose extents
/// cannot be had, stays as it is.
void tieVolumeToDisk(DiskNode *node, KnownExtents *extents);
