// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/ToolInvocation.h"

#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QtTest>

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
        g_strSmartDevice.clear();
        g_strSmartReportPath.clear();
        g_strSelfTestDevice.clear();
    }

    void deviceNames()
    {
        QCOMPARE(deviceString(0, "IDE"), QString("/dev/sda"));
        QCOMPARE(deviceString(13, "SCSI"), QString("/dev/sdn"));
        QCOMPARE(deviceString(14, "SCSI"), QString());
        QCOMPARE(deviceString(-1, "IDE"), QString());
        QCOMPARE(deviceString(1, "USB"), QString(" -d sat,12 /dev/sdb"));
        QCOMPARE(deviceString(1, "USB "), QString("/dev/sdb"));
    }

    /// Row 10 of the table goes by the place in the combo box.
    void selfTestDevices()
    {
        QCOMPARE(selfTestDevice(0, 0), QString("/dev/sda"));
        QCOMPARE(selfTestDevice(9, 10), QString("/dev/sdj"));
        QCOMPARE(selfTestDevice(10, 9), QString());
        QCOMPARE(selfTestDevice(11, 10), QString("/dev/sdk"));
        QCOMPARE(selfTestDevice(13, 0), QString("/dev/sdn"));
        QCOMPARE(selfTestDevice(14, 14), QString());
    }

    void commandLines()
    {
        const auto row = [](ToolPurpose purpose, const char *file, const QString &arguments) {
            QCOMPARE(toolFileName(purpose), QString(file));
            const QString rest = ' ' + arguments + " DEV >> C:\\t\\x.txt";
            const auto line = [purpose] { return commandLine(purpose, "DEV", "C:\\t\\x.txt"); };
            g_App.m_bUse64BitTool = true;
            g_strRunMode.clear();
            QCOMPARE(line(), "smartctl64Bit.exe" + rest);
            // The scheduler runs the copy, for reports only.
            g_strRunMode = "Schedular";
            QCOMPARE(line(), (purpose == ToolPurpose::FullReport ? "T:\\copy\\smartctl64Bit.exe"
                                                                 : "smartctl64Bit.exe") +
                                 rest);
            g_strRunMode = "Scheduler";
            g_App.m_bUse64BitTool = false;
            QCOMPARE(line(), "smartctl.exe" + rest);
        };
        row(ToolPurpose::FullReport, "SMART.txt", "-a");
        row(ToolPurpose::Capabilities, "SMART1234.txt", "-c");
        row(ToolPurpose::TestProgress, "ShortTestStatus.txt", "-c");
        row(ToolPurpose::StartShortTest, "ShortTest.txt", "-t short");
        row(ToolPurpose::StartExtendedTest, "ShortTest.txt", "-t long");
        row(ToolPurpose::AbortTest, "SMART1234.txt", "-X");
        row(ToolPurpose::SelfTestLog, "PreviousResult.txt", "-l selftest");
    }

    void storedDevices()
    {
        g_strSmartDevice = QString(" -d sat,12 /dev/sdb");
        g_strSelfTestDevice = "/dev/sdb";
        QCOMPARE(storedDevice(ToolPurpose::SelfTestLog), QString(" -d sat,12 /dev/sdb"));
        QCOMPARE(storedDevice(ToolPurpose::AbortTest), QString("/dev/sdb"));
    }

    void loadReport()
    {
        addDisk(0, "IDE");
        addDisk(1, "USB");
        const QStringList devices{"/dev/sda", " -d sat,12 /dev/sdb", "/dev/sdc"}; // the last is in no table
        for (const QString &device : devices) {
            publish(LoadSmartReport(devices.indexOf(device)));
            QCOMPARE(g_strSmartReportPath, tempFile("SMART.txt"));
            QCOMPARE(g_strSmartDevice, device);
            QCOMPARE(m_fake->commands().last(), "C:\\Windows\\system32\\cmd.exe /c smartctl64Bit.exe -a " +
                                                    device + " >> " + tempFile("SMART.txt") + ' ');
        }
    }

    void loadReportStartsAfresh()
    {
        const QString path = nativePath(samples::stage("left over"));
        bool wasThere = true;
        m_fake->onCommand = [&](const QString &line) {
            wasThere = QFile::exists(path);
            return FakePlatform::answer(line, "new");
        };
        LoadSmartReport(0);
        QVERIFY(!wasThere);
        QCOMPARE(contentOf(path), QByteArray("new")); // the file stays, as the main thread reads it
    }

    void refreshTakesTheReportIn()
    {
        addDisk(3, "USB");
        g_strSmartDevice = QString("before");
        g_strSmartReportPath = QString("before");
        answerWith(samples::bytesOf("nvme-wdc-sn850-1tb.txt"));
        RefreshTemperatureReport(3);
        QVERIFY(onlyCommand().contains(" -a  -d sat,12 /dev/sdd >> "));
        QVERIFY(g_App.m_bNVMe && g_bSmartAvailable);
        QCOMPARE(samples::length(g_nvmeTable.rows), 17);
        // The device and path of the thread's last read do not change.
        QCOMPARE(g_strSmartDevice, QString("before"));
        QCOMPARE(g_strSmartReportPath, QString("before"));
    }

    /// It goes by the interface that is given, takes the file away and nothing in.
    void probe()
    {
        const auto identity = [] {
            const ProbedIdentity told = ProbeDiskIdentity(2, "USB");
            return told.model + '|' + told.serial + '|' + told.firmware;
        };
        addDisk(2, "IDE");
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
    static void addDisk(quint32 index, const char *interfaceText)
    {
        WmicDiskRecord &record = g_wmicDisks.append();
        record.nIndex = index;
        record.nDiskId = index + PhysicalDriveBase;
        record.szInterface.assign(interfaceText);
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
