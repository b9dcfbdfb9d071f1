// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/BadSectorList.h"

void BadSectorList::append(qint64 first, qint64 count)
{
    const std::lock_guard lock(m_writing);
    const qint64 length = m_lastRun ? m_lastRun->count.load(std::memory_order_relaxed) : 0;
    if (m_lastRun && first == m_lastRun->first + length) {
        m_lastRun->count.store(length + count, std::memory_order_release);
    } else {
        Run *run = nextRun();
        run->first = first;
        run->count.store(count, std::memory_order_relaxed);
        m_lastRun = run;
        m_runs.fetch_add(1, std::memory_order_release);
    }
    m_sectors.fetch_add(count, std::memory_order_release);
}

BadSectorList::Run *BadSectorList::nextRun()
{
    const std::size_t place = static_cast<std::size_t>(m_runs.load(std::memory_order_relaxed)) % RunsPerBlock;
    if (place == 0) {
        std::unique_ptr<Block> &link = m_tail ? m_tail->next : m_head;
        link = std::make_unique<Block>();
        m_tail = link.get();
    }
    return &m_tail->runs[place];
}

void BadSectorList::clear()
{
    const std::scoped_lock lock(m_walking, m_writing);
    m_runs.store(0, std::memory_order_release);
    m_sectors.store(0, std::memory_order_release);
    m_lastRun = nullptr;
    m_tail = nullptr;
    // Frees one block after the other: a chain that freed itself would need more stack the longer it is.
    while (m_head)
        m_head = std::move(m_head->next);
}

QVector<qint64> BadSectorList::toVector() const
{
    QVector<qint64> sectors;
    forEachRun([&sectors](qint64 first, qint64 length) {
        for (qint64 i = 0; i < length; ++i)
            sectors.append(first + i);
    });
    return sectors;
}
