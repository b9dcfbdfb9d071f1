// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/CurrentRead.h"

#include <QMutexLocker>

bool CurrentRead::ask(int disk)
{
    const QMutexLocker lock(&m_mutex);
    m_asked = disk;
    m_finished.reset();
    const bool starts = !m_bRuns;
    m_bRuns = true;
    return starts;
}

std::optional<int> CurrentRead::next(std::optional<int> done)
{
    const QMutexLocker lock(&m_mutex);
    if (m_asked && m_asked != done)
        return m_asked;
    m_bRuns = false;
    m_finished = m_asked;
    m_asked.reset();
    return std::nullopt;
}

std::optional<int> CurrentRead::take()
{
    const QMutexLocker lock(&m_mutex);
    const std::optional<int> disk = m_finished;
    m_finished.reset();
    return disk;
}

void CurrentRead::forget()
{
    const QMutexLocker lock(&m_mutex);
    m_asked.reset();
    m_finished.reset();
}

bool CurrentRead::isOpen() const
{
    const QMutexLocker lock(&m_mutex);
    return m_bRuns || m_finished;
}
