// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/TrayState.h"

#include "monitor/EventTexts.h"
#include "smart/Temperature.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace traystate
{

namespace
{

constexpr std::size_t MostLines = 24; ///< of a tip
constexpr int LongestLine = 80;       ///< of it, characters
/// Of a tip whose length is limited. More would leave no room for names.
constexpr std::size_t MostShortLines = 5;
const QString Dash = QString(QChar(0x2013));

QString say(const char *text)
{
    return QCoreApplication::translate("Companion", text);
}

/// Whether the temperature that is known is that of now.
bool isWarmNow(const DiskSummary &disk)
{
    return disk.isNow() && disk.reading.celsius;
}

/// The moment since which the disk has been at its limit without a break; 0 where it is not.
qint64 warmSince(const DiskSummary &disk)
{
    const int limit = disk.limits.warning.value_or(disk.limits.shutDown.value_or(HottestCelsius + 1));
    qint64 since = 0;
    for (auto point = disk.day.crbegin(); point != disk.day.crend() && point->celsius >= limit; ++point)
        since = point->when;
    return since;
}

QString clockOf(qint64 when)
{
    return QLocale().toString(QDateTime::fromMSecsSinceEpoch(when).time(), QStringLiteral("HH:mm"));
}

QString withHealth(const QString &text, const DiskSummary &disk)
{
    return disk.reading.health
               ? say(QT_TRANSLATE_NOOP("Companion", "%1 · health %2 %")).arg(text).arg(*disk.reading.health)
               : text;
}

QString asleepText(const DiskSummary &disk, bool fahrenheit)
{
    if (disk.day.empty())
        return say(QT_TRANSLATE_NOOP("Companion", "Asleep"));
    const TemperaturePoint &last = disk.day.back();
    return say(QT_TRANSLATE_NOOP("Companion", "Asleep · last %1 at %2"))
        .arg(eventtexts::temperature(last.celsius, fahrenheit), clockOf(last.when));
}

QString warmText(const DiskSummary &disk)
{
    const qint64 since = warmSince(disk);
    const QString text = disk.heat == Heat::Hot ? say(QT_TRANSLATE_NOOP("Companion", "Hot"))
                         : since == 0
                             ? say(QT_TRANSLATE_NOOP("Companion", "Warm"))
                             : say(QT_TRANSLATE_NOOP("Companion", "Warm since %1")).arg(clockOf(since));
    return withHealth(text, disk);
}

/// What a row tells of in place of its state; null where it tells its state.
const WatchEvent *eventOf(const DiskSummary &disk)
{
    const bool isQuiet = (disk.state == DiskState::Warning || disk.state == DiskState::Ok) && !disk.missing &&
                         disk.heat == Heat::InOrder;
    return isQuiet && !disk.unseen.empty() ? &disk.unseen.back() : nullptr;
}

/// The order of a tip that has no room for all: the worst first, then the hottest.
bool isWorse(const DiskSummary &left, const DiskSummary &right)
{
    const auto rank = [](const DiskSummary &disk) {
        return std::make_pair(signOf(disk), isWarmNow(disk) ? *disk.reading.celsius : -1);
    };
    return rank(left) > rank(right);
}

} // namespace

Sign signOf(const DiskSummary &disk)
{
    if (disk.missing || disk.state == DiskState::Failing || disk.heat == Heat::Hot)
        return Sign::Hot;
    if (disk.state == DiskState::NoAnswer || disk.state == DiskState::Warning || disk.heat == Heat::Warm)
        return Sign::Warm;
    const WatchEvent *event = eventOf(disk);
    if (event && eventtexts::severityOf(event->kind) != eventtexts::Severity::Information)
        return Sign::Warm;
    return disk.state == DiskState::Ok ? Sign::InOrder : Sign::Unknown;
}

Icon iconOf(const WatchView &view, bool showsHealth)
{
    Icon icon;
    std::optional<int> number;
    for (const DiskSummary &disk : view.disks) {
        icon.sign = std::max(icon.sign, signOf(disk));
        if (showsHealth && disk.reading.health && !disk.missing)
            number = std::min(number.value_or(*disk.reading.health), *disk.reading.health);
        if (!showsHealth && isWarmNow(disk))
            number = std::max(number.value_or(0), *disk.reading.celsius);
    }
    if (number)
        icon.number = QString::number(showsHealth ? *number : displayTemperature(*number, view.fahrenheit));
    return icon;
}

QString nameOf(const DiskSummary &disk)
{
    if (!disk.model.isEmpty())
        return disk.model;
    return disk.number < 0 ? say(QT_TRANSLATE_NOOP("Companion", "Unknown disk"))
                           : say(QT_TRANSLATE_NOOP("Companion", "Disk %1")).arg(disk.number);
}

QString temperatureOf(const DiskSummary &disk, bool fahrenheit)
{
    return isWarmNow(disk) ? eventtexts::temperature(*disk.reading.celsius, fahrenheit) : Dash;
}

QString stateOf(const DiskSummary &disk, bool fahrenheit)
{
    if (disk.missing)
        return say(QT_TRANSLATE_NOOP("Companion", "Missing: check its cable"));
    switch (disk.state) {
    case DiskState::Failing:
        return say(QT_TRANSLATE_NOOP("Companion", "Failing: back up this disk now"));
    case DiskState::NoAnswer:
        return say(QT_TRANSLATE_NOOP("Companion", "Does not answer"));
    case DiskState::Asleep:
        return asleepText(disk, fahrenheit);
    case DiskState::NotSupported:
        return say(QT_TRANSLATE_NOOP("Companion", "Tells nothing of its health"));
    case DiskState::Warning:
    case DiskState::Ok:
        break;
    }
    if (disk.heat != Heat::InOrder)
        return warmText(disk);
    if (const WatchEvent *event = eventOf(disk))
        return eventtexts::message(*event, fahrenheit);
    return withHealth(disk.state == DiskState::Ok ? say(QT_TRANSLATE_NOOP("Companion", "In order"))
                                                  : say(QT_TRANSLATE_NOOP("Companion", "Needs attention")),
                      disk);
}

QString toolTip(const WatchView &view, int mostCharacters)
{
    if (view.disks.empty())
        return say(QT_TRANSLATE_NOOP("Companion", "No disk is watched."));
    std::vector<DiskSummary> disks = view.disks;
    const std::size_t mostLines = mostCharacters > 0 ? MostShortLines : MostLines;
    QString more;
    if (disks.size() > mostLines) {
        std::stable_sort(disks.begin(), disks.end(), isWorse);
        disks.resize(mostLines - 1);
        more = QLatin1Char('\n') +
               say(QT_TRANSLATE_NOOP("Companion", "and %1 more")).arg(view.disks.size() - disks.size());
    }
    const int length = mostCharacters - more.size();
    const int room = mostCharacters > 0 ? (length + 1) / static_cast<int>(disks.size()) - 1 : LongestLine;
    QStringList lines;
    for (const DiskSummary &disk : disks) {
        QString figures = QStringLiteral("  ") + temperatureOf(disk, view.fahrenheit);
        if (disk.reading.health)
            figures += QStringLiteral("  %1 %").arg(*disk.reading.health);
        QString name = nameOf(disk);
        const int forName = std::max(4, room - figures.size());
        if (name.size() > forName)
            name = name.left(forName - 1).trimmed() + QChar(0x2026);
        lines << name + figures;
    }
    return lines.join(QLatin1Char('\n')) + more;
}

QString ageOf(const QDateTime &then, const QDateTime &now)
{
    const qint64 minutes = then.isValid() ? std::max<qint64>(0, then.secsTo(now)) / 60 : -1;
    if (minutes < 0)
        return QString();
    if (minutes == 0)
        return say(QT_TRANSLATE_NOOP("Companion", "just now"));
    return minutes == 1 ? say(QT_TRANSLATE_NOOP("Companion", "1 minute ago"))
                        : say(QT_TRANSLATE_NOOP("Companion", "%1 minutes ago")).arg(minutes);
}

QString titleOf(const WatchEvent &event)
{
    return event.model.isEmpty() ? QCoreApplication::translate("MainWindow", "Velmora Halvane") : event.model;
}

QString messageOf(const WatchEvent &event, bool fahrenheit)
{
    const QString advice = eventtexts::advice(event);
    const QString text = eventtexts::message(event, fahrenheit);
    return advice.isEmpty() ? text : text + QLatin1Char('\n') + advice;
}

} // namespace traystate
