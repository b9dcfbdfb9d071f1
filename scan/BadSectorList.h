// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/SectorRuns.h"

#include <mutex>

/// The bad sectors of a scan in the order of finding. Any thread may call any operation.
class BadSectorList
{
public:
    /// Adds `count` neighbouring sectors from `first` on. Throws std::bad_alloc where there is no memory.
    void append(qint64 first, qint64 count = 1);

    void clear();

    /// How many sectors the list holds.
    qint64 count() const;
    bool isEmpty() const { return count() == 0; }

    /// A copy of the runs as they are now, so that a walk does not hold up the scan.
    std::vector<SectorRun> runs() const;

private:
    mutable std::mutex m_mutex;
    SectorRuns m_found;
};
