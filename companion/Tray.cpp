// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/Tray.h"

#include "companion/OpenProgram.h"
#include "companion/TrayPicture.h"
#include "inventory/Companion.h"
#include "monitor/EventTexts.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "state/SettingsStore.h"
#include "ui/widgets/Style.h"

#include <QApplication>
#include <QCursor>

namespace
{

constexpr int MessageMs = 10000;

/// Whether the system's bar is dark; where it does not tell, it is like its windows.
bool isBarDark(bool areWindowsDark)
{
    const SettingsStore theme(
        QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\"
                       "Themes\\Personalize"));
    return theme.numberOrFirst({"SystemUsesLightTheme", areWindowsDark ? 0 : 1}) == 0;
}

QSystemTrayIcon::MessageIcon iconOf(EventKind kind)
{
    switch (eventtexts::severityOf(kind)) {
    case eventtexts::Severity::Information:
        return QSystemTrayIcon::Information;
    case eventtexts::Severity::Warning:
        return QSystemTrayIcon::Warning;
    case eventtexts::Severity::Critical:
        break;
    }
    return QSystemTrayIcon::Critical;
}

bool isTemperature(EventKind kind)
{
    return kind == EventKind::TemperatureWarning || kind == EventKind::TemperatureShutDown;
}

} // namespace

Tray::Tray(Watch *watch, bool areWindowsDark)
    : m_watch(*watch), m_areWindowsDark(areWindowsDark), m_icon(this), m_pOpen(m_menu.addAction(QString())),
      m_pRefresh(m_menu.addAction(QString())), m_pPause(m_menu.addAction(QString())),
      m_pHealth(m_menu.addAction(QString())), m_pSettings(m_menu.addAction(QString())),
      m_pQuit(m_menu.addAction(QString())), m_clickTimer(this), m_messageTimer(this)
{
    m_menu.setDefaultAction(m_pOpen);
    m_menu.insertSeparator(m_pQuit);
    m_menu.setFont(style::font(10));
    m_menu.setStyleSheet(style::fieldSheet());
    connect(m_pOpen, &QAction::triggered, this, &openprogram::open);
    connect(m_pRefresh, &QAction::triggered, watch, &Watch::refresh);
    connect(m_pPause, &QAction::triggered, this, &Tray::pauseOrGoOn);
    for (QAction *choice : {m_pPause, m_pHealth})
        choice->setCheckable(true);
    connect(m_pHealth, &QAction::triggered, this, [this](bool checked) {
        SettingsStore().write(key::TrayHealth, checked ? 1 : 0);
        showIcon();
    });
    connect(m_pSettings, &QAction::triggered, this, &openprogram::inSettings);
    connect(m_pQuit, &QAction::triggered, this, [] {
        // Else the program would start it again at its next look at a disk.
        companion::markEnded();
        QApplication::quit();
    });
    m_icon.setContextMenu(&m_menu);
    connect(&m_icon, &QSystemTrayIcon::activated, this, &Tray::activated);
    connect(&m_icon, &QSystemTrayIcon::messageClicked, this, &Tray::messageClicked);
    m_clickTimer.setSingleShot(true);
    m_clickTimer.setInterval(QApplication::doubleClickInterval());
    connect(&m_clickTimer, &QTimer::timeout, this, [this] { emit flyoutWanted(m_icon.geometry()); });
    m_messageTimer.setSingleShot(true);
    m_messageTimer.setInterval(MessageMs);
    connect(&m_messageTimer, &QTimer::timeout, this, &Tray::nextMessage);
    connect(&m_alarms, &Alarms::seen, watch, &Watch::markSeen);
    connect(watch, &Watch::looked, this, &Tray::take);
    connect(watch, &Watch::happened, this, &Tray::tell);
    m_pausedUntil = watch->pausedUntil();
    retranslate();
}

void Tray::show()
{
    take(WatchView());
}

