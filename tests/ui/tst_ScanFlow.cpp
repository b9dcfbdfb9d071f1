// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/BlockMap.h"
#include "scan/ScanGlobals.h"
#include "tests/scan/ScanRecorder.h"
#include "tests/ui/Named.h"
#include "tests/ui/WindowFixture.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/screens/ScanDisk.h"
#include "ui/widgets/QGridView.h"

#include <QAction>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolTip>

/// Surface scans through the real window, on a PC with a quick disk, a slow one and one that is not listed.
class tst_ScanFlow : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpProgram(); }
    void init();
    void cleanup();

    void finished();
    void paintsItsCells();
    void stopped();
    void leftInMidRun_data();
    void leftInMidRun();
    void closingAndRefreshing();
    void startsNothingDuringARefresh();
    void startsNothingWithoutADisk();
    void questionGoesWithTheScan();
    void selfTestsGoTheirWay();
    void anotherDisk();
    void failed();
    void pulledOut();
    void keepsItsDiskBehindARefresh();
    void languageChange();
    void overAndOver();

private:
    static constexpr qint64 QuickSectors = 163840; // ten chunks
    static constexpr qint64 SlowSectors = 16384000;

    void startOn(int index);
    void waitForResult() const { QTRY_VERIFY_WITH_TIMEOUT(result()->isVisible(), 20000); }
    void waitForSector(qint64 sector) const
    {
        QTRY_VERIFY_WITH_TIMEOUT(text("ProcessedVal").toLongLong() >= sector, 10000);
    }
    void closeResult() const
    {
        buttonOf(result(), "OkButton")->click();
        QVERIFY(!result()->isVisible());
    }
    ScanDisk *page() const { return m_pWindow->findChild<ScanDisk *>(); }
    QGridView *map() const { return page()->findChild<QGridView *>(); }
    InfoDialogClass *result() const { return child<InfoDialogClass>("m_pResultBox"); }
    QString resultTexts() const
    {
        return labelOf(result(), "HeaderLabel")->text() + QLatin1Char('|') +
               labelOf(result(), "label")->text() + QLatin1Char('|') + labelOf(result(), "label_2")->text();
    }
    void pullOut(int disk) const;
    bool shown(const char *name) const { return child<QWidget>(name)->isVisible(); }
    bool idle() const;
    bool scanning() const;
    QString toolTipAt(const QPoint &place) const
    {
        QMouseEvent move(QEvent::MouseMove, place, map()->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(map(), &move);
        return QToolTip::text();
    }
};

void tst_ScanFlow::init()
{
    addReport("a.txt", sample("ata-seagate-st3250318as.txt"));
    const QByteArray disk =
        R"("model": "M", "interface": "IDE", "report": "a.txt", "capabilities": "c.txt", )";
    addReport("c.txt", DescribedFolder::contents(HALVANE_TEST_DATA "/selftest/caps-idle-72.txt"));
    startPc(R"({"pauses": false, "settings": {"FirstTimeLaunch": 1}, "disks": [
        {"number": 0, )" +
            disk + R"("sectors": 163840, "badSectors": [100, 819, [16384, 2], 163839]},
        {"number": 1, )" +
            disk + R"("sectors": 16384000, "bytesPerSecond": 200000000, "badSectors": [40000, 40020]},
        {"number": 2, )" +
            disk + R"("sectors": 2048, "opens": false}]})");
    makeWindow();
    waitForRead();
}

void tst_ScanFlow::cleanup()
{
    tearDown();
    g_BadSectors.clear();
    g_bScanDiskGone = false;
}

void tst_ScanFlow::startOn(int index)
{
    press("ScanDiskButton");
    select(index);
    child<QPushButton>("ScanButton")->click();
}

