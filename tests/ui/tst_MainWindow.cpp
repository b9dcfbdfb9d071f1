// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/SettingsStore.h"
#include "tests/ui/Named.h"
#include "tests/ui/WindowFixture.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/screens/DiskPartition.h"
#include "ui/screens/DiskStatus.h"
#include "ui/screens/ScanDisk.h"
#include "ui/screens/SmartStatus.h"

/// The real window on a described PC with an ATA disk, an NVMe disk and a stick without SMART.
class tst_MainWindow : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpProgram(); }
    void init();
    void cleanup() { tearDown(); }

    void combosListTheDisks();
    void firstReadShowsTheReport();
    void noTextIsMarkup();
    void eachDiskShowsItsOwn_data();
    void eachDiskShowsItsOwn();
    void fahrenheit();
    void navigationShowsOneScreen_data();
    void navigationShowsOneScreen();
    void hoverFollowsTheDownState();
    void openResultsAskFirst();
    void eachSelectionRunsTheSameCommands();
    void refreshGoesBackToTheFirstDisk();
    void aNoticeDuringARefreshIsNotLost();
    void refreshWaitsForNoJob();
    void pollActsOnDiskPartitionOnly();
    void pollShowsOnTheTileAlone();
    void shutsTheSystemDown();
    void languageChangeRedoesTheDetails();
    void closingAsks();
    void closingIsRefusedDuringAJob_data();
    void closingIsRefusedDuringAJob();
    void startsOnTheClonePage();
    void tellsOfMissingRights();

private:
    static QByteArray description();
};

QByteArray tst_MainWindow::description()
{
    return R"({
      "name": "Test PC", "user": "tester", "dpi": 96, "pauses": false,
      "disks": [
        {"number": 0, "media": "fixed", "model": "Alpha One ATA Device", "interface": "IDE", "status": "OK",
         "sectors": 1953525168, "report": "ata.txt"},
        {"number": 2, "media": "fixed", "model": "Beta Two NVMe Device", "interface": "SCSI", "status": "OK",
         "sectors": 976773168, "report": "nvme.txt"},
        {"number": 3, "media": "removable", "model": "Gamma Stick USB Device", "interface": "USB", "status": "OK",
         "sectors": 1001472, "report": "usb.txt"}
      ],
      "volumes": [], "partitions": [], "processes": ["explorer.exe"],
      "settings": {"TempValue": "C", "FirstTimeLaunch": 1}
    })";
}

void tst_MainWindow::init()
{
    addReport("ata.txt", sample("ata-wdc-wd10ezex-readfail.txt"));
    addReport("nvme.txt", sample("nvme-samsung-970evoplus-500gb.txt"));
    addReport("usb.txt", sample("err-unknown-usb-bridge.txt"));
    startPc(description());
    makeWindow();
    waitForRead();
}

void tst_MainWindow::combosListTheDisks()
{
    const auto *combo = child<QComboBox>("DriveCombobox");
    QCOMPARE(combo->count(), 3);
    QCOMPARE(combo->itemText(0), QStringLiteral("WDC WD10EZEX-00RKKA0 | WD-WUG7R5732226 | 931.51 GB"));
    QCOMPARE(combo->itemData(0).toInt(), 128);
    QCOMPARE(combo->itemData(1).toInt(), 130);
    QCOMPARE(combo->itemText(2), QStringLiteral("Gamma Stick  "));
    QCOMPARE(combo->itemData(2).toInt(), 131);
    QCOMPARE(child<QComboBox>("SourceComboBox")->itemText(0), QStringLiteral("WDC WD10EZEX-00RKKA0"));
}

void tst_MainWindow::firstReadShowsTheReport()
{
    QCOMPARE(text("ModelNumValLbl"), QStringLiteral("WDC WD10EZEX-00RKKA0"));
    QCOMPARE(text("SectorValLbl"), QStringLiteral("1953525168"));
    QVERIFY(text("tempValueLbl").endsWith(QStringLiteral("\u00B0C")));
    // 30 for 874 sectors, of which 874 events leave 70 %: 21; one pending sector takes 0.6 % of it: 20.87.
    QCOMPARE(text("healthValueLbl"), QStringLiteral("21%"));
    QCOMPARE(image("HelthLable"), QStringLiteral(":/images/img_HealthHigh.png"));
    QCOMPARE(text("performanceValueLbl"), QStringLiteral("100%"));
    QVERIFY(text("PowerOnTimeValue").contains(QStringLiteral(" days, ")));
    QVERIFY(child<QLabel>("DisknumberLbl")->isHidden());
}

