// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/Alarms.h"

#include "companion/TrayState.h"
#include "inventory/CommandRunner.h"
#include "monitor/EventTexts.h"
#include "ui/widgets/Announce.h"
#include "ui/widgets/Style.h"

#include <QCursor>
#include <QLabel>

#include <algorithm>

namespace
{

constexpr int WarningGap = 8; ///< design pixels between the two

} // namespace

Alarms::Alarms()
{
    m_warning.dialog = &m_smart;
    m_shutDownWarning.dialog = &m_shutDown;
    for (Warning *warning : {&m_warning, &m_shutDownWarning}) {
        warning->dialog->setAttribute(Qt::WA_ShowWithoutActivating);
        warning->dialog->setWindowFlag(Qt::WindowStaysOnTopHint);
        connect(warning->dialog, &MessageDialog::dismissed, this, [this, warning] { closed(warning); });
        // By the window manager.
        connect(warning->dialog, &QDialog::rejected, this, [this, warning] { closed(warning); });
    }
    connect(&m_smart, &MessageDialog::confirmed, this, [this] { closed(&m_warning); });
    // The dialog stays: the system may refuse, or ask.
    connect(&m_shutDown, &MessageDialog::confirmed, this, [] { RunSilent("shutdown /s", ""); });
}

void Alarms::show(const WatchEvent &event, bool fahrenheit)
{
    const Line line{event.id, event.model, event.serial,
                    traystate::titleOf(event) + QStringLiteral(": ") +
                        eventtexts::temperature(static_cast<int>(event.value), fahrenheit)};
    if (event.kind == EventKind::TemperatureShutDown) {
        remove(&m_warning, line);
        add(&m_shutDownWarning, line);
    } else {
        add(&m_warning, line);
    }
}

void Alarms::add(Warning *warning, const Line &line)
{
    remove(warning, line);
    warning->lines.push_back(line);
    QStringList texts;
    for (const Line &each : warning->lines)
        texts << each.text;
    warning->dialog->NameDisk(texts.join(QLatin1Char('\n')));
    const bool isNew = !warning->dialog->isVisible();
    if (isNew)
        style::centreOn(warning->dialog, style::availableArea(QCursor::pos()));
    warning->dialog->show();
    warning->dialog->raise();
    // It has no focus that a screen reader could follow.
    if (isNew)
        announce(warning->dialog->findChild<QLabel *>(QStringLiteral("WarningTxtLbl")));
    announce(warning->dialog->findChild<QLabel *>(QStringLiteral("MediaNameLbl")));
    // The other one stays readable.
    const QWidget *other = warning == &m_warning ? m_shutDownWarning.dialog : m_warning.dialog;
    if (isNew && other->isVisible())
        style::placeWindow(warning->dialog,
                           other->geometry().bottomLeft() + QPoint(0, style::px(WarningGap)));
}

void Alarms::remove(Warning *warning, const Line &line)
{
    std::vector<Line> &lines = warning->lines;
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [&line](const Line &each) {
                                   return each.model == line.model && each.serial == line.serial;
                               }),
                lines.end());
    if (lines.empty())
        warning->dialog->hide();
}

void Alarms::closed(Warning *warning)
{
    for (const Line &line : warning->lines)
        emit seen(line.event);
    warning->lines.clear();
}