void tst_ScanFlow::pullOut(int disk) const
{
    QVERIFY(Platform::current().deviceNotifier()); // watches what is pulled out
    QFile unplugged(m_strState + QStringLiteral("/volumes-changed/remove-disk%1").arg(disk));
    QVERIFY(unplugged.open(QIODevice::WriteOnly));
    unplugged.close();
    QTRY_VERIFY_WITH_TIMEOUT(!unplugged.exists(), 5000);
}

bool tst_ScanFlow::scanning() const
{
    bool locked = !child<QComboBox>("DriveCombobox")->isEnabled() && g_bScanResultOpen;
    for (const MyButton *entry : m_pWindow->findChildren<MyButton *>())
        locked = locked && !entry->isEnabled();
    return locked && child<MyButton>("ScanDiskButton")->isDown() && shown("StopButton") &&
           !shown("ScanButton") && !shown("BackTestButton") && !shown("frame_2") &&
           !child<QAction>("m_pSettingsAction")->isEnabled() && shown("frame") && shown("frame_4") &&
           shown("ProcessedVal");
}

bool tst_ScanFlow::idle() const
{
    bool free =
        child<QComboBox>("DriveCombobox")->isEnabled() && child<QPushButton>("ScanButton")->isEnabled();
    for (const MyButton *entry : m_pWindow->findChildren<MyButton *>())
        free = free && entry->isEnabled();
    return free && !shown("StopButton") && child<QAction>("m_pSettingsAction")->isEnabled();
}

void tst_ScanFlow::finished()
{
    press("ScanDiskButton");
    QVERIFY(shown("frame_2") && !shown("frame") && child<QRadioButton>("radioButton")->isChecked());
    QCOMPARE(toolTipAt(QPoint(0, 0)).section(QLatin1Char('\n'), 2),
             QStringLiteral("Current Block Size : 0 MB"));
    child<QPushButton>("ScanButton")->click();
    QVERIFY(scanning());
    QCOMPARE(text("TimeElapsedLbl") + text("TimeReLbl"), QStringLiteral("Time ElapsedTime Remaining"));
    waitForResult();
    QCOMPARE(resultTexts(), QStringLiteral("Scan Completed|Scan Completed.|"));
    QVERIFY(idle() && shown("ScanButton") && shown("BackTestButton") && shown("frame"));
    // The first sector of the second chunk is found twice, and so is the sector behind the end.
    QCOMPARE(text("BadBlkValLbl"), QStringLiteral("7"));
    QCOMPARE(text("ProcessedVal"), QString::number(QuickSectors));
    QCOMPARE(text("TotalBlkValLbl"), QString::number(QuickSectors));
    QCOMPARE(text("BlockSizeValLbl"), QStringLiteral("0 MB"));
    for (const char *time : {"TimeElapsedLbl", "TimeReLbl", "ElapsedValLbl", "RemTimeValLbl"})
        QCOMPARE(text(time), QString());
    QCOMPARE(map()->property("totalSectors").toLongLong(), QuickSectors);
    QCOMPARE(map()->property("position").toLongLong(), QuickSectors);
    QCOMPARE(map()->property("badSectors").toList(),
             (QVariantList{100, 819, 16384, 16384, 16385, 163839, 163840}));
    QCOMPARE(toolTipAt(QPoint(499, 319)),
             QStringLiteral("Start Sector of current block: 163590\nEnd Sector of current block: 163840\n"
                            "Current Block Size : 410 MB"));

    // The back button asks, and then clears the results.
    closeResult();
    QTest::mousePress(child<MyButton1>("BackTestButton"), Qt::LeftButton);
    QVERIFY(shown("frame") && !g_BadSectors.isEmpty());
    buttonOf(m_pWindow->findChild<ScanSwitchClass *>(), "YesButton")->click();
    QVERIFY(shown("frame_2") && !shown("frame") && idle() && g_BadSectors.isEmpty());
}

