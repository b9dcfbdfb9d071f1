// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/BlockMap.h"
#include "scan/LastScan.h"
#include "scan/ScanGlobals.h"
#include "tests/scan/ScanRecorder.h"
#include "tests/ui/WindowFixture.h"
#include "ui/screens/ScanDisk.h"
#include "ui/widgets/QGridView.h"

#include <QToolTip>

/// Surface scans through the real window, on a PC with a quick disk, a slow one and one that is not listed.
class tst_ScanFlow : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        openWindow(pcOf(R"(
            {"number": 0, "model": "M", "serial": "S0", "sectors": 163840, "badSectors": [100, 819, [16384, 2], 163839]},
            {"number": 1, "model": "M", "sectors": 16384000, "bytesPerSecond": 200000000, "badSectors": [40000, 40020]},
            {"number": 2, "model": "M", "sectors": 2048, "opens": false})"));
        press("ScanDiskButton");
    }

    void cleanup()
    {
        tearDown();
        g_BadSectors.clear();
        g_bScanDiskGone = false;
    }

    void finished()
    {
        click("ScanButton");
        QVERIFY(scanning());
        const InFront window(m_pWindow.get());
        waitForResult();
        QVERIFY(map()->accessibleDescription().startsWith(
            QLatin1String("400 cells, 4 with unreadable sectors, Total Sectors: 163840")));
        QCOMPARE(outcome(), QStringLiteral("Scan Completed|Scan Completed.|"));
        QVERIFY(logLines("notices.log").isEmpty()); // the user has seen it
        QVERIFY(idle() && areShown(true, {"ScanButton", "BackTestButton", "frame"}));
        QCOMPARE(lastscan::load().value(QStringLiteral("S0")).badSectors, qint64(5)); // for the companion
        const auto verify = [this] {
            // The first sector of the second chunk is found twice, and so is the sector behind the end.
            QCOMPARE(texts({"BadBlkValLbl", "ProcessedVal", "TotalBlkValLbl", "BlockSizeValLbl",
                            "TimeElapsedLbl", "TimeReLbl", "ElapsedValLbl", "RemTimeValLbl"}),
                     QStringLiteral("7|163840|163840|0 MB||||"));
        };
        verify();
        QCOMPARE(map()->position(), QuickSectors);
        QCOMPARE(map()->badSectors(), (QVariantList{100, 819, 16384, 16384, 16385, 163839, 163840}));
        QVERIFY(toolTipAt(QPoint(499, 319)).endsWith("163840\nCurrent Block Size : 410 MB"));
        const QImage image = map()->grab().toImage();
        QCOMPARE(image.size(), QSize(501, 321));
        // Two cells are bad, and the second one is crossed out.
        const std::pair<QPoint, quint32> dots[] = {
            {{10, 10}, blockmap::ProcessedColour},    {{24, 4}, blockmap::BadColour},
            {{470, 310}, blockmap::ProcessedColour},  {{484, 304}, blockmap::BadColour},
            {{490, 310}, blockmap::BackgroundColour}, {{40, 10}, blockmap::GridColour},
            {{500, 320}, blockmap::GridColour}};
        for (const auto &[place, colour] : dots)
            QCOMPARE(image.pixel(place), colour);
        changeLanguage(page());
        verify();

        // A disk that was pulled out has millions.
        g_BadSectors.append(QuickSectors, 9 * QuickSectors);
        QCOMPARE(map()->badSectors().size(), QGridView::MostBadSectors);

        // The back button asks, and then clears the results.
        closeResult();
        QTest::mousePress(child<MyButton1>("BackTestButton"), Qt::LeftButton);
        QVERIFY(shown("frame") && !g_BadSectors.isEmpty());
        answer<ScanSwitchClass>("YesButton");
        QVERIFY(shown("frame_2") && !shown("frame") && idle() && g_BadSectors.isEmpty());
    }

    /// The list has the button's ending, or that of the kind of file that was chosen.
    void saveList()
    {
        QVERIFY(!enabled("m_pSaveListButton")); // nothing was scanned
        startOn(0);
        QVERIFY(!enabled("m_pSaveListButton"));
        waitForResult();
        QVERIFY(shown("m_pSaveListButton") && enabled("m_pSaveListButton"));
        closeResult();
        const QString today = QDate::currentDate().toString(QStringLiteral("yyyy-MM-dd"));
        QCOMPARE(save("/bad", 1).section('|', 1, 1), "M - S0 - 80.00 MB " + today);
        QVERIFY(contentOf(m_strState + "/bad.map").contains("\n0x0000C800  0x00000200  -\n"));
        save("/list.txt", 1);
        QVERIFY(contentOf(m_strState + "/list.txt").contains("Bad sectors: 5"));
        QCOMPARE(outcome(), QString());
        save("/no/folder", 0);
        QCOMPARE(outcome(), QStringLiteral("Save List|The list could not be saved.|"));
        closeResult();
        select(1);
        QVERIFY(!enabled("m_pSaveListButton"));
    }

    void stopped()
    {
        startOn(1);
        QCOMPARE(texts({"TimeElapsedLbl", "TimeReLbl"}), QStringLiteral("|")); // no values yet
        waitForSector(32768);
        click("StopButton");
        QCOMPARE(labelOf(dialog<ConfarmetionClass>(), "CenterTitleLabel")->text(),
                 QStringLiteral("Stop Scan"));
        answer<ConfarmetionClass>("NoButton");
        waitForSector(text("ProcessedVal").toLongLong() + 32768);
        QVERIFY(scanning());
        QTRY_VERIFY_WITH_TIMEOUT(text("ElapsedValLbl").endsWith(QLatin1String(" seconds")), 5000);
        QVERIFY(text("RemTimeValLbl").endsWith(QLatin1String(" minutes")));
        QCOMPARE(texts({"TimeElapsedLbl", "TimeReLbl"}), QStringLiteral("Time Elapsed|Time Remaining"));
        click("StopButton");
        answer<ConfarmetionClass>("YesButton");
        waitForResult();
        QCOMPARE(outcome(), QStringLiteral("Disk Scan|Disk scan aborted.|Disk scan aborted by user."));
        QVERIFY(idle() && shown("ScanButton") && map()->position() > 0 && shown("frame"));
        closeResult();
        // A new scan starts from here, without the choice of a test.
        click("ScanButton");
        QVERIFY(scanning());
        QCOMPARE(map()->position(), qlonglong{0});
    }

    /// To another screen, and to the choice of a test.
    void leftInMidRun()
    {
        for (const char *button : {"DiskPartitionButton", "ScanDiskButton"}) {
            const bool onPage = qstrcmp(button, "ScanDiskButton") == 0;
            press("ScanDiskButton");
            startOn(1);
            press(button);
            answer<ScanSwitchClass>("NoButton");
            QVERIFY(scanning());
            click("StopButton");
            press(button);
            answer<ScanSwitchClass>("YesButton");
            QVERIFY(!dialog<ConfarmetionClass>() && !shown("StopButton"));
            select(0);
            waitForResult();
            QCOMPARE(g_App.m_pCurrentDisk, findPhysicalDisk(128));
            QCOMPARE(text("TotalBlkValLbl"), QString::number(onPage ? QuickSectors : SlowSectors));
            QVERIFY(outcome().startsWith(QLatin1String("Disk Scan|")));
            QVERIFY(idle() && !g_bScanResultOpen && g_BadSectors.isEmpty());
            QVERIFY(isDown(button));
            QCOMPARE(page()->isVisible(), onPage);
            QVERIFY(!shown("BackTestButton") && !shown("frame"));
            closeResult();
        }
    }

    void closingAndRefreshing()
    {
        startOn(1);
        const auto sleepState = [this] { return logLines("execution-state.log").last(); };
        const int before = commands("diskdrive get");
        m_pWindow->OnRefresh();
        QVERIFY(!m_pWindow->close());
        QCOMPARE(sleepState(), QByteArray("0x80000041"));
        changeLanguage(dialog<DestinitionWarning>());
        QCOMPARE(refusal(), QStringLiteral("Disk scan running."));
        m_pWindow->Onyes();
        QCOMPARE(refusal(), QStringLiteral("Scaning Running."));
        // The window does not close until the drive has answered the last read of the stopped scan.
        m_pWindow->OnStopConfirm();
        QVERIFY(!shown("StopButton"));
        answer<DestinitionWarning>("CloseButton");
        m_pWindow->OnClose();
        QVERIFY(dialog<DestinitionWarning>());
        click("ScanButton"); // hidden; it has no effect
        waitForResult();
        QCOMPARE(commands("diskdrive get"), before);
        QVERIFY(idle());
        QCOMPARE(sleepState(), QByteArray("0x80000000"));
    }

    /// What may not start: tst_SelfTestFlow, refreshes().
    void withoutADisk()
    {
        tearDown();
        startPc(pcOf(""));
        makeWindow();
        press("ScanDiskButton");
        click("ScanButton");
        QVERIFY(!g_Jobs.runs(JobState::Job::Scan) && !g_bJobRunning && !g_bScanFailed && shown("frame_2"));
    }

    void anotherDisk()
    {
        startOn(0);
        click("StopButton");
        QVERIFY(dialog<ConfarmetionClass>());
        waitForResult();
        QVERIFY(!dialog<ConfarmetionClass>()); // the question goes with the scan
        closeResult();
        select(0);
        QCOMPARE(text("BadBlkValLbl"), QStringLiteral("7"));
        QCOMPARE(map()->position(), QuickSectors);
        // Other disks can be chosen, without the results. The next scan reads the chosen one.
        select(2);
        QCOMPARE(text("TotalBlkValLbl"), QStringLiteral("0"));
        select(1);
        QCOMPARE(
            texts({"DiskSizeValLbl", "TotalBlkValLbl", "BadBlkValLbl", "ProcessedVal", "BlockSizeValLbl"}),
            QStringLiteral("7.81 GB|16384000|0|0|0"));
        QCOMPARE(map()->position(), qlonglong{0});
        QVERIFY(g_BadSectors.isEmpty() && toolTipAt(QPoint(0, 0)).endsWith(QLatin1String(" 0 MB")));
        click("ScanButton");
        QCOMPARE(map()->totalSectors(), SlowSectors);
        m_pWindow->OnStopConfirm();
        waitForResult();
        select(0);
        QCOMPARE(outcome(), QString());
        // Nothing is lost by leaving, so nobody is asked.
        press("DiskPartitionButton");
        QVERIFY(!page()->isVisible() && !dialog<ScanSwitchClass>());
    }

    /// The result shows until it was closed; then the disk leaves the lists.
    void pulledOut()
    {
        startOn(1);
        waitForSector(163840);
        QCOMPARE(m_pWindow->windowTitle(), QStringLiteral("1 % - Velmora Halvane"));
        QApplication::setActiveWindow(nullptr);
        pullOut(1);
        waitForResult();
        QCOMPARE(m_pWindow->windowTitle(), QStringLiteral("Velmora Halvane"));
        QCOMPARE(logLines("taskbar.log").first() + logLines("taskbar.log").last(), QByteArray("0%none"));
        QCOMPARE(logLines("notices.log"),
                 QList<QByteArray>{"Scan Failed.\tThe disk is no longer connected."});
        QCOMPARE(outcome(), QStringLiteral("Scan Failed|Scan Failed.|The disk is no longer connected."));
        QVERIFY(idle() && shown("frame"));
        // Only the bad sectors before the disk was pulled out are listed.
        QCOMPARE(text("BadBlkValLbl"), QStringLiteral("2"));
        QCOMPARE(sectorsOf(g_BadSectors), (QVector<qint64>{40000, 40020}));
        QVERIFY(map()->position() > 0 && map()->position() < SlowSectors);
        QVERIFY(!g_bListsLoading);
        // The box offers the list: the results go with the disk.
        save("/gone.map", 1, buttonOf(child<InfoDialogClass>("m_pResultBox"), "SaveButton"));
        QVERIFY(contentOf(m_strState + "/gone.map").contains("  ?\n"));
        closeResult();
        QVERIFY(g_bListsLoading);
        waitForRest();
        QCOMPARE(child<QComboBox>("DriveCombobox")->findData(129), -1);
        QCOMPARE(texts({"BadBlkValLbl", "TotalBlkValLbl"}), QStringLiteral("0|163840"));
        QVERIFY(g_BadSectors.isEmpty() && !g_bScanResultOpen);
        // The next one does not even open.
        pullOut(0);
        startOn(0);
        waitForResult();
        QCOMPARE(outcome(), QStringLiteral("Scan Failed|Scan Failed.|"));
        QVERIFY(idle());
    }

    /// No scan affects the next one, however it ends, and the window can be deleted during a scan.
    void overAndOver()
    {
        select(1);
        for (int round = 0; round < rounds(); ++round) {
            click("ScanButton");
            QVERIFY(scanning());
            QTest::qWait(round * 7 % 60);
            QVERIFY(!toolTipAt(QPoint(30, 30)).isEmpty());
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
            waitForResult();
            QVERIFY(!g_bJobRunning);
            QVERIFY(outcome().startsWith(QLatin1String("Disk Scan|")));
            closeResult();
            waitForRest();
            m_pWindow->OnSwitchConfirm();
            press("ScanDiskButton");
            select(1);
            QVERIFY(idle() && shown("frame_2"));
        }
        click("ScanButton");
        QTest::qWait(20);
    }

