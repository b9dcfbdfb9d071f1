// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/AboutDlg.h"
#include "ui/screens/Settings.h"
#include "ui/widgets/Style.h"
#include "ui/window/MainWindow.h"
#include "update/HelpLinks.h"

void MainWindow::OnShowAbout()
{
    auto *about = new AboutDlg(this);
    style::centreOn(about, geometry());
    about->show();
}

void MainWindow::OnOpenHelp()
{
    links::openHelp(helpTopic());
}

links::Topic MainWindow::helpTopic() const
{
    if (m_pSettings->isVisible())
        return links::Topic::Settings;
    constexpr std::array<links::Topic, navigation::ScreenCount> topics{
        links::Topic::DiskStatus, links::Topic::SmartStatus, links::Topic::DiskPartition,
        links::Topic::ScanDisk, links::Topic::CloneDisk};
    return m_screen ? topics[static_cast<std::size_t>(*m_screen)] : links::Topic::Window;
}
