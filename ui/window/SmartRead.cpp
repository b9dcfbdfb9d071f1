// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "inventory/CommandRunner.h"
#include "inventory/Companion.h"
#include "smart/DiskFigures.h"
#include "smart/SmartGlobals.h"
#include "smart/Temperature.h"
#include "state/DiskIdentityTexts.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Scale.h"
#include "state/SettingsRules.h"
#include "state/SettingsStore.h"
#include "state/StartArgument.h"
#include "ui/screens/CloneDisk.h"
#include "ui/screens/DiskPartition.h"
#include "ui/screens/DiskStatus.h"
#include "ui/screens/PageLook.h"
#include "ui/screens/SmartStatus.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/SmartChartView.h"
#include "ui/widgets/Style.h"

#include <QDir>
#include <QMovie>
#include <QTreeWidget>

namespace
{

void showPercent(QLabel *label, bool known, const QString &percent)
{
    label->setText(known ? percent : MainWindow::tr("Not Supported"));
}

QString interfaceOrDefault(const QString &text)
{
    return text.isEmpty() ? MainWindow::tr("ATA Disk") : text;
}

} // namespace

int MainWindow::currentComboDisk() const
{
    return DriveCombobox->currentData().toInt() - PhysicalDriveBase;
}

void MainWindow::RequestSmartRead(int diskIndex)
{
    // After a refresh the disk is read anyway.
    if (!g_bListsLoading)
        m_smartThread.RequestSmartRead(diskIndex);
}

/// Clears what is on show of the previous disk, so that it does not stand under the name of the new one.
void MainWindow::takeUpChosenDisk()
{
    g_nCurrentDiskIndex = currentComboDisk();
    if (!takeUpDisk(g_nCurrentDiskIndex))
        return;
    m_pDiskStatusPage->clearDisk();
    m_pSmartStatusPage->ClearDisk();
    clearPartitions();
    m_pDiskPartitionPage->FillPartitionHeader();
    m_pDiskPartitionPage->ShowSizes();
    for (QLabel *value : {SerialNumValLabel, InterfaceTypeLabel, CapacityValLabel, ResultLabel})
        value->clear();
    showWaitingTiles();
}

void MainWindow::clearIdentityTexts()
{
    for (QString *text : {&g_strSerialNumber, &g_strModelName, &g_strFirmware})
        text->clear();
}

void MainWindow::showWaitingTiles()
{
    m_pDiskStatusPage->tempValueLbl->setText(waitingTemperatureText(SettingsStore().text(key::TempValue)));
    g_strHealthText = QStringLiteral("0%");
    g_strPerformanceText = QStringLiteral("0%");
    m_pDiskStatusPage->healthValueLbl->setText(g_strHealthText);
    m_pDiskStatusPage->performanceValueLbl->setText(g_strPerformanceText);
    for (QLabel *summary : {SerialNumLabel, SerialNumValLabel, InterfaceTypeLabel, CapacityValLabel,
                            SmartStatusLabel, ResultLabel})
        summary->hide();
}

void MainWindow::RefreshSelectedDisk()
{
    takeUpChosenDisk();
    updateReportButtons();
    // The end of a refresh reloads the screen on show. A clone keeps the disks that it was started with.
    if (g_bListsLoading || g_Jobs.runs(Job::Clone))
        return;
    showAccess();
    showWaitingTiles();
    clearIdentityTexts();
    if (g_App.m_bAccessDenied)
        return;
    LookUpDisk(DriveCombobox->currentIndex());
    if (isOnShow(navigation::DiskStatusScreen)) {
        startRead();
    } else if (isOnShow(navigation::SmartStatusScreen)) {
        m_pSmartStatusPage->m_pAttributeTree->clear();
        startRead();
    } else if (isOnShow(navigation::ScanDiskScreen)) {
        refreshScanPage();
    } else if (isOnShow(navigation::CloneDiskScreen)) {
        selectCloneArgument();
        refreshClonePage();
        if (startargument::asksForClone(g_strStartArgument))
            OnCloneDiskPressImage();
    } else if (isOnShow(navigation::DiskPartitionScreen)) {
        m_pDiskPartitionPage->FillPartitionHeader();
        ShowPartitions(BitLockerMark::AsWritten);
    }
}

void MainWindow::startRead()
{
    RequestSmartRead(g_nCurrentDiskIndex);
    updateReportButtons();
    enterBusy(tr("Please wait. Getting SMART information..."));
}

