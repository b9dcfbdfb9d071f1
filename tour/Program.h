// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <type_traits>

/// A step that cannot go on; what() says why.
class StepFailed : public std::runtime_error
{
public:
    explicit StepFailed(const QString &reason) : std::runtime_error(reason.toStdString()) {}
};

/// The program ended or hangs: no step can follow.
class ProgramGone : public StepFailed
{
public:
    using StepFailed::StepFailed;
};

/// Access to the running program from the tour's own thread. What looks at a widget or sends it an event runs
/// on the GUI thread, as an event there. So it also works while the program is in the event loop of a menu or
/// a modal message.
class Program
{
public:
    using Clock = std::chrono::steady_clock;

    /// GUI thread, once the application object is being made.
    void attach();

    /// The program ended; wakes those who wait. Any thread.
    void markEnded();
    bool hasEnded() const;

    /// The time at which ask() and the waits of this step have to end. Tour thread.
    void setDeadline(Clock::time_point deadline) { m_deadline = deadline; }
    bool isLate() const { return Clock::now() >= m_deadline; }

    /// Runs `call` on the GUI thread and returns its result. Throws ProgramGone if the program does not run
    /// it before the deadline, or, after the deadline, within a few seconds.
    template<typename Call>
    auto ask(Call call) -> std::invoke_result_t<Call>
    {
        using Result = std::invoke_result_t<Call>;
        if constexpr (std::is_void_v<Result>) {
            runInGui(call);
        } else {
            const auto result = std::make_shared<Result>();
            runInGui([result, call]() { *result = call(); });
            return *result;
        }
    }

    /// Runs `call` on the GUI thread without waiting, as it may run an event loop of its own.
    void act(std::function<void()> call);

    /// Waits for this time, or until the program ends.
    void pause(int milliseconds);

private:
    struct Request {
        std::function<void()> call;
        bool done = false;
        bool abandoned = false;
    };

    void runInGui(std::function<void()> call);

    std::unique_ptr<QObject> m_pGate; ///< lives in the GUI thread
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_bEnded = false;
    Clock::time_point m_deadline = Clock::time_point::max();
};
