// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/Rating.h"
#include "smart/SmartGlobals.h"
#include "smart/Temperature.h"
#include "state/SettingsStore.h"
#include "tests/ui/WindowFixture.h"

#include <QTreeWidget>

/// The screens after a read, for different reports, with and without the companion.
class tst_DiskStatusRead : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { tearDown(); }

    void diskStatus_data();
    void diskStatus();
    void nothingToRate();
    void smartStatus_data();
    void smartStatus();
    void noIdentityShowsNoTexts();
    void choicesDuringARead();
    void companion_data();
    void companion();
    void unreadableTaskListShowsTheDisk();
    void selfTestDeviceByComboPlace();

private:
    static QByteArray report(const QByteArray &identity, const char *verdict, const char *rows);
    /// Disk 10 has failed and tells its temperature. 12 passed and tells none. 13 has an empty report.
    void startWith(const QByteArray &settings, const QByteArray &lists = QByteArray());
    void startAndRead();
};

QByteArray tst_DiskStatusRead::report(const QByteArray &identity, const char *verdict, const char *rows)
{
    return identity +
           "\n=== START OF READ SMART DATA SECTION ===\n"
           "SMART overall-health self-assessment test result: " +
           verdict +
           "\n\nID# ATTRIBUTE_NAME FLAG VALUE WORST THRESH TYPE UPDATED WHEN_FAILED RAW_VALUE\n"
           "  5 Reallocated_Sector_Ct 0x0033 090 090 036 Pre-fail Always - 10\n" +
           rows;
}

void tst_DiskStatusRead::initTestCase()
{
    setUpProgram();
    g_App.m_strApplicationFolder = QStringLiteral("C:\\Halvane");
}

void tst_DiskStatusRead::init()
{
    const auto identity = [](const QByteArray &mark) {
        return "Device Model:     NW" + mark + "\nSerial Number:    SN" + mark + "\nFirmware Version: FW" +
               mark + "\nATA Version is:   ATA2\n";
    };
    addReport("failed.txt",
              report(identity("1"), "FAILED!", "194 Temperature_Celsius 0x22 36 45 0 Old_age Always - 36\n"));
    addReport("passed.txt", report(identity("2"), "PASSED", ""));
    addReport("nameless.txt",
              report("", "PASSED", "194 Temperature_Celsius 0x22 36 45 0 Old_age Always - 40\n"));
}

void tst_DiskStatusRead::startWith(const QByteArray &settings, const QByteArray &lists)
{
    QByteArray disks;
    const struct {
        int number;
        const char *report;
    } described[] = {{10, "failed.txt"}, {12, "passed.txt"}, {13, "nameless.txt"}};
    for (const auto &disk : described)
        disks += QByteArray(disks.isEmpty() ? "" : ", ") + R"({"number": )" +
                 QByteArray::number(disk.number) +
                 R"(, "model": "X Y ATA Device", "interface": "IDE", "sectors": 2097152, "report": ")" +
                 disk.report + "\"}";
    startPc(R"({"pauses": false, "disks": [)" + disks + R"(], "settings": {"TempValue": "C", )" +
            R"("FirstTimeLaunch": 1)" + settings + "}" + lists + "}");
}

void tst_DiskStatusRead::startAndRead()
{
    makeWindow();
    waitForRead();
}

void tst_DiskStatusRead::diskStatus_data()
{
    QTest::addColumn<int>("disk");
    QTest::addColumn<QString>("temperature");
    QTest::addColumn<QString>("health");
    QTest::addColumn<QString>("performance");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("verdict");
    // A disk with a temperature has SMART. A drive that calls itself failed reads "Failed".
    QTest::newRow("failed, with a temperature") << 0 << "36\u00B0C"
                                                << "90%"
                                                << "50%"
                                                << "Failed"
                                                << "QLabel {color : #FF0000;}"
                                                << "Failed: back up your data";
    QTest::newRow("passed, without") << 1 << "Not Supported"
                                     << "Not Supported"
                                     << "Not Supported"
                                     << "Not Supported"
                                     << "QLabel {color : #FF0000;}"
                                     << "Passed";
}

