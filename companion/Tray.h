// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "companion/Alarms.h"
#include "companion/TrayState.h"

#include <QMenu>
#include <QSystemTrayIcon>
#include <QTimer>

#include <deque>
#include <optional>
#include <utility>

/// The icon of the companion with its menu and messages. Where there is no tray, it waits for one. Main
/// thread only.
class Tray : public QObject
{
    Q_OBJECT

public:
    /// `areWindowsDark`: those of the system, whose bar is then taken for dark unless it tells.
    explicit Tray(Watch *watch, bool areWindowsDark = false);

    /// Shows the icon, and its menu in the language in use.
    void show();
    void retranslate();

public slots:
    void take(const WatchView &view);
    void tell(const WatchEvent &event, bool fahrenheit);
    /// Pauses the alarms for an hour, or ends the pause.
    void pauseOrGoOn();

signals:
    void flyoutWanted(const QRect &icon);
    void paused(bool paused);

private:
    void activated(QSystemTrayIcon::ActivationReason reason);
    void showNextMessage();
    /// Lets the one that shows go.
    void nextMessage();
    /// Keeps that the user has been shown the event.
    void shown(const WatchEvent &event);
    void messageClicked();
    bool isPaused() const;
    void showOrHide();
    void showIcon();

    Watch &m_watch;
    const bool m_areWindowsDark;
    QMenu m_menu;
    QSystemTrayIcon m_icon;
    QAction *m_pOpen;
    QAction *m_pRefresh;
    QAction *m_pPause;
    QAction *m_pHealth;
    QAction *m_pSettings;
    QAction *m_pQuit;
    QTimer m_clickTimer; ///< a click waits for a second one
    Alarms m_alarms;
    WatchView m_view;
    QDateTime m_pausedUntil;
    /// The first one is that which shows.
    std::deque<std::pair<WatchEvent, bool>> m_messages;
    QTimer m_messageTimer;
    /// The last one. A click does not tell which message it means, and may come when none waits any more.
    std::optional<WatchEvent> m_shown;
};
