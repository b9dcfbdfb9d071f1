// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Inventory.h"

#include <QByteArray>

/// What Windows' storage interface answers about a disk, read into plain records. Any bytes are taken; what
/// is cut short counts as not told.
namespace storage
{

/// A disk by its STORAGE_DEVICE_DESCRIPTOR, which is empty where the disk refused. Size and sectors are not
/// in there.
inventory::Disk readDisk(int number, const QByteArray &descriptor);

/// The partitions of a disk by its DRIVE_LAYOUT_INFORMATION_EX, in the order of their places and as the
/// partition table tool lists them: without the system's reserve and without the containers of a chain of
/// logical drives.
QVector<inventory::Partition> readPartitions(int disk, const QByteArray &layout);

} // namespace storage
