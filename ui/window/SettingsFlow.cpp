// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "inventory/Companion.h"
#include "platform/Platform.h"
#include "smart/SmartGlobals.h"
#include "smart/Temperature.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/SettingsStore.h"
#include "ui/screens/DiskStatus.h"
#include "ui/screens/Settings.h"
#include "ui/widgets/Style.h"

#include <QCoreApplication>

namespace
{

LogonTask companionTask()
{
    LogonTask task;
    task.name = companion::taskName();
    task.author = g_App.m_strUserName;
    task.program = QCoreApplication::applicationDirPath() + QLatin1Char('/') + companion::fileName();
    task.arguments = QStringLiteral("Schedular");
    return task;
}

} // namespace

void MainWindow::OnShowSettings()
{
    if (!g_Jobs.isIdle())
        return;
    m_pSettings->LoadFromStore();
    style::centreOn(m_pSettings, geometry());
    m_pSettings->show();
    m_pSettings->raise();
    m_pSettings->activateWindow();
}

void MainWindow::OnSetSmartSettings()
{
    m_pSettings->SaveToStore();
    const QString unit = SettingsStore().text(key::TempValue);
    const int celsius = GetDiskTemperature();
    g_strTemperatureText = loadTemperatureText(celsius, unit);
    m_pDiskStatusPage->tempValueLbl->setText(g_bReportPending ? waitingTemperatureText(unit)
                                             : celsius < 1    ? tr("Not Supported")
                                                              : g_strTemperatureText);
    const bool tray = m_pSettings->WantsTray();
    if (tray) {
        Platform::current().CreateLogonTask(companionTask());
        companion::ensureRunning();
    }
    SettingsStore().write(key::ShowTrayIcon, tray ? 1 : 0);
    if (!tray) {
        Platform::current().DeleteLogonTask(companion::taskName());
        companion::kill();
    }
    m_pSettings->hide();
}
