// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/Presence.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstdlib>

namespace simulated
{
namespace
{

template<typename Thing>
void set(QSet<Thing> &absent, const Thing &thing, bool arrives)
{
    if (arrives)
        absent.remove(thing);
    else
        absent.insert(thing);
}

} // namespace

Presence::Presence(const PcDescription &pc)
    : m_pc(pc), m_absentDisks(pc.absentDisks), m_absentVolumes(pc.absentVolumes)
{
}

bool Presence::hasDisk(int number) const
{
    const std::lock_guard lock(m_mutex);
    return !m_absentDisks.contains(number);
}

bool Presence::has(const inventory::Volume &volume) const
{
    const std::lock_guard lock(m_mutex);
    return hasLocked(volume);
}

bool Presence::hasLocked(const inventory::Volume &volume) const
{
    return !m_absentVolumes.contains(volume.letter) &&
           std::none_of(
               volume.extents.cbegin(), volume.extents.cend(),
               [this](const inventory::Extent &extent) { return m_absentDisks.contains(extent.disk); });
}

int Presence::volumesLocked() const
{
    return static_cast<int>(
        std::count_if(m_pc.volumes.cbegin(), m_pc.volumes.cend(),
                      [this](const inventory::Volume &volume) { return hasLocked(volume); }));
}

std::optional<QVector<DeviceChange>> Presence::touch(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("^(arrive|remove)(?:-(?:([A-Za-z])|disk([0-9]{1,3})))?$"));
    const QRegularExpressionMatch match = form.match(name);
    if (!match.hasMatch())
        return std::nullopt;
    const bool arrives = match.captured(1) == QLatin1String("arrive");
    const DeviceChange notice{arrives ? DeviceChange::Arrival : DeviceChange::RemoveComplete,
                              DeviceChange::Volume};
    const QString letter = match.captured(2);
    const QString disk = match.captured(3);
    if (letter.isEmpty() && disk.isEmpty())
        return QVector<DeviceChange>{notice};
    const std::lock_guard lock(m_mutex);
    const int before = volumesLocked();
    if (letter.isEmpty())
        set(m_absentDisks, disk.toInt(), arrives);
    else
        set(m_absentVolumes, letter.at(0).toUpper(), arrives);
    return QVector<DeviceChange>(std::abs(volumesLocked() - before), notice);
}

} // namespace simulated