void tst_ScanFlow::paintsItsCells()
{
    startOn(0);
    waitForResult();
    const QImage image = map()->grab().toImage();
    const auto colourAt = [&image](int cell) {
        return image.pixel(cell % 25 * 20 + 10, cell / 25 * 20 + 10);
    };
    QCOMPARE(image.size(), QSize(501, 321));
    QCOMPARE(colourAt(0), blockmap::ProcessedColour);
    QCOMPARE(colourAt(1), blockmap::BadColour); // sector 819 lies in the third cell
    QCOMPARE(colourAt(398), blockmap::ProcessedColour);
    QCOMPARE(colourAt(399), blockmap::BadColour); // sector 163839, and the one behind the end
    QCOMPARE(image.pixel(40, 10), blockmap::GridColour);
    QCOMPARE(image.pixel(500, 320), blockmap::GridColour);
    for (qint64 sector = QuickSectors; sector < 10 * QuickSectors; ++sector)
        g_BadSectors.append(sector);
    QCOMPARE(map()->badSectors().size(), QGridView::MostBadSectors);
}

void tst_ScanFlow::stopped()
{
    startOn(1);
    waitForSector(32768);
    child<QPushButton>("StopButton")->click();
    auto *question = m_pWindow->findChild<ConfarmetionClass *>();
    QCOMPARE(labelOf(question, "CenterTitleLabel")->text(), QStringLiteral("Stop Scan"));
    buttonOf(question, "NoButton")->click();
    waitForSector(text("ProcessedVal").toLongLong() + 32768);
    QVERIFY(scanning());
    QTRY_VERIFY_WITH_TIMEOUT(text("ElapsedValLbl").endsWith(QLatin1String(" seconds")), 5000);
    QVERIFY(text("RemTimeValLbl").endsWith(QLatin1String(" minutes")));
    child<QPushButton>("StopButton")->click();
    buttonOf(question, "YesButton")->click();
    waitForResult();
    QCOMPARE(resultTexts(), QStringLiteral("Disk Scan|Disk scan aborted.|Disk scan aborted by user."));
    QVERIFY(idle() && shown("ScanButton") && map()->position() > 0 && shown("frame"));
    closeResult();
    // A new scan starts from here, without the choice of a test.
    child<QPushButton>("ScanButton")->click();
    QVERIFY(scanning());
    QCOMPARE(map()->position(), qlonglong{0});
}

void tst_ScanFlow::leftInMidRun_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("onPage");
    QTest::newRow("to another screen") << QByteArray("DiskPartitionButton") << false;
    QTest::newRow("to the choice") << QByteArray("ScanDiskButton") << true;
}

void tst_ScanFlow::leftInMidRun()
{
    QFETCH(QByteArray, button);
    QFETCH(bool, onPage);
    startOn(1);
    press(button.constData());
    auto *question = m_pWindow->findChild<ScanSwitchClass *>();
    QVERIFY(question->isVisible());
    buttonOf(question, "NoButton")->click();
    QVERIFY(scanning() && page()->isVisible());
    child<QPushButton>("StopButton")->click();
    press(button.constData());
    buttonOf(question, "YesButton")->click();
    QVERIFY(!m_pWindow->findChild<ConfarmetionClass *>()->isVisible());
    QVERIFY(!shown("StopButton"));
    select(0);
    waitForResult();
    QCOMPARE(g_App.m_pCurrentDisk, findPhysicalDisk(128));
    QCOMPARE(text("TotalBlkValLbl"), QString::number(onPage ? QuickSectors : SlowSectors));
    QVERIFY(resultTexts().startsWith(QLatin1String("Disk Scan|")));
    QVERIFY(idle() && !g_bScanResultOpen && g_BadSectors.isEmpty());
    QVERIFY(child<MyButton>(button.constData())->isDown());
    QCOMPARE(page()->isVisible(), onPage);
    QVERIFY(!shown("BackTestButton") && !shown("frame"));
}

