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

    /// Calls `visit` with each run, oldest first. The scan waits meanwhile, so `visit` is to be quick.
    template<class Visit>
    void forEachRun(Visit visit) const
    {
        const std::lock_guard lock(m_mutex);
        for (const SectorRun &run : m_found.runs())
            visit(run);
    }

private:
    mutable std::mutex m_mutex;
    SectorRuns m_found;
};
