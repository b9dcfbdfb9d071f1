// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChar>
#include <QHash>
#include <QVector>

#include <optional>

/// Where a volume lies, as the system tells it.
struct VolumeExtents {
    quint32 count = 0; ///< of extents, at least one; the rest is about the first one
    quint32 diskNumber = 0;
    quint64 startSector = 0; ///< of 512 bytes
    quint64 endSector = 0;   ///< behind the last sector
    QVector<int> disks;      ///< numbers of the disks of all extents
};

/// The extents of the volumes. Each letter is opened once, when it is first asked for; a network share, which
/// may be long dead, never. Device-load threads only; lives for one load.
class KnownExtents
{
public:
    /// Nothing for a volume that does not open or answer.
    std::optional<VolumeExtents> of(QChar letter);

private:
    QHash<QChar, std::optional<VolumeExtents>> m_known;
};