void Tray::retranslate()
{
    m_pOpen->setText(tr("Open"));
    m_pRefresh->setText(tr("Refresh now"));
    m_pPause->setText(tr("Pause alarms for an hour"));
    m_pHealth->setText(tr("Show lowest health"));
    m_pSettings->setText(tr("Settings"));
    m_pQuit->setText(tr("Quit"));
}

void Tray::take(const WatchView &view)
{
    m_view = view;
    showIcon();
    showOrHide();
    m_pPause->setChecked(isPaused());
    emit paused(isPaused());
}

void Tray::showOrHide()
{
    // Without that option it runs for the metrics alone, and comes up for a message.
    const SettingsStore store;
    m_icon.setVisible(store.numberOrFirst(key::ShowTrayIcon) != 0 || store.text(key::MetricsPath).isEmpty() ||
                      !m_messages.empty());
}

void Tray::showIcon()
{
    const bool showsHealth = SettingsStore().flag(key::TrayHealth);
    m_pHealth->setChecked(showsHealth);
    m_icon.setIcon(traypicture::icon(traystate::iconOf(m_view, showsHealth), isBarDark(m_areWindowsDark)));
    m_icon.setToolTip(traystate::toolTip(m_view, Platform::current().TrayTipLength()));
}

void Tray::tell(const WatchEvent &event, bool fahrenheit)
{
    if (isTemperature(event.kind)) {
        m_alarms.show(event, fahrenheit);
        shown(event);
        return;
    }
    m_messages.emplace_back(event, fahrenheit);
    if (m_messages.size() == 1)
        showNextMessage();
}

void Tray::shown(const WatchEvent &event)
{
    qCDebug(logs::monitor) << "shows event" << event.id << nameOf(event.kind);
    m_watch.markTold(event.id);
}

void Tray::nextMessage()
{
    m_messages.pop_front();
    showNextMessage();
}

void Tray::showNextMessage()
{
    showOrHide();
    if (m_messages.empty())
        return;
    const auto &[event, fahrenheit] = m_messages.front();
    const QString title = traystate::titleOf(event);
    const QString text = traystate::messageOf(event, fahrenheit);
    if (QSystemTrayIcon::isSystemTrayAvailable())
        m_icon.showMessage(title, text, iconOf(event.kind), MessageMs);
    else // a desktop without a tray may still show messages
        Platform::current().Shell_NotifyIconW(0, title, text);
    m_shown = event;
    shown(event);
    m_messageTimer.start();
}

void Tray::activated(QSystemTrayIcon::ActivationReason reason)
{
    // Some trays know single clicks only.
    const bool isSecond = reason == QSystemTrayIcon::Trigger && m_clickTimer.isActive();
    if (reason == QSystemTrayIcon::DoubleClick || isSecond) {
        m_clickTimer.stop();
        openprogram::open();
    } else if (reason == QSystemTrayIcon::Trigger) {
        m_clickTimer.start();
    }
}

void Tray::messageClicked()
{
    // Where the message is a balloon, a press of the icon closes it and counts as a click on it, too.
    if (!m_shown || m_icon.geometry().contains(QCursor::pos()))
        return;
    const WatchEvent event = *std::exchange(m_shown, std::nullopt);
    m_watch.markSeen(event.id);
    if (event.kind == EventKind::LogUnwritten)
        openprogram::inSettings();
    else
        openprogram::onDisk(event.kind == EventKind::Missing ? -1 : event.disk);
    if (!m_messages.empty()) {
        m_messageTimer.stop();
        nextMessage();
    }
}

bool Tray::isPaused() const
{
    const qint64 until = m_pausedUntil.isValid() ? m_pausedUntil.toMSecsSinceEpoch() : 0;
    return Schedule::isPaused(until, Platform::current().Now().toMSecsSinceEpoch());
}

void Tray::pauseOrGoOn()
{
    m_pausedUntil = isPaused() ? QDateTime() : Platform::current().Now().addMSecs(Schedule::Pause);
    m_watch.pauseAlarms(m_pausedUntil);
    m_pPause->setChecked(isPaused());
    emit paused(isPaused());
}
