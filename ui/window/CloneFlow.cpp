// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "clone/CloneMessages.h"
#include "platform/PlainText.h"
#include "smart/SelfTestGlobals.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/screens/CloneDisk.h"
#include "ui/screens/ScanDisk.h"
#include "ui/widgets/MyButton.h"
#include "ui/widgets/Style.h"

#include <initializer_list>

namespace
{

clonemessages::Side sideOf(const DiskNode &node)
{
    return {node.nId - PhysicalDriveBase, node.pDetails ? node.pDetails->nTotalSectors : 0};
}

} // namespace

/// The two disks as they are chosen now.
MainWindow::ClonePair MainWindow::chosenPair() const
{
    const QComboBox *source = m_pCloneDiskPage->SourceComboBox;
    const QComboBox *target = m_pCloneDiskPage->DestinationComboBox;
    return {source->currentData().toInt(), target->currentData().toInt(), source->currentText(),
            target->currentText()};
}

void MainWindow::OnCloneStart()
{
    // A refresh that is under way takes back the choice of disks.
    if (g_bListsLoading || g_Jobs.runs(Job::Clone))
        return;
    selectButton(navigation::CloneDiskScreen);
    m_askedPair = chosenPair();
    m_pCloneWarning->NameDisks(tr("Source disk:     ") + plaintext::isolated(m_askedPair.sourceText),
                               tr("Destination disk:    ") + plaintext::isolated(m_askedPair.targetText));
    style::centreOn(m_pCloneWarning, geometry());
    if (m_pCloneDiskPage->m_nDestinationIndex > 0)
        m_pCloneWarning->show();
    else
        askForTarget();
}

void MainWindow::askForTarget()
{
    m_pCloneWarning->hide();
    // A new dialog, as the old one may show the texts of a running job.
    delete m_pDestinitionWarning;
    m_pDestinitionWarning = new DestinitionWarning(this);
    connect(m_pDestinitionWarning, &MessageDialog::dismissed, this, &MainWindow::OnCloseDestinitionWarning);
    style::centreOn(m_pDestinitionWarning, geometry());
    m_pDestinitionWarning->show();
}

void MainWindow::OnCloningCancel()
{
    m_pCloneWarning->hide();
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
    setMenuEntriesEnabled(false);
    LookUpDisk(m_pCloneDiskPage->SourceComboBox->currentIndex());
    const int target = m_pCloneDiskPage->m_nDestinationDrive + PhysicalDriveBase;
    g_App.m_pCloneDisk = findPhysicalDisk(target);
    const bool known = g_App.m_pCurrentDisk && g_App.m_pCloneDisk;
    if (const auto refusal =
            known ? clonemessages::refusal(sideOf(*g_App.m_pCurrentDisk), sideOf(*g_App.m_pCloneDisk))
                  : std::nullopt) {
        refuseClone(*refusal);
        return;
    }
    // Only a disk that the question named is erased.
    if (known && m_askedPair.target == target && chosenPair() == m_askedPair) {
        startClone();
        return;
    }
    setMenuEntriesEnabled(true);
    OnCloneStart();
    // The second half of a double click must not answer a question that nobody has read.
    m_pCloneWarning->HoldStart();
}

void MainWindow::refuseClone(const clonemessages::Message &reason)
{
    setMenuEntriesEnabled(true);
    m_pCloneDiskPage->ShowMessage(reason);
}

void MainWindow::startClone()
{
    for (QWidget *idle :
         std::initializer_list<QWidget *>{ScanButton, ScreenshotButton, StopTestButton, CloneButton})
        idle->hide();
    StopButton->show();
    DriveCombobox->setEnabled(false);
    for (int i = 0; i < navigation::ScreenCount; ++i)
        setNavigationEnabled(static_cast<Screen>(i), false);
    selectButton(navigation::CloneDiskScreen);
    m_pCloneDiskPage->StartClone();
    keepAwake();
}

void MainWindow::OnCloningProcesFailed()
{
    DriveCombobox->setEnabled(true);
}

void MainWindow::OnCloningFinish()
{
    setMenuEntriesEnabled(true);
    keepAwake();
    // There is nothing left to be stopped.
    m_pConfirmation->hide();
    StopButton->hide();
    ScanButton->setEnabled(true);
    DriveCombobox->setEnabled(true);
    enableNavigation();
    const bool left = !m_pCloneDiskPage->isVisible();
    CloneButton->setVisible(!left && !isOnShow(navigation::ScanDiskScreen));
    // The user has gone to another screen meanwhile, for which no disk was read during the clone.
    if (left)
        RefreshSelectedDisk();
}

void MainWindow::OnFinishDiskCloning()
{
    StopButton->hide();
    enableNavigation();
    DriveCombobox->setEnabled(!g_bTestPending);
    // A user who has left the page before the result was read stays where he is.
    if (m_pCloneDiskPage->isVisible())
        selectButton(navigation::CloneDiskScreen);
    refreshBehindJob();
}
