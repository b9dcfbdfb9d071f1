// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <optional>

/// When one disk is asked. There is a round a minute; moments in ms since 1970.
class Schedule
{
public:
    static constexpr qint64 Round = 60 * 1000;
    static constexpr qint64 FullEvery = 10 * Round; ///< lists and everything that is not told at once
    static constexpr qint64 IdleEvery = 30 * Round; ///< a disk at rest
    static constexpr qint64 HungEvery = FullEvery;  ///< a disk that kept the tool hanging
    static constexpr qint64 Pause = 60 * Round;
    static constexpr qint32 ToolLimit = 120 * 1000; ///< ms for one run of the tool

    /// Whether so much time has passed since `last`; a timer may be half a round early. A clock that was set
    /// back does not make anybody wait.
    static bool isDue(qint64 last, qint64 now, qint64 every);
    /// Whether a pause holds that ends at `until`. With a clock that was set far back it would be too long.
    static bool isPaused(qint64 until, qint64 now) { return now < until && until - now <= 2 * Pause; }

    /// Whether the disk is asked in the round of `now`. `activity` is Platform::DiskActivity(): a rotating
    /// disk that nobody has used since the last round is left alone, as some begin to count their time to
    /// sleep anew when they are asked.
    bool asks(bool rotating, std::optional<quint64> activity, qint64 now);

    /// The tool had to be ended.
    void hung() { m_hung = true; }
    /// Asks in the next round whatever the disk does.
    void askNext() { *this = {}; }

private:
    bool m_asked = false;
    bool m_hung = false;
    qint64 m_last = 0;
    std::optional<quint64> m_activity;
};
