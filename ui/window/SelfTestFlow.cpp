#include "ui/window/MainWindow.h"

#include "inventory/CommandRunner.h"
#include "smart/SelfTestClock.h"
#include "smart/SelfTestText.h"
#include "smart/SmartGlobals.h"
#include "smart/ToolInvocation.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "ui/dialogs/ConfarmetionClass.h"
#include "ui/dialogs/SelfTestNotSupported.h"
#include "ui/screens/ScanDisk.h"
#include "ui/screens/SelfTestPanel.h"
#include "ui/widgets/MyButton.h"
#include "ui/widgets/Style.h"

#include <QTextStream>
#include <QTimer>

namespace
{

constexpr int TickInterval = 1000;

/// Runs the tool for a purpose of the self-test's disk; its fresh file's path comes back.
QString runFor(ToolPurpose purpose)
{
    const QString path = runner::freshTempFile(toolFileName(purpose));
    RunSilent(commandLine(purpose, storedDevice(purpose), path));
    return path;
}

std::optional<SelfTestKind> chosenKind(const ScanDisk &page)
{
    if (page.radioButton_2->isChecked())
        return SelfTestKind::Short;
    if (page.radioButton_3->isChecked())
        return SelfTestKind::Extended;
    return std::nullopt;
}

/// Takes the capabilities in, of which only the polling time of the chosen kind is read.
void takeCapabilities(const selftest::Capabilities &found, std::optional<SelfTestKind> kind)
{
    g_bSelfTestSupported = found.supported;
    if (!kind || !found.minutes)
        return;
    g_bExtendedTest = *kind == SelfTestKind::Extended;
    (g_bExtendedTest ? g_nExtendedMinutes : g_nShortMinutes) = *found.minutes;
    g_nRemainingMinutes[static_cast<std::size_t>(*kind)] = *found.minutes;
}

bool canRunSelfTest()
{
    // The kind is that of the disk whose report was read last, which may be another one.
    const bool ofThisDisk =
        storedDevice(ToolPurpose::SelfTestLog).endsWith(storedDevice(ToolPurpose::Capabilities));
    return g_bSelfTestSupported && !(g_App.m_bNVMe && ofThisDisk);
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
    g_bExtendedTest = false;
    g_nShortMinutes = 0;
    g_nExtendedMinutes = 0;
    g_bAbortSent = false;
    panel->SetTestName(std::nullopt);
    panel->SetProgress(0);
    panel->SetDisk(g_strSelfTestModel, g_strSelfTestSerial);

    const std::optional<SelfTestKind> kind = chosenKind(*m_pScanDiskPage);
    // A drive whose capabilities cannot be had runs no test, whatever the disk before could do.
    g_bSelfTestSupported = false;
    runner::readOutput(runFor(ToolPurpose::Capabilities), [kind](QTextStream &text) {
        takeCapabilities(selftest::readCapabilities(text, kind), kind);
    });
    panel->SetTestName(currentSelfTest());
    if (canRunSelfTest()) {
        showTestScreen();
        return;
    }
    connect(m_pSelfTestNotSupported->CloseButton, &QPushButton::clicked, this,
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
    const bool canRun = canRunSelfTest();
    if (canRun) {
        g_Jobs.begin(Job::SelfTest);
        g_Jobs.openResult(Job::SelfTest);
        keepAwake();
    } else {
        g_Jobs.closeResults();
    }
    m_scannedDisk = chosenDisk();
    setNavigationEnabled(navigation::ScanDiskScreen, !canRun);
    selftest::restartClock();
    panel->SetStatus(std::nullopt);
    panel->SetElapsed(QString());
    panel->SetPollingMinutes(std::nullopt);
    panel->SetRemainingMinutes(std::nullopt);
    m_pScanDiskPage->ShowSelfTest();
    panel->ShowTimes(canRun);
    selectButton(navigation::ScanDiskScreen);

    const ToolPurpose purpose =
        g_bExtendedTest ? ToolPurpose::StartExtendedTest : ToolPurpose::StartShortTest;
    if (!canRun) {
        runner::freshTempFile(toolFileName(purpose));
        return;
    }
    // That there is a file is enough: what the drive makes of the start its status tells.
    if (!runner::readOutput(runFor(purpose), [](QTextStream &) {})) {
        endSelfTest(selftest::Told::NoStatus);
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
    const bool aborted = g_bAbortSent;
    if (aborted)
        reportTestAbort();
    selftest::setElapsedLimit();
    QVector<selftest::StatusEvent> events;
    const bool opened = runner::readOutput(runFor(ToolPurpose::TestProgress), [&events](QTextStream &text) {
        events = selftest::readStatus(text);
    });
    if (!opened)
        events = {{selftest::Told::NoStatus}};
    for (const selftest::StatusEvent &event : qAsConst(events)) {
        const bool silent = event.told == selftest::Told::NoStatus;
        // Behind an abort a drive may still be on its way to the end: only what its test found is told then.
        if (selftest::passesOver(!silent) || (aborted && !selftest::isResult(event.told)))
            continue;
        if (event.told == selftest::Told::InProgress)
            showTestProgress(event.remaining);
        else
            endSelfTest(event.told);
    }
    if (!opened)
        return;
    selftest::tickClock();
    m_pScanDiskPage->m_pSelfTestPanel->SetElapsed(selftest::elapsedText());
}

void MainWindow::showTestProgress(int remainingPercent)
{
    SelfTestPanel *panel = m_pScanDiskPage->m_pSelfTestPanel;
    panel->SetProgress(selftest::percentDone(remainingPercent));
    for (const Screen other : {navigation::DiskStatusScreen, navigation::SmartStatusScreen,
                               navigation::DiskPartitionScreen, navigation::CloneDiskScreen})
        setNavigationEnabled(other, false);
    StopTestButton->show();
    if (selftest::takeMinute())
        panel->SetRemainingMinutes(g_nRemainingMinutes[static_cast<std::size_t>(currentSelfTest())]);
    if (selftest::isOver(remainingPercent))
        endSelfTest(selftest::Told::Completed);
    else
        panel->SetStatus(selftest::Told::InProgress);
}

void MainWindow::endSelfTest(selftest::Told how)
{
    SelfTestPanel *panel = m_pScanDiskPage->m_pSelfTestPanel;
    if (m_pTestTimer)
        m_pTestTimer->stop();
    g_bTestPending = false;
    g_Jobs.end(Job::SelfTest);
    enableNavigation();
    m_pConfirmation->hide();
    panel->SetProgress(100);
    panel->SetRemainingMinutes(0);
    showTestButtons(false);
    panel->ShowProgress(false);
    panel->ShowTimes(false);
    panel->SetStatus(how);
}

void MainWindow::reportTestAbort()
{
    g_bTestPending = false;
    g_Jobs.end(Job::SelfTest);
    if (m_pTestTimer)
        m_pTestTimer->stop();
    g_nElapsedSeconds = 0;
    m_pScanDiskPage->m_pSelfTestPanel->ShowProgress(false);
    enableNavigation();
    showTestButtons(false);
    m_pScanDiskPage->m_pSelfTestPanel->SetStatus(selftest::Told::Aborted);
    g_bAbortSent = false;
}

void MainWindow::OnClickStopTestButton()
{
    g_bStopRequested = true;
    m_pConfirmation->SetTexts(tr("Stop Scan"), tr("Self-test can not be resumed from the current stage."),
                              tr("Do you wish to abort the Self-test?"));
    style::centreOn(m_pConfirmation, geometry());
    m_pConfirmation->show();
}

void MainWindow::StopConfirm()
{
    g_bAbortSent = false;
    runFor(ToolPurpose::AbortTest);
    g_bAbortSent = true;
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
