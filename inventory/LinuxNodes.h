// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/PartitionWalk.h"
#include "state/DiskRecords.h"

#include <memory>

/// The node of a Linux partition, without an id. `number` stands in its display name where the file system
/// has none. Reads the superblock; device-load threads only.
std::unique_ptr<DiskNode> makeLinuxNode(const LinuxPartitionEntry &entry, int number);
