// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/LsblkInventory.h"

/// The Linux PC that the program runs on.
namespace linuxmachine
{

/// The nodes of HALVANE_DISKS by their real names; empty where the disks are those of the machine.
QStringList onlyNodes();

/// Reads the PC. What `previous` knows keeps its numbers and letters.
lsblk::Inventory read(const lsblk::Inventory &previous);

} // namespace linuxmachine