/// Report and screenshot are of the disk that is chosen, or there are none.
void MainWindow::updateReportButtons()
{
    ReportSaveButton->setEnabled(reportKnown());
    ScreenshotButton->setEnabled(reportKnown());
}

bool MainWindow::reportKnown() const
{
    return g_bSmartAvailable && !g_bReportPending && !g_bListsLoading && !m_smartThread.isReading();
}

void MainWindow::enterBusy(const QString &text)
{
    QMovie *previous = m_pMovie;
    m_pMovie = images::newMovie(QStringLiteral("img_Scan.gif"), this);
    Giflabel->setMovie(m_pMovie);
    delete previous;
    label->setText(text);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_pMovie->start();
    GifFrame->show();
}

void MainWindow::leaveBusy()
{
    if (m_pMovie)
        m_pMovie->stop();
    GifFrame->hide();
}

void MainWindow::prepareLogFolder()
{
    const QString folder = settings::logFolderOf(SettingsStore().text(key::LogSavePath));
    if (folder.isEmpty())
        return;
    const QDir directory(nativePath(folder));
    if (!directory.exists())
        directory.mkpath(QStringLiteral("."));
}

void MainWindow::OnInitializeSmart()
{
    // Only the first call after a read finds a report. There is none while a newer read runs, or if a
    // refresh has cut the read short.
    const std::optional<LoadedReport> loaded = m_smartThread.takeReport();
    if (!loaded)
        return;
    publish(*loaded);
    prepareLogFolder();
    if (loaded->disk == currentComboDisk()) {
        if (isOnShow(navigation::SmartStatusScreen))
            initializeSmartStatus();
        else if (isOnShow(navigation::DiskStatusScreen))
            initializeDiskStatus();
    }
    updateReportButtons();
    leaveBusy();
}

void MainWindow::initializeSmartStatus()
{
    takeReportIn(g_strSmartReportPath);
    g_bReportPending = false;
    const int celsius = GetDiskTemperature();
    // A drive that fails its own check has attributes, too, so it is rated.
    if (celsius != 0)
        g_bSmartAvailable = true;
    ComputePerformance();
    ComputeHealth();

    LookUpDisk(DriveCombobox->currentIndex());
    const DiskNode *node = g_App.m_pCurrentDisk;
    const WmicDiskRecord *record = node ? findWmicDisk(node->nId) : nullptr;
    // The report that may be saved from here tells it.
    g_strTemperatureText = loadTemperatureText(celsius, SettingsStore().text(key::TempValue));
    g_bSmartAvailable = celsius != 0;
    m_pSmartStatusPage->m_pChartView->setVisible(g_bSmartAvailable);
    m_pSmartStatusPage->ShowResult(overallResult(g_bSmartAvailable, celsius, g_driveVerdict));

    showSmartHeading();
    const QString interfaceText = interfaceOrDefault(record ? record->szInterface.text() : QString());
    m_pSmartStatusPage->ShowInterface(interfaceText);
    InterfaceTypeLabel->setText(interfaceText);
    if (record)
        m_pSmartStatusPage->ShowSerial(record->szSmartSerial.text());
    if (node && node->nKind == FixedDisk && !g_strSerialNumber.trimmed().isEmpty())
        m_pSmartStatusPage->ShowSerial(g_strSerialNumber.trimmed());
    if (node)
        m_pSmartStatusPage->ShowCapacity(node->szSize.text());
    m_pSmartStatusPage->ShowGraphTitle(QString());
    m_pSmartStatusPage->m_pAttributeTree->clear();
    FillSmartTable();
}

void MainWindow::showSmartHeading()
{
    m_pSmartStatusPage->m_pHeadingLabel->setText(tr("SMART Status"));
    m_pSmartStatusPage->m_pHeadingLabel->setFont(style::semiBold(12));
    m_pSmartStatusPage->m_pHeadingLabel->setStyleSheet(QStringLiteral("QLabel {color : white;}"));
    m_pSmartStatusPage->m_pHeadingResultLabel->setFont(style::semiBold(13, true));
    m_pSmartStatusPage->m_pHeadingResultLabel->setStyleSheet(QStringLiteral("QLabel {color : white;}"));
}

void MainWindow::initializeDiskStatus()
{
    takeReportIn(g_strSmartReportPath);
    g_bReportPending = false;
    const int celsius = GetDiskTemperature();
    if (!SettingsStore().flag(key::ShowTrayIcon))
        companion::killAfterRead();
    else
        companion::ensureRunning();
    showTemperature(celsius);
    g_bSmartAvailable = celsius != 0;
    ComputePerformance();
    ComputeHealth();
    ShowDiskLifeDetails();
}

