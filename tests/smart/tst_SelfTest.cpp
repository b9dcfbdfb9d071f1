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

using selftest::StatusEvent;
using selftest::Told;

namespace
{

QByteArray sample(const char *name)
{
    return contentOf(QStringLiteral(HALVANE_TEST_DATA "/selftest/") + QLatin1String(name));
}

QString told(const QVector<StatusEvent> &events)
{
    QStringList words;
    for (const StatusEvent &event : events)
        words << (event.told == Told::InProgress ? QStringLiteral("running %1").arg(event.remaining)
                                                 : QLatin1String(selftest::shownWords(event.told)));
    return words.join(QLatin1String(", "));
}

/// The lines of a status, between bars, in the layout of the tool.
QByteArray execution(int code, QByteArray words)
{
    return "Self-test execution status:      (" + QByteArray::number(code).rightJustified(4) + ")\t" +
           words.replace("|", "\n\t\t\t\t\t") + "\nTotal time to complete Offline \n";
}

const QByteArray Supported = "\t\t\tSelf-test supported.\n";
const QByteArray ShortTwo = "Short self-test routine \nrecommended polling time: \t (   2) minutes.\n";
const QByteArray LongNine = "Extended self-test routine\nrecommended polling time: \t (   9) minutes.\n";

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

    /// The minutes of the short test and of the extended one; -1: none.
    void capabilities()
    {
        const auto row = [](const QByteArray &text, const char *expected) {
            QString shown;
            for (const auto kind :
                 {std::optional<SelfTestKind>(), {SelfTestKind::Short}, {SelfTestKind::Extended}}) {
                QTextStream stream(text);
                const selftest::Capabilities found = selftest::readCapabilities(stream, kind);
                shown += (found.supported ? " " : " not:") + QString::number(found.minutes.value_or(-1));
            }
            QCOMPARE(shown, QString(expected));
        };
        row(sample("caps-idle-62.txt"), " -1 2 191");
        row(sample("caps-inprogress-90.txt"), " -1 2 102");
        row(ShortTwo + LongNine + Supported, " -1 -1 -1");
        row(Supported + LongNine + ShortTwo, " -1 2 9");
        row(Supported + "Short self-test routine\n" + LongNine, " -1 9 9");
        row(Supported + "Short self-test routine\nrecommended polling time: ( x) minutes.\n", " -1 0 -1");
        row(ShortTwo + LongNine, " not:-1 not:-1 not:-1");
    }

