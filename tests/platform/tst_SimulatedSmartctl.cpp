// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/DescribedFolder.h"
#include "tests/support/Files.h"

#include <QtTest>

namespace
{

const QByteArray Report =
    "  9 Power_On_Hours          0x0032   100   100   050    Old_age   Always       -       65600\n";
const QByteArray OldLog =
    "SMART Self-test log structure revision number 1\n"
    "Num  Test_Description    Status                  Remaining  LifeTime(hours)  LBA_of_first_error\n"
    "# 1  Extended offline    Completed without error       00%     17092         -\n";

} // namespace

/// The tool of a described PC. Each minute of its self-tests takes one second.
class TestSimulatedSmartctl : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void reportsComeInTurn();
    void refusals();
    void testRunsToItsEnd();
    void abortedTest();
    void failedTest();
    void driveWithoutTests();

private:
    /// Starts the program on a PC whose second disk has more keys.
    void open(const QByteArray &keys)
    {
        m_pc = m_folder->open(R"({"disks": [{"number": 1, "sectors": 100, "capabilities": "c.txt",
            "report": "a.txt")" + keys +
                                  "}]}",
                              [this] { return m_now; });
    }
    QByteArray ask(const char *arguments) const
    {
        return outputOf(*m_pc, QString("smartctl64Bit.exe ") + arguments);
    }
    /// The execution status that -c tells, on one line.
    QString status() const
    {
        const QString text = ask("-c /dev/sdb");
        const int from = text.indexOf("Self-test execution status:") + 27;
        return text.mid(from, text.indexOf("Total time", from) - from).simplified();
    }

    const QByteArray m_capabilities = contentOf(HALVANE_TEST_DATA "/selftest/caps-idle-72.txt");
    qint64 m_now = 1700000000000;
    std::unique_ptr<DescribedFolder> m_folder;
    std::unique_ptr<SimulatedPlatform> m_pc;
};

void TestSimulatedSmartctl::init()
{
    m_folder = std::make_unique<DescribedFolder>();
    m_folder->add("c.txt", m_capabilities);
    m_folder->add("a.txt", Report);
}

void TestSimulatedSmartctl::reportsComeInTurn()
{
    m_folder->add("2.txt", "second \xa0\r\n");
    m_pc = m_folder->open(R"({"disks": [{"number": 0, "report": ["a.txt", "2.txt"]}, {"number": 1}]})");
    QCOMPARE(ask("-a  -d sat,12 /dev/sda"), Report);
    QCOMPARE(ask("-a /dev/sda"), QByteArray("second \xa0\r\n"));
    QCOMPARE(ask("-a /dev/sda"), QByteArray("second \xa0\r\n"));
    QCOMPARE(ask("-a /dev/sdb"), QByteArray());
    m_pc = m_folder->open(R"({"smartctl": false, "disks": [{"number": 0, "report": "a.txt"}]})");
    QCOMPARE(ask("-a /dev/sda"), QByteArray());
}

void TestSimulatedSmartctl::refusals()
{
    open("");
    for (const auto &[arguments, words] : {
             std::pair("-t short", "ERROR: smartctl requires a device name as the final"),
             std::pair("-a /dev/sdb /dev/sdb", "smartctl takes ONE device name"),
             std::pair("-a /dev/sdc", "open device: /dev/sdc failed: No such file or directory\n"),
             std::pair("-a sdb", "sdb: Unable to detect device type\n"),
             std::pair("-y /dev/sdb", "=======> UNRECOGNIZED OPTION: y\n"),
             std::pair("-t tiny /dev/sdb", "=======> INVALID ARGUMENT TO -t: tiny\n"),
         }) {
        const QByteArray output = ask(arguments);
        QVERIFY2(output.contains(words) && !output.contains(Report), output.constData());
    }
}

