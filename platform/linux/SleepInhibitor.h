// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <mutex>
#include <sys/types.h>

/// Keeps the machine from going to sleep while it is held, where the system has a way of asking for it. May
/// be used from any thread.
class SleepInhibitor
{
public:
    SleepInhibitor() = default;
    ~SleepInhibitor();
    SleepInhibitor(const SleepInhibitor &) = delete;
    SleepInhibitor &operator=(const SleepInhibitor &) = delete;

    void hold();
    void release();

private:
    void releaseLocked();

    std::mutex m_mutex;
    pid_t m_helper = -1;
    int m_lifeLine = -1; ///< the helper ends when this pipe closes, even if the program crashes
};
