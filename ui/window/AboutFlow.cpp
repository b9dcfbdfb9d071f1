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
    for (std::size_t screen = 0; screen < topics.size(); ++screen) {
        if (isDown(static_cast<Screen>(screen)))
            return topics[screen];
    }
    return links::Topic::Window;
}
