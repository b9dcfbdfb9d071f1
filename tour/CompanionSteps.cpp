// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/Alarms.h"
#include "companion/Flyout.h"
#include "companion/LimitsDialog.h"
#include "companion/TrayPicture.h"
#include "platform/Platform.h"
#include "tour/Steps.h"
#include "tour/Walk.h"
#include "ui/widgets/Style.h"

#include <QPainter>

/// The icon in each sign, at the sizes of 96 to 192 DPI, on a light and on a dark bar.
class TrayIcons : public QWidget
{
    Q_OBJECT

public:
    TrayIcons() { setFixedSize(2 * Side * 4, 2 * Side); }

protected:
    void paintEvent(QPaintEvent *) override;

private:
    static constexpr int Side = 80;
};

void TrayIcons::paintEvent(QPaintEvent *)
{
    using traystate::Sign;
    const traystate::Icon icons[] = {{QStringLiteral("36"), Sign::InOrder},
                                     {QStringLiteral("53"), Sign::Warm},
                                     {QStringLiteral("104"), Sign::Hot},
                                     {QString(), Sign::Unknown}};
    QPainter painter(this);
    for (const bool dark : {false, true}) {
        const int top = dark ? Side : 0;
        painter.fillRect(0, top, width(), Side, dark ? QColor(0x20, 0x20, 0x20) : QColor(0xf0, 0xf0, 0xf0));
        int left = 0;
        for (const traystate::Icon &icon : icons) {
            int x = left + 8;
            for (const int size : {16, 20, 24, 32}) {
                painter.drawPixmap(x, top + (Side - size) / 2, traypicture::pixmap(icon, size, dark));
                x += size + 12;
            }
            left += 2 * Side;
        }
    }
}

namespace
{

constexpr int Hours = 24;

/// Takes the events in.
class Events : public MonitorListener
{
public:
    void tell(const WatchEvent &event) override { m_told.push_back(event); }
    const std::vector<WatchEvent> &told() const { return m_told; }

private:
    std::vector<WatchEvent> m_told;
};

/// What the companion knows of the PC after a day.
struct Day {
    Events events;
    WatchView view;
};

/// The windows of the companion. They live on the GUI thread.
struct Parts {
    std::unique_ptr<TrayIcons> icons = std::make_unique<TrayIcons>();
    std::unique_ptr<Flyout> flyout = std::make_unique<Flyout>();
    std::unique_ptr<Alarms> alarms = std::make_unique<Alarms>();
    std::unique_ptr<LimitsDialog> limits;
};

std::unique_ptr<Parts> &parts()
{
    static std::unique_ptr<Parts> all;
    return all;
}

/// Rows in the states that the PC's disks are seldom in, so that their words are seen too.
void addStates(std::vector<DiskSummary> *disks)
{
    if (disks->empty())
        return;
    DiskSummary disk = disks->front();
    disk.state = DiskState::Asleep;
    disk.answer = DiskReading::Answer::Asleep;
    disks->push_back(disk);
    disk.missing = true;
    disks->push_back(disk);
}

/// GUI thread. Watched once only: a second day would begin before the end of the first one, and the history
/// of the disks would go back and forth.
const Day &day()
{
    static std::unique_ptr<Day> watched;
    if (!watched) {
        watched = std::make_unique<Day>();
        Monitor monitor(watched->events);
        const QDateTime now = Platform::current().Now();
        for (int hour = Hours; hour >= 0; --hour)
            monitor.round(now.addSecs(-3600 * hour));
        watched->view = {monitor.disks(), monitor.settings().fahrenheit, now};
        addStates(&watched->view.disks);
    }
    return *watched;
}

void watchADay(Walk &walk)
{
    walk.waitIdle();
    walk.program().ask([] {
        day();
        parts() = std::make_unique<Parts>();
    });
}

void see(Walk &walk, const QString &step, const QString &windowClass, const std::function<void()> &open,
         const std::function<void()> &close)
{
    const Expectation window(&walk, windowClass);
    walk.program().ask([open] { open(); });
    walk.waitForWindow(windowClass);
    walk.record(step, windowClass);
    walk.program().ask([close] { close(); });
    walk.waitForNoWindow(windowClass);
}

void seeIcons(Walk &walk)
{
    see(
        walk, QStringLiteral("tray"), QStringLiteral("TrayIcons"), [] { parts()->icons->show(); },
        [] { parts()->icons->hide(); });
}

void seeFlyout(Walk &walk)
{
    see(
        walk, QStringLiteral("flyout"), QStringLiteral("Flyout"),
        [] {
            parts()->flyout->take(day().view);
            parts()->flyout->showAt(QRect());
        },
        [] { parts()->flyout->hide(); });
}

void seeLimits(Walk &walk)
{
    see(
        walk, QStringLiteral("dialog:LimitsDialog"), QStringLiteral("LimitsDialog"),
        [] {
            const std::vector<DiskSummary> &disks = day().view.disks;
            parts()->limits = std::make_unique<LimitsDialog>(disks.empty() ? DiskSummary() : disks.front(),
                                                             day().view.fahrenheit);
            parts()->limits->show();
        },
        [] { parts()->limits->reject(); });
}

/// A dialog of a temperature event, with the names of all disks that had one.
void seeAlarm(Walk &walk, EventKind kind, const QString &windowClass)
{
    const Expectation window(&walk, windowClass);
    const bool any = walk.program().ask([kind] {
        bool shown = false;
        for (const WatchEvent &event : day().events.told()) {
            if (event.kind != kind)
                continue;
            parts()->alarms->show(event, day().view.fahrenheit);
            shown = true;
        }
        return shown;
    });
    if (any)
        walk.answer(windowClass, QStringLiteral("OkButton"));
}

void leave(Walk &walk)
{
    walk.program().ask([] { parts().reset(); });
}

} // namespace

StepList companionSteps(Walk &)
{
    return {
        {QStringLiteral("watch"), watchADay, true},
        {QStringLiteral("tray"), seeIcons},
        {QStringLiteral("flyout"), seeFlyout},
        {QStringLiteral("dialog:LimitsDialog"), seeLimits},
        {QStringLiteral("dialog:SmartWarning"),
         [](Walk &walk) { seeAlarm(walk, EventKind::TemperatureWarning, QStringLiteral("SmartWarning")); }},
        {QStringLiteral("dialog:ShutDownWarning"),
         [](Walk &walk) {
             seeAlarm(walk, EventKind::TemperatureShutDown, QStringLiteral("ShutDownWarning"));
         }},
        {QStringLiteral("leave"), leave}};
}

#include "CompanionSteps.moc"
