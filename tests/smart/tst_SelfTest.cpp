// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SelfTest.h"

#include "smart/SelfTestText.h"
#include "smart/SmartGlobals.h"
#include "state/GlobalApp.h"
#include "state/JobState.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/Files.h"

#include <QTextStream>

using selftest::Told;

namespace
{

/// The text of a real file, or lines between bars.
QString textOf(const QString &row)
{
    return row.endsWith(".txt") ? contentOf(HALVANE_TEST_DATA "/selftest/" + row)
                                : QString(row).replace('|', '\n');
}

} // namespace

/// The drive's own self-test without a window: each second one reading of the status and one tick. What its
/// texts tell.
class tst_SelfTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fake = FakePlatform::install();
        g_App.m_bNVMe = false;
        g_nRemainingMinutes = {7, 7};
        g_nElapsedLimit = {0, 0};
        g_nElapsedSeconds = 99;
        g_nMinuteTicks = 99;
        m_status = "Self-test routine in progress...\n90% of test remaining.\n";
    }

    void minutesFall()
    {
        for (const SelfTestKind kind : {SelfTestKind::Short, SelfTestKind::Extended}) {
            const auto own = static_cast<std::size_t>(kind);
            SelfTest test;
            g_nRemainingMinutes = {7, 7};
            QVERIFY(start(test, kind, own == 0 ? 2 : 50, own == 1 ? 2 : 50));
            QVector<int> drops;
            for (int second = 1; second <= 300; ++second) {
                const SelfTest::Tick tick = test.tick();
                QCOMPARE(tick.steps.size(), 1);
                QCOMPARE(tick.steps.first().percent, 10);
                if (tick.steps.first().minutes)
                    drops << second << *tick.steps.first().minutes;
            }
            // The seconds are counted up to the polling time; the minute drops at the tick after its end.
            // The time shown goes on.
            QCOMPARE(drops, (QVector<int>{61, 1, 121, 0}));
            const QVector<int> figures{g_nRemainingMinutes[own], g_nRemainingMinutes[1 - own],
                                       g_nElapsedSeconds, g_nMinuteTicks};
            QCOMPARE(figures, (QVector<int>{0, 7, 120, 0}));
            QCOMPARE(g_timeElapsed, QTime(0, 5));
            QVERIFY(g_Jobs.runs(JobState::Job::SelfTest));
        }
    }

    void shortWithoutTime()
    {
        SelfTest test;
        QVERIFY(start(test, SelfTestKind::Short, 0, 0));
        for (int second = 0; second < 61; ++second)
            QVERIFY(!test.tick().steps.first().minutes);
        QCOMPARE(g_nElapsedSeconds, 0);
        QCOMPARE(test.elapsedText(), QString("00:01:01"));
        g_timeElapsed = QTime(23, 59, 59);
        test.tick();
        QCOMPARE(test.elapsedText(), QString("24:00:00"));
    }

    void withoutATool()
    {
        SelfTest test;
        QVERIFY(start(test, SelfTestKind::Short, 2, 2));
        m_fake->onCommand = nullptr;
        QVERIFY(test.canRun() && !test.start());
        QVERIFY(!g_Jobs.runs(JobState::Job::SelfTest));
        test.prepare(SelfTestKind::Short);
        QVERIFY(!test.canRun());
    }

    /// Of what the drive still tells only a result of its test counts.
    void aborted()
    {
        const QPair<QByteArray, int> told[] = {
            {m_status, 0},
            {"The self-test routine was aborted by\nthe host.\n", 0},
            {"The previous self-test routine completed\nwithout error or no self-test has ever\n", 1},
            {"The previous self-test completed having\nthe read element of the test failed.\n", 1},
        };
        for (const auto &[status, steps] : told) {
            SelfTest test;
            QVERIFY(start(test, SelfTestKind::Short, 2, 2));
            test.abort();
            QVERIFY(g_Jobs.runs(JobState::Job::SelfTest));
            m_status = status;
            const SelfTest::Tick tick = test.tick();
            QVERIFY(tick.aborted && tick.opened);
            QVERIFY2(tick.steps.size() == steps, status);
            QVERIFY(!g_Jobs.runs(JobState::Job::SelfTest) && !g_bAbortSent);
        }
    }

    /// Can the drive run one; the minutes of the short test and of the extended one, -1: none.
    void capabilities()
    {
        compareRows("SelfTest/capabilities", [](const QString &row) {
            QString shown;
            for (const auto kind :
                 {std::optional<SelfTestKind>(), {SelfTestKind::Short}, {SelfTestKind::Extended}}) {
                QString text = textOf(row);
                QTextStream stream(&text);
                const selftest::Capabilities found = selftest::readCapabilities(stream, kind);
                shown += (found.supported ? " " : " not:") + QString::number(found.minutes.value_or(-1));
            }
            return shown.trimmed();
        });
    }

    void status()
    {
        compareRows("SelfTest/status", [](const QString &row) {
            QString text = textOf(row);
            QTextStream stream(&text);
            QStringList words;
            for (const selftest::StatusEvent &event : selftest::readStatus(stream))
                words << (event.told == Told::InProgress ? QString("running %1").arg(event.remaining)
                                                         : selftest::shownWords(event.told));
            return words.join(", ");
        });
        QVERIFY(!selftest::isOver(100) && !selftest::isOver(1));
        QVERIFY(selftest::isOver(0) && selftest::isOver(101));
    }

    /// Its type and its result.
    void newest()
    {
        compareRows("SelfTest/newest", [](const QString &row) {
            QString log = textOf(row);
            QTextStream stream(&log);
            const selftest::PreviousTest test = selftest::newestTest(stream);
            return (test.type.isNull() ? "-" : test.type) + ", " + (test.result.isNull() ? "-" : test.result);
        });
    }

private:
    /// Prepares and starts a test; the drive names these minutes for the two kinds.
    bool start(SelfTest &test, SelfTestKind kind, int shortMinutes, int extendedMinutes)
    {
        const QString text =
            QString("Self-test supported.\nShort self-test routine\nrecommended polling time: ( "
                    "%1) minutes.\nExtended self-test routine\nrecommended polling time: ( "
                    "%2) minutes.\n")
                .arg(shortMinutes)
                .arg(extendedMinutes);
        m_fake->onCommand = [&text](const QString &line) {
            return FakePlatform::answer(line, text.toUtf8());
        };
        test.prepare(kind);
        m_fake->onCommand = [this](const QString &line) { return FakePlatform::answer(line, m_status); };
        return test.canRun() && test.start();
    }

    FakePlatform *m_fake = nullptr;
    QByteArray m_status;
};

QTEST_GUILESS_MAIN(tst_SelfTest)
#include "tst_SelfTest.moc"
