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

/// Whether the disk behind a node must not be written: it bears the running system, or it is held by
/// something that shows no mount, or nothing can be learned of it. A regular file may always be written.
bool isProtected(const QString &node);

/// Unmounts what is mounted from the disk behind a node, unless something is found before that keeps it from
/// being erased. What uses it then; a regular file is always free.
DiskUse release(const QString &node);

/// Opens a disk of an inventory; null also where another medium stands behind its node by now.
std::unique_ptr<RawDevice> open(const inventory::Disk &disk, bool writable);

/// Empties and partitions disks of an inventory with wipefs and sfdisk, and no other disk. Volumes that are
/// mounted from such a disk are unmounted first; one that is busy keeps the disk from being emptied.
class Scripts : public tools::ScriptedDisks
{
public:
    explicit Scripts(const inventory::Machine &machine) : m_machine(machine) {}

    bool has(int disk) override;
    tools::DiskOutcome act(tools::DiskAction action, int disk) override;

private:
    const inventory::Disk *find(int disk) const;

    const inventory::Machine m_machine;
};

} // namespace linuxdisks
