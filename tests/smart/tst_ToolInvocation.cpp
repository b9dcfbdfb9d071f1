// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SMARTThread.h"
#include "smart/ToolInvocation.h"
#include "tests/smart/SampleReports.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/FakePlatform.h"

#include <QSemaphore>

#include <atomic>

/// The command lines of the report tool, what becomes of its files, and the thread that runs it.
class tst_ToolInvocation : public QObject
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
    }

    void devices()
    {
        compareRows({"0 IDE -> /dev/sda", "13 SCSI -> /dev/sdn", "14 SCSI -> ", "-1 IDE -> ",
                     "1 USB ->  -d sat,12 /dev/sdb", "1 USB  -> /dev/sdb"},
                    [](const QString &row) {
                        return deviceString(row.section(' ', 0, 0).toInt(), row.section(' ', 1));
                    });
        // Row 10 of the table goes by the place in the combo box.
        compareRows({"9 10 -> /dev/sdj", "10 9 -> ", "11 10 -> /dev/sdk", "13 0 -> /dev/sdn", "14 14 -> "},
                    [](const QString &row) {
                        return selfTestDevice(int(numbersOf(row)[0]), int(numbersOf(row)[1]));
                    });
    }

    void commandLines()
    {
        const auto lines = [] {
            QString text;
            for (int i = 0; i <= int(ToolPurpose::SelfTestLog); ++i)
                text += commandLine(ToolPurpose(i), "D", toolFileName(ToolPurpose(i))) + '\n';
            return text;
        };
        const QString expected =
            "smartctl64Bit.exe -a D >> SMART.txt\nsmartctl64Bit.exe -c D >> SMART1234.txt\n"
            "smartctl64Bit.exe -c D >> ShortTestStatus.txt\n"
            "smartctl64Bit.exe -t short D >> ShortTest.txt\n"
            "smartctl64Bit.exe -t long D >> ShortTest.txt\n"
            "smartctl64Bit.exe -X D >> SMART1234.txt\n"
            "smartctl64Bit.exe -l selftest D >> PreviousResult.txt\n";
        QCOMPARE(lines(), expected);
        // The scheduler runs the copy, for reports only.
        g_strRunMode = "Schedular";
        QCOMPARE(lines(), "T:\\copy\\" + expected);
        g_strRunMode = "Scheduler";
        g_App.m_bUse64BitTool = false;
        QCOMPARE(lines(), QString(expected).remove("64Bit"));

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

private:
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
};

QTEST_GUILESS_MAIN(tst_ToolInvocation)
#include "tst_ToolInvocation.moc"
