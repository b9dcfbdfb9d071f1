// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/ToolInvocation.h"

#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QtTest>

namespace
{

void addDisk(quint32 index, const char *interfaceText)
{
    WmicDiskRecord &record = g_wmicDisks.append();
    record.nIndex = index;
    record.nDiskId = index + PhysicalDriveBase;
    record.szInterface.assign(interfaceText);
}

} // namespace

class tst_ToolInvocation : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void deviceNames_data();
    void deviceNames();
    void selfTestDevices_data();
    void selfTestDevices();
    void commandLines_data();
    void commandLines();
    void schedulerRunsTheCopyForReportsOnly();
    void storedDevices();
    void loadReport_data();
    void loadReport();
    void loadReportStartsAfresh();
    void refreshTakesTheReportIn();
    void probe_data();
    void probe();
    void probeRunsWithTheGivenInterface();
    void probeWithoutAnAnswer();

private:
    QString onlyCommand() const
    {
        return m_fake->commands().size() == 1 ? m_fake->commands().at(0) : QString();
    }

    FakePlatform *m_fake = nullptr;
};

void tst_ToolInvocation::init()
{
    m_fake = FakePlatform::install();
    samples::forget();
    g_App.m_bUse64BitTool = true;
    g_App.m_strSmartctlPath = "T:\\copy\\smartctl64Bit.exe";
}

void tst_ToolInvocation::cleanup()
{
    samples::forget();
    g_wmicDisks.clear();
    g_strRunMode.clear();
    g_strSmartDevice = QString();
    g_strSmartReportPath = QString();
    g_strSelfTestDevice.clear();
}

void tst_ToolInvocation::deviceNames_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("interfaceText");
    QTest::addColumn<QString>("device");
    QTest::newRow("first") << 0 << "IDE"
                           << "/dev/sda";
    QTest::newRow("last") << 13 << "SCSI"
                          << "/dev/sdn";
    QTest::newRow("behind the last") << 14 << "SCSI"
                                     << "";
    QTest::newRow("negative") << -1 << "IDE"
                              << "";
    QTest::newRow("no interface") << 1 << ""
                                  << "/dev/sdb";
    QTest::newRow("USB") << 1 << "USB"
                         << " -d sat,12 /dev/sdb";
    QTest::newRow("USB behind the last") << 14 << "USB"
                                         << " -d sat,12 ";
    QTest::newRow("not exactly USB") << 1 << "usb"
                                     << "/dev/sdb";
    QTest::newRow("not only USB") << 1 << "USB "
                                  << "/dev/sdb";
}

void tst_ToolInvocation::deviceNames()
{
    QFETCH(int, index);
    QFETCH(QString, interfaceText);
    QTEST(deviceString(index, interfaceText), "device");
}

void tst_ToolInvocation::selfTestDevices_data()
{
    QTest::addColumn<int>("disk");
    QTest::addColumn<int>("combo");
    QTest::addColumn<QString>("device");
    QTest::newRow("first") << 0 << 0 << "/dev/sda";
    QTest::newRow("combo does not matter") << 3 << 7 << "/dev/sdd";
    QTest::newRow("9 at place 10") << 9 << 10 << "/dev/sdj";
    QTest::newRow("10 at place 10") << 10 << 10 << "/dev/sdk";
    QTest::newRow("10 elsewhere") << 10 << 9 << "";
    QTest::newRow("11 at place 10") << 11 << 10 << "/dev/sdk";
    QTest::newRow("11 elsewhere") << 11 << 11 << "/dev/sdl";
    QTest::newRow("13 at place 10") << 13 << 10 << "/dev/sdk";
    QTest::newRow("13 elsewhere") << 13 << 0 << "/dev/sdn";
    QTest::newRow("14") << 14 << 14 << "";
    QTest::newRow("20 at place 10") << 20 << 10 << "/dev/sdk";
}

void tst_ToolInvocation::selfTestDevices()
{
    QFETCH(int, disk);
    QFETCH(int, combo);
    QTEST(selfTestDevice(disk, combo), "device");
}

void tst_ToolInvocation::commandLines_data()
{
    QTest::addColumn<int>("purpose");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("line");
    const auto row = [](const char *name, ToolPurpose purpose, const char *file, const char *line) {
        QTest::newRow(name) << int(purpose) << file << line;
    };
    row("report", ToolPurpose::FullReport, "SMART.txt", " -a DEV >> C:\\t\\SMART.txt");
    row("capabilities", ToolPurpose::Capabilities, "SMART1234.txt", " -c DEV >> C:\\t\\SMART1234.txt");
    row("progress", ToolPurpose::TestProgress, "ShortTestStatus.txt",
        " -c DEV >> C:\\t\\ShortTestStatus.txt");
    row("short", ToolPurpose::StartShortTest, "ShortTest.txt", " -t short DEV >> C:\\t\\ShortTest.txt");
    row("extended", ToolPurpose::StartExtendedTest, "ShortTest.txt", " -t long DEV >> C:\\t\\ShortTest.txt");
    row("abort", ToolPurpose::AbortTest, "SMART1234.txt", " -X DEV >> C:\\t\\SMART1234.txt");
    row("log", ToolPurpose::SelfTestLog, "PreviousResult.txt",
        " -l selftest DEV >> C:\\t\\PreviousResult.txt");
}

void tst_ToolInvocation::commandLines()
{
    QFETCH(int, purpose);
    QFETCH(QString, line);
    const auto which = static_cast<ToolPurpose>(purpose);
    QTEST(toolFileName(which), "file");
    const QString path = "C:\\t\\" + toolFileName(which);
    QCOMPARE(commandLine(which, "DEV", path), "smartctl64Bit.exe" + line);
    g_App.m_bUse64BitTool = false;
    QCOMPARE(commandLine(which, "DEV", path), "smartctl.exe" + line);
}