void MainWindow::showTemperature(int celsius)
{
    g_strTemperatureText = loadTemperatureText(celsius, SettingsStore().text(key::TempValue));
    m_pDiskStatusPage->tempValueLbl->setText(celsius < 1 ? tr("Not Supported") : g_strTemperatureText);
    m_pDiskStatusPage->showPicture(DiskStatus::Picture::Temperature, loadTemperaturePicture(celsius));
}

void MainWindow::ComputePerformance()
{
    ratePerformance();
    showPercent(m_pDiskStatusPage->performanceValueLbl, g_bSmartAvailable, g_strPerformanceText);
    m_pDiskStatusPage->showPicture(DiskStatus::Picture::Performance,
                                   performancePicture(g_nPerformancePercent, scale::percent()));
}

void MainWindow::ComputeHealth()
{
    rateHealth();
    showPercent(m_pDiskStatusPage->healthValueLbl, g_bSmartAvailable && g_bHealthKnown, g_strHealthText);
    const std::optional<int> percent = g_bHealthKnown ? std::optional<int>(g_nHealthPercent) : std::nullopt;
    m_pDiskStatusPage->showPicture(DiskStatus::Picture::Health, healthPicture(percent, scale::percent()));
}

void MainWindow::ShowDiskLifeDetails()
{
    const DiskNode *node = findPhysicalDisk(PhysicalDriveBase + g_nCurrentDiskIndex);
    const WmicDiskRecord *record = node ? findWmicDisk(node->nId) : nullptr;
    const DiskIdentityTexts texts =
        identityTextsAfterRead(node, record, g_nCurrentDiskIndex,
                               {g_strModelName, g_strSerialNumber, g_strFirmware, g_bSmartAvailable});
    m_pDiskStatusPage->showIdentity(texts);
    if (texts.summary)
        SerialNumValLabel->setText(*texts.summary);
    if (texts.interfaceText)
        g_strInterface = *texts.interfaceText;
    showOverallResult();
    showLifeFields(node);
}

void MainWindow::showOverallResult()
{
    pagelook::showResult(ResultLabel, overallResult(g_bSmartAvailable, GetDiskTemperature(), g_driveVerdict));
}

void MainWindow::showLifeFields(const DiskNode *node)
{
    const LifeKind kind =
        lifeKind(g_App.m_bNVMe, node && node->nKind == RemovableDisk, !g_smartTable.rows.isEmpty());
    if (kind == LifeKind::Known)
        updateLifeFigures();
    m_pDiskStatusPage->showLife(lifeTexts(kind, g_lifeFigures));
    m_pDiskStatusPage->showVerdict(g_driveVerdict);
}

void MainWindow::GetSmartTemprature()
{
    // Reads only while Disk Partition shows, although the tile it writes lies on another screen. While
    // another read uses the file it does nothing; in a minute it runs again.
    if (m_bRefreshing || g_App.m_bAccessDenied || m_smartThread.isReading() ||
        !isOnShow(navigation::DiskPartitionScreen))
        return;
    const QString unit = SettingsStore().text(key::TempValue);
    RefreshTemperatureReport(currentComboDisk());
    const int celsius = GetDiskTemperature();
    m_pDiskStatusPage->tempValueLbl->setText(pollTemperatureText(celsius, unit));
    m_pDiskStatusPage->showPicture(DiskStatus::Picture::Temperature, pollTemperaturePicture(celsius));
}

void MainWindow::OnSystemShutDown()
{
    RunSilent("shutdown /s", "");
}

void MainWindow::DetailsforSelftest()
{
    g_nCurrentDiskIndex = currentComboDisk();
    const int comboIndex = DriveCombobox->currentIndex();
    LookUpDisk(comboIndex);
    if (const WmicDiskRecord *record =
            findWmicDisk(static_cast<std::uint32_t>(g_nCurrentDiskIndex + PhysicalDriveBase))) {
        g_strSelfTestModel = record->szSmartModel.text();
        g_strSelfTestSerial = record->szSmartSerial.text();
        m_pDiskStatusPage->showModelAndSerial(g_strSelfTestModel, g_strSelfTestSerial);
    }
    g_strSelfTestDevice = selfTestDevice(g_nCurrentDiskIndex, comboIndex);
}
