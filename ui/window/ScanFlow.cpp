// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "scan/ScanGlobals.h"
#include "smart/SelfTestGlobals.h"
#include "state/Globals.h"
#include "ui/widgets/Style.h"

#include <QEvent>
#include <QTimer>

void MainWindow::OnShowScanDisk()
{
    g_Jobs.closeResults();
    // The start of a scan has set the flag just now.
    if (!m_pScanDiskPage->ChosenTest() && g_bScanStarted)
        m_pScanDiskPage->ShowCounters();
    else
        m_pScanDiskPage->ShowChooser();
    m_ui.DriveCombobox->setEnabled(!g_Jobs.runs(Job::Clone));
    showScreen(navigation::ScanDiskScreen);
    refreshScanPage();
}

void MainWindow::refreshScanPage()
{
    LookUpDisk(m_ui.DriveCombobox->currentIndex());
    // A job whose screen the user has left keeps its own current disk until its thread has ended.
    const DiskNode *node = findPhysicalDisk(m_ui.DriveCombobox->currentData().toInt());
    m_pScanDiskPage->FillDisk(node);
    // The panel of a refused test still names the previous disk.
    if (m_pScanDiskPage->IsSelfTestShown() && !g_bSelfTestResultOpen)
        ChooseScanType();
    // The results of a scan are those of its disk alone.
    if (g_bScanResultOpen && chosenDisk() == m_scannedDisk)
        return;
    if (g_bScanResultOpen)
        m_pScanDiskPage->HideResult();
    g_Jobs.closeScanResult();
    m_pScanDiskPage->DropResults();
    m_pScanDiskPage->PrepareMap(node);
}

MainWindow::ChosenDisk MainWindow::chosenDisk() const
{
    return {m_ui.DriveCombobox->currentData().toInt(), m_ui.DriveCombobox->currentText()};
}

/// A refresh chooses the first disk. If results are on show, this chooses the disk that they belong to
/// again.
void MainWindow::keepScannedDisk()
{
    if (!g_Jobs.resultOpen())
        return;
    const int index = m_ui.DriveCombobox->findData(m_scannedDisk.first);
    if (index < 0 || m_ui.DriveCombobox->itemText(index) != m_scannedDisk.second)
        return;
    m_ui.DriveCombobox->setCurrentIndex(index);
    m_pCloneDiskPage->ChooseSource(index);
}

void MainWindow::OnScanStart()
{
    if (!g_Jobs.mayStart())
        return;
    // Without a disk there is nothing that could fail.
    LookUpDisk(m_ui.DriveCombobox->currentIndex());
    if (!m_pScanDiskPage->ChosenTest() && !g_App.m_pCurrentDisk)
        return;
    OnCheckRadioButton();
    if (g_bTestPending) {
        OnStartShortSelfTest();
        g_bTestPending = false;
    } else if (g_bScanStarted) {
        startSurfaceScan();
    }
}

void MainWindow::startSurfaceScan()
{
    // A self-test that the user has left goes on in the drive, but its clock must not change the buttons of
    // this scan.
    m_pTestTimer->stop();
    lockShell(navigation::ScanDiskScreen);
    m_pScanDiskPage->StartScan(m_ui.DriveCombobox->currentText());
    keepAwake();
    m_scannedDisk = chosenDisk();
    g_Jobs.openResult(Job::Scan);
    g_Jobs.dropPlan();
}

void MainWindow::OnFinishScanDisk()
{
    releaseShell();
    // If the disk did not open, or does not any more, the lists are stale.
    if (g_bScanFailed)
        g_bListsStale = true;
    refreshBehindJob();
    // A user who has left the scan meanwhile stays where he is.
    if (!g_bScanResultOpen) {
        if (!g_App.m_pCurrentDisk || g_App.m_pCurrentDisk->nId != m_ui.DriveCombobox->currentData().toInt())
            RefreshSelectedDisk();
        return;
    }
    m_ui.ScanButton->show();
    m_ui.BackTestButton->show();
    selectButton(navigation::ScanDiskScreen);
}

/// The shell while a scan or a clone runs: nothing leads away from it but the Stop button.
void MainWindow::lockShell(Screen screen)
{
    m_ui.MenuEntries->setEnabled(false);
    // Who has started the job by a key can stop it by a key.
    m_bStartedByKey = focusWidget() == m_ui.ScanButton || focusWidget() == m_ui.CloneButton;
    style::setVisible(
        {m_ui.ScanButton, m_ui.CloneButton, m_ui.ScreenshotButton, m_ui.BackTestButton, m_ui.StopTestButton},
        false);
    m_ui.StopButton->show();
    if (m_bStartedByKey)
        m_ui.StopButton->setFocus();
    m_ui.DriveCombobox->setEnabled(false);
    enableNavigation(false);
    selectButton(screen);
}

/// The shell when the scan or the clone has ended.
void MainWindow::releaseShell()
{
    m_ui.MenuEntries->setEnabled(true);
    keepAwake();
    // There is nothing left to be stopped.
    m_pConfirmation->hide();
    m_ui.StopButton->hide();
    updateButtons();
    m_ui.DriveCombobox->setEnabled(true);
    enableNavigation();
    if (m_bStartedByKey && m_screen)
        m_apNavigation[*m_screen]->setFocus();
}

/// A button that is disabled or enabled stays down or up.
void MainWindow::setNavigationEnabled(Screen screen, bool enabled)
{
    m_apNavigation[screen]->setEnabled(enabled);
    m_apNavigation[screen]->setCurrent(isOnShow(screen));
}

void MainWindow::enableNavigation(bool enabled)
{
    for (const Screen screen : Screens)
        setNavigationEnabled(screen, enabled);
}

/// The user leaves the results of a job.
void MainWindow::dropScanResults()
{
    // Closes the question that may still be open: a No would let the scan go on where nobody can stop it.
    m_pConfirmation->hide();
    if (g_Jobs.runs(Job::Scan)) {
        m_jobDisplay.show(std::nullopt);
        m_ui.StopButton->hide();
    }
    updateButtons();
    m_pScanDiskPage->HideResult();
    m_pScanDiskPage->DropResults();
    refreshBehindJob();
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    // A job disables the navigation buttons. A press on one still counts: it brings up the question, or
    // changes the screen for a user who has left the job's screen already.
    const bool press = event->type() == QEvent::MouseButtonPress && isEnabled();
    auto *pressed = press ? qobject_cast<MyButton *>(watched) : nullptr;
    if (!pressed || pressed->isEnabled())
        return QMainWindow::eventFilter(watched, event);
    emit pressed->OnPressPixmap();
    return true;
}
