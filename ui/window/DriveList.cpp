// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "inventory/WmicInventory.h"
#include "smart/DiskFigures.h"
#include "state/DriveTexts.h"
#include "state/StartArgument.h"

void MainWindow::FillDriveCombos()
{
    const QSignalBlocker block(m_ui.DriveCombobox);
    m_ui.DriveCombobox->clear();
    m_hashComboToDisk.clear();
    drivetexts::fillDisplayFields(g_App.m_diskList);
    const std::vector<drivetexts::Entry> disks = drivetexts::entries(g_App.m_diskList);
    for (const drivetexts::Entry &entry : disks) {
        m_hashComboToDisk.insert(m_ui.DriveCombobox->count(), entry.node->nId);
        m_ui.DriveCombobox->addItem(entry.texts.drive, static_cast<int>(entry.node->nId));
    }
    m_pCloneDiskPage->FillSources(disks);
}

void MainWindow::LookUpDisk(int comboIndex)
{
    // The thread of a job reads the current disk from g_App, so it must not change meanwhile. A user who
    // has gone to another screen gets the disk chosen there when the job ends.
    if (g_Jobs.holdsDisks())
        return;
    g_App.m_pCurrentDisk = nullptr;
    const auto entry = m_hashComboToDisk.constFind(comboIndex);
    if (entry == m_hashComboToDisk.constEnd())
        return;
    g_App.m_pCurrentDisk = findPhysicalDisk(*entry);
    if (g_App.m_pCurrentDisk)
        g_strSelectedSize = g_App.m_pCurrentDisk->szSize.text();
}

void MainWindow::OnActivatedDriveCombo(int)
{
    RefreshSelectedDisk();
    refreshBehindJob();
}

void MainWindow::OnTargetChangeIndex(int nIndex)
{
    m_pCloneDiskPage->ShowTargetDetails(nIndex != 0);
}

void MainWindow::selectCloneArgument()
{
    const auto disk = startargument::cloneDiskText(g_strStartArgument);
    for (int i = 0; disk && i < m_ui.DriveCombobox->count(); ++i) {
        if (startargument::matchesDisk(m_ui.DriveCombobox->itemText(i), *disk) ||
            startargument::matchesDisk(m_pCloneDiskPage->SourceText(i), *disk)) {
            m_ui.DriveCombobox->setCurrentIndex(i);
            return;
        }
    }
}

void MainWindow::selectStartDisk()
{
    const auto number = startargument::diskNumber(g_strStartArgument);
    // The items hold 128 + number.
    const int item = number ? m_ui.DriveCombobox->findData(128 + *number) : -1;
    if (item >= 0)
        m_ui.DriveCombobox->setCurrentIndex(item);
}

void MainWindow::refreshClonePage()
{
    // During a clone the page keeps the disks of that clone. During a refresh only its thread may use the
    // lists and the identity texts; at its end this function runs again.
    if (g_bListsLoading || g_Jobs.runs(Job::Clone))
        return;
    forgetIdentity();
    m_pCloneDiskPage->ChooseSource(m_ui.DriveCombobox->currentIndex());
    LookUpDisk(m_ui.DriveCombobox->currentIndex());
    m_pCloneDiskPage->RefreshSourceDetails(g_App.m_pCurrentDisk);
}

void MainWindow::OnRefresh()
{
    if (g_bJobRunning)
        return;
    // A job uses nodes of the lists until its thread has ended, which is later than that flag is cleared.
    // The result of a scan stays on show under its disk until it was read, even if the disk has gone.
    if (g_Jobs.holdsDisks() || m_pScanDiskPage->IsResultUnread()) {
        g_bListsStale = true;
        return;
    }
    g_bListsStale = false;
    m_bRefreshing = true;
    // The disk numbers in this question may belong to other disks in the new lists.
    m_pCloneWarning->hide();
    enterBusy(tr("Please wait. Application Refreshing..."));
    m_ui.label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // From here to OnInitialize() only the refresh thread may use the lists. It waits for a read that is
    // under way, as both write one file.
    m_bRefreshAgain = g_bListsLoading;
    if (g_bListsLoading)
        return;
    g_bListsLoading = true;
    m_smartThread.forget();
    updateButtons();
    g_App.m_pCurrentDisk = nullptr;
    g_App.m_pCloneDisk = nullptr;
    m_refreshThread.startBehind(m_smartThread);
}

/// After a job: reads the lists again if a disk went during it.
void MainWindow::refreshBehindJob()
{
    if (g_bListsStale)
        OnRefresh();
}

void MainWindow::OnInitialize()
{
    // Only the first call after a load has new lists to take. A later call has nothing to do, nor has one
    // while a newer load runs.
    if (!g_bListsLoading || !m_refreshThread.isComplete())
        return;
    g_bListsLoading = false;
    FillDriveCombos();
    const int systemDisk = GetSystemDiskIndex().toInt();
    for (int i = 0; i < m_ui.DriveCombobox->count(); ++i) {
        // Compares the plain disk number with 128 + number: on a normal machine nothing matches, and the
        // selection stays at the first item.
        if (m_ui.DriveCombobox->itemData(i).toInt() == systemDisk) {
            m_ui.DriveCombobox->setCurrentIndex(i);
            m_pCloneDiskPage->ChooseSource(i);
        }
    }
    keepScannedDisk();
    leaveBusy();
    // A number may stand for another disk now.
    takeUpDisk(NoDisk);
    RefreshSelectedDisk();
    m_bRefreshing = false;
    // The lists may not show what came or went during the load.
    if (m_bRefreshAgain)
        OnRefresh();
}
