// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "inventory/CommandRunner.h"
#include "platform/OwnFiles.h"
#include "smart/AttributeColumns.h"
#include "smart/DiskFigures.h"
#include "smart/SmartGlobals.h"
#include "smart/Temperature.h"
#include "state/DiskIdentityTexts.h"
#include "state/Globals.h"
#include "state/Scale.h"
#include "state/SettingsRules.h"
#include "state/SettingsStore.h"
#include "state/StartArgument.h"
#include "ui/widgets/Style.h"

#include <QFileInfo>
#include <QMovie>
#include <QTreeWidgetItem>

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
    m_pDiskPartitionPage->ClearVolumes();
    for (QLabel *value :
         {m_ui.SerialNumValLabel, m_ui.InterfaceTypeLabel, m_ui.CapacityValLabel, m_ui.ResultLabel})
        value->clear();
    showWaitingTiles();
}

void MainWindow::showWaitingTiles()
{
    g_strHealthText = QStringLiteral("0%");
    g_strPerformanceText = QStringLiteral("0%");
    m_pDiskStatusPage->showTile(DiskStatus::Temperature,
                                waitingTemperatureText(SettingsStore().text(key::TempValue)));
    m_pDiskStatusPage->showTile(DiskStatus::Health, g_strHealthText);
    m_pDiskStatusPage->showTile(DiskStatus::Performance, g_strPerformanceText);
    style::setVisible({m_ui.SerialNumLabel, m_ui.SerialNumValLabel, m_ui.InterfaceTypeLabel,
                       m_ui.CapacityValLabel, m_ui.SmartStatusLabel, m_ui.ResultLabel},
                      false);
}

void MainWindow::RefreshSelectedDisk()
{
    takeUpChosenDisk();
    updateButtons();
    // The end of a refresh reloads the screen on show. A clone keeps the disks that it was started with.
    if (g_bListsLoading || g_Jobs.runs(Job::Clone))
        return;
    showAccess();
    showWaitingTiles();
    forgetIdentity();
    if (g_App.m_bAccessDenied)
        return;
    LookUpDisk(m_ui.DriveCombobox->currentIndex());
    if (isOnShow(navigation::DiskStatusScreen)) {
        startRead();
    } else if (isOnShow(navigation::SmartStatusScreen)) {
        m_pSmartStatusPage->ClearRows();
        startRead();
    } else if (isOnShow(navigation::ScanDiskScreen)) {
        refreshScanPage();
    } else if (isOnShow(navigation::CloneDiskScreen)) {
        selectCloneArgument();
        refreshClonePage();
        if (startargument::asksForClone(g_strStartArgument))
            OnCloneDiskPressImage();
    } else if (isOnShow(navigation::DiskPartitionScreen)) {
        ShowPartitions(QStringLiteral("(BitLocker)"));
    }
}

void MainWindow::ShowPartitions(const QString &mark)
{
    // They are shown again at the end of the refresh.
    if (!g_bListsLoading)
        m_pDiskPartitionPage->ShowVolumes(mark);
}

void MainWindow::startRead()
{
    RequestSmartRead(g_nCurrentDiskIndex);
    updateButtons();
    enterBusy(tr("Please wait. Getting SMART information..."));
}

/// Buttons that cannot do anything are grey: without the report of the chosen disk, without a disk to scan,
/// and without two for a clone.
void MainWindow::updateButtons()
{
    m_ui.ReportSaveButton->setEnabled(reportKnown());
    m_ui.ScreenshotButton->setEnabled(reportKnown());
    const int disks = g_App.m_bAccessDenied ? 0 : m_ui.DriveCombobox->count();
    m_ui.ScanButton->setEnabled(disks > 0 && g_Jobs.mayStart());
    m_ui.CloneButton->setEnabled(disks > 1);
}

bool MainWindow::reportKnown() const
{
    return g_bSmartAvailable && !g_bReportPending && !g_bListsLoading && !m_smartThread.isReading();
}

void MainWindow::enterBusy(const QString &text)
{
    m_ui.label->setText(text);
    m_ui.label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // As wide as the text needs, in the middle.
    m_ui.label->setMinimumWidth(0);
    m_ui.label->setFixedWidth(m_ui.label->sizeHint().width());
    m_ui.GifFrame->setFixedWidth(m_ui.label->x() + m_ui.label->width() + style::px(16));
    m_ui.GifFrame->move((m_ui.WidgetFrame->width() - m_ui.GifFrame->width()) / 2, m_ui.GifFrame->y());
    m_pMovie->start();
    m_ui.GifFrame->show();
}

void MainWindow::leaveBusy()
{
    m_pMovie->stop();
    m_ui.GifFrame->hide();
}

