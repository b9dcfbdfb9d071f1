// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "clone/BlockReader.h"
#include "clone/CloneOutcome.h"

#include <functional>
#include <vector>

/// Copies the sectors of a clone: first in blocks, then in small pieces what could not be read as a block.
/// g_bAbortJob ends it between two transfers. Sectors are of 512 bytes.
class CloneCopy
{
public:
    /// What is told on the way.
    struct Listener {
        /// A block, or a sector of a block that is written in pieces; `position` is where the block begins.
        std::function<void(qint64 position)> onStep;
        /// During the second pass: how many of the skipped sectors are still to be tried, and how many
        /// there were.
        std::function<void(qint64 left, qint64 skipped)> onSkipped;
    };

    CloneCopy(CloneSource &source, CloneDestination &destination, qint64 total, Listener listener);

    /// Both passes. Complete, WithErrors, Stopped or Failed; with the fault of a disk that has gone.
    CloneOutcome run(const std::array<char *, 2> &buffers);

private:
    bool goesOn();
    void copyBlocks(const std::array<char *, 2> &buffers);
    void copySkipped(char *buffer);
    void copyPiece(qint64 position, qint64 sectors, char *buffer);
    /// Tells which of the sectors are unreadable; those are zeros in the buffer.
    std::vector<bool> readSectors(qint64 position, qint64 sectors, char *buffer);
    /// Writes a range; if that fails, writes its sectors one by one. Returns the sectors that are lost.
    std::vector<SectorRun> write(qint64 position, char *buffer, qint64 sectors, qint64 room,
                                 const std::function<void()> &onSector);
    std::vector<SectorRun> writeSectors(qint64 position, char *buffer, qint64 sectors,
                                        const std::function<void()> &onSector);
    void fail(CloneFault fault);

    CloneSource &m_source;
    CloneDestination &m_destination;
    const qint64 m_total;
    const Listener m_listener;
    CloneOutcome m_outcome;
    std::vector<SectorRun> m_skipped; ///< blocks that could not be read
    bool m_stopped = false;
};
