// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "clone/CloneMessages.h"
#include "platform/PlainText.h"
#include "smart/SelfTestGlobals.h"

namespace
{

clonemessages::Side sideOf(const DiskNode &node)
{
    return {node.nId - PhysicalDriveBase, node.pDetails ? node.pDetails->nTotalSectors : 0};
}

} // namespace

void MainWindow::OnCloneStart()
{
    // A refresh that is under way takes back the choice of disks.
    if (g_bListsLoading || g_Jobs.runs(Job::Clone))
        return;
    selectButton(navigation::CloneDiskScreen);
    m_askedPair = m_pCloneDiskPage->ChosenPair();
    m_pCloneWarning->NameDisks(tr("Source disk:     ") + plaintext::isolated(m_askedPair.first.second),
                               tr("Destination disk:    ") + plaintext::isolated(m_askedPair.second.second));
    if (m_pCloneDiskPage->HasDestination()) {
        showCentred(m_pCloneWarning);
        return;
    }
    m_pCloneWarning->hide();
    // A new dialog, as the old one may show the texts of a running job.
    delete m_pDestinitionWarning;
    m_pDestinitionWarning = new DestinitionWarning(this);
    connect(m_pDestinitionWarning, &MessageDialog::dismissed, this, &MainWindow::OnCloseDestinitionWarning);
    showCentred(m_pDestinitionWarning);
}

void MainWindow::OnCloningStart()
{
    m_pCloneWarning->hide();
    // A running clone uses two nodes of the lists. A stopped scan that has not ended yet would go on, as
    // the start of a clone clears the stop request.
    if (!g_Jobs.mayStart())
        return;
    // The user may have gone to another page while the question was open.
    if (!m_pCloneDiskPage->isVisible())
        return;
    LookUpDisk(m_pCloneDiskPage->SourceIndex());
    const int target = m_pCloneDiskPage->DestinationId();
    g_App.m_pCloneDisk = findPhysicalDisk(target);
    const bool known = g_App.m_pCurrentDisk && g_App.m_pCloneDisk;
    if (const auto refusal =
            known ? clonemessages::refusal(sideOf(*g_App.m_pCurrentDisk), sideOf(*g_App.m_pCloneDisk))
                  : std::nullopt) {
        m_pCloneDiskPage->ShowMessage(*refusal);
        return;
    }
    // Only a disk that the question named is erased.
    if (known && m_askedPair.second.first == target && m_pCloneDiskPage->ChosenPair() == m_askedPair) {
        lockShell(navigation::CloneDiskScreen);
        m_pCloneDiskPage->StartClone();
        keepAwake();
        return;
    }
    OnCloneStart();
    // The second half of a double click must not answer a question that nobody has read.
    m_pCloneWarning->HoldStart();
}

void MainWindow::OnCloningFinish()
{
    releaseShell();
    const bool left = !m_pCloneDiskPage->isVisible();
    m_ui.CloneButton->setVisible(!left && !isOnShow(navigation::ScanDiskScreen));
    // The user has gone to another screen meanwhile, for which no disk was read during the clone.
    if (left)
        RefreshSelectedDisk();
}

void MainWindow::OnFinishDiskCloning()
{
    m_ui.StopButton->hide();
    enableNavigation();
    m_ui.DriveCombobox->setEnabled(!g_bTestPending);
    // A user who has left the page before the result was read stays where he is.
    if (m_pCloneDiskPage->isVisible())
        selectButton(navigation::CloneDiskScreen);
    refreshBehindJob();
}
