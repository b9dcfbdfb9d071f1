// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "smart/SmartGlobals.h"
#include "smart/Temperature.h"
#include "state/SettingsStore.h"
#include "ui/dialogs/AboutDlg.h"
#include "ui/dialogs/QCheckUpdate.h"

void MainWindow::OnShowAbout()
{
    showCentred(new AboutDlg(this));
}

links::Topic MainWindow::helpTopic() const
{
    if (m_pSettings->isVisible())
        return links::Topic::Settings;
    constexpr links::Topic topics[navigation::ScreenCount] = {
        links::Topic::DiskStatus, links::Topic::SmartStatus, links::Topic::DiskPartition,
        links::Topic::ScanDisk, links::Topic::CloneDisk};
    return m_screen ? topics[*m_screen] : links::Topic::Window;
}

void MainWindow::OnCheckUpdate()
{
    if (QCheckUpdate *check = checkForUpdates(this)) {
        m_pCheckUpdate = check;
        check->hide();
    }
}

void MainWindow::OnShowSettings()
{
    if (!g_Jobs.isIdle())
        return;
    m_pSettings->LoadFromStore();
    showCentred(m_pSettings);
    m_pSettings->raise();
    m_pSettings->activateWindow();
}

void MainWindow::OnSetSmartSettings()
{
    m_pSettings->SaveToStore();
    const QString unit = SettingsStore().text(key::TempValue);
    const int celsius = GetDiskTemperature();
    g_strTemperatureText = loadTemperatureText(celsius, unit);
    m_pDiskStatusPage->showTile(DiskStatus::Temperature, g_bReportPending ? waitingTemperatureText(unit)
                                                         : celsius < 1    ? tr("Not Supported")
                                                                          : g_strTemperatureText);
    companion::setWanted(m_pSettings->WantsTray());
    m_pSettings->hide();
}
