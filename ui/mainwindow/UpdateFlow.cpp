#include "app/state/Globals.h"
#include "ui/MainWindow.h"
#include "ui/ManualCheck.h"
#include "ui/QCheckUpdate.h"
#include "ui/Style.h"

void MainWindow::checkAtStart()
{
    m_pCheckUpdate = new QCheckUpdate(this);
    style::centreOn(m_pCheckUpdate, m_rcSplash);
}

void MainWindow::OnCheckUpdate()
{
    if (QCheckUpdate *check = checkForUpdates(this)) {
        m_pCheckUpdate = check;
        check->hide();
    }
}
