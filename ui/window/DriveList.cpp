#include "ui/window/MainWindow.h"

#include "inventory/WmicInventory.h"
#include "smart/DiskFigures.h"
#include "state/DriveTexts.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/StartArgument.h"
#include "ui/dialogs/CloneWarning.h"
#include "ui/screens/CloneDisk.h"
#include "ui/screens/ScanDisk.h"

void MainWindow::FillDriveCombos()
{
    QComboBox *source = m_pCloneDiskPage->SourceComboBox;
    QComboBox *target = m_pCloneDiskPage->DestinationComboBox;
    const QSignalBlocker blockDrive(DriveCombobox);
    const QSignalBlocker blockSource(source);
    const QSignalBlocker blockTarget(target);
    DriveCombobox->clear();
    source->clear();
    target->clear();
    m_hashComboToDisk.clear();
    m_pCloneDiskPage->ForgetDestination();
    g_strSelectDestination = tr("Select Destination");
    target->addItem(g_strSelectDestination);

    for (DiskNode *node = g_App.m_pDiskListHead; node; node = node->pNext) {
        if (!isPhysicalKind(node->nKind))
            continue;
        drivetexts::fillDisplayFields(*node);
        g_strSelectedSize = node->szSize.text();
    }
    for (const drivetexts::Entry &entry : drivetexts::entries(g_App.m_pDiskListHead)) {
        m_hashComboToDisk.insert(DriveCombobox->count(), entry.node->nId);
        DriveCombobox->addItem(entry.texts.drive, static_cast<int>(entry.node->nId));
        source->addItem(entry.texts.source, static_cast<int>(entry.node->nId));
    }
}

void MainWindow::LookUpDisk(int comboIndex)
{
    // The thread of a job takes the current disk by itself. Who has left the job gets his own at its end.
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

void MainWindow::OnComboboxIndexChange(int index)
{
    DriveCombobox->setCurrentIndex(index);
}

void MainWindow::OnTargetChangeIndex(int nIndex)
{
    m_pCloneDiskPage->ShowTargetDetails(nIndex != 0);
    if (nIndex != 0)
        CloneButton->setEnabled(true);
}

void MainWindow::OnSourceIndexChange(int) {}

void MainWindow::selectCloneArgument()
{
    QComboBox *source = m_pCloneDiskPage->SourceComboBox;
    if (const auto disk = startargument::cloneDiskText(g_strStartArgument)) {
        for (int i = 0; i < DriveCombobox->count(); ++i) {
            if (startargument::matchesDisk(DriveCombobox->itemText(i), *disk) ||
                startargument::matchesDisk(source->itemText(i), *disk)) {
                DriveCombobox->setCurrentIndex(i);
                break;
            }
        }
    }
}

void MainWindow::refreshClonePage()
{
    // The choice of disks is that of the clone until it has ended. The lists and the identity texts are the
    // loader's during a refresh, whose end comes back here.
    if (g_bListsLoading || g_Jobs.runs(Job::Clone))
        return;
    clearIdentityTexts();
    QComboBox *source = m_pCloneDiskPage->SourceComboBox;
    source->setCurrentIndex(DriveCombobox->currentIndex());
    LookUpDisk(DriveCombobox->currentIndex());
    m_pCloneDiskPage->RefreshSourceDetails(g_App.m_pCurrentDisk);
}

void MainWindow::OnRefresh()
{
    if (g_bJobRunning)
        return;
    // A job holds nodes of the lists until its thread is at rest, also behind that flag. The result of a scan
    // shows under its disk until it was read, also where that has gone.
    if (g_Jobs.holdsDisks() || m_pScanDiskPage->IsResultUnread()) {
        g_bListsStale = true;
        return;
    }
    g_bListsStale = false;
    m_bRefreshing = true;
    // The disks that it names may be others in the new lists.
    m_pCloneWarning->hide();
    enterBusy(tr("Please wait. Application Refreshing..."));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // From here to OnInitialize() the lists are the thread's. A read that is under way ends first: both use
    // one file.
    m_bRefreshAgain = g_bListsLoading;
    if (g_bListsLoading)
        return;
    g_bListsLoading = true;
    m_smartThread.forget();
    updateReportButtons();
    g_App.m_pCurrentDisk = nullptr;
    g_App.m_pCloneDisk = nullptr;
    m_refreshThread.startBehind(m_smartThread);
}

/// What went during a job leaves the lists behind it.
void MainWindow::refreshBehindJob()
{
    if (g_bListsStale)
        OnRefresh();
}

void MainWindow::OnInitialize()
{
    // The first run behind a load has its lists; there is nothing for later ones, nor while a newer load
    // runs.
    if (!g_bListsLoading || !m_refreshThread.isComplete())
        return;
    g_bListsLoading = false;
    FillDriveCombos();
    const int systemDisk = GetSystemDiskIndex().toInt();
    for (int i = 0; i < DriveCombobox->count(); ++i) {
        // The plain disk number against the item's 128 + number: on a normal machine nothing matches, and the
        // selection stays at the first item.
        if (DriveCombobox->itemData(i).toInt() == systemDisk) {
            DriveCombobox->setCurrentIndex(i);
            m_pCloneDiskPage->SourceComboBox->setCurrentIndex(i);
        }
    }
    keepScannedDisk();
    leaveBusy();
    // A number may stand for another disk now.
    takeUpDisk(NoDisk);
    RefreshSelectedDisk();
    m_bRefreshing = false;
    // What came or went during the load may be missing in the lists.
    if (m_bRefreshAgain)
        OnRefresh();
}
