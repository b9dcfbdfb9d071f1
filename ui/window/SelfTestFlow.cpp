// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "smart/SmartGlobals.h"
#include "smart/ToolInvocation.h"
#include "state/Globals.h"

#include <QTimer>

namespace
{

constexpr int TickInterval = 1000;

}

void MainWindow::OnCheckRadioButton()
{
    // The names of the disk come from the lists, which a refresh is rebuilding.
    if (g_bListsLoading)
        return;
    if (!m_pScanDiskPage->ChosenTest()) {
        g_Jobs.planScan();
        g_Jobs.end(Job::SelfTest);
        OnShowScanDisk();
        return;
    }
    g_bTestPending = true;
    m_pScanDiskPage->ShowSelfTest({});
    g_Jobs.end(Job::SelfTest);
    DetailsforSelftest();
    OnCheckShortTest1();
}

void MainWindow::DetailsforSelftest()
{
    g_nCurrentDiskIndex = currentComboDisk();
    const int comboIndex = m_ui.DriveCombobox->currentIndex();
    LookUpDisk(comboIndex);
    if (const WmicDiskRecord *record =
            findWmicDisk(static_cast<std::uint32_t>(g_nCurrentDiskIndex + PhysicalDriveBase))) {
        g_strSelfTestModel = record->szSmartModel.text();
        g_strSelfTestSerial = record->szSmartSerial.text();
        m_pDiskStatusPage->showModelAndSerial(g_strSelfTestModel, g_strSelfTestSerial);
    }
    g_strSelfTestDevice = selfTestDevice(g_nCurrentDiskIndex, comboIndex);
}

void MainWindow::OnCheckShortTest1()
{
    m_selfTest.prepare(m_pScanDiskPage->ChosenTest());
    m_pScanDiskPage->TellSelfTest(m_selfTest.shown());
    if (!m_selfTest.canRun()) {
        showCentred(m_pSelfTestNotSupported);
        // It leads back to the choice of a test.
        m_ui.BackTestButton->show();
        return;
    }
    m_bStartedByKey = focusWidget() == m_ui.ScanButton;
    m_ui.DriveCombobox->setEnabled(false);
    m_pScanDiskPage->ShowSelfTest(m_selfTest.shown());
    showTestButtons(true);
    g_bOnTestScreen = true;
    m_pScanDiskPage->show();
}

/// The buttons of the shell while a test is prepared or runs, and after it. The stop button comes with the
/// first progress that the drive tells.
void MainWindow::showTestButtons(bool running)
{
    m_ui.StopTestButton->hide();
    // The user may have left the screen of the test. Other screens do not show these buttons.
    const bool ended = !running && isOnShow(navigation::ScanDiskScreen);
    if (!running)
        keepAwake();
    updateButtons();
    m_ui.ScanButton->setVisible(ended);
    m_ui.BackTestButton->setVisible(ended);
    m_ui.BottamLabel->show();
}

void MainWindow::OnStartShortSelfTest()
{
    const bool canRun = m_selfTest.canRun();
    const bool started = m_selfTest.start();
    keepAwake();
    m_scannedDisk = chosenDisk();
    setNavigationEnabled(navigation::ScanDiskScreen, !canRun);
    m_pScanDiskPage->ShowSelfTest(m_selfTest.shown());
    selectButton(navigation::ScanDiskScreen);
    if (canRun && !started)
        leaveTest();
    if (!started)
        return;
    CheckShortTestStatus1();
    if (!g_Jobs.runs(Job::SelfTest))
        return;
    m_pTestTimer->start(TickInterval);
}

void MainWindow::CheckShortTestStatus1()
{
    const SelfTest::Tick tick = m_selfTest.tick();
    if (tick.aborted)
        leaveTest();
    for (const SelfTest::Step &step : tick.steps)
        takeTestStep(step);
    const SelfTest::Shown &shown = m_selfTest.shown();
    // A clone beside a test whose screen was left has title and task bar to itself.
    if (shown.status && g_Jobs.runs(Job::SelfTest) && !g_Jobs.holdsDisks())
        m_jobDisplay.show(shown.percent);
    else if (shown.status && !g_Jobs.runs(Job::SelfTest))
        m_jobDisplay.tellEnd(selftest::jobEnd(*shown.status));
    m_pScanDiskPage->TellSelfTest(shown);
}

void MainWindow::takeTestStep(const SelfTest::Step &step)
{
    if (step.told != selftest::Told::InProgress) {
        leaveTest();
        return;
    }
    for (const Screen screen : Screens) {
        if (screen != navigation::ScanDiskScreen)
            setNavigationEnabled(screen, false);
    }
    if (!m_ui.StopTestButton->isHidden())
        return;
    m_ui.StopTestButton->show();
    if (m_bStartedByKey)
        m_ui.StopTestButton->setFocus();
}

void MainWindow::leaveTest()
{
    m_pConfirmation->hide();
    m_pTestTimer->stop();
    enableNavigation();
    if (m_bStartedByKey && isOnShow(navigation::ScanDiskScreen))
        m_apNavigation[navigation::ScanDiskScreen]->setFocus();
    showTestButtons(false);
}

void MainWindow::OnClickStopTestButton()
{
    g_bStopRequested = true;
    askToStop(tr("Stop Scan"), tr("Self-test can not be resumed from the current stage."),
              tr("Do you wish to abort the Self-test?"));
}

void MainWindow::OnCloseSelfTestNotSupported()
{
    m_pSelfTestNotSupported->hide();
    m_ui.DriveCombobox->setEnabled(true);
}

void MainWindow::ChooseScanType()
{
    for (QWidget *screen : m_apScreens)
        screen->setVisible(screen == m_pScanDiskPage);
    m_pScanDiskPage->ShowChooser();
    m_ui.ScanButton->show();
    m_ui.DriveCombobox->setEnabled(true);
    m_ui.BackTestButton->hide();
    m_ui.StopTestButton->hide();
    g_bOnTestScreen = false;
}