void tst_DiskStatusRead::diskStatus()
{
    QFETCH(int, disk);
    startWith("");
    startAndRead();
    select(disk);
    QTEST(text("tempValueLbl"), "temperature");
    QTEST(text("healthValueLbl"), "health");
    QTEST(text("performanceValueLbl"), "performance");
    QTEST(text("ResultLabel"), "result");
    QTEST(child<QLabel>("ResultLabel")->styleSheet(), "style");
    QTEST(text("DriveVerdictValue"), "verdict");
    for (const char *label : {"ResultLabel", "DriveVerdictValue"})
        child<QLabel>(label)->setText(QStringLiteral("other language"));
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(m_pWindow.get(), &change);
    QCoreApplication::sendEvent(child<QWidget>("m_pDiskStatus"), &change);
    QTEST(text("ResultLabel"), "result");
    QTEST(text("DriveVerdictValue"), "verdict");
    m_pWindow->OnShowSettings();
    m_pWindow->OnSetSmartSettings();
    QTEST(text("tempValueLbl"), "temperature");
}

void tst_DiskStatusRead::nothingToRate()
{
    addReport("failed.txt", report("", "PASSED", "194 Temperature_Celsius 0x22 36 45 0 Old_age Always - 36\n")
                                .replace("Reallocated_Sector_Ct", "Initial_Bad_Block_Count"));
    startWith("");
    startAndRead();
    const auto texts = [this] {
        return QStringList({text("healthValueLbl"), text("DiskLifeValue"), image("HelthLable")});
    };
    const QStringList unknown{"Not Supported", "Not Available", ":/images/img_HealthUnknown.png"};
    QCOMPARE(texts(), unknown);
    child<QLabel>("healthValueLbl")->setText(QStringLiteral("other language"));
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(child<QWidget>("m_pDiskStatus"), &change);
    QCOMPARE(texts(), unknown);
}

void tst_DiskStatusRead::smartStatus_data()
{
    QTest::addColumn<QString>("disk");
    QTest::addColumn<int>("health");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("style");
    // Both reports are rated; the label depends on the temperature.
    QTest::newRow("failed, with a temperature") << "NW1" << 90 << "Failed"
                                                << "QLabel {color : #FF0000;}";
    QTest::newRow("passed, without") << "NW2" << 90 << "Not Supported"
                                     << "QLabel {color : #FF0000;}";
}

void tst_DiskStatusRead::smartStatus()
{
    QFETCH(QString, disk);
    startWith("");
    g_strStartArgument = QStringLiteral("CloneDisk####") + disk;
    makeWindow();
    g_strStartArgument.clear();
    QCOMPARE(commands("TASKKILL.exe"), 0);
    press("SmartStatusButton");
    waitForRead();
    QCOMPARE(g_strModelName, disk);
    QTEST(g_nHealthPercent, "health");
    QTEST(text("SmartResultLabel"), "result");
    QTEST(child<QLabel>("SmartResultLabel")->styleSheet(), "style");
}

void tst_DiskStatusRead::noIdentityShowsNoTexts()
{
    startWith("");
    startAndRead();
    const auto texts = [this] {
        return QStringList({text("ModelNumValLbl"), text("SerialValLbl"), text("FrimvareVersValLbl")});
    };
    QCOMPARE(texts(), QStringList({"NW1", "SN1", "FW1"}));
    select(2);
    QCOMPARE(text("tempValueLbl"), QStringLiteral("40\u00B0C"));
    QCOMPARE(texts(), QStringList({"X Y", "", ""})); // from the system's table
}

