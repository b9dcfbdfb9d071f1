// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "smart/SmartGlobals.h"
#include "state/Globals.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/screens/ScanDisk.h"
#include "ui/screens/SelfTestPanel.h"
#include "ui/widgets/MyButton.h"
#include "ui/widgets/Style.h"

#include <QTimer>

namespace
{

constexpr int TickInterval = 1000;

std::optional<SelfTestKind> chosenKind(const ScanDisk &page)
{
    if (page.radioButton_2->isChecked())
        return SelfTestKind::Short;
    if (page.radioButton_3->isChecked())
        return SelfTestKind::Extended;
    return std::nullopt;
}

} // namespace

void MainWindow::OnCheckRadioButton()
{
    // The names of the disk come from the lists, which a refresh is rebuilding.
    if (g_bListsLoading)
        return;
    if (!chosenKind(*m_pScanDiskPage)) {
        g_Jobs.planScan();
        g_Jobs.end(Job::SelfTest);
        OnShowScanDisk();
        return;
    }
    g_bTestPending = true;
    m_pScanDiskPage->m_pSelfTestPanel->SetDisk(QString(), QString());
    m_pScanDiskPage->ShowSelfTest();
    g_Jobs.end(Job::SelfTest);
    DetailsforSelftest();
    OnCheckShortTest1();
}

void MainWindow::OnCheckShortTest1()
{
    SelfTestPanel *panel = m_pScanDiskPage->m_pSelfTestPanel;
    panel->SetProgress(0);
    panel->SetDisk(g_strSelfTestModel, g_strSelfTestSerial);
    m_selfTest.prepare(chosenKind(*m_pScanDiskPage));
    panel->SetTestName(currentSelfTest());
    if (m_selfTest.canRun()) {
        showTestScreen();
        return;
    }
    connect(m_pSelfTestNotSupported, &MessageDialog::dismissed, this,
            &MainWindow::OnCloseSelfTestNotSupported, Qt::UniqueConnection);
    style::centreOn(m_pSelfTestNotSupported, geometry());
    m_pSelfTestNotSupported->show();
    // The way back to the choice of a test.
    BackTestButton->show();
}

void MainWindow::showTestScreen()
{
    DriveCombobox->setEnabled(false);
    m_pScanDiskPage->ShowSelfTest();
    showTestButtons(true);
    g_bOnTestScreen = true;
    m_pScanDiskPage->show();
}

/// The buttons of the shell while a test is prepared or runs, and behind it. The stop button comes with the
/// first progress that the drive tells.
void MainWindow::showTestButtons(bool running)
{
    StopTestButton->hide();
    // A test can outlive its screen, and another one's strip has no such buttons.
    const bool ended = !running && isOnShow(navigation::ScanDiskScreen);
    if (!running)
        keepAwake();
    ScanButton->setVisible(ended);
    BackTestButton->setVisible(ended);
    BottamLabel->show();
}

/// A button that is disabled or enabled stays down or up.
void MainWindow::setNavigationEnabled(Screen screen, bool enabled)
{
    button(screen)->setEnabled(enabled);
    button(screen)->setDown(isOnShow(screen));
}

void MainWindow::enableNavigation()
{
    for (int i = 0; i < navigation::ScreenCount; ++i)
        setNavigationEnabled(static_cast<Screen>(i), true);
}

void MainWindow::OnStartShortSelfTest()
{
    SelfTestPanel *panel = m_pScanDiskPage->m_pSelfTestPanel;
    const bool canRun = m_selfTest.canRun();
    const bool started = m_selfTest.start();
    keepAwake();
    m_scannedDisk = chosenDisk();
    setNavigationEnabled(navigation::ScanDiskScreen, !canRun);
    panel->SetStatus(std::nullopt);
    panel->SetElapsed(QString());
    panel->SetPollingMinutes(std::nullopt);
    panel->SetRemainingMinutes(std::nullopt);
    m_pScanDiskPage->ShowSelfTest();
    panel->ShowTimes(canRun);
    selectButton(navigation::ScanDiskScreen);
    if (!canRun)
        return;
    if (!started) {
        showTestEnd(selftest::Told::NoStatus);
        return;
    }
    panel->SetPollingMinutes(currentPollingMinutes());
    panel->SetRemainingMinutes(currentPollingMinutes());
    CheckShortTestStatus1();
    if (!g_Jobs.runs(Job::SelfTest))
        return;
    if (!m_pTestTimer) {
        m_pTestTimer = new QTimer(this);
        connect(m_pTestTimer, &QTimer::timeout, this, &MainWindow::CheckShortTestStatus1);
    }
    m_pTestTimer->start(TickInterval);
}

void MainWindow::CheckShortTestStatus1()
{
    const SelfTest::Tick tick = m_selfTest.tick();
    if (tick.aborted)
        showTestOver(selftest::Told::Aborted);
    for (const SelfTest::Step &step : tick.steps)
        showTestStep(step);
    if (tick.opened)
        m_pScanDiskPage->m_pSelfTestPanel->SetElapsed(m_selfTest.elapsedText());
}

void MainWindow::showTestStep(const SelfTest::Step &step)
{
    if (step.told != selftest::Told::InProgress) {
        showTestEnd(step.told);
        return;
    }
    SelfTestPanel *panel = m_pScanDiskPage->m_pSelfTestPanel;
    panel->SetProgress(step.percent);
    for (const Screen other : {navigation::DiskStatusScreen, navigation::SmartStatusScreen,
                               navigation::DiskPartitionScreen, navigation::CloneDiskScreen})
        setNavigationEnabled(other, false);
    StopTestButton->show();
    if (step.minutes)
        panel->SetRemainingMinutes(*step.minutes);
    panel->SetStatus(step.told);
}

void MainWindow::showTestEnd(selftest::Told how)
{
    SelfTestPanel *panel = m_pScanDiskPage->m_pSelfTestPanel;
    m_pConfirmation->hide();
    panel->SetProgress(100);
    panel->SetRemainingMinutes(0);
    panel->ShowTimes(false);
    showTestOver(how);
}

/// Of a test that was aborted the times go on showing.
void MainWindow::showTestOver(selftest::Told how)
{
    if (m_pTestTimer)
        m_pTestTimer->stop();
    enableNavigation();
    showTestButtons(false);
    m_pScanDiskPage->m_pSelfTestPanel->ShowProgress(false);
    m_pScanDiskPage->m_pSelfTestPanel->SetStatus(how);
}

void MainWindow::OnClickStopTestButton()
{
    g_bStopRequested = true;
    m_pConfirmation->SetTexts(tr("Stop Scan"), tr("Self-test can not be resumed from the current stage."),
                              tr("Do you wish to abort the Self-test?"));
    style::centreOn(m_pConfirmation, geometry());
    m_pConfirmation->show();
}

void MainWindow::ChooseScanType()
{
    for (QWidget *screen : m_apScreens)
        screen->setVisible(screen == m_pScanDiskPage);
    m_pScanDiskPage->ShowChooser();
    ScanButton->show();
    DriveCombobox->setEnabled(true);
    BackTestButton->hide();
    StopTestButton->hide();
    g_bOnTestScreen = false;
}
