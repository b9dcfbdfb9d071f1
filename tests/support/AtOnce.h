// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <functional>
#include <thread>

/// Does two things over and over, on two threads at once. Where they share what no lock guards, this may
/// crash, and the thread sanitizer tells of it.
inline void atOnce(const std::function<void()> &one, const std::function<void()> &other, int rounds = 400)
{
    std::atomic<int> missing{2};
    const auto repeat = [&missing, rounds](const std::function<void()> &does) {
        for (--missing; missing > 0;)
            std::this_thread::yield();
        for (int i = 0; i < rounds; ++i)
            does();
    };
    std::thread second(repeat, other);
    repeat(one);
    second.join();
}
