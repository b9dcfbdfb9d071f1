// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/DescribedFolder.h"

#include <QtTest>

namespace
{

const QByteArray capabilities =
    "smartctl banner\n\n=== START OF READ SMART DATA SECTION ===\n"
    "Self-test execution status:      (   0)\tThe previous self-test routine completed\n"
    "\t\t\t\t\twithout error or no self-test has ever \n\t\t\t\t\tbeen run.\n"
    "Total time to complete Offline \n"
    "\t\t\t\t\tSelf-test supported.\n"
    "Short self-test routine \nrecommended polling time: \t (   2) minutes.\n"
    "Extended self-test routine\nrecommended polling time: \t ( 191) minutes.\n";
const QByteArray report =
    "  9 Power_On_Hours          0x0032   100   100   050    Old_age   Always       -       65600\n";
const QByteArray oldLog =
    "SMART Self-test log structure revision number 1\n"
    "Num  Test_Description    Status                  Remaining  LifeTime(hours)  LBA_of_first_error\n"
    "# 1  Extended offline    Completed without error       00%     17092         -\n";

/// One disk; a minute of its tests takes one second. `%1` are more keys of the disk.
QByteArray pcWith(const QByteArray &keys)
{
    return R"({"disks": [{"number": 1, "sectors": 100, "capabilities": "c.txt"
)" + keys + "}]}";
}

} // namespace

class TestSimulatedSmartctl : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void reportsComeInTurn();
    void missingTool();
    void refusals_data();
    void refusals();
    void testRunsToItsEnd();
    void abortedTest();
    void failedTest_data();
    void failedTest();
    void driveWithoutTests();
    void windowsLineEnds();

private:
    simulated::Clock clock()
    {
        return [this] { return m_now; };
    }
    QString status(Platform &pc) const;

    qint64 m_now = 0;
};

void TestSimulatedSmartctl::init()
{
    m_now = 1700000000000;
}

/// The execution status that -c tells, on one line.
QString TestSimulatedSmartctl::status(Platform &pc) const
{
    const QString text = QString::fromLatin1(outputOf(pc, QStringLiteral("smartctl64Bit.exe -c /dev/sdb")));
    const int from = text.indexOf(QLatin1String("Self-test execution status:"));
    const int to = text.indexOf(QLatin1String("Total time"), from);
    return text.mid(from + 27, to - from - 27).simplified();
}

void TestSimulatedSmartctl::reportsComeInTurn()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("1.txt"), "first\r\n");
    folder.add(QStringLiteral("2.txt"), "second \xa0\n");
    const auto pc = folder.open(R"({"disks": [{"number": 0, "report": ["1.txt", "2.txt"]}, {"number": 1}]})");
    const QString command = QStringLiteral("smartctl64Bit.exe -a  -d sat,12 /dev/sda");
    QCOMPARE(outputOf(*pc, command), QByteArray("first\r\n"));
    QCOMPARE(outputOf(*pc, command), QByteArray("second \xa0\n"));
    QCOMPARE(outputOf(*pc, command), QByteArray("second \xa0\n"));
    QCOMPARE(outputOf(*pc, QStringLiteral("smartctl.exe -a /dev/sdb")), QByteArray());
}

void TestSimulatedSmartctl::missingTool()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("1.txt"), "first");
    const auto pc = folder.open(R"({"smartctl": false, "disks": [{"number": 0, "report": "1.txt"}]})");
    QCOMPARE(outputOf(*pc, QStringLiteral("smartctl64Bit.exe -a /dev/sda")), QByteArray());
    QVERIFY(QFileInfo::exists(pc->GetTempPathW() + QStringLiteral("out.txt")));
}

void TestSimulatedSmartctl::refusals_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QByteArray>("words");
    QTest::newRow("no device") << "-a " << QByteArray("ERROR: smartctl requires a device name as the final");
    QTest::newRow("no device for a test")
        << "-t short" << QByteArray("ERROR: smartctl requires a device name");
    QTest::newRow("two devices") << "-a /dev/sda /dev/sdb" << QByteArray("smartctl takes ONE device name");
    QTest::newRow("unknown disk") << "-a /dev/sdc"
                                  << QByteArray("open device: /dev/sdc failed: No such file or directory\n");
    QTest::newRow("other name") << "-a sda" << QByteArray("sda: Unable to detect device type\n");
    QTest::newRow("option") << "-y /dev/sda" << QByteArray("=======> UNRECOGNIZED OPTION: y\n");
    QTest::newRow("value") << "-t tiny /dev/sda" << QByteArray("=======> INVALID ARGUMENT TO -t: tiny\n");
}

