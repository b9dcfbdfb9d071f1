// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SelfTestGlobals.h"
#include "smart/SmartGlobals.h"
#include "tests/ui/Named.h"
#include "tests/ui/WindowFixture.h"
#include "ui/dialogs/MessageDialog.h"

#include <QComboBox>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

/// Self-tests through the real window, on a PC whose drives run them by themselves.
class tst_SelfTestFlow : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpProgram(); }
    void cleanup() { tearDown(); }

    void runsToItsEnd_data();
    void runsToItsEnd();
    void aborted();
    void refused_data();
    void refused();
    void behindAnNvmeDisk();
    void extendedWithoutTime();
    void everyOtherEnd_data();
    void everyOtherEnd();
    void silence();
    void notDuringARefresh();
    void keepsItsDisk();
    void leftRunning();
    void overAndOver();

private:
    static QByteArray capabilities(const char *name)
    {
        return DescribedFolder::contents(QStringLiteral(HALVANE_TEST_DATA "/selftest/") +
                                         QLatin1String(name));
    }
    /// A PC with two disks. `more` are further keys of the PC; its tool prints `report` and the capabilities
    /// `text`.
    void startOn(const QByteArray &text, const QByteArray &more,
                 const QByteArray &report = sample("ata-seagate-st3250318as.txt"));
    void start(const char *radio);
    bool shown(const char *name) const { return child<QWidget>(name)->isVisible(); }
    bool navigationIs(bool enabled) const;
    QString sheet(const char *label) const { return child<QLabel>(label)->styleSheet(); }
};

void tst_SelfTestFlow::startOn(const QByteArray &text, const QByteArray &more, const QByteArray &report)
{
    addReport("a.txt", report);
    addReport("c.txt", text);
    startPc(R"({"pauses": false, "settings": {"FirstTimeLaunch": 1}, "disks": [{"number": 1, "model": "M",
        "interface": "IDE", "sectors": 2048, "report": "a.txt", "capabilities": "c.txt"}, {"number": 4, "model": "N",
        "interface": "IDE", "sectors": 2048, "report": "a.txt", "capabilities": "c.txt"}])" +
            more + "}");
    makeWindow();
    waitForRead();
}

void tst_SelfTestFlow::start(const char *radio)
{
    press("ScanDiskButton");
    child<QRadioButton>(radio)->click();
    child<QPushButton>("ScanButton")->click();
}

/// Whether the four buttons that a running test disables are enabled.
bool tst_SelfTestFlow::navigationIs(bool enabled) const
{
    for (const char *name :
         {"DiskStatusButton", "SmartStatusButton", "DiskPartitionButton", "CloneDiskButton"})
        if (child<MyButton>(name)->isEnabled() != enabled)
            return false;
    return child<MyButton>("ScanDiskButton")->isDown();
}

void tst_SelfTestFlow::runsToItsEnd_data()
{
    QTest::addColumn<QByteArray>("result");
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("colour");
    QTest::newRow("completed") << QByteArray("completed") << "Successfully Completed"
                               << "QLabel {color : Green;}";
    QTest::newRow("read failure") << QByteArray("read failure") << "Test failed by Read Element"
                                  << "QLabel {color : Red;}";
}

