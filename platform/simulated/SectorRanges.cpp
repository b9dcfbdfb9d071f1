// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/SectorRanges.h"

#include <algorithm>

void SectorRanges::add(qint64 first, qint64 count)
{
    if (count <= 0)
        return;
    Range added{first, first + count};
    const auto from = std::lower_bound(m_ranges.begin(), m_ranges.end(), added.first,
                                       [](const Range &range, qint64 sector) { return range.end < sector; });
    auto to = from;
    for (; to != m_ranges.end() && to->first <= added.end; ++to) {
        added.first = std::min(added.first, to->first);
        added.end = std::max(added.end, to->end);
    }
    m_ranges.insert(m_ranges.erase(from, to), added);
}

bool SectorRanges::touches(qint64 first, qint64 count) const
{
    const auto it = std::upper_bound(m_ranges.begin(), m_ranges.end(), first,
                                     [](qint64 sector, const Range &range) { return sector < range.end; });
    return it != m_ranges.end() && it->first < first + count;
}