void TestSimulatedSmartctl::testRunsToItsEnd()
{
    m_folder->add("l.txt", OldLog);
    open(R"(, "selfTestLog": "l.txt")");
    QCOMPARE(ask("-c /dev/sdb"), m_capabilities);
    const QByteArray started = ask("-t short /dev/sdb");
    QVERIFY(started.contains("Please wait 1 minutes for test to complete.\n"));
    QVERIFY(started.contains(
        "Drive command \"Execute SMART Short self-test routine immediately in off-line mode\" "
        "successful.\nTesting has begun.\n"));
    const qint64 start = m_now;
    const QString running = "( %1) Self-test routine in progress... %2% of test remaining.";
    for (const auto &[ms, code, percent] :
         {std::tuple(0, 249, 90), {199, 249, 90}, {200, 248, 80}, {999, 241, 10}}) {
        m_now = start + ms;
        QCOMPARE(status(), running.arg(code).arg(percent));
    }
    QVERIFY(ask("-t long /dev/sdb")
                .contains("Can't start self-test without aborting current test (10% remaining),"));
    QCOMPARE(ask("-l selftest /dev/sdb"), OldLog);

    m_now += 1;
    open(R"(, "selfTestLog": "l.txt")"); // a test goes on while the program does not run
    QVERIFY(status().startsWith("( 0) The previous self-test routine completed without error"));
    const QList<QByteArray> lines = ask("-l selftest /dev/sdb").split('\n');
    QCOMPARE(lines.at(2),
             QByteArray("# 1  Short offline       Completed without error       00%        64         -"));
    QCOMPARE(lines.at(3),
             QByteArray("# 2  Extended offline    Completed without error       00%     17092         -"));
}

void TestSimulatedSmartctl::abortedTest()
{
    m_folder->add("c.txt", QByteArray(m_capabilities).replace("\n", "\r\n"));
    open("");
    QVERIFY(ask("-l selftest /dev/sdb").contains("No self-tests have been logged."));
    ask("-t long /dev/sdb");
    m_now += 793 * 300;
    const QByteArray running = ask("-c /dev/sdb");
    QVERIFY(running.contains(
        "( 247)\tSelf-test routine in progress...\r\n\t\t\t\t\t70% of test remaining.\r\nTotal"));
    QCOMPARE(running.count('\n'), running.count("\r\n"));
    QVERIFY(ask("-X /dev/sdb").endsWith("Self-testing aborted!\n"));
    QCOMPARE(status(), "( 23) The self-test routine was aborted by the host.");
    const QByteArray rows = ask("-l selftest /dev/sdb");
    QVERIFY(
        rows.contains("\n# 1  Extended offline    Aborted by host               70%        64         -\n"));
    QVERIFY(!rows.contains("No self-tests"));
}

void TestSimulatedSmartctl::failedTest()
{
    // A test ends when as much is left as the description says. Only a read failure has a place.
    for (const auto &[end, told, row] : {
             std::tuple(R"("result": "read failure", "remaining": 90)", "( 121) ",
                        "read failure       90%        64         42\n"),
             std::tuple(R"("result": "servo")", "( 97) ", "servo/seek failure 10%        64         -\n"),
         }) {
        init();
        open(QByteArray(R"(, "badSectors": [90, 42], "selfTest": {)") + end + "}");
        ask("-t short /dev/sdb");
        QVERIFY(status().contains("in progress"));
        m_now += 900;
        QVERIFY(status().startsWith(told));
        QVERIFY(ask("-l selftest /dev/sdb").contains(row));
    }
}

void TestSimulatedSmartctl::driveWithoutTests()
{
    const QByteArray without =
        QByteArray(m_capabilities).replace("Self-test supported", "No Self-test supported");
    m_folder->add("c.txt", without);
    open("");
    QVERIFY(ask("-t short /dev/sdb").contains("Warning: device does not support Self-Test functions."));
    QCOMPARE(ask("-c /dev/sdb"), without);
}

QTEST_GUILESS_MAIN(TestSimulatedSmartctl)
#include "tst_SimulatedSmartctl.moc"