void tst_SelfTestFlow::runsToItsEnd()
{
    QFETCH(QByteArray, result);
    startOn(capabilities("caps-idle-72.txt"),
            R"(, "selfTest": {"secondsPerMinute": 0.5, "result": ")" + result + "\"}");
    start("radioButton_2");
    QVERIFY(g_bSelfTestRunning);
    QCOMPARE(commands("smartctl64Bit.exe -t short /dev/sdb >> "), 1);
    QVERIFY(shown("StopTestButton") && shown("TestProgressBar") && shown("TestElapsedValLbl"));
    QVERIFY(!shown("ScanButton") && !shown("frame_2") && !shown("BackTestButton"));
    QVERIFY(navigationIs(false));
    QVERIFY(!child<MyButton>("ScanDiskButton")->isEnabled());
    QVERIFY(!child<QComboBox>("DriveCombobox")->isEnabled());
    QCOMPARE(child<QProgressBar>("TestProgressBar")->value(), 10);
    QCOMPARE(text("TestNameLbl"), QStringLiteral("Short Self-test"));
    QCOMPARE(text("TestModelValLbl") + text("TestSerialValLbl"), QStringLiteral("ST3250318AS4XTPG87X"));
    QCOMPARE(text("TestStatusValLbl"), QStringLiteral("Running, no problems found"));
    QCOMPARE(text("PollingTimeValLbl"), QStringLiteral("1 minutes"));
    QCOMPARE(text("TestElapsedValLbl"), QStringLiteral("00:00:01"));
    m_pWindow->OnClose();
    QVERIFY(m_pWindow->findChild<DestinitionWarning *>()->isVisible());

    QTRY_VERIFY_WITH_TIMEOUT(!g_bSelfTestRunning, 5000);
    QTEST(text("TestStatusValLbl"), "status");
    QTEST(sheet("TestStatusValLbl"), "colour");
    QCOMPARE(text("TestRemainingValLbl"), QStringLiteral("0 minutes"));
    QVERIFY(shown("ScanButton") && shown("BackTestButton") && shown("TestStatusValLbl"));
    QVERIFY(!shown("StopTestButton") && !shown("TestProgressBar") && !shown("TestElapsedValLbl"));
    QVERIFY(navigationIs(true));
    const int ticks = commands("ShortTestStatus.txt");
    QTest::qWait(1200); // no tick runs any more
    QCOMPARE(commands("ShortTestStatus.txt"), ticks);

    // The result would be lost, so the back button asks.
    QTest::mousePress(child<MyButton1>("BackTestButton"), Qt::LeftButton);
    QVERIFY(shown("frame_3"));
    m_pWindow->OnSwitchConfirm();
    QVERIFY(shown("frame_2") && !shown("frame_3") && !shown("BackTestButton"));
    QVERIFY(child<QComboBox>("DriveCombobox")->isEnabled());
}

void tst_SelfTestFlow::aborted()
{
    startOn(capabilities("caps-idle-62.txt"), R"(, "selfTest": {"secondsPerMinute": 3600})");
    start("radioButton_3");
    QCOMPARE(commands("-t long /dev/sdb"), 1);
    QCOMPARE(text("TestNameLbl"), QStringLiteral("Extended Self-test"));
    for (int reading = 0; reading < 60; ++reading)
        m_pWindow->CheckShortTestStatus1();
    QCOMPARE(text("TestRemainingValLbl"), QStringLiteral("190 minutes"));
    QCOMPARE(text("PollingTimeValLbl"), QStringLiteral("191 minutes"));

    child<QPushButton>("StopTestButton")->click();
    const auto *question = m_pWindow->findChild<ConfarmetionClass *>();
    QVERIFY(question->isVisible());
    m_pWindow->OnStopCancel();
    QVERIFY(!g_bAbortSent && g_bSelfTestRunning && !question->isVisible());
    child<QPushButton>("StopTestButton")->click();
    m_pWindow->OnStopConfirm();
    QCOMPARE(commands("smartctl64Bit.exe -X /dev/sdb >> "), 1);
    QVERIFY(g_bSelfTestRunning && !shown("StopTestButton"));
    const int readings = commands("ShortTestStatus.txt");
    QTRY_VERIFY_WITH_TIMEOUT(!g_bSelfTestRunning, 3000);
    QCOMPARE(commands("ShortTestStatus.txt"), readings + 1); // the last tick reads the status, too
    QCOMPARE(text("TestStatusValLbl"), QStringLiteral("Test Aborted by User"));
    QCOMPARE(sheet("TestStatusValLbl"), QStringLiteral("QLabel {color : Red;}"));
    QVERIFY(navigationIs(true));
    QVERIFY(shown("ScanButton") && !shown("StopTestButton") && !shown("TestProgressBar"));
    QTest::qWait(1200);
    QCOMPARE(commands("ShortTestStatus.txt"), readings + 1);
}

