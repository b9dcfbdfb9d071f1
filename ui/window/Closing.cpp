// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "platform/Platform.h"
#include "state/Globals.h"
#include "ui/widgets/Style.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>

namespace
{
/// The continuous state alone: what was asked for before is over, and the system may sleep again.
constexpr quint32 ExecutionContinuous = 0x80000000u;
/// With system required and away mode required: the system must not sleep.
constexpr quint32 StayAwake = 0x80000041u;

/// A window without a parent may lie behind the main window, where showing it again would change nothing.
void bringUp(QWidget *window)
{
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace

/// Call it when a job has begun or ended: the machine stays awake while one runs.
void MainWindow::keepAwake()
{
    Platform::current().SetThreadExecutionState(g_Jobs.mayClose() ? ExecutionContinuous : StayAwake);
}

void MainWindow::showRunningPanel(bool fromYes)
{
    const bool scanScreen = isOnShow(navigation::ScanDiskScreen);
    if (isOnShow(navigation::CloneDiskScreen) || (scanScreen && g_Jobs.runs(Job::Clone)))
        m_pDestinitionWarning->SetTexts(tr("Clone Disk"),
                                        fromYes ? tr("Clone Running.") : tr("Cloning process running."),
                                        tr("Please halt the clone process to exit."));
    else if (scanScreen)
        m_pDestinitionWarning->SetTexts(tr("Scan Disk"),
                                        fromYes ? tr("Scaning Running.") : tr("Disk scan running."),
                                        tr("Please halt the scan process to exit."));
    else
        return;
    showCentred(m_pDestinitionWarning);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    keepAwake();
    if (!g_Jobs.mayClose())
        showRunningPanel(false);
    else
        bringUp(m_pCloseWgt);
}

void MainWindow::OnClose()
{
    if (!g_Jobs.mayClose()) {
        showRunningPanel(false);
        return;
    }
    style::centreOn(m_pCloseWgt, geometry());
    bringUp(m_pCloseWgt);
}

void MainWindow::Onyes()
{
    if (g_Jobs.mayQuit())
        QCoreApplication::quit();
    else
        showRunningPanel(true);
}

void MainWindow::iconActivated(QSystemTrayIcon::ActivationReason reason)
{
    if (reason == QSystemTrayIcon::Trigger)
        setVisible(!isVisible());
}

void MainWindow::launchSibling(const QString &fileName)
{
    Platform::current().SetThreadExecutionState(ExecutionContinuous);
    QDir::setCurrent(g_App.m_strApplicationFolder);
    Platform::current().ShellExecuteW(g_App.m_strApplicationFolder + QLatin1Char('\\') + fileName, QString(),
                                      QStringLiteral("Open"));
    QCoreApplication::quit();
}