void tst_DiskStatusRead::choicesDuringARead()
{
    startWith("", R"(, "toolMilliseconds": 100)");
    startAndRead();
    g_nDiskLifeDays = 7;
    const int reads = commands(" -a ");
    const auto choose = [this](int index) {
        child<QComboBox>("DriveCombobox")->setCurrentIndex(index);
        emit child<QComboBox>("DriveCombobox")->activated(index);
    };
    choose(1);
    // No figure of the previous disk shows.
    QCOMPARE(text("ModelNumValLbl") + text("SerialValLbl") + text("DiskLifeValue"), QString());
    QCOMPARE(g_nDiskLifeDays, 0U);
    QVERIFY(!GetDiskTemperature());
    QTRY_COMPARE(commands(" -a "), reads + 1);
    choose(0);
    choose(2);
    // A poll of the temperature while the tool runs.
    child<MyButton>("DiskStatusButton")->setDown(false);
    child<MyButton>("DiskPartitionButton")->setDown(true);
    m_pWindow->GetSmartTemprature();
    QCOMPARE(commands(" -a "), reads + 1);
    press("SmartStatusButton");
    waitForRead();
    QCOMPARE(commands(" -a "), reads + 2);
    QCOMPARE(text("SmartResultLabel"), QStringLiteral("Passed"));
    QCOMPARE(child<QTreeWidget>("m_pAttributeTree")->topLevelItemCount(), 2);
    QCOMPARE(GetDiskTemperature(), 40);
}

void tst_DiskStatusRead::companion_data()
{
    QTest::addColumn<QByteArray>("lists");
    QTest::addColumn<QStringList>("opened");
    // The window starts it, and the first read once more.
    const QString byPath = QStringLiteral("\tC:\\Halvane\\VelmoraSMART.exe\t");
    QTest::newRow("runs") << QByteArray(R"(, "processes": ["VelmoraSMART.exe"])") << QStringList();
    QTest::newRow("starts") << QByteArray(R"(, "installed": ["VelmoraSMART.exe"])") << QStringList(byPath);
    QTest::newRow("does not start") << QByteArray() << QStringList({byPath, byPath});
}

void tst_DiskStatusRead::companion()
{
    QFETCH(QByteArray, lists);
    startWith(R"(, "ShowTrayIcon": 1)", lists);
    startAndRead();
    QStringList opened;
    for (const QByteArray &line : logLines("opened.log"))
        opened << QString::fromUtf8(line);
    QTEST(opened, "opened");
    QCOMPARE(commands("C:\\Windows\\system32\\tasklist.exe | C:\\Windows\\system32\\findstr.exe "
                      "VelmoraSMART.exe >> "),
             2);
    QCOMPARE(commands("TASKKILL.exe"), 0);
    QCOMPARE(text("tempValueLbl"), QStringLiteral("36\u00B0C"));
}

void tst_DiskStatusRead::unreadableTaskListShowsTheDisk()
{
    startWith("");
    startAndRead();
    QCOMPARE(commands("TASKKILL.exe"), 1);
    SettingsStore().write(key::ShowTrayIcon, 1);
    QVERIFY(QDir(m_strState).mkpath(QStringLiteral("temp/tmpFile"))); // a folder with the name of the file
    auto *combo = child<QComboBox>("DriveCombobox");
    combo->setCurrentIndex(1);
    emit combo->activated(1);
    waitForRead();
    QCOMPARE(commands("tasklist.exe"), 1);
    QCOMPARE(text("ModelNumValLbl"), QStringLiteral("NW2"));
    QCOMPARE(logLines("opened.log").size(), 0);
    QCOMPARE(commands("TASKKILL.exe"), 1);
}

void tst_DiskStatusRead::selfTestDeviceByComboPlace()
{
    startWith("");
    startAndRead();
    // For disk 10 the place in the combo counts, so at place 0 it has no device.
    g_strSelfTestDevice = QStringLiteral("before");
    m_pWindow->DetailsforSelftest();
    QCOMPARE(g_strSelfTestDevice, QString());
    QCOMPARE(g_strSelfTestModel + g_strSelfTestSerial, QStringLiteral("NW1SN1"));
    select(1);
    m_pWindow->DetailsforSelftest();
    QCOMPARE(g_strSelfTestDevice, QStringLiteral("/dev/sdm"));
    QCOMPARE(g_strSelfTestModel + g_strSelfTestSerial, QStringLiteral("NW2SN2"));
}

QTEST_MAIN(tst_DiskStatusRead)
#include "tst_DiskStatusRead.moc"