void tst_MainWindow::noTextIsMarkup()
{
    for (const QLabel *label : m_pWindow->findChildren<QLabel *>())
        QVERIFY2(label->textFormat() != Qt::AutoText, qPrintable(label->objectName()));
    auto *model = child<QLabel>("ModelNumValLbl");
    model->setText(QStringLiteral("<img src='/etc/motd'>") + QString(200, QLatin1Char('x')));
    model->grab();
    QCOMPARE(model->toolTip(), model->text().toHtmlEscaped());
}

void tst_MainWindow::eachDiskShowsItsOwn_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("serial");
    QTest::addColumn<QString>("health");
    QTest::addColumn<QString>("life");
    QTest::addColumn<QString>("number");
    QTest::newRow("NVMe") << 1 << "Samsung SSD 970 EVO Plus 500GB"
                          << ""
                          << ""
                          << "Not available"
                          << "2";
    QTest::newRow("stick") << 2 << "Gamma Stick"
                           << "Gamma Stick "
                           << "Not Supported"
                           << "Not Available"
                           << "3";
}

void tst_MainWindow::eachDiskShowsItsOwn()
{
    QFETCH(int, index);
    QFETCH(QString, serial);
    QFETCH(QString, health);
    select(index);
    QTEST(text("ModelNumValLbl"), "model");
    if (!serial.isEmpty())
        QCOMPARE(text("SerialValLbl"), serial);
    if (!health.isEmpty())
        QCOMPARE(text("healthValueLbl"), health);
    QTEST(text("DiskLifeValue"), "life");
    QTEST(text("DisknumberValLbl"), "number");
    // The first disk shows nothing of the other one.
    select(0);
    QCOMPARE(text("ModelNumValLbl"), QStringLiteral("WDC WD10EZEX-00RKKA0"));
    QVERIFY(text("DiskLifeValue").endsWith(QStringLiteral(" days")));
}

void tst_MainWindow::fahrenheit()
{
    const int celsius = text("tempValueLbl").chopped(2).toInt();
    QVERIFY(celsius > 0);
    SettingsStore().write(key::TempValue, QStringLiteral("F"));
    select(0);
    QCOMPARE(text("tempValueLbl"), QString::number(32 + celsius * 9 / 5) + QStringLiteral("\u00B0F"));
}

void tst_MainWindow::navigationShowsOneScreen_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("buttons");
    QTest::newRow("Disk Status") << QByteArray("DiskStatusButton") << "DiskStatus" << QStringList();
    QTest::newRow("SMART Status") << QByteArray("SmartStatusButton") << "SmartStatus"
                                  << QStringList{"ReportSaveButton", "ScreenshotButton"};
    QTest::newRow("Disk Partition") << QByteArray("DiskPartitionButton") << "DiskPartition" << QStringList();
    QTest::newRow("Scan Disk") << QByteArray("ScanDiskButton") << "ScanDisk" << QStringList{"ScanButton"};
    QTest::newRow("Clone Disk") << QByteArray("CloneDiskButton") << "CloneDisk" << QStringList{"CloneButton"};
}

void tst_MainWindow::navigationShowsOneScreen()
{
    QFETCH(QByteArray, button);
    QFETCH(QString, page);
    QFETCH(QStringList, buttons);
    press("CloneDiskButton");
    press(button.constData());
    QStringList down;
    for (const MyButton *entry : m_pWindow->findChildren<MyButton *>()) {
        if (entry->isDown())
            down << entry->objectName();
    }
    QCOMPARE(down, QStringList(QString::fromLatin1(button)));
    for (const QWidget *screen : {static_cast<QWidget *>(m_pWindow->findChild<DiskStatus *>()),
                                  static_cast<QWidget *>(m_pWindow->findChild<SmartStatus *>()),
                                  static_cast<QWidget *>(m_pWindow->findChild<DiskPartition *>()),
                                  static_cast<QWidget *>(m_pWindow->findChild<ScanDisk *>())})
        QCOMPARE(screen->isVisible(), QLatin1String(screen->metaObject()->className()) == page);
    QStringList shown;
    for (const char *name : {"ScanButton", "CloneButton", "ReportSaveButton", "ScreenshotButton",
                             "StopButton", "StopTestButton"}) {
        if (child<QPushButton>(name)->isVisible())
            shown << QLatin1String(name);
    }
    QCOMPARE(shown, buttons);
    waitForRead();
}

