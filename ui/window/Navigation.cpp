// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/screens/AccessNotice.h"
#include "ui/screens/CloneDisk.h"
#include "ui/screens/ScanDisk.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/MyButton.h"
#include "ui/widgets/Style.h"

#include <initializer_list>

enum class MainWindow::Look { Normal, Hover, Selected };

namespace
{

/// The pictures of a button: normal, under the pointer, selected.
using Images = std::array<const char *, 3>;

constexpr std::array<Images, navigation::ScreenCount> ScreenImages = {{
    {"img_DiskStatusNor", "img_DiskStatusHo", "img_DiskStatusSel"},
    {"img_SmartStatusNor", "img_SmartStatusHov", "img_SmartStatusSel"},
    {"img_DiskPartitionNor", "img_DiskPartitionHo", "img_DiskPartitionSel"},
    {"img_ScanDiskNo", "img_ScanDiskHov", "img_ScanDiskSel"},
    {"img_CloneDiskNormal", "img_CloneDiskHo", "img_CLoneDiskSel"},
}};
constexpr Images BackImages = {"img_BackTestNor", "img_BackTestHov", "img_BackTestHov"};

/// Shows a picture and the text, black in the normal look, else blue. At a scale without pictures, the text
/// alone.
void dress(QPushButton *button, const Images &files, std::size_t look)
{
    const QString path = images::path(QLatin1String(files[look]) + QStringLiteral(".png"));
    const QString picture =
        path.isEmpty() ? QString() : QStringLiteral("QPushButton{border-image: url(%1)}").arg(path);
    button->setStyleSheet(picture + QStringLiteral("QPushButton{Text-align:left}") +
                          (look == 0 ? QStringLiteral("QPushButton {color : rgb(0,0,0);}")
                                     : QStringLiteral("QPushButton {color : rgb(42,129,229);}")));
}

} // namespace

MyButton *MainWindow::button(Screen screen) const
{
    return m_apNavigation[static_cast<std::size_t>(screen)];
}

void MainWindow::setLook(Screen screen, Look look)
{
    dress(button(screen), ScreenImages[static_cast<std::size_t>(screen)], static_cast<std::size_t>(look));
}

void MainWindow::hoverNavigation(Screen screen)
{
    setLook(screen, isOnShow(screen) ? Look::Selected : Look::Hover);
}

void MainWindow::leaveNavigation(Screen screen)
{
    setLook(screen, isOnShow(screen) ? Look::Selected : Look::Normal);
}

void MainWindow::releaseNavigation(Screen screen)
{
    setLook(screen, Look::Selected);
}

void MainWindow::setSwitchTarget(Screen screen)
{
    m_abSwitchTarget.fill(false);
    m_abSwitchTarget[static_cast<std::size_t>(screen)] = true;
}

void MainWindow::selectButton(Screen screen)
{
    m_screen = screen;
    for (int i = 0; i < navigation::ScreenCount; ++i)
        button(static_cast<Screen>(i))->setDown(i == screen);
    applyLooks();
}

void MainWindow::applyLooks()
{
    for (int i = 0; i < navigation::ScreenCount; ++i)
        leaveNavigation(static_cast<Screen>(i));
}

void MainWindow::pressNavigation(Screen screen)
{
    setSwitchTarget(screen);
    if (!g_Jobs.mayLeave()) {
        askForSwitch();
        return;
    }
    selectButton(screen);
    const navigation::Button &shown = navigation::buttons[static_cast<std::size_t>(screen)];
    if (!shown.scan)
        ScanButton->hide();
    if (!shown.clone)
        CloneButton->hide();
    BackTestButton->hide();
    StopTestButton->hide();
    callShowSlot(screen);
}

void MainWindow::askForSwitch()
{
    style::centreOn(m_pScanSwitch, geometry());
    m_pScanSwitch->show();
}

void MainWindow::callShowSlot(Screen screen)
{
    using Slot = void (MainWindow::*)();
    static const std::array<Slot, navigation::ScreenCount> table = {
        &MainWindow::OnShowDiskStatus, &MainWindow::OnShowSmartStatus, &MainWindow::OnShowDiskPartition,
        &MainWindow::OnShowScanDisk, &MainWindow::OnShowCloneDisk};
    const Slot showSlot = table[static_cast<std::size_t>(screen)];
    (this->*showSlot)();
}

