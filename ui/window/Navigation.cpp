// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "state/Globals.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/Style.h"

#include <array>
#include <initializer_list>

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
    const QString colours = look == 0
                                ? QStringLiteral("color: @text;} QPushButton:disabled{color: @disabled;}")
                                : QStringLiteral("color: @accent;}");
    button->setStyleSheet(picture + style::sheet(QStringLiteral("QPushButton{Text-align:left; ") + colours));
}

} // namespace

void MainWindow::setLook(Screen screen, Look look)
{
    dress(m_apNavigation[screen], ScreenImages[screen], static_cast<std::size_t>(look));
}

void MainWindow::hoverNavigation(Screen screen)
{
    setLook(screen, isOnShow(screen) ? Look::Selected : Look::Hover);
}

void MainWindow::leaveNavigation(Screen screen)
{
    setLook(screen, isOnShow(screen) ? Look::Selected : Look::Normal);
}

void MainWindow::selectButton(Screen screen)
{
    m_screen = screen;
    for (const Screen other : Screens) {
        m_apNavigation[other]->setCurrent(other == screen);
        leaveNavigation(other);
    }
}

void MainWindow::pressNavigation(Screen screen)
{
    m_abSwitchTarget.fill(false);
    m_abSwitchTarget[screen] = true;
    if (!g_Jobs.mayLeave()) {
        m_apNavigation[screen]->setCurrent(isOnShow(screen));
        showCentred(m_pScanSwitch);
        return;
    }
    selectButton(screen);
    const navigation::Button &shown = navigation::buttons[screen];
    if (!shown.scan)
        m_ui.ScanButton->hide();
    if (!shown.clone)
        m_ui.CloneButton->hide();
    m_ui.BackTestButton->hide();
    m_ui.StopTestButton->hide();
    callShowSlot(screen);
}

void MainWindow::showCentred(QWidget *dialog)
{
    style::centreOn(dialog, geometry());
    dialog->show();
}

void MainWindow::callShowSlot(Screen screen)
{
    using Slot = void (MainWindow::*)();
    constexpr std::array<Slot, navigation::ScreenCount> table = {
        &MainWindow::OnShowDiskStatus, &MainWindow::OnShowSmartStatus, &MainWindow::OnShowDiskPartition,
        &MainWindow::OnShowScanDisk, &MainWindow::OnShowCloneDisk};
    (this->*table.at(screen))();
}

void MainWindow::showScreen(Screen screen)
{
    for (const Screen other : Screens)
        m_apScreens[other]->setVisible(other == screen);
    const navigation::Button &shown = navigation::buttons[screen];
    m_ui.ScanButton->setVisible(shown.scan);
    const bool cloning = g_Jobs.runs(Job::Clone);
    // OnShowCloneDisk() can run while Scan Disk is the screen on show.
    m_ui.CloneButton->setVisible(shown.clone && !cloning && !isOnShow(navigation::ScanDiskScreen));
    // A clone goes on while another screen is on show. There the Stop button would be taken for that of a
    // scan.
    if (cloning)
        m_ui.StopButton->setVisible(shown.clone && !g_bAbortJob);
    m_ui.ReportSaveButton->setVisible(shown.report);
    m_ui.ScreenshotButton->setVisible(shown.screenshot);
    m_ui.BackTestButton->hide();
    m_ui.StopTestButton->hide();
    showAccess();
}

/// Without the rights to open a disk there is nothing that the screens could show or do.
void MainWindow::showAccess()
{
    const bool denied = g_App.m_bAccessDenied;
    if (!denied && m_pAccessNotice->isHidden())
        return;
    m_pAccessNotice->setVisible(denied);
    for (const Screen screen : Screens)
        m_apScreens[screen]->setVisible(!denied && isOnShow(screen));
    m_ui.DriveCombobox->setEnabled(!denied);
    updateButtons();
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
    showScreen(navigation::CloneDiskScreen);
    refreshClonePage();
}

void MainWindow::OnSwitchConfirm()
{
    m_pScanSwitch->hide();
    dropScanResults();
    g_Jobs.closeResults();
    g_Jobs.dropPlan();
    m_ui.DriveCombobox->setEnabled(!g_Jobs.runs(Job::Clone));
    for (const Screen screen : Screens) {
        if (!m_abSwitchTarget[screen])
            continue;
        selectButton(screen);
        callShowSlot(screen);
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
    for (const Screen screen : Screens)
        leaveNavigation(screen);
    m_pScanSwitch->hide();
}

void MainWindow::askToStop(const QString &title, const QString &warning, const QString &question)
{
    m_pConfirmation->SetTexts(title, warning, question);
    showCentred(m_pConfirmation);
}

void MainWindow::OnStop()
{
    if (isOnShow(navigation::CloneDiskScreen))
        askToStop(tr("Stop Clone"), tr("Cloning can not be resumed from the current stage."),
                  tr("Do you wish to abort the cloning?"));
    else if (isOnShow(navigation::ScanDiskScreen))
        askToStop(tr("Stop Scan"), tr("Scan can not be resumed from the current stage."),
                  tr("Do you wish to abort the scan?"));
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
    m_ui.StopButton->hide();
    m_ui.StopTestButton->hide();
    g_Jobs.stop();
    if (m_pCloneDiskPage->isVisible()) {
        setLook(navigation::CloneDiskScreen, Look::Selected);
        m_apNavigation[navigation::CloneDiskScreen]->setCurrent(true);
        m_screen = navigation::CloneDiskScreen;
    } else if (g_bStopRequested) {
        StopConfirm();
    }
    m_pScanDiskPage->CentreResult();
    m_pConfirmation->hide();
}

void MainWindow::setBackLook(Look look)
{
    dress(m_ui.BackTestButton, BackImages, static_cast<std::size_t>(look));
}

void MainWindow::OnBackTestPressImage()
{
    m_abSwitchTarget.fill(false);
    if (g_Jobs.resultOpen()) {
        m_bBackRequested = true;
        showCentred(m_pScanSwitch);
        return;
    }
    OnShowScanDisk();
}
