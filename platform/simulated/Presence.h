// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DeviceNotifier.h"
#include "platform/simulated/PcDescription.h"

#include <QSet>
#include <QVector>

#include <mutex>
#include <optional>

namespace simulated
{

/// What of a described PC is plugged in at the moment. Any thread.
class Presence
{
public:
    /// The description has to outlive this object; it tells what is there at first.
    explicit Presence(const PcDescription &pc);

    bool hasDisk(int number) const;
    /// True unless the volume, or a disk that it lies on, was taken away.
    bool has(const inventory::Volume &volume) const;

    /// Acts on a file of that name in `volumes-changed/` ("remove-L", "arrive-disk4", "remove", …). Returns
    /// the system's notices, one for each volume that came or went; nothing if the name has no meaning.
    std::optional<QVector<DeviceChange>> touch(const QString &name);

private:
    bool hasLocked(const inventory::Volume &volume) const;
    int volumesLocked() const;

    const PcDescription &m_pc;
    mutable std::mutex m_mutex;
    QSet<int> m_absentDisks;
    QSet<QChar> m_absentVolumes;
};

} // namespace simulated