void TestSimulatedSmartctl::refusals()
{
    QFETCH(QString, arguments);
    QFETCH(QByteArray, words);
    const DescribedFolder folder;
    folder.add(QStringLiteral("1.txt"), "Self-test supported.");
    const auto pc = folder.open(R"({"disks": [{"number": 0, "report": "1.txt", "capabilities": "1.txt"}]})");
    const QByteArray output = outputOf(*pc, QStringLiteral("smartctl64Bit.exe ") + arguments);
    QVERIFY2(output.contains(words), output.constData());
    QVERIFY(!output.contains("Self-test supported."));
}

void TestSimulatedSmartctl::testRunsToItsEnd()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("c.txt"), capabilities);
    folder.add(QStringLiteral("l.txt"), oldLog);
    folder.add(QStringLiteral("a.txt"), report);
    const QByteArray json = pcWith(R"(, "selfTestLog": "l.txt", "report": "a.txt")");
    auto pc = folder.open(json, clock());
    QCOMPARE(outputOf(*pc, QStringLiteral("smartctl64Bit.exe -c /dev/sdb")), capabilities);

    const QByteArray started = outputOf(*pc, QStringLiteral("smartctl64Bit.exe -t short /dev/sdb"));
    QVERIFY(started.contains("Please wait 2 minutes for test to complete.\n"));
    QVERIFY(started.contains(
        "Drive command \"Execute SMART Short self-test routine immediately in off-line mode\" "
        "successful.\nTesting has begun.\n"));
    const QString running = QStringLiteral("( %1) Self-test routine in progress... %2% of test remaining.");
    // Two minutes of the drive are two seconds here.
    for (const auto &[ms, code, percent] :
         {std::tuple(0, 249, 90), {399, 249, 90}, {400, 248, 80}, {1000, 245, 50}, {1999, 241, 10}}) {
        m_now = 1700000000000 + ms;
        QCOMPARE(status(*pc), running.arg(code).arg(percent));
    }
    QVERIFY(outputOf(*pc, QStringLiteral("smartctl64Bit.exe -t long /dev/sdb"))
                .contains("Can't start self-test without aborting current test (10% remaining),"));
    QCOMPARE(outputOf(*pc, QStringLiteral("smartctl64Bit.exe -l selftest /dev/sdb")), oldLog);

    m_now += 1;
    pc = folder.open(json, clock()); // a test goes on while the program does not run
    QCOMPARE(status(*pc), QStringLiteral("( 0) The previous self-test routine completed without error or no "
                                         "self-test has ever been run."));
    const QList<QByteArray> lines =
        outputOf(*pc, QStringLiteral("smartctl64Bit.exe -l selftest /dev/sdb")).split('\n');
    QCOMPARE(lines.at(2),
             QByteArray("# 1  Short offline       Completed without error       00%        64         -"));
    QCOMPARE(lines.at(3),
             QByteArray("# 2  Extended offline    Completed without error       00%     17092         -"));
}

void TestSimulatedSmartctl::abortedTest()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("c.txt"), capabilities);
    const auto pc = folder.open(pcWith(""), clock());
    const QString log = QStringLiteral("smartctl64Bit.exe -l selftest /dev/sdb");
    QVERIFY(outputOf(*pc, log).contains("No self-tests have been logged."));
    outputOf(*pc, QStringLiteral("smartctl64Bit.exe -t long /dev/sdb"));
    m_now += 191 * 300;
    QVERIFY(
        outputOf(*pc, QStringLiteral("smartctl64Bit.exe -X /dev/sdb")).endsWith("Self-testing aborted!\n"));
    QCOMPARE(status(*pc), QStringLiteral("( 23) The self-test routine was aborted by the host."));
    const QByteArray rows = outputOf(*pc, log);
    QVERIFY2(
        rows.contains("\n# 1  Extended offline    Aborted by host               70%         0         -\n"),
        rows.constData());
    QVERIFY(!rows.contains("No self-tests"));
}