void tst_MainWindow::hoverFollowsTheDownState()
{
    auto *status = child<MyButton>("DiskStatusButton");
    auto *scan = child<MyButton>("ScanDiskButton");
    emit status->ChangePixmap();
    emit scan->ChangePixmap();
    QVERIFY(status->styleSheet().contains(QLatin1String("img_DiskStatusSel")));
    QVERIFY(scan->styleSheet().contains(QLatin1String("img_ScanDiskHov")));
    emit scan->OnUpdatePixmap();
    QCOMPARE(scan->styleSheet(), QStringLiteral("QPushButton{border-image: url(:/images/img_ScanDiskNo.png)}"
                                                "QPushButton{Text-align:left}"
                                                "QPushButton {color : rgb(0,0,0);}"));
}

void tst_MainWindow::openResultsAskFirst()
{
    press("ScanDiskButton");
    g_bScanResultOpen = true;
    press("DiskPartitionButton");
    auto *question = m_pWindow->findChild<ScanSwitchClass *>();
    QVERIFY(question->isVisible());
    QVERIFY(m_pWindow->findChild<ScanDisk *>()->isVisible());
    buttonOf(question, "NoButton")->click();
    QVERIFY(!question->isVisible());
    QVERIFY(child<MyButton>("ScanDiskButton")->styleSheet().contains(QLatin1String("Sel")));
    QVERIFY(!child<MyButton>("DiskPartitionButton")->styleSheet().contains(QLatin1String("Sel")));

    // The last pressed button counts.
    press("DiskPartitionButton");
    press("SmartStatusButton");
    buttonOf(question, "YesButton")->click();
    QVERIFY(m_pWindow->findChild<SmartStatus *>()->isVisible());
    QVERIFY(!g_bScanResultOpen);
    waitForRead();
}

void tst_MainWindow::eachSelectionRunsTheSameCommands()
{
    QCOMPARE(commands("TASKKILL.exe"), 1);
    select(1);
    QCOMPARE(commands("TASKKILL.exe"), 2);
    select(0);
    QCOMPARE(commands("TASKKILL.exe"), 3);
}

void tst_MainWindow::refreshGoesBackToTheFirstDisk()
{
    select(1);
    m_pWindow->OnRefresh();
    QVERIFY(child<QFrame>("GifFrame")->isVisible());
    QTRY_COMPARE_WITH_TIMEOUT(child<QComboBox>("DriveCombobox")->currentIndex(), 0, 10000);
    waitForRead();
    QTRY_COMPARE(text("ModelNumValLbl"), QStringLiteral("WDC WD10EZEX-00RKKA0"));
}

void tst_MainWindow::aNoticeDuringARefreshIsNotLost()
{
    const int before = commands("diskdrive get");
    m_pWindow->OnRefresh();
    m_pWindow->OnRefresh();
    // During the load only the loader may use the lists, whatever the user does.
    QVERIFY(!findPhysicalDisk(128));
    auto *combo = child<QComboBox>("DriveCombobox");
    combo->setCurrentIndex(1);
    emit combo->activated(1);
    press("ScanDiskButton");
    press("CloneDiskButton");
    press("DiskStatusButton");
    // Two loads: the one of the first notice, and one more after it.
    QTRY_COMPARE_WITH_TIMEOUT(commands("diskdrive get"), before + 4, 10000);
    QTRY_VERIFY_WITH_TIMEOUT(findPhysicalDisk(128), 10000);
    waitForRead();
    QTRY_COMPARE(text("ModelNumValLbl"), QStringLiteral("WDC WD10EZEX-00RKKA0"));
}

void tst_MainWindow::refreshWaitsForNoJob()
{
    const int before = commands("WMIC.exe");
    g_bJobRunning = true;
    m_pWindow->OnRefresh();
    QTest::qWait(100);
    QVERIFY(!child<QFrame>("GifFrame")->isVisible());
    QCOMPARE(commands("WMIC.exe"), before);
}

void tst_MainWindow::pollActsOnDiskPartitionOnly()
{
    const int before = commands("smartctl64Bit.exe -a");
    m_pWindow->GetSmartTemprature();
    QCOMPARE(commands("smartctl64Bit.exe -a"), before);
    press("DiskPartitionButton");
    m_pWindow->GetSmartTemprature();
    QCOMPARE(commands("smartctl64Bit.exe -a"), before + 1);
    QVERIFY(text("tempValueLbl").endsWith(QStringLiteral("\u00B0C")));
}

void tst_MainWindow::pollShowsOnTheTileAlone()
{
    const QString shown = text("tempValueLbl");
    press("DiskPartitionButton");
    auto *tile = child<QLabel>("tempValueLbl");
    tile->setText(QStringLiteral("before"));
    m_pWindow->OnRefresh();
    m_pWindow->GetSmartTemprature();
    QCOMPARE(tile->text(), QStringLiteral("before")); // a refresh runs
    waitForRead();
    g_strTemperatureText = QStringLiteral("kept");
    tile->setText(QStringLiteral("before"));
    m_pWindow->GetSmartTemprature();
    QCOMPARE(tile->text(), shown);
    QCOMPARE(g_strTemperatureText, QStringLiteral("kept"));
}