void MainWindow::showScreen(Screen screen)
{
    for (int i = 0; i < navigation::ScreenCount; ++i)
        m_apScreens[static_cast<std::size_t>(i)]->setVisible(i == screen);
    const navigation::Button &shown = navigation::buttons[static_cast<std::size_t>(screen)];
    ScanButton->setVisible(shown.scan);
    const bool cloning = g_Jobs.runs(Job::Clone);
    // OnShowCloneDisk() can run while Scan Disk is the screen on show.
    CloneButton->setVisible(shown.clone && !cloning && !isOnShow(navigation::ScanDiskScreen));
    // A clone goes on while another screen is on show. There the Stop button would be taken for that of a
    // scan.
    if (cloning)
        StopButton->setVisible(shown.clone && !g_bAbortJob);
    ReportSaveButton->setVisible(shown.report);
    ScreenshotButton->setVisible(shown.screenshot);
    BackTestButton->hide();
    StopTestButton->hide();
    showAccess();
}

/// Without the rights to open a disk there is nothing that the screens could show or do.
void MainWindow::showAccess()
{
    const bool denied = g_App.m_bAccessDenied;
    if (!denied && m_pAccessNotice->isHidden())
        return;
    m_pAccessNotice->setVisible(denied);
    for (int i = 0; i < navigation::ScreenCount; ++i) {
        const auto screen = static_cast<Screen>(i);
        m_apScreens[static_cast<std::size_t>(i)]->setVisible(!denied && isOnShow(screen));
    }
    for (QWidget *idle : std::initializer_list<QWidget *>{DriveCombobox, ScanButton, CloneButton,
                                                          ReportSaveButton, ScreenshotButton})
        idle->setEnabled(!denied);
}

void MainWindow::OnShowDiskStatus()
{
    showScreen(navigation::DiskStatusScreen);
    RefreshSelectedDisk();
}

void MainWindow::OnShowSmartStatus()
{
    RefreshSelectedDisk();
    showScreen(navigation::SmartStatusScreen);
}

void MainWindow::OnShowDiskPartition()
{
    showScreen(navigation::DiskPartitionScreen);
    RefreshSelectedDisk();
}

void MainWindow::OnShowCloneDisk()
{
    CloneButton->setEnabled(true);
    showScreen(navigation::CloneDiskScreen);
    refreshClonePage();
}

void MainWindow::OnSwitchConfirm()
{
    m_pScanSwitch->hide();
    dropScanResults();
    g_Jobs.closeResults();
    g_Jobs.dropPlan();
    DriveCombobox->setEnabled(!g_Jobs.runs(Job::Clone));
    for (int i = 0; i < navigation::ScreenCount; ++i) {
        if (!m_abSwitchTarget[static_cast<std::size_t>(i)])
            continue;
        selectButton(static_cast<Screen>(i));
        callShowSlot(static_cast<Screen>(i));
        return;
    }
    if (m_bBackRequested) {
        selectButton(navigation::ScanDiskScreen);
        setIconSize(QSize(style::px(32), style::px(30)));
        OnShowScanDisk();
    }
}

void MainWindow::OnSwitchCancel()
{
    applyLooks();
    m_pScanSwitch->hide();
}

void MainWindow::OnStop()
{
    if (isOnShow(navigation::CloneDiskScreen))
        m_pConfirmation->SetTexts(tr("Stop Clone"), tr("Cloning can not be resumed from the current stage."),
                                  tr("Do you wish to abort the cloning?"));
    else if (isOnShow(navigation::ScanDiskScreen))
        m_pConfirmation->SetTexts(tr("Stop Scan"), tr("Scan can not be resumed from the current stage."),
                                  tr("Do you wish to abort the scan?"));
    else
        return;
    style::centreOn(m_pConfirmation, geometry());
    m_pConfirmation->show();
}

void MainWindow::OnStopCancel()
{
    g_Jobs.withdrawStop();
    m_pConfirmation->hide();
}

void MainWindow::OnStopConfirm()
{
    m_pScanDiskPage->ForgetEstimate();
    // The button stays hidden until the thread of the job has ended: a No to a second question would take
    // back this Yes.
    StopButton->hide();
    StopTestButton->hide();
    g_Jobs.stop();
    if (m_pCloneDiskPage->isVisible()) {
        setLook(navigation::CloneDiskScreen, Look::Selected);
        button(navigation::CloneDiskScreen)->setDown(true);
        m_screen = navigation::CloneDiskScreen;
    } else if (g_bStopRequested) {
        StopConfirm();
    }
    m_pScanDiskPage->CentreResult();
    m_pConfirmation->hide();
}

void MainWindow::OnBackTestHoverImage()
{
    dress(BackTestButton, BackImages, 1);
}

void MainWindow::OnBackTestNormalImage()
{
    dress(BackTestButton, BackImages, 0);
}

void MainWindow::OnBackTestReleaseImage()
{
    OnBackTestNormalImage();
}

void MainWindow::OnBackTestPressImage()
{
    m_abSwitchTarget.fill(false);
    if (g_Jobs.resultOpen()) {
        m_bBackRequested = true;
        askForSwitch();
        return;
    }
    OnShowScanDisk();
}
