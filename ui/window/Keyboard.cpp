// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/Page.h"
#include "ui/window/MainWindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScrollArea>
#include <QShortcut>

namespace
{

void pressIfShown(QPushButton *button)
{
    if (button->isVisible())
        button->click();
}

/// Widgets of a page that the key Tab reaches, in their order. A list that can scroll later is one of them.
QList<QWidget *> focusable(QWidget *page)
{
    QList<QWidget *> found;
    for (QWidget *next = page->nextInFocusChain(); next != page; next = next->nextInFocusChain()) {
        if (page->isAncestorOf(next) &&
            ((next->focusPolicy() & Qt::TabFocus) != 0 || qobject_cast<QScrollArea *>(next)))
            found.append(next);
    }
    return found;
}

} // namespace

/// Keys that work wherever the focus is in the window.
void MainWindow::connectKeys()
{
    const auto add = [this](const QKeySequence &keys, const std::function<void()> &action) {
        auto *shortcut = new QShortcut(keys, this);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    for (const Screen screen : Screens) {
        add(QKeySequence(Qt::CTRL + Qt::Key_1 + screen), [this, screen] {
            pressNavigation(screen);
            releaseNavigation(screen);
        });
    }
    add(QKeySequence(Qt::Key_F1), [this] { OnOpenHelp(); });
    add(QKeySequence(Qt::Key_F5), [this] { OnRefresh(); });
    add(QKeySequence(Qt::CTRL + Qt::Key_S), [this] { pressIfShown(m_ui.ReportSaveButton); });
    add(QKeySequence(Qt::CTRL + Qt::Key_P), [this] { pressIfShown(m_ui.ScreenshotButton); });
}

/// Where no text and no row is selected, all that the page says is copied.
void MainWindow::keyPressEvent(QKeyEvent *event)
{
    if (!m_screen || !event->matches(QKeySequence::Copy))
        return QMainWindow::keyPressEvent(event);
    QStringList texts{pagelook::shownText(m_apScreens[*m_screen])};
    if (isOnShow(navigation::SmartStatusScreen))
        texts << m_pSmartStatusPage->RowTexts(false);
    QGuiApplication::clipboard()->setText(texts.join(QLatin1Char('\n')));
}

/// The key Tab goes through the window as it is read: title, navigation, disk, page, buttons below.
void MainWindow::orderFocus()
{
    QList<QWidget *> order{m_ui.m_pHelpButton, m_ui.m_pMoreToolsButton, m_ui.m_pMenuButton,
                           m_ui.minimizeButton, m_ui.CloseButton};
    for (MyButton *button : m_apNavigation)
        order << button;
    order << m_ui.DriveCombobox;
    for (QWidget *page : m_apScreens)
        order << focusable(page);
    order << m_ui.BackTestButton << m_ui.StopTestButton << m_ui.StopButton << m_ui.ScanButton
          << m_ui.CloneButton << m_ui.ReportSaveButton << m_ui.ScreenshotButton;
    for (int i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));
}