private:
    static constexpr qint64 QuickSectors = 163840; // ten chunks
    static constexpr qint64 SlowSectors = 16384000;

    void startOn(int index) const
    {
        select(index);
        click("ScanButton");
    }

    static void waitForResult() { QTRY_VERIFY_WITH_TIMEOUT(dialog<InfoDialogClass>(), 20000); }

    void waitForSector(qint64 sector) const
    {
        QTRY_VERIFY_WITH_TIMEOUT(text("ProcessedVal").toLongLong() >= sector, 10000);
    }

    void closeResult() const
    {
        answer<InfoDialogClass>("OkButton");
        QVERIFY(!dialog<InfoDialogClass>());
    }

    /// Saves the list in the state folder as that kind of file, by the page's button or this one; gives what
    /// was asked.
    QString save(const char *path, int kind, QPushButton *button = nullptr) const
    {
        auto *pressed = button ? button : child<QPushButton>("m_pSaveListButton");
        return asked([=] { QTest::keyClick(pressed, Qt::Key_Space); }, m_strState + path, kind);
    }

    ScanDisk *page() const { return child<ScanDisk>(); }
    QGridView *map() const { return child<QGridView>(); }

    bool scanning() const
    {
        return shellIs(false) && g_bScanResultOpen && isDown("ScanDiskButton") && shown("StopButton") &&
               !shown("ScanButton") && !shown("BackTestButton") && !shown("frame_2") && shown("frame") &&
               shown("frame_4") && shown("ProcessedVal");
    }
    bool idle() const { return shellIs(true) && enabled("ScanButton") && !shown("StopButton"); }

    QString toolTipAt(const QPoint &place) const
    {
        QMouseEvent move(QEvent::MouseMove, place, map()->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(map(), &move);
        return QToolTip::text();
    }
};

QTEST_MAIN(tst_ScanFlow)
#include "tst_ScanFlow.moc"