void tst_MainWindow::shutsTheSystemDown()
{
    QCOMPARE(commands("shutdown"), 0);
    m_pWindow->OnSystemShutDown();
    QVERIFY(logLines("commands.log").last().endsWith(" /c shutdown /s "));
}

void tst_MainWindow::languageChangeRedoesTheDetails()
{
    const QString before = text("PowerOnTimeValue");
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(m_pWindow->findChild<DiskStatus *>(), &change);
    QString after = before;
    QCOMPARE(text("PowerOnTimeValue"), after.replace(QStringLiteral(", "), QStringLiteral(" , ")));
    QCOMPARE(text("ModelNumValLbl"), QStringLiteral("WDC WD10EZEX-00RKKA0"));
    QCOMPARE(child<QLabel>("performanceTitleLbl")->height(), 20);
}

void tst_MainWindow::closingAsks()
{
    QVERIFY(!m_pWindow->close());
    QVERIFY(m_pWindow->isVisible());
    CloseWgt *question = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<CloseWgt *>(widget); found && found->isVisible())
            question = found;
    }
    QVERIFY(question);
    buttonOf(question, "NoButton")->click();
    QVERIFY(!question->isVisible());
}

void tst_MainWindow::closingIsRefusedDuringAJob_data()
{
    QTest::addColumn<QByteArray>("screen");
    QTest::addColumn<QString>("closing"); // empty: no panel
    QTest::addColumn<QString>("yes");
    QTest::newRow("scan") << QByteArray("ScanDiskButton") << "Disk scan running."
                          << "Scaning Running.";
    QTest::newRow("clone") << QByteArray("CloneDiskButton") << "Cloning process running."
                           << "Clone Running.";
    QTest::newRow("elsewhere") << QByteArray("DiskPartitionButton") << ""
                               << "";
}

void tst_MainWindow::closingIsRefusedDuringAJob()
{
    QFETCH(QByteArray, screen);
    QFETCH(QString, closing);
    QFETCH(QString, yes);
    press(screen.constData());
    g_bJobRunning = true;
    auto *panel = m_pWindow->findChild<DestinitionWarning *>();
    m_pWindow->close();
    QCOMPARE(panel->isVisible(), !closing.isEmpty());
    if (!closing.isEmpty())
        QCOMPARE(labelOf(panel, "WarningTxtLbl")->text(), closing);
    m_pWindow->Onyes();
    if (!yes.isEmpty())
        QCOMPARE(labelOf(panel, "WarningTxtLbl")->text(), yes);
}

void tst_MainWindow::startsOnTheClonePage()
{
    m_pWindow.reset();
    g_strStartArgument = QStringLiteral("CloneDisk####wdcwd10ezex-00rkka0");
    makeWindow();
    QVERIFY(child<MyButton>("CloneDiskButton")->isDown());
    QCOMPARE(child<QComboBox>("SourceComboBox")->currentIndex(), 0);
    QCOMPARE(child<QComboBox>("DestinationComboBox")->count(), 3); // the placeholder and the two other disks
}

void tst_MainWindow::tellsOfMissingRights()
{
    tearDown();
    startPc(R"({"pauses": false, "disks": [{"number": 0, "model": "Alpha", "opens": false}],
                "settings": {"FirstTimeLaunch": 1}})");
    const int atLoad = commands("smartctl64Bit.exe");
    makeWindow();
    press("CloneDiskButton");
    QVERIFY(child<QLabel>("m_pAdvice")->isVisible());
    QVERIFY(text("m_pAdvice").contains(QStringLiteral("administrator")));
    QVERIFY(!child<QLabel>("HelthLable")->isVisible() && !child<QFrame>("GifFrame")->isVisible());
    for (const char *button : {"ScanButton", "CloneButton", "ReportSaveButton", "ScreenshotButton"})
        QVERIFY2(!child<QPushButton>(button)->isEnabled(), button);
    QCOMPARE(commands("smartctl64Bit.exe"), atLoad);

    g_App.m_bAccessDenied = false;
    m_pWindow->RefreshSelectedDisk();
    QVERIFY(!child<QLabel>("m_pAdvice")->isVisible());
    QVERIFY(child<QComboBox>("SourceComboBox")->isVisible());
    QVERIFY(child<QPushButton>("CloneButton")->isEnabled());
}

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
