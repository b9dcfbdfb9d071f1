// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/Schedule.h"

bool Schedule::isDue(qint64 last, qint64 now, qint64 every)
{
    return now < last || now - last >= every - Round / 2;
}

bool Schedule::asks(bool rotating, std::optional<quint64> activity, qint64 now)
{
    const bool isIdle = rotating && m_asked && activity && activity == m_activity;
    m_activity = activity;
    qint64 every = isIdle ? IdleEvery : Round;
    if (m_hung)
        every = HungEvery;
    if (m_asked && !isDue(m_last, now, every))
        return false;
    m_asked = true;
    m_hung = false;
    m_last = now;
    return true;
}
