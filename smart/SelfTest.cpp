// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SelfTest.h"

#include "smart/SmartGlobals.h"
#include "smart/ToolInvocation.h"
#include "state/GlobalApp.h"
#include "state/JobState.h"

#include <QTextStream>

#include <utility>

namespace
{

constexpr int MostSilentTicks = 10;

std::size_t current()
{
    return static_cast<std::size_t>(currentSelfTest());
}

bool readFor(ToolPurpose purpose, const runner::OutputReader &read)
{
    return readTool(purpose, storedDevice(purpose), read);
}

} // namespace

void SelfTest::prepare(std::optional<SelfTestKind> kind)
{
    g_bExtendedTest = false;
    g_nShortMinutes = 0;
    g_nExtendedMinutes = 0;
    g_bAbortSent = false;
    // A drive whose capabilities cannot be had runs no test, whatever the disk before could do.
    selftest::Capabilities found;
    readFor(ToolPurpose::Capabilities,
            [kind, &found](QTextStream &text) { found = selftest::readCapabilities(text, kind); });
    g_bSelfTestSupported = found.supported;
    if (kind && found.minutes) {
        g_bExtendedTest = *kind == SelfTestKind::Extended;
        (g_bExtendedTest ? g_nExtendedMinutes : g_nShortMinutes) = *found.minutes;
        g_nRemainingMinutes[current()] = *found.minutes;
    }
    m_shown = {};
    m_shown.kind = currentSelfTest();
    m_shown.model = g_strSelfTestModel;
    m_shown.serial = g_strSelfTestSerial;
}

bool SelfTest::canRun() const
{
    // m_bNVMe is of the disk whose report was read last. That may be another disk.
    const bool ofThisDisk =
        storedDevice(ToolPurpose::SelfTestLog).endsWith(storedDevice(ToolPurpose::Capabilities));
    return g_bSelfTestSupported && !(g_App.m_bNVMe && ofThisDisk);
}

bool SelfTest::start()
{
    g_nMinuteTicks = 0;
    g_nElapsedSeconds = 0;
    g_timeElapsed = QTime(0, 0);
    m_nElapsedDays = 0;
    m_nSilentTicks = 0;
    const ToolPurpose purpose =
        g_bExtendedTest ? ToolPurpose::StartExtendedTest : ToolPurpose::StartShortTest;
    m_shown.status.reset();
    m_shown.elapsed.clear();
    m_shown.pollingMinutes.reset();
    m_shown.remainingMinutes.reset();
    m_shown.progress = true;
    m_shown.times = canRun();
    if (!canRun()) {
        g_Jobs.closeResults();
        runner::freshTempFile(toolFileName(purpose));
        return false;
    }
    g_Jobs.begin(JobState::Job::SelfTest);
    g_Jobs.openResult(JobState::Job::SelfTest);
    // A file is enough here. Whether the drive runs the test its status tells.
    if (readFor(purpose, [](QTextStream &) {})) {
        m_shown.pollingMinutes = currentPollingMinutes();
        m_shown.remainingMinutes = currentPollingMinutes();
        return true;
    }
    end();
    show({selftest::Told::NoStatus, 0, std::nullopt});
    return false;
}

SelfTest::Tick SelfTest::tick()
{
    Tick tick;
    tick.aborted = std::exchange(g_bAbortSent, false);
    if (tick.aborted) {
        end();
        g_nElapsedSeconds = 0;
        showEnd(selftest::Told::Aborted);
    }
    g_nElapsedLimit[current()] = static_cast<qint32>(static_cast<quint32>(currentPollingMinutes()) * 60u);
    QVector<selftest::StatusEvent> events{{selftest::Told::NoStatus}};
    tick.opened = readFor(ToolPurpose::TestProgress,
                          [&events](QTextStream &text) { events = selftest::readStatus(text); });
    for (const selftest::StatusEvent &event : qAsConst(events)) {
        // After an abort the drive may still report progress. Then only a result of its test counts.
        if (!passesOver(event.told != selftest::Told::NoStatus) &&
            (!tick.aborted || selftest::isResult(event.told))) {
            tick.steps.append(stepOf(event));
            show(tick.steps.constLast());
        }
    }
    if (tick.opened) {
        tickClock();
        m_shown.elapsed = elapsedText();
    }
    return tick;
}

void SelfTest::abort()
{
    runTool(ToolPurpose::AbortTest, storedDevice(ToolPurpose::AbortTest));
    g_bAbortSent = true;
}

void SelfTest::end()
{
    g_bTestPending = false;
    g_Jobs.end(JobState::Job::SelfTest);
}

/// Counts the readings in a row that found no status. True while such a reading is ignored: a drive that is
/// busy or was reset answers again. One that stays silent is gone.
bool SelfTest::passesOver(bool found)
{
    m_nSilentTicks = found ? 0 : m_nSilentTicks + 1;
    return !found && m_nSilentTicks < MostSilentTicks;
}

SelfTest::Step SelfTest::stepOf(const selftest::StatusEvent &event)
{
    Step step{event.told, selftest::percentDone(event.remaining), std::nullopt};
    if (event.told == selftest::Told::InProgress && g_nMinuteTicks == 60) {
        g_nMinuteTicks = 0;
        step.minutes = --g_nRemainingMinutes[current()];
    }
    if (event.told == selftest::Told::InProgress && selftest::isOver(event.remaining))
        step.told = selftest::Told::Completed;
    if (step.told != selftest::Told::InProgress)
        end();
    return step;
}

void SelfTest::show(const Step &step)
{
    if (step.told != selftest::Told::InProgress) {
        m_shown.percent = 100;
        m_shown.remainingMinutes = 0;
        m_shown.times = false;
        showEnd(step.told);
        return;
    }
    m_shown.percent = step.percent;
    m_shown.status = step.told;
    if (step.minutes)
        m_shown.remainingMinutes = step.minutes;
}

/// A test that was aborted keeps its times on show.
void SelfTest::showEnd(selftest::Told how)
{
    m_shown.progress = false;
    m_shown.status = how;
}

void SelfTest::tickClock()
{
    if (g_nElapsedSeconds < g_nElapsedLimit[current()]) {
        ++g_nElapsedSeconds;
        ++g_nMinuteTicks;
    } else {
        g_nMinuteTicks = 0;
    }
    g_timeElapsed = g_timeElapsed.addSecs(1);
    if (g_timeElapsed == QTime(0, 0))
        ++m_nElapsedDays;
}

QString SelfTest::elapsedText() const
{
    return QStringLiteral("%1:").arg(24 * m_nElapsedDays + g_timeElapsed.hour(), 2, 10, QLatin1Char('0')) +
           g_timeElapsed.toString(QStringLiteral("mm:ss"));
}
