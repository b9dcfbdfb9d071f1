// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/WindowFixture.h"

/// No scan, self-test or clone affects the next one, however it ends, and the window can be deleted
/// meanwhile.
class tst_OverAndOver : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void cleanup() { tearDown(); }

    void scans()
    {
        m_sections = sectionsOf(QStringLiteral("Scan.txt"));
        openPc(QStringLiteral("three"));
        press("ScanDiskButton");
        select(1);
        for (int round = 0; round < rounds(); ++round) {
            click("ScanButton");
            QVERIFY(shellIs(false) && shown("StopButton") && shown("frame") && !shown("frame_2"));
            QTest::qWait(round * 7 % 60);
            QVERIFY(!tipAt({30, 30}).isEmpty());
            m_pWindow->OnRefresh();
            m_pWindow->close();
            if (round % 2 == 0) {
                m_pWindow->OnStopConfirm();
                if (round % 4 == 0)
                    m_pWindow->OnRefresh();
            } else {
                press(round % 4 == 1 ? "ScanDiskButton" : "DiskPartitionButton");
                m_pWindow->OnSwitchConfirm();
            }
            QTRY_VERIFY_WITH_TIMEOUT(dialog<InfoDialogClass>(), 20000);
            QVERIFY(!g_bJobRunning);
            QVERIFY(outcome().startsWith(QLatin1String("Disk Scan|")));
            answer<InfoDialogClass>("OkButton");
            waitForRest();
            m_pWindow->OnSwitchConfirm();
            press("ScanDiskButton");
            select(1);
            QVERIFY(shellIs(true) && enabled("ScanButton") && !shown("StopButton") && shown("frame_2"));
        }
        click("ScanButton");
        QTest::qWait(20);
    }

    void selfTests()
    {
        m_sections = sectionsOf(QStringLiteral("SelfTest.txt"));
        openPc(QStringLiteral("long"));
        const auto start = [this](const char *radio) {
            press("ScanDiskButton");
            click(radio);
            click("ScanButton");
        };
        for (int round = 0; round < rounds(); ++round) {
            start(round % 3 == 0 ? "radioButton_3" : "radioButton_2");
            QCOMPARE(commands(" -t "), round + 1);
            QVERIFY(g_bSelfTestRunning && !enabled("DiskStatusButton") && shown("StopTestButton"));
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
                QVERIFY(!g_bSelfTestRunning && enabled("DiskStatusButton") && !shown("StopTestButton"));
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

    void clones()
    {
        m_sections = sectionsOf(QStringLiteral("Clone.txt"));
        openPc(QStringLiteral("two"));
        const auto start = [this] {
            choose(1, QStringLiteral("DestinationComboBox"));
            click("CloneButton");
            answer<CloneWarning>("StartButton");
        };
        press("CloneDiskButton");
        for (int round = 0; round < rounds(); ++round) {
            start();
            QVERIFY(shellIs(false) && shown("StopButton") && shown("m_pRoundProgressBar"));
            QTest::qWait(round * 7 % 60);
            m_pWindow->OnStop();
            m_pWindow->OnStopConfirm();
            m_pWindow->OnRefresh();
            QTRY_VERIFY_WITH_TIMEOUT(outcome().contains(QLatin1String("|Cloning aborted.|")), 20000);
            answer<InfoDialogClass>("OkButton");
            QVERIFY(!g_bJobRunning && shellIs(true) && shown("CloneButton") && !shown("m_pRoundProgressBar"));
            m_pWindow->OnRefresh();
            waitForRest();
        }
        start();
    }
};

QTEST_MAIN(tst_OverAndOver)
#include "tst_OverAndOver.moc"
