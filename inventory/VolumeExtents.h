#pragma once

#include <QChar>

#include <optional>

/// Where a volume lies, as the system tells it.
struct VolumeExtents {
    quint32 count = 0; ///< of extents, at least one; the rest is about the first one
    quint32 diskNumber = 0;
    quint64 startSector = 0; ///< of 512 bytes
    quint64 endSector = 0;   ///< behind the last sector
};

/// Asks for the extents of the volume with this letter. Nothing if it does not open or answer.
std::optional<VolumeExtents> readVolumeExtents(QChar letter);
