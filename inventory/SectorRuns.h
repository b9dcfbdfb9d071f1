// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <vector>

/// Neighbouring sectors of 512 bytes.
struct SectorRun {
    qint64 first = 0;
    qint64 count = 0;
};

/// Sectors in the order in which they were found, a sector as often as it was found. Neighbours that are
/// found one after the other share a run.
class SectorRuns
{
public:
    void add(qint64 first, qint64 count)
    {
        if (!m_runs.empty() && m_runs.back().first + m_runs.back().count == first)
            m_runs.back().count += count;
        else
            m_runs.push_back({first, count});
        m_count += count;
    }
    /// Of sectors.
    qint64 count() const { return m_count; }
    const std::vector<SectorRun> &runs() const { return m_runs; }

private:
    std::vector<SectorRun> m_runs;
    qint64 m_count = 0;
};