void tst_ToolInvocation::schedulerRunsTheCopyForReportsOnly()
{
    g_strRunMode = "Schedular";
    QCOMPARE(commandLine(ToolPurpose::FullReport, "D", "F"),
             QString("T:\\copy\\smartctl64Bit.exe -a D >> F"));
    QCOMPARE(commandLine(ToolPurpose::Capabilities, "D", "F"), QString("smartctl64Bit.exe -c D >> F"));
    QCOMPARE(commandLine(ToolPurpose::SelfTestLog, "D", "F"),
             QString("smartctl64Bit.exe -l selftest D >> F"));
    g_strRunMode = "Scheduler";
    QCOMPARE(commandLine(ToolPurpose::FullReport, "D", "F"), QString("smartctl64Bit.exe -a D >> F"));
}

void tst_ToolInvocation::storedDevices()
{
    g_strSmartDevice = QString(" -d sat,12 /dev/sdb");
    g_strSelfTestDevice = "/dev/sdb";
    QCOMPARE(storedDevice(ToolPurpose::SelfTestLog), QString(" -d sat,12 /dev/sdb"));
    for (const ToolPurpose purpose :
         {ToolPurpose::Capabilities, ToolPurpose::TestProgress, ToolPurpose::StartShortTest,
          ToolPurpose::StartExtendedTest, ToolPurpose::AbortTest})
        QCOMPARE(storedDevice(purpose), QString("/dev/sdb"));
}

void tst_ToolInvocation::loadReport_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("start");
    const QString tool = "smartctl64Bit.exe -a ";
    QTest::newRow("plain") << 0 << ""
                           << "/dev/sda" << tool + "/dev/sda >> ";
    QTest::newRow("USB, two blanks") << 1 << ""
                                     << " -d sat,12 /dev/sdb" << tool + " -d sat,12 /dev/sdb >> ";
    QTest::newRow("not in the table of disks") << 2 << ""
                                               << "/dev/sdc" << tool + "/dev/sdc >> ";
    QTest::newRow("no device") << 14 << ""
                               << "" << tool + " >> ";
    QTest::newRow("by the scheduler") << 1 << "Schedular"
                                      << " -d sat,12 /dev/sdb"
                                      << "T:\\copy\\smartctl64Bit.exe -a  -d sat,12 /dev/sdb >> ";
}

void tst_ToolInvocation::loadReport()
{
    QFETCH(int, index);
    QFETCH(QString, mode);
    QFETCH(QString, start);
    addDisk(0, "IDE");
    addDisk(1, "USB");
    g_strRunMode = mode;
    publish(LoadSmartReport(index));
    QCOMPARE(g_strSmartReportPath, tempFile("SMART.txt"));
    QTEST(g_strSmartDevice, "device");
    QCOMPARE(onlyCommand(), "C:\\Windows\\system32\\cmd.exe /c " + start + tempFile("SMART.txt") + ' ');
}

void tst_ToolInvocation::loadReportStartsAfresh()
{
    const QString path = nativePath(samples::stage("left over"));
    bool wasThere = true;
    m_fake->onCommand = [&](const QString &line) {
        wasThere = QFile::exists(path);
        return FakePlatform::answer(line, "new");
    };
    LoadSmartReport(0);
    QVERIFY(!wasThere);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly)); // the file stays, as the main thread reads it
    QCOMPARE(file.readAll(), QByteArray("new"));
}

void tst_ToolInvocation::refreshTakesTheReportIn()
{
    addDisk(3, "USB");
    g_strSmartDevice = QString("before");
    g_strSmartReportPath = QString("before");
    m_fake->onCommand = [](const QString &line) {
        return FakePlatform::answer(line, samples::bytesOf("nvme-wdc-sn850-1tb.txt"));
    };
    RefreshTemperatureReport(3);
    QVERIFY(onlyCommand().contains(" -a  -d sat,12 /dev/sdd >> "));
    QVERIFY(g_App.m_bNVMe);
    QCOMPARE(samples::length(g_nvmeTable.rows), 17);
    QVERIFY(g_bSmartAvailable);
    // The device and path of the thread's last read do not change.
    QCOMPARE(g_strSmartDevice, QString("before"));
    QCOMPARE(g_strSmartReportPath, QString("before"));
}

void tst_ToolInvocation::probe_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("identity");
    for (const samples::Sample &sample : samples::all())
        QTest::newRow(sample.file.toUtf8().constData())
            << sample.file << sample.model + '|' + sample.serial + '|' + sample.firmware;
}

void tst_ToolInvocation::probe()
{
    QFETCH(QString, file);
    m_fake->onCommand = [&](const QString &line) {
        return FakePlatform::answer(line, samples::bytesOf(file));
    };
    const ProbedIdentity told = ProbeDiskIdentity(0, QString());
    QTEST(told.model + '|' + told.serial + '|' + told.firmware, "identity");
    QVERIFY(!QFile::exists(nativePath(tempFile("SMART.txt"))));
    QVERIFY(!g_pSmartAttributeHead && !g_pNvmeAttributeHead);
}

void tst_ToolInvocation::probeRunsWithTheGivenInterface()
{
    addDisk(2, "IDE");
    ProbeDiskIdentity(2, "USB");
    QVERIFY(onlyCommand().contains(" -a  -d sat,12 /dev/sdc >> "));
}

void tst_ToolInvocation::probeWithoutAnAnswer()
{
    const ProbedIdentity told = ProbeDiskIdentity(0, QString());
    QVERIFY(told.model.isEmpty() && told.serial.isEmpty() && told.firmware.isEmpty());
}

QTEST_GUILESS_MAIN(tst_ToolInvocation)
#include "tst_ToolInvocation.moc"
