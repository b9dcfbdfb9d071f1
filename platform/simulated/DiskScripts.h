// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/simulated/Presence.h"
#include "platform/simulated/RawDevices.h"
#include "platform/tools/Diskpart.h"

namespace simulated
{

/// The disks of a described PC as the partition tool works on them: on their images. All are online; none is
/// kept from being emptied, as nothing runs from them. The volumes of the description stay described.
class DiskScripts : public tools::ScriptedDisks
{
public:
    /// All three have to outlive this object.
    DiskScripts(const PcDescription &pc, const Presence &presence, RawDevices &devices)
        : m_pc(pc), m_presence(presence), m_devices(devices)
    {
    }

    bool has(int disk) override;
    tools::DiskOutcome act(tools::DiskAction action, int disk) override;

private:
    const PcDescription &m_pc;
    const Presence &m_presence;
    RawDevices &m_devices;
};

} // namespace simulated
