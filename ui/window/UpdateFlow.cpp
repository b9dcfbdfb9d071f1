// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Globals.h"
#include "ui/dialogs/QCheckUpdate.h"
#include "ui/widgets/Style.h"
#include "ui/window/MainWindow.h"

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
