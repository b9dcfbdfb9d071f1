// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SelfTestGlobals.h"
#include "smart/SmartGlobals.h"
#include "tests/ui/WindowFixture.h"
#include "ui/widgets/Style.h"

#include <QProgressBar>
#include <QRadioButton>

/// Self-tests through the real window, on a PC whose drives run them by themselves.
class tst_SelfTestFlow : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void cleanup() { tearDown(); }

    void runsToItsEnd()
    {
        openOn(capabilities("caps-idle-72.txt"), R"(, "selfTest": {"secondsPerMinute": 0.5})");
        start("radioButton_2");
        QVERIFY(g_bSelfTestRunning);
        QCOMPARE(commands("smartctl64Bit.exe -t short /dev/sdb >> "), 1);
        QVERIFY(areShown(true, {"StopTestButton", "TestProgressBar", "TestElapsedValLbl"}));
        QVERIFY(areShown(false, {"ScanButton", "frame_2", "BackTestButton"}));
        QVERIFY(navigationIs(false) && !enabled("ScanDiskButton") && !enabled("DriveCombobox"));
        QCOMPARE(child<QProgressBar>("TestProgressBar")->value(), 10);
        QCOMPARE(texts({"TestNameLbl", "TestModelValLbl", "TestSerialValLbl", "TestStatusValLbl",
                        "PollingTimeValLbl", "TestElapsedValLbl"}),
                 QStringLiteral(
                     "Short Self-test|ST3250318AS|4XTPG87X|Running, no problems found|1 minutes|00:00:01"));
        QVERIFY(ticks());
        QCOMPARE(m_pWindow->windowTitle(), QStringLiteral("10 % - Velmora Halvane"));
        m_pWindow->OnClose();
        QVERIFY(dialog<DestinitionWarning>());
        auto front = std::make_unique<InFront>(nullptr);
        QTRY_VERIFY_WITH_TIMEOUT(!g_bSelfTestRunning, 5000);
        QCOMPARE(texts({"TestStatusValLbl", "TestRemainingValLbl"}),
                 QStringLiteral("Successfully Completed|0 minutes"));
        QCOMPARE(sheet("TestStatusValLbl"), style::PassedLabel);
        QCOMPARE(logLines("notices.log"),
                 QList<QByteArray>{"The self-test has ended.\tSuccessfully Completed"});
        QCOMPARE(logLines("taskbar.log").last(), QByteArray("none"));
        front = std::make_unique<InFront>(m_pWindow.get());
        QCOMPARE(logLines("notices.log").last(), QByteArray("none")); // it is seen now
        QVERIFY(isOver());
        // The result would be lost, so the back button asks.
        QTest::mousePress(child<MyButton1>("BackTestButton"), Qt::LeftButton);
        QVERIFY(shown("frame_3"));
        answer<ScanSwitchClass>("YesButton");
        QVERIFY(shown("frame_2") && areShown(false, {"frame_3", "BackTestButton"}) &&
                enabled("DriveCombobox"));
    }

    void failsAtOnce()
    {
        openOn(capabilities("caps-idle-72.txt"),
               R"(, "selfTest": {"secondsPerMinute": 0, "result": "read failure"})");
        start("radioButton_2");
        QCOMPARE(text("TestStatusValLbl"), QStringLiteral("Test failed by Read Element"));
        QVERIFY(isOver());
    }

    void aborted()
    {
        openOn(capabilities("caps-idle-62.txt"), LongTests);
        start("radioButton_3");
        QCOMPARE(commands("-t long /dev/sdb"), 1);
        for (int reading = 0; reading < 60; ++reading)
            m_pWindow->CheckShortTestStatus1();
        QCOMPARE(texts({"TestNameLbl", "TestRemainingValLbl", "PollingTimeValLbl"}),
                 QStringLiteral("Extended Self-test|190 minutes|191 minutes"));

        click("StopTestButton");
        answer<ConfarmetionClass>("NoButton");
        QVERIFY(!g_bAbortSent && g_bSelfTestRunning && !dialog<ConfarmetionClass>());
        click("StopTestButton");
        answer<ConfarmetionClass>("YesButton");
        QCOMPARE(commands("smartctl64Bit.exe -X /dev/sdb >> "), 1);
        QVERIFY(g_bSelfTestRunning && !shown("StopTestButton"));
        const int readings = commands("ShortTestStatus.txt");
        QTRY_VERIFY_WITH_TIMEOUT(!g_bSelfTestRunning, 3000);
        QCOMPARE(commands("ShortTestStatus.txt"), readings + 1); // the last tick reads the status, too
        QCOMPARE(text("TestStatusValLbl"), QStringLiteral("Test Aborted by User"));
        QCOMPARE(sheet("TestStatusValLbl"), style::FailedLabel);
        QVERIFY(isOver());
    }

    void refused()
    {
        const QPair<QByteArray, QByteArray> drives[] = {
            {sample("ata-seagate-st3250318as.txt"), "nothing of the kind\n"},
            // NVMe, whatever the text says.
            {sample("nvme-samsung-970evoplus-500gb.txt"), capabilities("caps-idle-72.txt")}};
        for (const auto &[report, text] : drives) {
            openOn(text, QByteArray(), report);
            start("radioButton_2");
            QVERIFY(commands(" -t ") == 0 && !g_bSelfTestRunning && !g_bSelfTestResultOpen);
            answer<SelfTestNotSupported>("CloseButton");
            QVERIFY(!dialog<SelfTestNotSupported>());
            QVERIFY(navigationIs(true) && enabled("ScanDiskButton") && enabled("DriveCombobox"));
            QTest::mousePress(child<MyButton1>("BackTestButton"), Qt::LeftButton);
            QVERIFY(shown("frame_2"));
            // A refused test does not show for the next disk.
            start("radioButton_2");
            QVERIFY(!shown("frame_2"));
            answer<SelfTestNotSupported>("CloseButton");
            select(1);
            QVERIFY(shown("frame_2"));
            tearDown();
        }
    }

    /// The last report is of an NVMe disk; that must not refuse the test of this disk.
    void behindAnNvmeDisk()
    {
        addReport("n.txt", sample("nvme-samsung-970evoplus-500gb.txt"));
        addReport("c.txt", capabilities("caps-idle-72.txt"));
        openWindow(pcOf(R"({"number": 0, "model": "N", "sectors": 2048, "report": "n.txt"},
                           {"number": 1, "model": "M", "sectors": 2048, "capabilities": "c.txt"})"));
        press("ScanDiskButton");
        select(1);
        start("radioButton_2");
        QVERIFY(g_bSelfTestRunning);
    }

    void extendedWithoutTime()
    {
        openOn(capabilities("caps-idle-72.txt").replace("Extended self-test", "Other self-test"));
        start("radioButton_3");
        QCOMPARE(texts({"TestNameLbl", "PollingTimeValLbl"}), QStringLiteral("Short Self-test|0 minutes"));
        QVERIFY(commands("-t short") == 1 && commands("-t long") == 0);
    }

    /// A drive without answers ends its test, but not at the first missing answer.
    void silence()
    {
        openOn(capabilities("caps-idle-62.txt"), LongTests);
        start("radioButton_3");
        g_strSelfTestDevice = QStringLiteral("/dev/sdn"); // no such disk
        for (int reading = 0; reading < 9; ++reading)
            m_pWindow->CheckShortTestStatus1();
        QVERIFY(g_bSelfTestRunning);
        m_pWindow->CheckShortTestStatus1();
        QCOMPARE(text("TestStatusValLbl"), QStringLiteral("No Status from the Drive"));
        QVERIFY(isOver());
    }

    /// It does not start during one, and keeps its disk behind one.
    void refreshes()
    {
        openOn(capabilities("caps-idle-62.txt"), LongTests);
        g_bListsLoading = true;
        start("radioButton_2");
        g_bListsLoading = false;
        QCOMPARE(commands(" -t "), 0);
        QVERIFY(areShown(true, {"frame_2", "ScanButton"}) && !g_bTestPending);
        select(1);
        start("radioButton_3");
        QVERIFY(g_bSelfTestRunning);
        m_pWindow->OnRefresh();
        waitForRest();
        QCOMPARE(child<QComboBox>("DriveCombobox")->currentData().toInt(), 128 + 4);
        QVERIFY(g_bSelfTestRunning && shown("StopTestButton"));
    }

    /// The ticks disable the navigation on other screens, too, but the user can leave these.
    void leftRunning()
    {
        openOn(capabilities("caps-idle-62.txt"), LongTests);
        start("radioButton_3");
        press("DiskPartitionButton");
        answer<ScanSwitchClass>("YesButton");
        m_pWindow->CheckShortTestStatus1();
        QVERIFY(!enabled("DiskStatusButton"));
        press("DiskStatusButton");
        QVERIFY(isDown("DiskStatusButton"));
        waitForRest();
        press("ScanDiskButton");
        QVERIFY(shown("frame_2"));
        click("ScanButton");
        QVERIFY(!ticks() && !g_bSelfTestRunning);
        QTRY_VERIFY(dialog<InfoDialogClass>());
        QVERIFY(navigationIs(true) && !shown("StopTestButton"));
    }

    /// No test affects the next one, however it ends, and the window can be deleted during a test.
    void overAndOver()
    {
        openOn(capabilities("caps-idle-62.txt"), LongTests);
        for (int round = 0; round < rounds(); ++round) {
            start(round % 3 == 0 ? "radioButton_3" : "radioButton_2");
            QCOMPARE(commands(" -t "), round + 1);
            QVERIFY(g_bSelfTestRunning && navigationIs(false) && shown("StopTestButton"));
            QTest::qWait(round * 7 % 60);
            m_pWindow->close();
            QVERIFY(m_pWindow->isVisible());
            answer<DestinitionWarning>("CloseButton");
            m_pWindow->OnRefresh();
            if (round % 2 == 0) {
                click("StopTestButton");
                m_pWindow->OnStopConfirm();
                m_pWindow->CheckShortTestStatus1();
                QCOMPARE(text("TestStatusValLbl"), QStringLiteral("Test Aborted by User"));
                QVERIFY(!g_bSelfTestRunning && navigationIs(true) && !shown("StopTestButton"));
            }
            waitForRest();
            press(round % 4 < 2 ? "DiskPartitionButton" : "ScanDiskButton");
            m_pWindow->OnSwitchConfirm();
            m_pWindow->CheckShortTestStatus1();
            waitForRest();
            press("ScanDiskButton");
            QVERIFY(shown("frame_2") && !shown("frame_3") && enabled("DriveCombobox"));
        }
        start("radioButton_2");
    }

private:
    const QByteArray LongTests = R"(, "selfTest": {"secondsPerMinute": 3600})";

    /// A PC with two disks whose tool prints `report` and the capabilities `text`. `more` are further keys of
    /// it.
    void openOn(const QByteArray &text, const QByteArray &more = QByteArray(),
                const QByteArray &report = sample("ata-seagate-st3250318as.txt"))
    {
        addReport("a.txt", report);
        addReport("c.txt", text);
        const QByteArray disk =
            R"("model": "M", "sectors": 2048, "report": "a.txt", "capabilities": "c.txt"})";
        openWindow(pcOf(R"({"number": 1, )" + disk + R"(, {"number": 4, )" + disk, QByteArray(), more));
    }

    void start(const char *radio) const
    {
        press("ScanDiskButton");
        click(radio);
        click("ScanButton");
    }

    /// Whether the four buttons that a running test disables are enabled.
    bool navigationIs(bool expected) const
    {
        const auto buttons = {"DiskStatusButton", "SmartStatusButton", "DiskPartitionButton",
                              "CloneDiskButton"};
        return isDown("ScanDiskButton") &&
               std::all_of(buttons.begin(), buttons.end(),
                           [&](const char *button) { return enabled(button) == expected; });
    }

    /// Whether the window tells the end of a test, and is free again.
    bool isOver() const
    {
        return !g_bSelfTestRunning && navigationIs(true) && !ticks() &&
               areShown(true, {"ScanButton", "BackTestButton", "TestStatusValLbl"}) &&
               areShown(false, {"StopTestButton", "TestProgressBar"});
    }

    /// Whether the window's timer reads the status each second.
    bool ticks() const
    {
        const QList<QTimer *> timers = m_pWindow->findChildren<QTimer *>();
        return std::any_of(timers.begin(), timers.end(), [](const QTimer *timer) {
            return timer->isActive() && timer->interval() == 1000;
        });
    }

    QString sheet(const char *label) const { return child<QLabel>(label)->styleSheet(); }
};

QTEST_MAIN(tst_SelfTestFlow)
#include "tst_SelfTestFlow.moc"
