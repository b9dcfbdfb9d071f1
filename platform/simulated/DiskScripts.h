// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Inventory.h"
#include "platform/Platform.h"
#include "platform/tools/Diskpart.h"

namespace simulated
{

/// The disks of a described PC as the partition tool works on them: on their images. All are online; none is
/// kept from being emptied, as nothing runs from them. The volumes of the description stay described.
class DiskScripts : public tools::ScriptedDisks
{
public:
    /// `devices` opens the disks of `machine`, and has to outlive this object.
    DiskScripts(inventory::Machine machine, Platform &devices)
        : m_machine(std::move(machine)), m_devices(devices)
    {
    }

    bool has(int disk) override { return inventory::diskOf(m_machine, disk) != nullptr; }
    tools::DiskOutcome act(tools::DiskAction action, int disk) override;

private:
    const inventory::Machine m_machine;
    Platform &m_devices;
};

} // namespace simulated
