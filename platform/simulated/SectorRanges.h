// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVector>

/// A set of sectors, kept as sorted stretches, so that a question costs the same on a disk of any size.
class SectorRanges
{
public:
    /// Adds `count` sectors from `first` on. Stretches may overlap.
    void add(qint64 first, qint64 count);

    bool isEmpty() const { return m_ranges.isEmpty(); }
    /// True if one of the `count` sectors from `first` on is in the set.
    bool touches(qint64 first, qint64 count) const;
    /// The lowest sector of the set; -1 if there is none.
    qint64 lowest() const { return m_ranges.isEmpty() ? -1 : m_ranges.first().first; }

private:
    struct Range {
        qint64 first;
        qint64 end;
    };
    QVector<Range> m_ranges; ///< sorted, disjoint
};
