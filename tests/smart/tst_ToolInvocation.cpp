// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/ToolInvocation.h"

#include "tests/smart/SampleReports.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/FakePlatform.h"

/// The command lines of the report tool, and what becomes of its files.
class tst_ToolInvocation : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fake = FakePlatform::install();
        samples::forget();
        g_App.m_bUse64BitTool = true;
        g_App.m_strSmartctlPath = "T:\\copy\\smartctl64Bit.exe";
    }

    void cleanup()
    {
        samples::forget();
        g_wmicDisks.clear();
        g_strRunMode.clear();
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
                        return selfTestDevice(row.section(' ', 0, 0).toInt(), row.section(' ', 1).toInt());
                    });
    }

    void commandLines()
    {
        const auto line = [](ToolPurpose purpose) {
            return commandLine(purpose, "DEV", toolFileName(purpose));
        };
        const QStringList lines = QString(" -a DEV >> SMART.txt; -c DEV >> SMART1234.txt; "
                                          "-c DEV >> ShortTestStatus.txt; -t short DEV >> ShortTest.txt; "
                                          "-t long DEV >> ShortTest.txt; -X DEV >> SMART1234.txt; "
                                          "-l selftest DEV >> PreviousResult.txt")
                                      .split(';');
        for (int i = 0; i < lines.size(); ++i)
            QCOMPARE(line(ToolPurpose(i)), "smartctl64Bit.exe" + lines[i]);
        // The scheduler runs the copy, for reports only.
        g_strRunMode = "Schedular";
        QCOMPARE(line(ToolPurpose::FullReport), "T:\\copy\\smartctl64Bit.exe" + lines[0]);
        QCOMPARE(line(ToolPurpose::AbortTest), "smartctl64Bit.exe" + lines[5]);
        g_strRunMode = "Scheduler";
        g_App.m_bUse64BitTool = false;
        QCOMPARE(line(ToolPurpose::FullReport), "smartctl.exe" + lines[0]);

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

private:
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
