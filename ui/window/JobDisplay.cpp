// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/JobDisplay.h"

#include "platform/Platform.h"
#include "state/JobState.h"

#include <QApplication>
#include <QWidget>

void JobDisplay::show(std::optional<int> percent)
{
    if (percent == m_percent && m_pWindow->windowTitle() == m_strShown)
        return;
    m_percent = percent;
    // A change of the language puts the plain title back.
    if (m_pWindow->windowTitle() != m_strShown)
        m_strPlain = m_pWindow->windowTitle();
    m_strShown = jobnotices::windowTitle(m_strPlain, percent);
    m_pWindow->setWindowTitle(m_strShown);
    Platform::current().SetProgressValue(m_pWindow->winId(), percent);
}

void JobDisplay::tellEnd(const JobEnd &end)
{
    if (!g_Jobs.holdsDisks())
        show(std::nullopt);
    const bool inFront = QApplication::activeWindow() && !m_pWindow->isMinimized();
    const auto notice = jobnotices::notice(end, inFront);
    if (!notice)
        return;
    Platform::current().Shell_NotifyIconW(m_pWindow->winId(), notice->title, notice->text);
    m_bTold = true;
}

void JobDisplay::seen()
{
    if (m_bTold)
        Platform::current().Shell_NotifyIconW(m_pWindow->winId(), QString(), QString());
    m_bTold = false;
}
