// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SMARTThread.h"
#include "smart/SelfTest.h"
#include "smart/SelfTestText.h"
#include "smart/SmartGlobals.h"
#include "smart/ToolInvocation.h"
#include "state/GlobalApp.h"
#include "state/JobState.h"
#include "tests/smart/SampleReports.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/FakePlatform.h"

#include <QDeadlineTimer>
#include <QSemaphore>
#include <QTextStream>

#include <atomic>

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

/// The command lines of the report tool, what becomes of its files, and the thread that runs it. The drive's
/// own self-test without a window: each second one reading of the status and one tick. What its texts tell.
class tst_SelfTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fake = FakePlatform::install();
        samples::forget();
        g_wmicDisks.clear();
        g_strRunMode.clear();
        g_App.m_bUse64BitTool = true;
        g_App.m_strSmartctlPath = "T:\\copy\\smartctl64Bit.exe";
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

    void devices()
    {
        compareRows("ToolInvocation/devices", [](const QString &row) {
            return deviceString(row.section(' ', 0, 0).toInt(), row.section(' ', 1));
        });
        // Row 10 of the table goes by the place in the combo box.
        compareRows("ToolInvocation/selfTestDevices", [](const QString &row) {
            return selfTestDevice(int(numbersOf(row)[0]), int(numbersOf(row)[1]));
        });
    }

    void commandLines()
    {
        // Of the bits of the tool and the mode of the run.
        compareRows("ToolInvocation/commands", [](const QString &row) {
            g_App.m_bUse64BitTool = row.startsWith("64");
            g_strRunMode = row.section(' ', 1);
            QStringList lines;
            for (int i = 0; i <= int(ToolPurpose::SelfTestLog); ++i)
                lines << commandLine(ToolPurpose(i), "D", toolFileName(ToolPurpose(i)));
            return lines.join(" | ");
        });

        g_strSmartDevice = QString(" -d sat,12 /dev/sdb");
        g_strSelfTestDevice = "/dev/sdb";
        QCOMPARE(storedDevice(ToolPurpose::SelfTestLog), QString(" -d sat,12 /dev/sdb"));
        QCOMPARE(storedDevice(ToolPurpose::AbortTest), QString("/dev/sdb"));
    }

    void loadReport()
    {
        WmicDiskRecord &disk = g_wmicDisks.append();
        disk.nDiskId = 1 + PhysicalDriveBase;
        disk.szInterface.assign("USB");
        for (const char *device : {"/dev/sda", " -d sat,12 /dev/sdb"}) { // the first is in no table
            publish(LoadSmartReport(device[0] == ' '));
            QCOMPARE(g_strSmartReportPath, tempFile("SMART.txt"));
            QCOMPARE(g_strSmartDevice, QString(device));
            QCOMPARE(m_fake->commands().last(),
                     QString("C:\\Windows\\system32\\cmd.exe /c smartctl64Bit.exe -a ") + device + " >> " +
                         tempFile("SMART.txt") + ' ');
        }
        // What an earlier run left goes first. The file stays, as the main thread reads it.
        const QString path = nativePath(samples::stage("left over"));
        answerWith("new");
        LoadSmartReport(0);
        QCOMPARE(contentOf(path), QByteArray("new"));
    }

    void refreshTakesTheReportIn()
    {
        g_strSmartDevice = g_strSmartReportPath = QString("before");
        answerWith(samples::bytesOf("nvme-wdc-sn850-1tb.txt"));
        RefreshTemperatureReport(3);
        QVERIFY(onlyCommand().contains(" -a /dev/sdd >> "));
        QVERIFY(g_App.m_bNVMe && g_bSmartAvailable);
        // The device and path of the thread's last read do not change.
        QCOMPARE(g_strSmartDevice + g_strSmartReportPath, QString("beforebefore"));
    }

    /// It goes by the interface that is given, takes the file away and nothing in.
    void probe()
    {
        const auto identity = [] {
            const ProbedIdentity told = ProbeDiskIdentity(2, "USB");
            return told.model + '|' + told.serial + '|' + told.firmware;
        };
        QCOMPARE(identity(), QString("||")); // without an answer
        QVERIFY(onlyCommand().contains(" -a  -d sat,12 /dev/sdc >> "));
        answerWith(samples::bytesOf("ata-seagate-st3250318as.txt"));
        QCOMPARE(identity(), QString("ST3250318AS|4XTPG87X|CC46"));
        QVERIFY(!QFile::exists(nativePath(tempFile("SMART.txt"))));
        QVERIFY(!g_pSmartAttributeHead);
    }

    /// What the log does not tell stays.
    void previousTest()
    {
        const auto newest = [this](const QByteArray &log) {
            g_strLastTestType = QStringLiteral("old type");
            g_strLastTestResult = QStringLiteral("old result");
            answerWith(log);
            ReadPreviousTest(QStringLiteral(" -d sat,12 /dev/sdc"));
            return g_strLastTestType + '|' + g_strLastTestResult;
        };
        const QByteArray log = "# 1  Short offline       Completed without error  00%  20  -\n";
        QCOMPARE(newest(log + '\n'), QString("Short Self-test|Successfully Completed"));
        QVERIFY(onlyCommand().contains(" -l selftest  -d sat,12 /dev/sdc >> "));
        QCOMPARE(newest(log), QString("Short Self-test|old result"));
        QCOMPARE(newest(""), QString("old type|old result"));
        QVERIFY(!QFile::exists(nativePath(tempFile("PreviousResult.txt"))));
    }

    // "0" to "9" asks for that disk, "." ends the tool that runs, "f" forgets, "t" takes the report. What
    // comes back: the disks that are read, "-" for the end of a run; of "t" the disk or "n".
    void stories()
    {
        compareRows("ToolInvocation/stories", [this](const QString &story) { return told(story); });
    }

    void destructorWaits()
    {
        QSemaphore entered;
        std::atomic<bool> ended{false};
        m_fake->onCommand = [&](const QString &) {
            entered.release();
            QThread::msleep(200);
            ended = true;
            return true;
        };
        {
            SMARTThread thread;
            thread.RequestSmartRead(0);
            QVERIFY(entered.tryAcquire(1, 10000));
        }
        QVERIFY(ended);
    }

    /// However fast one disk follows the other, also where a read just ends, the last one is told.
    void chosenInHaste()
    {
        SMARTThread thread;
        for (int round = 0; round < 100; ++round) {
            for (int disk = 0; disk < 8; ++disk)
                thread.RequestSmartRead(disk);
            std::optional<LoadedReport> report;
            for (const QDeadlineTimer patience(10000); !report && !patience.hasExpired();)
                report = thread.takeReport();
            QVERIFY(report && report->disk == 7);
        }
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
        answerWith(text.toUtf8());
        test.prepare(kind);
        m_fake->onCommand = [this](const QString &line) { return FakePlatform::answer(line, m_status); };
        return test.canRun() && test.start();
    }

    QString told(const QString &story)
    {
        QString told;
        bool runs = false;
        QSemaphore moved; // a tool has begun, or a run has ended
        QSemaphore mayEnd;
        m_fake->onCommand = [&](const QString &line) {
            told += QString::number(line.at(line.indexOf("/dev/sd") + 7).unicode() - 'a');
            moved.release();
            mayEnd.acquire();
            return true;
        };
        SMARTThread thread;
        const auto ended = [&] {
            told += '-';
            runs = false;
            moved.release();
        };
        connect(&thread, &SMARTThread::OnLodingSmarInfo, &thread, ended, Qt::DirectConnection);
        for (const QChar step : story) {
            if (step == 't') {
                const std::optional<LoadedReport> loaded = thread.takeReport();
                told += loaded ? QString::number(loaded->disk) : "n";
            } else if (step == 'f') {
                thread.forget();
            } else {
                const bool waits = step == '.' || !runs;
                if (step == '.') {
                    mayEnd.release();
                } else {
                    runs = true;
                    thread.RequestSmartRead(step.digitValue());
                }
                if (waits && !moved.tryAcquire(1, 10000))
                    qFatal("the thread hangs");
            }
            if (runs && !thread.isReading())
                told += "does not read";
        }
        return told;
    }

    void answerWith(const QByteArray &output)
    {
        m_fake->onCommand = [output](const QString &line) { return FakePlatform::answer(line, output); };
    }
    QString onlyCommand() const
    {
        return m_fake->commands().size() == 1 ? m_fake->commands().at(0) : QString();
    }

    FakePlatform *m_fake = nullptr;
    QByteArray m_status;
};

QTEST_GUILESS_MAIN(tst_SelfTest)
#include "tst_SelfTest.moc"