void TestSimulatedSmartctl::failedTest_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QString>("told");
    QTest::addColumn<QByteArray>("row");
    QTest::newRow("read failure")
        << QByteArray(R"("result": "read failure", "remaining": 90)")
        << "( 121) The previous self-test completed having the read element of the test failed."
        << QByteArray("Completed: read failure       90%         0         42\n");
    QTest::newRow("interrupted")
        << QByteArray(R"("result": "interrupted")")
        << "( 33) The self-test routine was interrupted by the host with a hard or soft reset."
        << QByteArray("Interrupted (host reset)      10%         0         -\n");
    QTest::newRow("servo")
        << QByteArray(R"("result": "servo", "remaining": 0)")
        << "( 96) The previous self-test completed having the servo (and/or seek) element of the test failed."
        << QByteArray("Completed: servo/seek failure 00%         0         -\n");
    QTest::newRow("aborted") << QByteArray(R"("result": "aborted")")
                             << "( 17) The self-test routine was aborted by the host."
                             << QByteArray("Aborted by host               10%         0         -\n");
    QTest::newRow("fatal error")
        << QByteArray(R"("result": "fatal error")")
        << "( 49) A fatal error or unknown test error occurred while the device was executing its self-test "
           "routine and the device was unable to complete the self-test routine."
        << QByteArray("Fatal or unknown error        10%         0         -\n");
    const QString element = QStringLiteral("( %1) The previous self-test completed having %2.");
    QTest::newRow("unknown failure")
        << QByteArray(R"("result": "unknown failure")")
        << element.arg(65).arg("a test element that failed and the test element that failed is not known")
        << QByteArray("Completed: unknown failure    10%         0         -\n");
    QTest::newRow("electrical") << QByteArray(R"("result": "electrical")")
                                << element.arg(81).arg("the electrical element of the test failed")
                                << QByteArray("Completed: electrical failure 10%         0         -\n");
    QTest::newRow("handling")
        << QByteArray(R"("result": "handling")")
        << element.arg(129).arg("a test element that failed and the device is suspected of having handling "
                                "damage")
        << QByteArray("Completed: handling damage??  10%         0         -\n");
}

void TestSimulatedSmartctl::failedTest()
{
    QFETCH(QByteArray, keys);
    QFETCH(QString, told);
    QFETCH(QByteArray, row);
    const DescribedFolder folder;
    folder.add(QStringLiteral("c.txt"), capabilities);
    const auto pc = folder.open(pcWith(R"(, "badSectors": [90, 42], "selfTest": {)" + keys + "}"), clock());
    outputOf(*pc, QStringLiteral("smartctl64Bit.exe -t short /dev/sdb"));
    QVERIFY(status(*pc).contains(QLatin1String("in progress")));
    m_now += 2000;
    QCOMPARE(status(*pc), told);
    const QByteArray rows = outputOf(*pc, QStringLiteral("smartctl64Bit.exe -l selftest /dev/sdb"));
    QVERIFY2(rows.contains(row), rows.constData());
}

void TestSimulatedSmartctl::driveWithoutTests()
{
    const DescribedFolder folder;
    QByteArray without = capabilities;
    folder.add(QStringLiteral("c.txt"), without.replace("Self-test supported", "No Self-test supported"));
    const auto pc = folder.open(pcWith(""), clock());
    QVERIFY(outputOf(*pc, QStringLiteral("smartctl64Bit.exe -t short /dev/sdb"))
                .contains("Warning: device does not support Self-Test functions."));
    QCOMPARE(outputOf(*pc, QStringLiteral("smartctl64Bit.exe -c /dev/sdb")), without);
}

void TestSimulatedSmartctl::windowsLineEnds()
{
    const DescribedFolder folder;
    QByteArray text = capabilities;
    folder.add(QStringLiteral("c.txt"), text.replace("\n", "\r\n"));
    const auto pc = folder.open(pcWith(""), clock());
    outputOf(*pc, QStringLiteral("smartctl64Bit.exe -t short /dev/sdb"));
    const QByteArray output = outputOf(*pc, QStringLiteral("smartctl64Bit.exe -c /dev/sdb"));
    QVERIFY(output.contains(
        "( 249)\tSelf-test routine in progress...\r\n\t\t\t\t\t90% of test remaining.\r\nTotal"));
    QCOMPARE(output.count('\n'), output.count("\r\n"));
}

QTEST_GUILESS_MAIN(TestSimulatedSmartctl)
#include "tst_SimulatedSmartctl.moc"