    void status()
    {
        const auto shown = [](const QByteArray &text) {
            QTextStream stream(text);
            return told(selftest::readStatus(stream));
        };
        QCOMPARE(shown(sample("caps-idle-72.txt")), QString("Successfully Completed"));
        QCOMPARE(shown(sample("caps-inprogress-90.txt")), QString("running 90"));
        QCOMPARE(shown(sample("caps-read-failure-121-wd.txt")), QString("Test failed by Read Element"));
        // Further down is the rest of a running test, then another one.
        QCOMPARE(shown("Self-test routine in progress...\nThe previous self-test routine completed\n\n"
                       "\t10% of test remaining.\n" +
                       sample("caps-read-failure-121-wd.txt")),
                 QString("running 10, Test failed by Read Element"));
        QCOMPARE(shown("Self-test status: Short self-test in progress (12% completed)\n"),
                 QString("running 88"));
        QCOMPARE(shown("Self-test routine in progress...\n?% of test remaining.\n"), QString("running 0"));
        for (const char *silent : {"", "Self-test routine in progress...\n"})
            QCOMPARE(shown(silent), QString("No Status from the Drive"));
        // The words decide, and the number where they tell nothing.
        compareRows({"The self-test routine was aborted by|the host. -> Test Aborted by User",
                     "The self-test routine was interrupted|by the host with a hard or soft reset. -> "
                     "Test Interrupted by the Host",
                     "A fatal error or unknown test error|occurred while the device was executing -> "
                     "Test ended by Fatal or Unknown Error",
                     "The previous self-test completed having|a test element that failed and the test -> "
                     "Test failed by Unknown Element",
                     "The previous self-test completed having|the electrical element of the test -> "
                     "Test failed by Electrical Element",
                     "The previous self-test completed having|the servo (and/or seek) element of the -> "
                     "Test failed by Servo Element",
                     "The previous self-test completed having|a test element that failed and the|device is "
                     "suspected of having handling -> Test failed, Handling Damage suspected"},
                    [&](const QString &words) { return shown(execution(0, words.toUtf8())); });
        compareRows({"25 -> Test Aborted by User", "137 -> Test failed, Handling Damage suspected",
                     "144 -> Test ended with Unknown Status", "239 -> Test ended with Unknown Status",
                     "243 -> running 30"},
                    [&](const QString &code) { return shown(execution(code.toInt(), "In other words.")); });
        compareRows({"Completed without error -> Successfully Completed",
                     "Aborted: Self-test command -> Test Aborted by User",
                     "Aborted: Controller Reset -> Test Interrupted by the Host",
                     "Fatal or unknown test error -> Test ended by Fatal or Unknown Error",
                     "Completed: failed segments -> Test failed by Unknown Element",
                     "Unknown result (0xe) -> Test ended with Unknown Status"},
                    [&](const QString &result) {
                        return shown("Num  Test_Description  Status\n 0   Short             " +
                                     result.toUtf8() +
                                     "    2650   -\n 1   Extended          Completed without error\n");
                    });
    }

    void over()
    {
        QVERIFY(!selftest::isOver(100) && !selftest::isOver(1));
        QVERIFY(selftest::isOver(0) && selftest::isOver(101));
    }

    /// "type|result"; of lines between slashes.
    void newest()
    {
        compareRows(
            {"Num  Test/# 1  Short offline   Completed without error  00%  20  -// -> "
             "Short Self-test|Successfully Completed",
             "# 1  Extended offline  Completed: read failure  90%  1587  8/# 2  Short offline  "
             "Aborted by host/ -> Extended Self-test|Failed by Read Element",
             "# 1  Short offline   Aborted by host  10%  1587  -// -> Short Self-test|Aborted by User",
             "# 1  Short offline   Interrupted (host reset)  90%  1  -// -> "
             "Short Self-test|Test Interrupted by the Host",
             "# 1  Short offline   Unknown status (0x9)  90%  1  -// -> Short Self-test|Not Available",
             // On the very last line it has no result.
             "# 1  Short offline   Completed without error  00%  20  -/ -> Short Self-test|-",
             "No self-tests have been logged.// -> -|-",
             " 0   Short           Completed without error  2650// -> -|-"},
            [](const QString &lines) {
                QString log = QString(lines).replace('/', '\n');
                QTextStream stream(&log);
                const selftest::PreviousTest test = selftest::newestTest(stream);
                return (test.type.isNull() ? "-" : test.type) + '|' +
                       (test.result.isNull() ? "-" : test.result);
            });
    }

private:
    /// Prepares and starts a test; the drive names these minutes for the two kinds.
    bool start(SelfTest &test, SelfTestKind kind, int shortMinutes, int extendedMinutes)
    {
        const QByteArray text = Supported + "Short self-test routine\nrecommended polling time: ( " +
                                QByteArray::number(shortMinutes) +
                                ") minutes.\nExtended self-test routine\nrecommended polling time: ( " +
                                QByteArray::number(extendedMinutes) + ") minutes.\n";
        m_fake->onCommand = [&text](const QString &line) { return FakePlatform::answer(line, text); };
        test.prepare(kind);
        m_fake->onCommand = [this](const QString &line) { return FakePlatform::answer(line, m_status); };
        return test.canRun() && test.start();
    }

    FakePlatform *m_fake = nullptr;
    QByteArray m_status;
};

QTEST_GUILESS_MAIN(tst_SelfTest)
#include "tst_SelfTest.moc"
