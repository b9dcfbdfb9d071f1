// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/SettingsStore.h"
#include "tests/ui/WindowFixture.h"
#include "ui/screens/DiskPartition.h"
#include "ui/screens/DiskStatus.h"
#include "ui/screens/ScanDisk.h"
#include "ui/screens/SmartStatus.h"

/// The real window on a described PC with an ATA disk, an NVMe disk and a stick without SMART.
class tst_MainWindow : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        addReport("ata.txt", sample("ata-wdc-wd10ezex-readfail.txt"));
        addReport("nvme.txt", sample("nvme-samsung-970evoplus-500gb.txt"));
        addReport("usb.txt", sample("err-unknown-usb-bridge.txt"));
        openWindow(pcOf(R"(
            {"number": 0, "model": "Alpha One ATA Device", "sectors": 1953525168, "report": "ata.txt"},
            {"number": 2, "model": "Beta Two NVMe Device", "sectors": 976773168, "report": "nvme.txt"},
            {"number": 3, "media": "removable", "model": "Gamma Stick USB Device", "interface": "USB",
             "sectors": 1001472, "report": "usb.txt"})"));
    }
    void cleanup() { tearDown(); }

    void combosListTheDisks()
    {
        const auto *combo = child<QComboBox>("DriveCombobox");
        QCOMPARE(combo->count(), 3);
        QCOMPARE(combo->itemText(0), QStringLiteral("WDC WD10EZEX-00RKKA0 | WD-WUG7R5732226 | 931.51 GB"));
        QCOMPARE(combo->itemText(2), QStringLiteral("Gamma Stick  "));
        QCOMPARE(combo->itemData(1).toInt(), 130);
        QCOMPARE(child<QComboBox>("SourceComboBox")->itemText(0), QStringLiteral("WDC WD10EZEX-00RKKA0"));
    }

    void eachDiskShowsItsOwn()
    {
        QCOMPARE(text("ModelNumValLbl"), QStringLiteral("WDC WD10EZEX-00RKKA0"));
        QCOMPARE(text("SectorValLbl"), QStringLiteral("1953525168"));
        // 30 for 874 sectors, of which 874 events leave 70 %: 21; one pending sector takes 0.6 % of
        // it: 20.87.
        QCOMPARE(text("healthValueLbl"), QStringLiteral("21%"));
        QCOMPARE(image("HelthLable"), QStringLiteral(":/images/img_HealthHigh.png"));
        QCOMPARE(text("performanceValueLbl"), QStringLiteral("100%"));
        QVERIFY(text("PowerOnTimeValue").contains(QStringLiteral(" days, ")));
        QVERIFY(child<QLabel>("DisknumberLbl")->isHidden());
        QCOMPARE(commands("TASKKILL.exe"), 1);
        select(1);
        QCOMPARE(commands("TASKKILL.exe"), 2);
        QCOMPARE(text("ModelNumValLbl"), QStringLiteral("Samsung SSD 970 EVO Plus 500GB"));
        QCOMPARE(text("DiskLifeValue"), QStringLiteral("Not available"));
        QCOMPARE(text("DisknumberValLbl"), QStringLiteral("2"));
        select(2);
        QCOMPARE(text("ModelNumValLbl"), QStringLiteral("Gamma Stick"));
        QCOMPARE(text("SerialValLbl"), QStringLiteral("Gamma Stick "));
        QCOMPARE(text("healthValueLbl"), QStringLiteral("Not Supported"));
        QCOMPARE(text("DiskLifeValue"), QStringLiteral("Not Available"));
        // The first disk shows nothing of the others.
        select(0);
        QCOMPARE(text("ModelNumValLbl"), QStringLiteral("WDC WD10EZEX-00RKKA0"));
        QVERIFY(text("DiskLifeValue").endsWith(QStringLiteral(" days")));
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

    void fahrenheit()
    {
        const int celsius = text("tempValueLbl").chopped(2).toInt();
        QVERIFY(celsius > 0);
        SettingsStore().write(key::TempValue, QStringLiteral("F"));
        select(0);
        QCOMPARE(text("tempValueLbl"), QString::number(32 + celsius * 9 / 5) + QStringLiteral("\u00B0F"));
    }

    void navigationShowsOneScreen_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QStringList>("buttons");
        QTest::newRow("DiskStatusButton") << "DiskStatus" << QStringList();
        QTest::newRow("SmartStatusButton")
            << "SmartStatus" << QStringList{"ReportSaveButton", "ScreenshotButton"};
        QTest::newRow("DiskPartitionButton") << "DiskPartition" << QStringList();
        QTest::newRow("ScanDiskButton") << "ScanDisk" << QStringList{"ScanButton"};
        QTest::newRow("CloneDiskButton") << "CloneDisk" << QStringList{"CloneButton"};
    }

    void navigationShowsOneScreen()
    {
        QFETCH(QString, page);
        press("CloneDiskButton");
        press(QTest::currentDataTag());
        QStringList down;
        for (const MyButton *entry : m_pWindow->findChildren<MyButton *>()) {
            if (entry->isDown())
                down << entry->objectName();
        }
        QCOMPARE(down, QStringList(QString::fromLatin1(QTest::currentDataTag())));
        for (const QWidget *screen : std::initializer_list<QWidget *>{
                 child<DiskStatus>(), child<SmartStatus>(), child<DiskPartition>(), child<ScanDisk>()})
            QCOMPARE(screen->isVisible(), QLatin1String(screen->metaObject()->className()) == page);
        QStringList buttons;
        for (const char *name : {"ScanButton", "CloneButton", "ReportSaveButton", "ScreenshotButton",
                                 "StopButton", "StopTestButton"}) {
            if (shown(name))
                buttons << QLatin1String(name);
        }
        QTEST(buttons, "buttons");
        waitForRest();
    }

    void hoverFollowsTheDownState()
    {
        auto *status = child<MyButton>("DiskStatusButton");
        auto *scan = child<MyButton>("ScanDiskButton");
        emit status->ChangePixmap();
        emit scan->ChangePixmap();
        QVERIFY(status->styleSheet().contains(QLatin1String("img_DiskStatusSel")));
        QVERIFY(scan->styleSheet().contains(QLatin1String("img_ScanDiskHov")));
        emit scan->OnUpdatePixmap();
        QCOMPARE(scan->styleSheet(),
                 QStringLiteral("QPushButton{border-image: url(:/images/img_ScanDiskNo.png)}"
                                "QPushButton{Text-align:left}"
                                "QPushButton {color : rgb(0,0,0);}"));
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
        QTRY_COMPARE(text("ModelNumValLbl"), QStringLiteral("WDC WD10EZEX-00RKKA0"));
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
    }

    void shutsTheSystemDown()
    {
        m_pWindow->OnSystemShutDown();
        QVERIFY(logLines("commands.log").last().endsWith(" /c shutdown /s "));
    }

    void languageChangeRedoesTheDetails()
    {
        const QString before = text("PowerOnTimeValue");
        changeLanguage(child<DiskStatus>());
        QCOMPARE(text("PowerOnTimeValue"),
                 QString(before).replace(QLatin1String(", "), QLatin1String(" , ")));
        QCOMPARE(text("ModelNumValLbl"), QStringLiteral("WDC WD10EZEX-00RKKA0"));
        QCOMPARE(child<QLabel>("performanceTitleLbl")->height(), 20);
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
        QCOMPARE(child<QComboBox>("DestinationComboBox")->count(),
                 3); // the placeholder and the two other disks
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
        QVERIFY(!shown("m_pAdvice") && shown("SourceComboBox") && enabled("CloneButton"));
    }
};

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
