// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SelfTest.h"

#include "smart/SmartGlobals.h"
#include "state/GlobalApp.h"
#include "state/JobState.h"
#include "tests/support/FakePlatform.h"

#include <QtTest>

/// The drive's own self-test without a window: each second one reading of the status and one tick.
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
            QCOMPARE(g_nRemainingMinutes[own], 0);
            QCOMPARE(g_nRemainingMinutes[1 - own], 7);
            QCOMPARE(g_nElapsedSeconds, 120);
            QCOMPARE(g_nMinuteTicks, 0);
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
        QCOMPARE(test.elapsedText(), QStringLiteral("00:01:01"));
        g_timeElapsed = QTime(23, 59, 59);
        test.tick();
        QCOMPARE(test.elapsedText(), QStringLiteral("24:00:00"));
    }

    void aReadingThatIsMissed()
    {
        SelfTest test;
        QVERIFY(start(test, SelfTestKind::Short, 2, 2));
        for (int second = 0; second < 60; ++second)
            test.tick();
        const QByteArray running = std::exchange(m_status, QByteArray());
        QVERIFY(test.tick().steps.isEmpty());
        m_status = running;
        // Only the 60th tick counts a minute, and that tick had no reading.
        QVERIFY(!test.tick().steps.first().minutes);
        QCOMPARE(g_nMinuteTicks, 62);
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

private:
    /// Prepares and starts a test; the drive names these minutes for the two kinds.
    bool start(SelfTest &test, SelfTestKind kind, int shortMinutes, int extendedMinutes)
    {
        const QString text =
            QStringLiteral("Self-test supported.\nShort self-test routine\nrecommended polling "
                           "time: ( %1) minutes.\nExtended self-test routine\nrecommended "
                           "polling time: ( %2) minutes.\n");
        m_fake->onCommand = [&](const QString &line) {
            return FakePlatform::answer(line, text.arg(shortMinutes).arg(extendedMinutes).toUtf8());
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