void MainWindow::prepareLogFolder()
{
    const QString folder = settings::logFolderOf(SettingsStore().text(key::LogSavePath));
    if (folder.isEmpty())
        return;
    // A folder that others could swap is none for an administrator's program.
    const QString path = nativePath(folder);
    if (!QFileInfo::exists(path))
        ownfiles::makeFolder(path);
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
    updateButtons();
    leaveBusy();
}

/// Takes in the report that the reader thread has written, and gives its temperature in °C.
int MainWindow::takeReading()
{
    takeReportIn(g_strSmartReportPath);
    g_bReportPending = false;
    const int celsius = GetDiskTemperature();
    // A report that is saved later holds this text.
    g_strTemperatureText = loadTemperatureText(celsius, SettingsStore().text(key::TempValue));
    return celsius;
}

void MainWindow::initializeSmartStatus()
{
    const int celsius = takeReading();
    // A drive that fails its own check has attributes, too, so it is rated.
    if (celsius != 0)
        g_bSmartAvailable = true;
    ComputePerformance();
    ComputeHealth();
    g_bSmartAvailable = celsius != 0;
    LookUpDisk(m_ui.DriveCombobox->currentIndex());
    m_pSmartStatusPage->ShowReading(overallResult(g_bSmartAvailable, celsius, g_driveVerdict));
    m_ui.InterfaceTypeLabel->setText(m_pSmartStatusPage->InterfaceText());
    FillSmartTable();
}

void MainWindow::initializeDiskStatus()
{
    const int celsius = takeReading();
    if (!SettingsStore().flag(key::ShowTrayIcon))
        companion::killAfterRead();
    else
        companion::ensureRunning();
    m_pDiskStatusPage->showTile(DiskStatus::Temperature,
                                celsius < 1 ? tr("Not Supported") : g_strTemperatureText,
                                loadTemperaturePicture(celsius));
    g_bSmartAvailable = celsius != 0;
    ComputePerformance();
    ComputeHealth();
    ShowDiskLifeDetails();
}

void MainWindow::ComputePerformance()
{
    ratePerformance();
    m_pDiskStatusPage->showTile(DiskStatus::Performance,
                                g_bSmartAvailable ? g_strPerformanceText : tr("Not Supported"),
                                performancePicture(g_nPerformancePercent, scale::percent()));
}

void MainWindow::ComputeHealth()
{
    rateHealth();
    const bool shown = g_bSmartAvailable && g_bHealthKnown;
    const std::optional<int> percent = g_bHealthKnown ? std::optional<int>(g_nHealthPercent) : std::nullopt;
    m_pDiskStatusPage->showTile(DiskStatus::Health, shown ? g_strHealthText : tr("Not Supported"),
                                healthPicture(percent, scale::percent()));
}

void MainWindow::ShowDiskLifeDetails()
{
    const DiskNode *node = findPhysicalDisk(PhysicalDriveBase + g_nCurrentDiskIndex);
    const WmicDiskRecord *record = node ? findWmicDisk(node->nId) : nullptr;
    const DiskIdentityTexts texts =
        identityTextsAfterRead(node, record, g_nCurrentDiskIndex,
                               {g_strModelName, g_strSerialNumber, g_strFirmware, g_bSmartAvailable});
    if (texts.summary)
        m_ui.SerialNumValLabel->setText(*texts.summary);
    if (texts.interfaceText)
        g_strInterface = *texts.interfaceText;
    showOverallResult();
    if (DiskStatus::lifeKindOf(node) == LifeKind::Known)
        updateLifeFigures();
    m_pDiskStatusPage->showDetails(texts, LoadSeparator);
}

void MainWindow::showOverallResult()
{
    pagelook::showResult(m_ui.ResultLabel,
                         overallResult(g_bSmartAvailable, GetDiskTemperature(), g_driveVerdict));
}

void MainWindow::FillSmartTable()
{
    const std::vector<AttributeRow> rows = currentRows();
    keepHistory(rows);
    if (QTreeWidgetItem *first = m_pSmartStatusPage->ShowRows(rows))
        GraphWithAttributes(first, 0);
}

void MainWindow::GraphWithAttributes(QTreeWidgetItem *item, int)
{
    // During a refresh only its thread may use the identity texts; at its end the table is filled anew.
    if (!item || g_bListsLoading)
        return;
    if (const auto graph = currentGraph(item->text(attributecolumns::key(g_App.m_bNVMe)))) {
        g_strGraphTitle = tr("Graph : ") + item->text(attributecolumns::Name);
        m_pSmartStatusPage->ShowGraph(g_strGraphTitle, graph->model, graph->text);
    }
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
    m_pDiskStatusPage->showTile(DiskStatus::Temperature, pollTemperatureText(celsius, unit),
                                pollTemperaturePicture(celsius));
}

void MainWindow::OnSystemShutDown()
{
    RunSilent("shutdown /s", "");
}
