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

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>

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

    void eachDiskShowsItsOwn()
    {
        const auto *combo = child<QComboBox>("DriveCombobox");
        QCOMPARE(combo->count(), 3);
        QCOMPARE(combo->itemText(0), QStringLiteral("WDC/WD10EZEX-00RKKA0 | WD-WUG7R5732226 | 931.51 GB"));
        QCOMPARE(combo->itemData(1).toInt(), 130);
        QCOMPARE(child<QComboBox>("SourceComboBox")->itemText(0), QStringLiteral("WDC/WD10EZEX-00RKKA0"));

        const auto status = {"ModelNumValLbl", "SerialValLbl",   "DisknumberValLbl",
                             "SectorValLbl",   "healthValueLbl", "performanceValueLbl"};
        QCOMPARE(texts(status), QStringLiteral("WDC/WD10EZEX-00RKKA0|WD-WUG7R5732226|0|1953525168|21%|100%"));
        QCOMPARE(image("HelthLable"), QStringLiteral(":/images/img_HealthHigh.png"));
        QVERIFY(text("PowerOnTimeValue").contains(QStringLiteral(" days, ")));
        QCOMPARE(commands("TASKKILL.exe"), 1);
        select(1);
        QCOMPARE(commands("TASKKILL.exe"), 2);
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
            const auto end = [this](const char *name) {
                const auto *part = child<QWidget>(name);
                return part->mapTo(m_pWindow.get(), QPoint(part->width(), 0)).x();
            };
            for (const char *part : {"m_pAttributeTree", "SourceFrame", "ChoiceCard1", "ScanButton",
                                     "CloneButton", "ScreenshotButton", "StopButton"}) {
                if (shown(part))
                    QCOMPARE(end(part), end("StopTestButton"));
            }
            waitForRest();
        }
        // The look under the pointer.
        auto *scan = child<MyButton>("ScanDiskButton");
        emit child<MyButton>("DiskStatusButton")->ChangePixmap();
        emit scan->ChangePixmap();
        QVERIFY(child<MyButton>("DiskStatusButton")->styleSheet().contains("img_DiskStatusSel"));
        QVERIFY(scan->styleSheet().contains("img_ScanDiskHov"));
        emit scan->OnUpdatePixmap();
        QVERIFY(scan->styleSheet().contains("img_ScanDiskNo"));
    }

    void openResultsAskFirst()
    {
        const auto isSelected = [this](const char *button) {
            return child<MyButton>(button)->styleSheet().contains(QLatin1String("Sel"));
        };
        press("ScanDiskButton");
        g_bScanResultOpen = true;
        press("DiskPartitionButton");
        answer<ScanSwitchClass>("NoButton");
        QVERIFY(child<ScanDisk>()->isVisible() && !dialog<ScanSwitchClass>());
        QVERIFY(isSelected("ScanDiskButton") && !isSelected("DiskPartitionButton"));

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
        const QString shownText = text("tempValueLbl");
        const int before = commands("smartctl64Bit.exe -a");
        m_pWindow->GetSmartTemprature();
        QCOMPARE(commands("smartctl64Bit.exe -a"), before);
        press("DiskPartitionButton");
        auto *tile = child<QLabel>("tempValueLbl");
        tile->setText(QStringLiteral("before"));
        m_pWindow->OnRefresh();
        m_pWindow->GetSmartTemprature();
        QCOMPARE(tile->text(), QStringLiteral("before")); // a refresh runs
        waitForRest();
        g_strTemperatureText = QStringLiteral("kept");
        tile->setText(QStringLiteral("before"));
        const int refreshed = commands("smartctl64Bit.exe -a");
        m_pWindow->GetSmartTemprature();
        QCOMPARE(commands("smartctl64Bit.exe -a"), refreshed + 1);
        QCOMPARE(tile->text(), shownText);
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
        press("SmartStatusButton");
        waitForRest();
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
        const QString below = path + QStringLiteral("/report.pdf");
        QVERIFY(!ask("ReportSaveButton", below).isEmpty());
        // An NVMe disk has no log of self-tests.
        select(1);
        const int logs = commands(" -l selftest ");
        QVERIFY(!ask("ReportSaveButton", QString()).isEmpty()); // cancelled
        QCOMPARE(logLines("opened.log"), opened);
        const QString offered = newFile("Velmora Smart Report Samsung SSD 970 EVO Plus 500GB");
        ask("ReportSaveButton", offered);
        QVERIFY(contentOf(offered + QStringLiteral(".pdf")).startsWith("%PDF"));
        QVERIFY(!QFile::exists(offered));
        QCOMPARE(commands(" -l selftest "), logs);
        QCOMPARE(g_strHealthText, QStringLiteral("100%"));
    }

    void screenshot()
    {
        press("SmartStatusButton");
        waitForRest();
        g_strGraphTitle = QStringLiteral("Reads/Writes");
        const QString path = newFile("Reads-Writes.jpg");
        QVERIFY(!ask("ScreenshotButton", QString()).isEmpty()); // cancelled
        QVERIFY(!QFile::exists(path));
        // The offered name gets its ending.
        QCOMPARE(ask("ScreenshotButton", newFile("Reads-Writes")),
                 QStringLiteral("Save File|Reads-Writes|JPEG (*.jpg);|"));
        QVERIFY(contentOf(path).startsWith("\xff\xd8"));
        const auto *page = child<SmartStatus>();
        const QImage picture(path);
        QCOMPARE(picture.size(), page->size());
        // The picture has the page's texts, on white.
        QCOMPARE(picture.pixelColor(picture.width() - 3, picture.height() - 3), QColor(Qt::white));
        const auto *result = child<QLabel>("SmartResultLabel");
        const QImage text = picture.copy(QRect(result->mapTo(page, QPoint()), result->size()));
        QVERIFY(text.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0) !=
                qRgb(255, 255, 255));
    }

    void nothingToSave()
    {
        const auto offered = [this] { return enabled("ReportSaveButton") && enabled("ScreenshotButton"); };
        press("SmartStatusButton");
        QVERIFY(!enabled("ReportSaveButton") && !enabled("ScreenshotButton"));
        m_pWindow->SavePDFReport();
        waitForRest();
        QVERIFY(offered());
        press("SmartStatusButton"); // the disk is read once more
        QVERIFY(!offered());
        select(2); // a disk without SMART
        QVERIFY(!enabled("ReportSaveButton") && !enabled("ScreenshotButton"));
        m_pWindow->SavePDFReport();
        m_pWindow->TakeScreenshot();
        QVERIFY(!QFile::exists(newFile("opened.log")) && !QApplication::activeModalWidget());
    }

private:
    /// Clicks the button and answers its dialog with `path`; an empty one cancels. What the dialog asked: its
    /// title, name, filters and the window that it belongs to.
    QString ask(const char *button, const QString &path) const
    {
        QString asked;
        QTimer answer;
        connect(&answer, &QTimer::timeout, this, [&] {
            auto *question = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!question)
                return;
            auto *name = question->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            const QWidget *owner = question->parentWidget();
            if (asked.isEmpty())
                asked = question->windowTitle() + '|' + name->text() + '|' +
                        question->nameFilters().join(';') + '|' +
                        (owner ? owner->metaObject()->className() : "");
            if (path.isEmpty()) {
                question->reject();
                return;
            }
            name->setText(path);
            question->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
        });
        answer.start(20);
        QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
        return asked;
    }

    QString newFile(const char *name) const { return m_strState + QLatin1Char('/') + QLatin1String(name); }
};

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