void tst_SelfTestFlow::refused_data()
{
    QTest::addColumn<QByteArray>("report");
    QTest::addColumn<QByteArray>("text");
    const QByteArray ata = sample("ata-seagate-st3250318as.txt");
    QTest::newRow("without the mark") << ata << QByteArray("nothing of the kind\n");
    QTest::newRow("NVMe, whatever the text says")
        << sample("nvme-samsung-970evoplus-500gb.txt") << capabilities("caps-idle-72.txt");
}

void tst_SelfTestFlow::refused()
{
    QFETCH(QByteArray, report);
    QFETCH(QByteArray, text);
    startOn(text, QByteArray(), report);
    start("radioButton_2");
    const auto *dialog = m_pWindow->findChild<SelfTestNotSupported *>();
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(commands(" -t "), 0);
    QVERIFY(!g_bSelfTestRunning && !g_bSelfTestResultOpen);
    buttonOf(dialog, "CloseButton")->click();
    QVERIFY(!dialog->isVisible());
    QVERIFY(child<QComboBox>("DriveCombobox")->isEnabled());
    QVERIFY(navigationIs(true) && child<MyButton>("ScanDiskButton")->isEnabled());
    QTest::mousePress(child<MyButton1>("BackTestButton"), Qt::LeftButton);
    QVERIFY(shown("frame_2"));
    // A refused test does not show for the next disk.
    start("radioButton_2");
    QVERIFY(!shown("frame_2"));
    buttonOf(dialog, "CloseButton")->click();
    select(1);
    QVERIFY(shown("frame_2"));
}

/// The last report is of an NVMe disk; that must not refuse the test of this disk.
void tst_SelfTestFlow::behindAnNvmeDisk()
{
    addReport("n.txt", sample("nvme-samsung-970evoplus-500gb.txt"));
    addReport("c.txt", capabilities("caps-idle-72.txt"));
    startPc(R"({"pauses": false, "settings": {"FirstTimeLaunch": 1}, "disks": [
        {"number": 0, "model": "N", "sectors": 2048, "report": "n.txt"},
        {"number": 1, "model": "M", "sectors": 2048, "capabilities": "c.txt"}]})");
    makeWindow();
    waitForRead();
    press("ScanDiskButton");
    select(1);
    child<QRadioButton>("radioButton_2")->click();
    child<QPushButton>("ScanButton")->click();
    QVERIFY(g_bSelfTestRunning);
}

void tst_SelfTestFlow::extendedWithoutTime()
{
    QByteArray text = capabilities("caps-idle-72.txt");
    startOn(text.replace("Extended self-test", "Other self-test"), QByteArray());
    start("radioButton_3");
    QCOMPARE(this->text("TestNameLbl"), QStringLiteral("Short Self-test"));
    QCOMPARE(this->text("PollingTimeValLbl"), QStringLiteral("0 minutes"));
    QCOMPARE(commands("-t short"), 1);
    QCOMPARE(commands("-t long"), 0);
}

void tst_SelfTestFlow::everyOtherEnd_data()
{
    QTest::addColumn<QString>("status");
    QTest::newRow("interrupted") << "Test Interrupted by the Host";
    QTest::newRow("electrical") << "Test failed by Electrical Element";
    QTest::newRow("reserved") << "Test ended with Unknown Status";
}

void tst_SelfTestFlow::everyOtherEnd()
{
    startOn(capabilities("caps-idle-72.txt"), R"(, "selfTest": {"secondsPerMinute": 0, "result": ")" +
                                                  QByteArray(QTest::currentDataTag()) + "\"}");
    start("radioButton_2");
    QTEST(text("TestStatusValLbl"), "status");
    QCOMPARE(sheet("TestStatusValLbl"), QStringLiteral("QLabel {color : Red;}"));
    QVERIFY(!g_bSelfTestRunning && navigationIs(true) && shown("ScanButton") && shown("BackTestButton"));
}

