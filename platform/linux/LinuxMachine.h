// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/LsblkInventory.h"

#include <optional>

/// The Linux PC that the program runs on.
namespace linuxmachine
{

/// The nodes of HALVANE_DISKS by their real names; empty where the disks are those of the machine.
QStringList onlyNodes();

/// Reads the PC. What `previous` knows keeps its numbers and letters.
lsblk::Inventory read(const lsblk::Inventory &previous);

/// The same without what only the disks and volumes themselves tell: none of them is opened.
lsblk::Inventory readDisks(const lsblk::Inventory &previous);

/// The transfers that the kernel has counted on a disk's node; nothing where it counts none.
std::optional<quint64> activityOf(const QString &node);

} // namespace linuxmachine
