// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <vector>

/// Neighbouring sectors of 512 bytes.
struct SectorRun {
    qint64 first = 0;
    qint64 count = 0;
};

/// Sectors in the order in which they were found.
class SectorRuns
{
public:
    void add(qint64 first, qint64 count)
    {
        m_count += count;
        if (!m_runs.empty() && m_runs.back().first + m_runs.back().count == first)
            m_runs.back().count += count;
        else
            m_runs.push_back({first, count});
    }
    qint64 count() const { return m_count; }
    const std::vector<SectorRun> &runs() const { return m_runs; }

private:
    std::vector<SectorRun> m_runs;
    qint64 m_count = 0;
};

/// What a copy lacks. A sector is in one of the two lists at most.
struct LostSectors {
    SectorRuns unread;        ///< could not be read; zeros on the destination
    SectorRuns unwritten;     ///< could not be written
    bool unconfirmed = false; ///< the destination did not confirm that what was written is stored

    bool any() const { return unread.count() > 0 || unwritten.count() > 0 || unconfirmed; }
};
