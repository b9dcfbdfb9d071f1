// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "clone/CloneTargets.h"

#include <QSemaphore>

#include <array>
#include <atomic>
#include <thread>

/// Reads the blocks of a source in order, on a thread of its own, one block ahead of its caller. While it
/// lives, nobody else may use the source. g_bAbortJob ends it at the next block.
class BlockReader
{
public:
    static constexpr qint64 BlockSectors = 0x8000; ///< also of a transfer at the end

    struct Block {
        enum State { Read, Unreadable, SourceGone, Stopped };
        State state = Stopped;
        qint64 position = 0;
        qint64 sectors = 0;   ///< of the source; fewer than a block's at its end
        char *data = nullptr; ///< a whole block; zeros behind the source's end
    };

    /// Each buffer has room for a block and has to outlive this object.
    BlockReader(CloneSource &source, qint64 total, const std::array<char *, 2> &buffers);
    /// Waits for a read that is under way.
    ~BlockReader();
    BlockReader(const BlockReader &) = delete;
    BlockReader &operator=(const BlockReader &) = delete;

    /// Gives the previous block back to the reader and waits for the next one. Null behind the last block.
    /// A block in the state SourceGone or Stopped is the last one.
    const Block *next();

private:
    void run();
    Block::State read(const Block &block);

    CloneSource &m_source;
    const qint64 m_total;
    std::array<Block, 2> m_blocks;
    QSemaphore m_free{2};
    QSemaphore m_full;
    std::atomic<bool> m_end{false};
    qint64 m_taken = 0; ///< blocks
    std::thread m_thread;
};