/// A drive without answers ends its test, but not at the first missing answer.
void tst_SelfTestFlow::silence()
{
    startOn(capabilities("caps-idle-62.txt"), R"(, "selfTest": {"secondsPerMinute": 3600})");
    start("radioButton_3");
    g_strSelfTestDevice = QStringLiteral("/dev/sdn"); // no such disk
    for (int reading = 0; reading < 9; ++reading)
        m_pWindow->CheckShortTestStatus1();
    QVERIFY(g_bSelfTestRunning);
    m_pWindow->CheckShortTestStatus1();
    QCOMPARE(text("TestStatusValLbl"), QStringLiteral("No Status from the Drive"));
    QVERIFY(!g_bSelfTestRunning && shown("ScanButton") && !shown("StopTestButton"));
}

void tst_SelfTestFlow::notDuringARefresh()
{
    startOn(capabilities("caps-idle-72.txt"), QByteArray());
    g_bListsLoading = true;
    start("radioButton_2");
    g_bListsLoading = false;
    QCOMPARE(commands(" -t "), 0);
    QVERIFY(shown("frame_2") && shown("ScanButton") && !g_bTestPending);
}

/// The ticks disable the navigation on other screens, too, but the user can leave these.
void tst_SelfTestFlow::keepsItsDisk()
{
    startOn(capabilities("caps-idle-62.txt"), R"(, "selfTest": {"secondsPerMinute": 3600})");
    select(1);
    start("radioButton_3");
    QVERIFY(g_bSelfTestRunning);
    m_pWindow->OnRefresh();
    waitForRead();
    QCOMPARE(child<QComboBox>("DriveCombobox")->currentData().toInt(), 128 + 4);
    QVERIFY(g_bSelfTestRunning && shown("StopTestButton"));
}

void tst_SelfTestFlow::leftRunning()
{
    startOn(capabilities("caps-idle-62.txt"), R"(, "selfTest": {"secondsPerMinute": 3600})");
    start("radioButton_3");
    press("DiskPartitionButton");
    m_pWindow->OnSwitchConfirm();
    m_pWindow->CheckShortTestStatus1();
    QVERIFY(!child<MyButton>("DiskStatusButton")->isEnabled());
    press("DiskStatusButton");
    QVERIFY(child<MyButton>("DiskStatusButton")->isDown());
    waitForRead();
    press("ScanDiskButton");
    QVERIFY(shown("frame_2"));
    child<QPushButton>("ScanButton")->click();
    QTest::qWait(1200);
    QVERIFY(!g_bSelfTestRunning && !shown("StopTestButton"));
    QTRY_VERIFY(child<QWidget>("m_pResultBox")->isVisible());
    QVERIFY(navigationIs(true));
}

/// No test affects the next one, however it ends, and the window can be deleted during a test.
void tst_SelfTestFlow::overAndOver()
{
    startOn(capabilities("caps-idle-62.txt"), R"(, "selfTest": {"secondsPerMinute": 3600})");
    for (int round = 0; round < rounds(); ++round) {
        start(round % 3 == 0 ? "radioButton_3" : "radioButton_2");
        QCOMPARE(commands(" -t "), round + 1);
        QVERIFY(g_bSelfTestRunning && navigationIs(false) && shown("StopTestButton"));
        QTest::qWait(round * 7 % 60);
        m_pWindow->close();
        QVERIFY(m_pWindow->isVisible());
        m_pWindow->findChild<DestinitionWarning *>()->hide();
        m_pWindow->OnRefresh();
        if (round % 2 == 0) {
            child<QPushButton>("StopTestButton")->click();
            m_pWindow->OnStopConfirm();
            m_pWindow->CheckShortTestStatus1();
            QCOMPARE(text("TestStatusValLbl"), QStringLiteral("Test Aborted by User"));
            QVERIFY(!g_bSelfTestRunning && navigationIs(true) && !shown("StopTestButton"));
        }
        waitForRead();
        press(round % 4 < 2 ? "DiskPartitionButton" : "ScanDiskButton");
        m_pWindow->OnSwitchConfirm();
        m_pWindow->CheckShortTestStatus1();
        waitForRead();
        press("ScanDiskButton");
        QVERIFY(shown("frame_2") && !shown("frame_3") && child<QComboBox>("DriveCombobox")->isEnabled());
    }
    start("radioButton_2");
}

QTEST_MAIN(tst_SelfTestFlow)
#include "tst_SelfTestFlow.moc"
