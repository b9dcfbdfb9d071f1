// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/DiskFigures.h"
#include "smart/SmartGlobals.h"
#include "state/SettingsStore.h"
#include "tests/ui/WindowFixture.h"
#include "ui/screens/CloneDisk.h"
#include "ui/screens/DiskPartition.h"
#include "ui/screens/DiskStatus.h"
#include "ui/screens/ScanDisk.h"
#include "ui/screens/SmartStatus.h"
#include "ui/widgets/Style.h"

#include <QAbstractItemView>

/// The real window, its screens and its files, on a described PC with an ATA disk, an NVMe disk and a stick
/// without SMART.
class tst_MainWindow : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        g_strLastTestType.clear();
        g_strLastTestResult.clear();
        g_strGraphTitle.clear();
        addReport("ata.txt", sample("ata-wdc-wd10ezex-readfail.txt").replace("WDC WD10EZEX", "WDC/WD10EZEX"));
        addReport("log.txt", "# 1  Extended offline    Completed: read failure   90%   1587   8\n\n");
        addReport("nvme.txt", sample("nvme-samsung-970evoplus-500gb.txt"));
        addReport("usb.txt", sample("err-unknown-usb-bridge.txt"));
        openWindow(pcOf(R"(
            {"number": 0, "model": "Alpha One ATA Device", "sectors": 1953525168, "report": "ata.txt",
             "selfTestLog": "log.txt"},
            {"number": 2, "model": "Beta Two NVMe Device", "sectors": 976773168, "report": "nvme.txt",
             "selfTestLog": "log.txt"},
            {"number": 3, "media": "removable", "model": "Gamma Stick USB Device", "interface": "USB",
             "sectors": 1001472, "report": "usb.txt"})"));
    }
    void cleanup() { tearDown(); }

    void theMousePicksADisk()
    {
        auto *combo = child<QComboBox>("DriveCombobox");
        QTest::mouseClick(combo, Qt::LeftButton);
        QAbstractItemView *view = combo->view();
        QVERIFY(view->isVisible() && view->window()->width() == combo->width());
        const QRect entry = view->visualRect(view->model()->index(2, 0));
        QCOMPARE(entry.height(), 28);
        QTest::qWait(QApplication::doubleClickInterval()); // a release soon after the press would not count
        QMouseEvent move(QEvent::MouseMove, entry.center(), view->viewport()->mapToGlobal(entry.center()),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &move);
        // The entry below the mouse has the colour of a chosen one.
        QCOMPARE(view->viewport()->grab(entry).toImage().pixelColor(2, 2), QColor(style::colour::Chosen));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, entry.center());
        QTRY_VERIFY(!view->isVisible());
        QCOMPARE(combo->currentIndex(), 2);
        waitForRest();
    }

    void eachDiskShowsItsOwn()
    {
        const auto *combo = child<QComboBox>("DriveCombobox");
        QCOMPARE(combo->count(), 3);
        QCOMPARE(combo->itemText(0), QStringLiteral("WDC/WD10EZEX-00RKKA0 | WD-WUG7R5732226 | 931.51 GB"));
        QCOMPARE(combo->itemData(1).toInt(), 130);
        QCOMPARE(child<QComboBox>("SourceComboBox")->itemText(0), QStringLiteral("WDC/WD10EZEX-00RKKA0"));

        QCOMPARE(texts({"ModelNumValLbl", "SerialValLbl", "DisknumberValLbl", "SectorValLbl",
                        "healthValueLbl", "performanceValueLbl"}),
                 QStringLiteral("WDC/WD10EZEX-00RKKA0|WD-WUG7R5732226|0|1953525168|21%|100%"));
        QCOMPARE(image("HelthLable"), QStringLiteral(":/images/img_HealthHigh.png"));
        QVERIFY(text("PowerOnTimeValue").contains(QStringLiteral(" days, ")));
        select(1);
        QCOMPARE(texts({"ModelNumValLbl", "DisknumberValLbl", "DiskLifeValue"}),
                 QStringLiteral("Samsung SSD 970 EVO Plus 500GB|2|Not available"));
        select(2);
        QCOMPARE(texts({"ModelNumValLbl", "SerialValLbl", "healthValueLbl", "DiskLifeValue"}),
                 QStringLiteral("Gamma Stick|Gamma Stick |Not Supported|Not Available"));
        // The first disk shows nothing of the others.
        SettingsStore().write(key::TempValue, QStringLiteral("F"));
        select(0);
        QCOMPARE(text("ModelNumValLbl"), QStringLiteral("WDC/WD10EZEX-00RKKA0"));
        QVERIFY(text("DiskLifeValue").endsWith(QStringLiteral(" days")));
        QVERIFY(text("tempValueLbl").endsWith(QStringLiteral("\u00B0F")));
    }

    void noTextIsMarkup()
    {
        for (const QLabel *label : m_pWindow->findChildren<QLabel *>())
            QVERIFY2(label->textFormat() != Qt::AutoText, qPrintable(label->objectName()));
        auto *model = child<QLabel>("ModelNumValLbl");
        model->setText(QStringLiteral("<img src='/etc/motd'>") + QString(200, QLatin1Char('x')));
        model->grab();
        QCOMPARE(model->toolTip(), model->text().toHtmlEscaped());
    }

    void navigationShowsOneScreen()
    {
        const std::tuple<const char *, const char *, QString> screens[] = {
            {"SmartStatusButton", "SmartStatus", "ReportSaveButton ScreenshotButton"},
            {"CloneDiskButton", "CloneDisk", "CloneButton"},
            {"ScanDiskButton", "ScanDisk", "ScanButton"},
            {"DiskPartitionButton", "DiskPartition", ""},
            {"DiskStatusButton", "DiskStatus", ""}};
        for (const auto &[button, page, expected] : screens) {
            press(button);
            for (const MyButton *entry : m_pWindow->findChildren<MyButton *>())
                QCOMPARE(entry->isDown(), entry->objectName() == QLatin1String(button));
            for (const Page *screen :
                 std::initializer_list<Page *>{child<DiskStatus>(), child<SmartStatus>(),
                                               child<DiskPartition>(), child<ScanDisk>(), child<CloneDisk>()})
                QCOMPARE(screen->isVisible(), QLatin1String(screen->metaObject()->className()) == page);
            QStringList buttons;
            for (const char *name : {"ScanButton", "CloneButton", "ReportSaveButton", "ScreenshotButton",
                                     "StopButton", "StopTestButton"}) {
                if (shown(name))
                    buttons << QLatin1String(name);
            }
            QCOMPARE(buttons.join(' '), expected);
            // Contents and buttons end at one right edge.
            for (const char *name : {"m_pAttributeTree", "SourceFrame", "ChoiceCard1", "ScanButton",
                                     "CloneButton", "ScreenshotButton", "StopButton"}) {
                const auto *part = child<QWidget>(name);
                const auto *edge = child<QWidget>("StopTestButton");
                if (part->isVisible())
                    QCOMPARE(part->mapToGlobal(part->rect().topRight()).x(),
                             edge->mapToGlobal(edge->rect().topRight()).x());
            }
            waitForRest();
        }
        // The look under the pointer.
        auto *scan = child<MyButton>("ScanDiskButton");
        auto *status = child<MyButton>("DiskStatusButton");
        emit status->ChangePixmap();
        emit scan->ChangePixmap();
        QVERIFY(status->styleSheet().contains("img_DiskStatusSel") &&
                scan->styleSheet().contains("img_ScanDiskHov"));
        emit scan->OnUpdatePixmap();
        QVERIFY(scan->styleSheet().contains("img_ScanDiskNo"));
    }

    void openResultsAskFirst()
    {
        press("ScanDiskButton");
        g_bScanResultOpen = true;
        press("DiskPartitionButton");
        answer<ScanSwitchClass>("NoButton");
        QVERIFY(child<ScanDisk>()->isVisible() && !dialog<ScanSwitchClass>());
        QVERIFY(child<MyButton>("ScanDiskButton")->styleSheet().contains("Sel"));
        QVERIFY(!child<MyButton>("DiskPartitionButton")->styleSheet().contains("Sel"));
        // The last pressed button counts.
        press("SmartStatusButton");
        press("DiskPartitionButton");
        answer<ScanSwitchClass>("YesButton");
        QVERIFY(child<DiskPartition>()->isVisible() && !g_bScanResultOpen);
    }

    void aNoticeDuringARefreshIsNotLost()
    {
        const int before = commands("diskdrive get");
        m_pWindow->OnRefresh();
        m_pWindow->OnRefresh();
        // During the load only the loader may use the lists, whatever the user does.
        QVERIFY(!findPhysicalDisk(128));
        choose(1);
        press("ScanDiskButton");
        press("CloneDiskButton");
        press("DiskStatusButton");
        // Two loads: the one of the first notice, and one more after it.
        QTRY_COMPARE_WITH_TIMEOUT(commands("diskdrive get"), before + 4, 10000);
        QTRY_VERIFY_WITH_TIMEOUT(findPhysicalDisk(128), 10000);
        waitForRest();
        QTRY_COMPARE(text("ModelNumValLbl"), QStringLiteral("WDC/WD10EZEX-00RKKA0"));
        QCOMPARE(child<QComboBox>("DriveCombobox")->currentIndex(), 0);
    }

    /// Only on Disk Partition, and for the tile alone.
    void pollOfTheTemperature()
    {
        auto *tile = child<QLabel>("tempValueLbl");
        const QString shownText = tile->text();
        const auto polled = [this, tile] {
            tile->setText(QStringLiteral("before"));
            g_strTemperatureText = QStringLiteral("kept");
            const int before = commands("smartctl64Bit.exe -a");
            m_pWindow->GetSmartTemprature();
            return QString("%1 %2").arg(commands("smartctl64Bit.exe -a") - before).arg(tile->text());
        };
        QCOMPARE(polled(), QStringLiteral("0 before"));
        press("DiskPartitionButton");
        m_pWindow->OnRefresh();
        tile->setText(QStringLiteral("before"));
        m_pWindow->GetSmartTemprature();
        QCOMPARE(tile->text(), QStringLiteral("before")); // a refresh runs
        waitForRest();
        QCOMPARE(polled(), "1 " + shownText);
        QCOMPARE(g_strTemperatureText, QStringLiteral("kept"));
        // A user who is warned of it can shut the system down.
        m_pWindow->OnSystemShutDown();
        QVERIFY(logLines("commands.log").last().endsWith(" /c shutdown /s "));
    }

    void closingAsks()
    {
        QVERIFY(!m_pWindow->close());
        QVERIFY(m_pWindow->isVisible());
        answer<CloseWgt>("NoButton");
        QVERIFY(!dialog<CloseWgt>());
        // During a job it is refused, on screens of no job without a word.
        press("DiskPartitionButton");
        g_bJobRunning = true;
        m_pWindow->close();
        m_pWindow->Onyes();
        QVERIFY(m_pWindow->isVisible() && !dialog<CloseWgt>() && !dialog<DestinitionWarning>());
    }

    void startsOnTheClonePage()
    {
        m_pWindow.reset();
        const int before = commands("TASKKILL.exe");
        g_strStartArgument = QStringLiteral("CloneDisk####samsungssd970evoplus500gb");
        makeWindow();
        QVERIFY(isDown("CloneDiskButton"));
        QCOMPARE(child<QComboBox>("SourceComboBox")->currentIndex(), 1);
        // The placeholder and the two other disks.
        QCOMPARE(child<QComboBox>("DestinationComboBox")->count(), 3);
        QCOMPARE(commands("TASKKILL.exe"), before);
    }

    void tellsOfMissingRights()
    {
        tearDown();
        startPc(pcOf(R"({"number": 0, "model": "Alpha", "opens": false})"));
        const int atLoad = commands("smartctl64Bit.exe");
        makeWindow();
        press("CloneDiskButton");
        QVERIFY(shown("m_pAdvice") && text("m_pAdvice").contains(QStringLiteral("administrator")));
        QVERIFY(areShown(false, {"HelthLable", "GifFrame"}));
        for (const char *button : {"ScanButton", "CloneButton", "ReportSaveButton", "ScreenshotButton"})
            QVERIFY2(!enabled(button), button);
        QCOMPARE(commands("smartctl64Bit.exe"), atLoad);

        g_App.m_bAccessDenied = false;
        m_pWindow->RefreshSelectedDisk();
        QVERIFY(!shown("m_pAdvice") && shown("SourceComboBox") && enabled("DriveCombobox"));
        QVERIFY(!enabled("ScanButton")); // there is no disk
    }

    void report()
    {
        goTo("SmartStatusButton");
        const QString path = newFile("report of today");
        QCOMPARE(ask("ReportSaveButton", path),
                 QStringLiteral("Save File|Velmora Smart Report WDC-WD10EZEX-00RKKA0|*.pdf|MainWindow"));
        QVERIFY(contentOf(path).startsWith("%PDF"));
        QCOMPARE(commands(" -l selftest "), 1);
        QCOMPARE(g_strLastTestResult, QStringLiteral("Failed by Read Element"));
        QCOMPARE(g_strHealthText, QStringLiteral("21%"));
        const QList<QByteArray> opened{"url\t" + QUrl::fromLocalFile(path).toEncoded() + '\t'};
        QCOMPARE(logLines("opened.log"), opened);
        // A path below a file cannot be written, not even by an administrator.
        QVERIFY(!ask("ReportSaveButton", path + "/report.pdf").isEmpty());
        // An NVMe disk has no log of self-tests.
        select(1);
        const int logs = commands(" -l selftest ");
        QVERIFY(!ask("ReportSaveButton", QString()).isEmpty()); // cancelled
        QCOMPARE(logLines("opened.log"), opened);
        const QString offered = newFile("Velmora Smart Report Samsung SSD 970 EVO Plus 500GB");
        ask("ReportSaveButton", offered);
        QVERIFY(contentOf(offered + ".pdf").startsWith("%PDF") && !QFile::exists(offered));
        QCOMPARE(commands(" -l selftest "), logs);
    }

    void screenshot()
    {
        goTo("SmartStatusButton");
        g_strGraphTitle = QStringLiteral("Reads/Writes");
        const QString path = newFile("Reads-Writes.jpg");
        QVERIFY(!ask("ScreenshotButton", QString()).isEmpty() && !QFile::exists(path)); // cancelled
        // The offered name gets its ending.
        QCOMPARE(ask("ScreenshotButton", newFile("Reads-Writes")),
                 QStringLiteral("Save File|Reads-Writes|JPEG (*.jpg);|"));
        const auto *page = child<SmartStatus>();
        const QImage picture(path, "JPEG");
        QCOMPARE(picture.size(), page->size());
        // The picture has the page's texts, on white.
        QCOMPARE(picture.pixelColor(picture.width() - 3, picture.height() - 3), QColor(Qt::white));
        const auto *result = child<QLabel>("SmartResultLabel");
        const QImage text = picture.copy(QRect(result->mapTo(page, QPoint()), result->size()));
        QVERIFY(text.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0) !=
                Qt::white);
    }

    void nothingToSave()
    {
        const auto offered = [this](bool both) {
            return enabled("ReportSaveButton") == both && enabled("ScreenshotButton") == both;
        };
        press("SmartStatusButton");
        QVERIFY(offered(false));
        m_pWindow->SavePDFReport();
        waitForRest();
        QVERIFY(offered(true));
        press("SmartStatusButton"); // the disk is read once more
        QVERIFY(offered(false));
        select(2); // a disk without SMART
        QVERIFY(offered(false));
        m_pWindow->SavePDFReport();
        m_pWindow->TakeScreenshot();
        QVERIFY(!QFile::exists(newFile("opened.log")) && !QApplication::activeModalWidget());
    }

private:
    /// What the button's file dialog asked; saves as `path`.
    QString ask(const char *button, const QString &path) const
    {
        return asked([=] { QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton); }, path);
    }

    QString newFile(const char *name) const { return m_strState + QLatin1Char('/') + QLatin1String(name); }
};

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
