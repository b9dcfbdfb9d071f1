// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Inventory.h"
#include "platform/Platform.h"
#include "platform/linux/RawDevice.h"
#include "platform/tools/Diskpart.h"

#include <QStringList>

#include <memory>

/// The disks of a Linux PC as they may be overwritten.
namespace linuxdisks
{

/// Where the devices of lsblk's JSON text are mounted, those below them included; "[SWAP]" among them.
QStringList mountPoints(const QByteArray &lsblkJson);

/// Whether the running system needs what is mounted at one of these places.
bool bearsSystem(const QStringList &mountPoints);

/// Whether the disk behind a node must not be written: the system runs from it, something without a mount
/// uses it, or nothing can be found out about it. A regular file may always be written.
bool isProtected(const QString &node);

/// Unmounts the volumes of the disk behind a node, unless something else keeps the disk from being erased.
/// Returns what still uses the disk; a regular file is always free.
DiskUse release(const QString &node);

/// Opens a disk of an inventory; null also where another medium stands behind its node by now.
std::unique_ptr<RawDevice> open(const inventory::Disk &disk, bool writable);

/// Empties and partitions disks of an inventory with wipefs and sfdisk, and no other disk. Volumes that are
/// mounted from such a disk are unmounted first; one that is busy keeps the disk from being emptied.
class Scripts : public tools::ScriptedDisks
{
public:
    explicit Scripts(inventory::Machine machine) : m_machine(std::move(machine)) {}

    bool has(int disk) override;
    tools::DiskOutcome act(tools::DiskAction action, int disk) override;

private:
    const inventory::Machine m_machine;
};

} // namespace linuxdisks
