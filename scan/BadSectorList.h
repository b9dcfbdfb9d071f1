// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVector>

#include <array>
#include <atomic>
#include <memory>
#include <mutex>

/// The bad sectors of a scan in the order of finding, a sector as often as it was found. Neighbours found one
/// after the other are kept as one run, so that a disk that has gone costs little memory and little painting.
///
/// One thread appends while others walk: a walk sees what was there when it began, and holds nobody up who
/// appends. Any thread may call any operation.
class BadSectorList
{
public:
    BadSectorList() = default;
    BadSectorList(const BadSectorList &) = delete;
    BadSectorList &operator=(const BadSectorList &) = delete;
    ~BadSectorList() { clear(); }

    /// Adds `count` neighbouring sectors (512 bytes) from `first` on at the tail. Throws std::bad_alloc when
    /// there is no memory for them.
    void append(qint64 first, qint64 count = 1);

    /// Empties the list. Waits for the end of a walk.
    void clear();

    /// How many sectors the list holds.
    qint64 count() const { return m_sectors.load(std::memory_order_acquire); }
    bool isEmpty() const { return count() == 0; }

    /// Calls `visit(first, count)` for each run: `count` sectors from `first` on, in the order of finding.
    /// `visit` must not walk or empty the list.
    template<typename Visitor>
    void forEachRun(Visitor visit) const
    {
        const std::lock_guard lock(m_walking);
        qint64 left = m_runs.load(std::memory_order_acquire);
        for (const Block *block = left > 0 ? m_head.get() : nullptr; block; block = block->next.get()) {
            for (std::size_t i = 0; i < RunsPerBlock && left > 0; ++i, --left)
                visit(block->runs[i].first, block->runs[i].count.load(std::memory_order_acquire));
            if (left == 0)
                break; // another thread may be writing the link to the next block
        }
    }

    /// Every sector by itself.
    QVector<qint64> toVector() const;

private:
    static constexpr std::size_t RunsPerBlock = 1024;

    struct Run {
        qint64 first = 0;
        std::atomic<qint64> count{0};
    };
    struct Block {
        std::array<Run, RunsPerBlock> runs;
        std::unique_ptr<Block> next;
    };

    Run *nextRun();

    mutable std::mutex m_walking; ///< held by a walk: the blocks stay
    std::mutex m_writing;         ///< held by who appends or empties
    std::unique_ptr<Block> m_head;
    Block *m_tail = nullptr;
    Run *m_lastRun = nullptr;
    std::atomic<qint64> m_runs{0}; ///< runs that walks may see; stored behind what it publishes
    std::atomic<qint64> m_sectors{0};
};
