// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTime>

#include <array>

/// What is known of the drive's own self-test that runs, ran last or is about to start. Main thread only.

enum class SelfTestKind { Short, Extended };
constexpr int SelfTestKindCount = 2;

inline bool g_bSelfTestSupported = false; ///< the capabilities last read name self-tests
inline bool g_bExtendedTest = false;      ///< the extended test was chosen and its polling time was found
inline int g_nShortMinutes = 0;           ///< polling time of the capabilities
inline int g_nExtendedMinutes = 0;
inline std::array<int, SelfTestKindCount> g_nRemainingMinutes{}; ///< the minutes shown, by kind
inline std::array<int, SelfTestKindCount> g_nElapsedLimit{};     ///< polling time in seconds, by kind
inline int g_nElapsedSeconds = 0;                                ///< ticks counted up to the limit
inline int g_nMinuteTicks = 0;      ///< ticks since the remaining minutes last changed
inline QTime g_timeElapsed;         ///< elapsed time on display, within its day
inline bool g_bTestPending = false; ///< the self-test path was entered and the test has not been started
inline bool g_bOnTestScreen = false;
inline bool g_bAbortSent = false; ///< the drive was told to abort; the next tick reports it

/// The kind that is prepared or runs: an extended test without a polling time counts as a short one.
inline SelfTestKind currentSelfTest()
{
    return g_bExtendedTest ? SelfTestKind::Extended : SelfTestKind::Short;
}

/// The polling time of the current kind.
inline int currentPollingMinutes()
{
    return g_bExtendedTest ? g_nExtendedMinutes : g_nShortMinutes;
}