void tst_ScanFlow::closingAndRefreshing()
{
    startOn(1);
    const auto sleepState = [this] { return logLines("execution-state.log").last(); };
    const int before = commands("diskdrive get");
    m_pWindow->OnRefresh();
    QVERIFY(!m_pWindow->close());
    auto *panel = m_pWindow->findChild<DestinitionWarning *>();
    QVERIFY(panel->isVisible());
    QCOMPARE(sleepState(), QByteArray("0x80000041"));
    QCOMPARE(labelOf(panel, "WarningTxtLbl")->text(), QStringLiteral("Disk scan running."));
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(panel, &change);
    QCOMPARE(labelOf(panel, "WarningTxtLbl")->text(), QStringLiteral("Disk scan running."));
    m_pWindow->Onyes();
    QCOMPARE(labelOf(panel, "WarningTxtLbl")->text(), QStringLiteral("Scaning Running."));
    // The window does not close until the drive has answered the last read of the stopped scan.
    m_pWindow->OnStopConfirm();
    QVERIFY(!shown("StopButton"));
    panel->hide();
    m_pWindow->OnClose();
    QVERIFY(panel->isVisible());
    child<QPushButton>("ScanButton")->click(); // hidden; it has no effect
    waitForResult();
    QCOMPARE(commands("diskdrive get"), before);
    QVERIFY(idle());
    QCOMPARE(sleepState(), QByteArray("0x80000000"));
}

void tst_ScanFlow::startsNothingDuringARefresh()
{
    press("ScanDiskButton");
    m_pWindow->OnRefresh();
    child<QPushButton>("ScanButton")->click();
    QVERIFY(shown("frame_2") && !g_Jobs.runs(JobState::Job::Scan) && !g_bScanStarted);
    waitForRead();
    child<QPushButton>("ScanButton")->click();
    waitForResult();
    QCOMPARE(text("ProcessedVal"), QString::number(QuickSectors));
}

void tst_ScanFlow::startsNothingWithoutADisk()
{
    tearDown();
    startPc(R"({"pauses": false, "settings": {"FirstTimeLaunch": 1}, "disks": []})");
    makeWindow();
    press("ScanDiskButton");
    child<QPushButton>("ScanButton")->click();
    QVERIFY(!g_Jobs.runs(JobState::Job::Scan) && !g_bJobRunning && !g_bScanFailed && shown("frame_2"));
}

void tst_ScanFlow::questionGoesWithTheScan()
{
    startOn(0);
    child<QPushButton>("StopButton")->click();
    auto *question = m_pWindow->findChild<ConfarmetionClass *>();
    QVERIFY(question->isVisible());
    waitForResult();
    QVERIFY(!question->isVisible());
}

void tst_ScanFlow::selfTestsGoTheirWay()
{
    press("ScanDiskButton");
    child<QRadioButton>("radioButton_3")->click();
    child<QPushButton>("ScanButton")->click();
    QVERIFY(g_bSelfTestRunning && !g_Jobs.runs(JobState::Job::Scan) && shown("frame_3") && !shown("frame"));
    QCOMPARE(commands("smartctl64Bit.exe -t long"), 1);
}

void tst_ScanFlow::anotherDisk()
{
    startOn(0);
    waitForResult();
    closeResult();
    select(0);
    QCOMPARE(text("BadBlkValLbl") + QLatin1Char(' ') + QString::number(map()->position()),
             QStringLiteral("7 163840"));
    // Other disks can be chosen, without the results. The next scan reads the chosen one.
    select(2);
    QCOMPARE(text("TotalBlkValLbl"), QStringLiteral("0"));
    select(1);
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(page(), &change);
    QCOMPARE(text("TotalBlkValLbl"), QString::number(SlowSectors));
    QCOMPARE(text("BadBlkValLbl") + text("ProcessedVal") + text("BlockSizeValLbl"), QStringLiteral("000"));
    QCOMPARE(map()->position(), qlonglong{0});
    QVERIFY(g_BadSectors.isEmpty() && toolTipAt(QPoint(0, 0)).endsWith(QLatin1String(" 0 MB")));
    child<QPushButton>("ScanButton")->click();
    QVERIFY(scanning());
    QCOMPARE(map()->totalSectors(), SlowSectors);
    m_pWindow->OnStopConfirm();
    waitForResult();
    select(0);
    QVERIFY(!result()->isVisible());
    // Nothing is lost by leaving, so nobody is asked.
    press("DiskPartitionButton");
    QVERIFY(!page()->isVisible() && !m_pWindow->findChild<ScanSwitchClass *>()->isVisible());
}

