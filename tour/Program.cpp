// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Program.h"

#include <QMetaObject>

#include <algorithm>
#include <utility>

namespace
{

/// The least time that the GUI thread is given to answer.
constexpr std::chrono::seconds AnswerTime(5);

} // namespace

void Program::attach()
{
    m_pGate = std::make_unique<QObject>();
}

void Program::markEnded()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_bEnded = true;
    m_changed.notify_all();
}

bool Program::hasEnded() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_bEnded;
}

void Program::act(std::function<void()> call)
{
    if (hasEnded())
        throw ProgramGone(QStringLiteral("the program has ended"));
    QMetaObject::invokeMethod(m_pGate.get(), std::move(call), Qt::QueuedConnection);
}

void Program::runInGui(std::function<void()> call)
{
    const auto request = std::make_shared<Request>();
    request->call = std::move(call);
    act([this, request]() {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if (request->abandoned)
                return;
        }
        request->call();
        const std::lock_guard<std::mutex> lock(m_mutex);
        request->done = true;
        m_changed.notify_all();
    });

    std::unique_lock<std::mutex> lock(m_mutex);
    // A step whose time is over may still ask the program, to find out why.
    const Clock::time_point patience = std::max(m_deadline, Clock::now() + AnswerTime);
    m_changed.wait_until(lock, patience, [&]() { return request->done || m_bEnded; });
    if (request->done)
        return;
    request->abandoned = true;
    throw ProgramGone(m_bEnded ? QStringLiteral("the program has ended")
                               : QStringLiteral("the program does not answer"));
}

void Program::pause(int milliseconds)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait_for(lock, std::chrono::milliseconds(milliseconds), [this]() { return m_bEnded; });
}
