// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/TourDriver.h"

#include "tour/Walk.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace
{

/// Exit status of a tour whose program hung.
constexpr int HungStatus = 2;

/// Thrown by a step after which no other step can run.
struct WalkOver {
};

} // namespace

TourDriver::TourDriver(const TourPlan &plan, std::function<void(int)> abandon)
    : m_plan(plan), m_abandon(std::move(abandon)), m_report(plan.out, plan.pcName)
{
}

TourDriver::~TourDriver()
{
    if (m_thread.joinable())
        m_thread.join();
}

void TourDriver::start()
{
    m_program.attach();
    m_thread = std::thread([this]() { walkAll(); });
}

int TourDriver::finish(int exitCode)
{
    m_program.markEnded();
    if (m_thread.joinable())
        m_thread.join();
    if (!m_bWalkedToEnd && !m_report.hasFailures())
        m_report.addFailure(QStringLiteral("exit"), QStringLiteral("the program ended before the walk did"));
    else if (exitCode != 0 && m_bWalkedToEnd)
        m_report.addFailure(QStringLiteral("exit"), QStringLiteral("exit code %1").arg(exitCode));
    const bool written = m_report.write();
    return m_report.hasFailures() || !written ? EXIT_FAILURE : EXIT_SUCCESS;
}

void TourDriver::walkAll()
{
    Walk walk(&m_program, &m_report, &m_plan);
    noteSkippedWishes();
    try {
        for (const Chapter &chapter : chapters())
            walkChapter(chapter, walk);
        m_bWalkedToEnd = true;
    } catch (const WalkOver &) {
        if (!m_program.hasEnded())
            endProgram();
    }
}

void TourDriver::walkChapter(const Chapter &chapter, Walk &walk)
{
    if (chapter.onWish && !m_plan.wants(chapter.name))
        return;
    StepList steps;
    runStep({chapter.name, [&](Walk &person) { steps = chapter.steps(person); }, true}, walk);
    for (const Step &step : steps)
        runStep(step, walk);
}

void TourDriver::runStep(const Step &step, Walk &walk)
{
    try {
        walk.beginStep();
        step.run(walk);
    } catch (const ProgramGone &gone) {
        m_report.addFailure(step.name, QString::fromStdString(gone.what()));
        throw WalkOver();
    } catch (const StepFailed &failure) {
        m_report.addFailure(step.name, QString::fromStdString(failure.what()));
        if (step.essential)
            throw WalkOver();
    }
}

void TourDriver::noteSkippedWishes()
{
    const QStringList wishes = m_plan.wishes.keys();
    for (const QString &wish : wishes) {
        const bool known =
            std::any_of(chapters().cbegin(), chapters().cend(),
                        [&wish](const Chapter &chapter) { return chapter.onWish && chapter.name == wish; });
        if (!known && m_plan.wants(wish))
            m_report.addSkipped(wish);
    }
}

void TourDriver::endProgram()
{
    constexpr int Patience = 5000; // ms
    try {
        m_program.act([]() { QCoreApplication::exit(EXIT_FAILURE); });
    } catch (const ProgramGone &) {
        return;
    }
    m_program.pause(Patience);
    if (m_program.hasEnded())
        return;
    TourReport::log(QStringLiteral("the program does not end; abandoned"));
    m_report.write();
    m_abandon(HungStatus);
}