void tst_ScanFlow::failed()
{
    // A disk without a volume is pulled out without a notice.
    pullOut(0);
    startOn(0);
    waitForResult();
    QCOMPARE(resultTexts(), QStringLiteral("Scan Failed|Scan Failed.|"));
    QVERIFY(idle());
}

/// The result shows until it was closed; then the disk leaves the lists.
void tst_ScanFlow::pulledOut()
{
    startOn(1);
    waitForSector(163840);
    pullOut(1);
    waitForResult();
    QCOMPARE(resultTexts(), QStringLiteral("Scan Failed|Scan Failed.|The disk is no longer connected."));
    QVERIFY(idle() && shown("frame"));
    // Only the bad sectors before the disk was pulled out are listed.
    QCOMPARE(text("BadBlkValLbl"), QStringLiteral("2"));
    QCOMPARE(sectorsOf(g_BadSectors), (QVector<qint64>{40000, 40020}));
    QVERIFY(map()->position() > 0 && map()->position() < SlowSectors);
    QVERIFY(!g_bListsLoading);
    closeResult();
    QVERIFY(g_bListsLoading);
    waitForRead();
    auto *combo = child<QComboBox>("DriveCombobox");
    QCOMPARE(combo->findData(129), -1);
    QCOMPARE(text("BadBlkValLbl"), QStringLiteral("0"));
    QCOMPARE(text("TotalBlkValLbl"), QString::number(QuickSectors));
    QVERIFY(g_BadSectors.isEmpty() && !g_bScanResultOpen);
}

void tst_ScanFlow::keepsItsDiskBehindARefresh()
{
    startOn(1);
    waitForSector(163840);
    g_bListsStale = true; // a volume went meanwhile
    m_pWindow->OnStopConfirm();
    waitForResult();
    closeResult();
    QVERIFY(g_bListsLoading);
    const qlonglong position = map()->position();
    waitForRead();
    QCOMPARE(child<QComboBox>("DriveCombobox")->currentIndex(), 1);
    QCOMPARE(map()->position(), position);
    QVERIFY(g_bScanResultOpen && text("BadBlkValLbl") == QLatin1String("2"));
}

void tst_ScanFlow::languageChange()
{
    startOn(0);
    waitForResult();
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(page(), &change);
    QCOMPARE(text("BadBlkValLbl"), QStringLiteral("7"));
    QCOMPARE(text("ProcessedVal"), QString::number(QuickSectors));
    QCOMPARE(text("TimeReLbl"), QString());
    closeResult();
    child<QPushButton>("ScanButton")->click();
    child<QLabel>("TimeReLbl")->clear();
    QCoreApplication::sendEvent(page(), &change);
    QCOMPARE(text("TimeReLbl"), QStringLiteral("Time Remaining"));
}

/// No scan affects the next one, however it ends, and the window can be deleted during a scan.
void tst_ScanFlow::overAndOver()
{
    press("ScanDiskButton");
    select(1);
    for (int round = 0; round < rounds(); ++round) {
        child<QPushButton>("ScanButton")->click();
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
        QVERIFY(resultTexts().startsWith(QLatin1String("Disk Scan|")));
        closeResult();
        waitForRead();
        m_pWindow->OnSwitchConfirm();
        press("ScanDiskButton");
        select(1);
        QVERIFY(idle() && shown("frame_2"));
    }
    child<QPushButton>("ScanButton")->click();
    QTest::qWait(20);
}

QTEST_MAIN(tst_ScanFlow)
#include "tst_ScanFlow.moc"
