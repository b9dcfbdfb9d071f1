// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/WatchMemory.h"

#include "platform/PlainText.h"
#include "platform/Platform.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace
{

constexpr std::size_t MostDisks = 64;
constexpr std::size_t MostEvents = 200;
constexpr int LongestText = 256;
constexpr qint64 PointEvery = 10 * 60 * 1000;
constexpr qint64 PointsFor = 24 * 3600 * 1000;
constexpr qint64 MostNumber = 9007199254740992; // what a JSON number tells exactly

/// In the order of EventKind.
constexpr const char *KindNames[] = {
    "temperatureWarning",
    "temperatureShutDown",
    "driveFailing",
    "criticalWarning",
    "failingAttribute",
    "reallocated",
    "pending",
    "uncorrectable",
    "mediaErrors",
    "spareLow",
    "worn",
    "selfTestFailed",
    "noAnswer",
    "missing",
    "back",
    "daily",
    "logUnwritten",
    "listUnread",
    "metricsUnwritten",
};

/// Figures of the last report that are kept besides.
constexpr std::pair<const char *, std::optional<int> DiskReading::*> Percents[] = {
    {"wear", &DiskReading::wear},
    {"spare", &DiskReading::spare},
    {"spareThreshold", &DiskReading::spareThreshold},
};
constexpr int MostPercent = 255; // what an NVMe drive tells at most
constexpr std::pair<const char *, std::optional<qint64> DiskReading::*> Counts[] = {
    {"lifeDays", &DiskReading::lifeDays},           {"powerOnHours", &DiskReading::powerOnHours},
    {"reallocated", &DiskReading::reallocated},     {"pending", &DiskReading::pending},
    {"uncorrectable", &DiskReading::uncorrectable}, {"mediaErrors", &DiskReading::mediaErrors},
    {"selfTestHours", &DiskReading::selfTestHours},
};

QString textIn(const QJsonObject &in, const char *key)
{
    return plaintext::line(in.value(QLatin1String(key)).toString().left(LongestText));
}

qint64 numberIn(const QJsonObject &in, const char *key, qint64 least = 0, qint64 most = MostNumber)
{
    const double number = in.value(QLatin1String(key)).toDouble();
    return std::clamp(static_cast<qint64>(std::clamp(number, -9e15, 9e15)), least, most);
}

bool flagIn(const QJsonObject &in, const char *key)
{
    return in.value(QLatin1String(key)).toBool();
}

/// The objects of a list.
std::vector<QJsonObject> objectsIn(const QJsonObject &in, const char *key)
{
    std::vector<QJsonObject> objects;
    for (const QJsonValue &value : in.value(QLatin1String(key)).toArray()) {
        if (value.isObject())
            objects.push_back(value.toObject());
    }
    return objects;
}

/// A figure that may be unknown.
template<typename Number>
std::optional<Number> figureIn(const QJsonObject &in, const char *key, Number most)
{
    if (!in.value(QLatin1String(key)).isDouble())
        return std::nullopt;
    return static_cast<Number>(numberIn(in, key, 0, most));
}

template<typename Number>
QJsonValue figure(const std::optional<Number> &value)
{
    return value ? QJsonValue(*value) : QJsonValue();
}

QJsonObject toJson(const TemperatureAlarm::State &state)
{
    return {
        {"told", state.told}, {"at", state.toldAt}, {"cool", state.coolRounds}, {"below", state.belowSince}};
}

TemperatureAlarm::State alarmIn(const QJsonObject &in, const char *key)
{
    const QJsonObject state = in.value(QLatin1String(key)).toObject();
    return {flagIn(state, "told"), numberIn(state, "at"), static_cast<int>(numberIn(state, "cool", 0, 1)),
            numberIn(state, "below")};
}

QJsonObject toJson(const HealthEvents &health)
{
    QJsonObject told;
    for (auto each = health.told.cbegin(); each != health.told.cend(); ++each)
        told.insert(each.key(), QJsonArray{each->level, each->lowerSince});
    return {{"told", told}, {"selfTest", health.selfTestMark}};
}

HealthEvents healthIn(const QJsonObject &in)
{
    HealthEvents health;
    const QJsonObject state = in.value(QLatin1String("health")).toObject();
    const QJsonObject told = state.value(QLatin1String("told")).toObject();
    for (auto each = told.begin(); each != told.end(); ++each) {
        const QJsonArray pair = each->toArray();
        const QJsonObject named{{"level", pair.at(0)}, {"since", pair.at(1)}};
        const HealthEvents::Told known{numberIn(named, "level"), numberIn(named, "since")};
        if (known.level > 0 && health.told.size() < LongestText)
            health.told.insert(plaintext::line(each.key().left(LongestText)), known);
    }
    health.selfTestMark = textIn(state, "selfTest");
    return health;
}

QJsonObject figuresOf(const DiskReading &last)
{
    QJsonObject figures{
        {"written", figure(last.written)}, {"selfTest", last.selfTest}, {"selfTestMark", last.selfTestMark}};
    for (const auto &[key, figureOf] : Percents)
        figures.insert(QLatin1String(key), figure(last.*figureOf));
    for (const auto &[key, countOf] : Counts)
        figures.insert(QLatin1String(key), figure(last.*countOf));
    return figures;
}

void takeFigures(const QJsonObject &in, DiskReading *last)
{
    const QJsonValue written = in.value(QLatin1String("written"));
    if (written.isDouble())
        last->written = std::max(0.0, written.toDouble());
    last->selfTest = textIn(in, "selfTest");
    last->selfTestMark = textIn(in, "selfTestMark");
    for (const auto &[key, figureOf] : Percents)
        last->*figureOf = figureIn(in, key, MostPercent);
    for (const auto &[key, countOf] : Counts)
        last->*countOf = figureIn(in, key, MostNumber);
}

QJsonObject toJson(const WatchedDisk &disk)
{
    QJsonArray day;
    for (const TemperaturePoint &point : disk.day)
        day.append(QJsonArray{point.when, point.celsius});
    return {{"number", disk.number},
            {"tableModel", disk.tableModel},
            {"tableSerial", disk.tableSerial},
            {"interface", disk.interfaceText},
            {"removable", disk.removable},
            {"present", disk.present},
            {"missing", disk.missing},
            {"silent", disk.silent},
            {"unanswered", disk.unanswered},
            {"lastSeen", disk.lastSeen},
            {"lastReport", disk.lastReport},
            {"model", disk.last.model},
            {"serial", disk.last.serial},
            {"firmware", disk.last.firmware},
            {"figures", figuresOf(disk.last)},
            {"bytes", disk.last.bytes},
            {"nvme", disk.last.nvme},
            {"rotating", disk.last.rotating},
            {"verdict", static_cast<int>(disk.last.verdict)},
            {"celsius", figure(disk.last.celsius)},
            {"warningCelsius", figure(disk.last.warningCelsius)},
            {"healthPercent", figure(disk.last.health)},
            {"criticalWarning", static_cast<int>(disk.last.criticalWarning.value_or(0))},
            {"attention", disk.last.attention},
            {"failing", QJsonArray::fromStringList(disk.last.failing)},
            {"warning", toJson(disk.alarm.warning)},
            {"shutDown", toJson(disk.alarm.shutDown)},
            {"health", toJson(disk.health)},
            {"historyDay", disk.historyDay},
            {"logDay", disk.logDay},
            {"day", day}};
}

WatchedDisk diskIn(const QJsonObject &in)
{
    WatchedDisk disk;
    disk.number = static_cast<int>(numberIn(in, "number", -1, 127));
    disk.tableModel = textIn(in, "tableModel");
    disk.tableSerial = textIn(in, "tableSerial");
    disk.interfaceText = textIn(in, "interface");
    disk.removable = flagIn(in, "removable");
    disk.present = flagIn(in, "present");
    disk.missing = flagIn(in, "missing");
    disk.silent = flagIn(in, "silent");
    disk.unanswered = static_cast<int>(numberIn(in, "unanswered", 0, 127));
    disk.lastSeen = numberIn(in, "lastSeen");
    disk.lastReport = numberIn(in, "lastReport");
    disk.last.answer = disk.lastReport > 0 ? DiskReading::Answer::Report : DiskReading::Answer::NotSupported;
    disk.last.model = textIn(in, "model");
    disk.last.serial = textIn(in, "serial");
    disk.last.firmware = textIn(in, "firmware");
    takeFigures(in.value(QLatin1String("figures")).toObject(), &disk.last);
    disk.last.bytes = numberIn(in, "bytes");
    disk.last.nvme = flagIn(in, "nvme");
    disk.last.rotating = flagIn(in, "rotating");
    disk.last.verdict = static_cast<DriveVerdict>(numberIn(in, "verdict", 0, 2));
    disk.last.celsius = figureIn(in, "celsius", HottestCelsius);
    disk.last.warningCelsius = figureIn(in, "warningCelsius", HottestCelsius);
    disk.last.health = figureIn(in, "healthPercent", 100);
    disk.last.criticalWarning = static_cast<uint>(numberIn(in, "criticalWarning", 0, 255));
    disk.last.attention = flagIn(in, "attention");
    for (const QJsonValue &name : in.value(QLatin1String("failing")).toArray())
        disk.last.failing << plaintext::line(name.toString().left(LongestText));
    disk.alarm.warning = alarmIn(in, "warning");
    disk.alarm.shutDown = alarmIn(in, "shutDown");
    disk.health = healthIn(in);
    disk.historyDay = textIn(in, "historyDay");
    disk.logDay = textIn(in, "logDay");
    for (const QJsonValue &value : in.value(QLatin1String("day")).toArray()) {
        const QJsonArray pair = value.toArray();
        const QJsonObject named{{"when", pair.at(0)}, {"celsius", pair.at(1)}};
        const auto celsius = figureIn(named, "celsius", HottestCelsius);
        if (celsius)
            disk.addTemperature(*celsius, numberIn(named, "when"));
    }
    return disk;
}

QJsonObject toJson(const WatchEvent &event)
{
    return {{"id", static_cast<qint64>(event.id)},
            {"kind", nameOf(event.kind)},
            {"when", event.when},
            {"disk", event.disk},
            {"model", event.model},
            {"serial", event.serial},
            {"value", event.value},
            {"before", event.before},
            {"detail", event.detail},
            {"logged", event.logged},
            {"told", event.told},
            {"seen", event.seen}};
}

/// Nothing where its kind is none.
std::optional<WatchEvent> eventIn(const QJsonObject &in)
{
    const QString name = in.value(QLatin1String("kind")).toString();
    const auto kind = std::find_if(std::begin(KindNames), std::end(KindNames),
                                   [&name](const char *each) { return name == QLatin1String(each); });
    if (kind == std::end(KindNames))
        return std::nullopt;
    WatchEvent event;
    event.id = static_cast<quint64>(numberIn(in, "id", 1, MostNumber / 2));
    event.kind = static_cast<EventKind>(kind - std::begin(KindNames));
    event.when = numberIn(in, "when");
    event.disk = static_cast<int>(numberIn(in, "disk", -1, 127));
    event.model = textIn(in, "model");
    event.serial = textIn(in, "serial");
    event.value = numberIn(in, "value");
    event.before = numberIn(in, "before");
    event.detail = textIn(in, "detail");
    event.logged = flagIn(in, "logged");
    event.told = flagIn(in, "told");
    event.seen = flagIn(in, "seen");
    event.recovered = true;
    return event;
}

/// Whether nothing is left to be done with an event.
bool isDone(const WatchEvent &event)
{
    return event.logged && event.told && event.seen;
}

template<typename Items>
QJsonArray listOf(const Items &items)
{
    QJsonArray list;
    for (const auto &item : items)
        list.append(toJson(item));
    return list;
}

} // namespace

QString nameOf(EventKind kind)
{
    return QLatin1String(KindNames[static_cast<std::size_t>(kind)]);
}

void WatchedDisk::addTemperature(int celsius, qint64 now)
{
    // A clock that was set back would leave points of the future behind.
    const auto isOther = [now](const TemperaturePoint &point) {
        return point.when > now || now - point.when >= PointsFor;
    };
    day.erase(std::remove_if(day.begin(), day.end(), isOther), day.end());
    if (celsius > 0 && (day.empty() || now - day.back().when >= PointEvery))
        day.push_back({now, celsius});
}

bool isOf(const WatchEvent &event, const WatchedDisk &disk)
{
    return event.disk >= 0 && event.model == disk.model() && event.serial == disk.serial() &&
           (!event.serial.isEmpty() || event.disk == disk.number);
}

WatchEvent &WatchMemory::add(WatchEvent event)
{
    event.id = m_nextEvent++;
    events.push_back(std::move(event));
    return events.back();
}

void WatchMemory::tidyEvents()
{
    events.erase(std::remove_if(events.begin(), events.end(), isDone), events.end());
    while (events.size() > MostEvents) {
        // Rather lines of the log than something that the user does not know yet.
        auto least = std::find_if(events.begin(), events.end(),
                                  [](const WatchEvent &event) { return event.kind == EventKind::Daily; });
        if (least == events.end())
            least = std::find_if(events.begin(), events.end(),
                                 [](const WatchEvent &event) { return event.logged && event.told; });
        events.erase(least == events.end() ? events.begin() : least);
    }
}

void WatchMemory::tidyDisks()
{
    while (disks.size() > MostDisks) {
        const auto isOlder = [](const WatchedDisk &one, const WatchedDisk &other) {
            return std::make_pair(one.present, one.lastSeen) < std::make_pair(other.present, other.lastSeen);
        };
        disks.erase(std::min_element(disks.begin(), disks.end(), isOlder));
    }
}

QString WatchMemory::path()
{
    const QString folder = Platform::current().StateFolder();
    return folder.isEmpty() ? QString() : folder + QLatin1String("/watch.json");
}

QByteArray WatchMemory::toJson() const
{
    const QJsonObject all{{"schema", 1},
                          {"nextEvent", static_cast<qint64>(m_nextEvent)},
                          {"unwritableLog", unwritableLog},
                          {"pausedUntil", pausedUntil},
                          {"disks", listOf(disks)},
                          {"events", listOf(events)}};
    return QJsonDocument(all).toJson(QJsonDocument::Compact);
}

WatchMemory WatchMemory::fromJson(const QByteArray &json)
{
    WatchMemory memory;
    const QJsonObject all = QJsonDocument::fromJson(json).object();
    for (const QJsonObject &disk : objectsIn(all, "disks"))
        memory.disks.push_back(diskIn(disk));
    memory.m_nextEvent = static_cast<quint64>(numberIn(all, "nextEvent", 1, MostNumber / 2));
    for (const QJsonObject &in : objectsIn(all, "events")) {
        if (const std::optional<WatchEvent> event = eventIn(in)) {
            memory.events.push_back(*event);
            memory.m_nextEvent = std::max(memory.m_nextEvent, event->id + 1);
        }
    }
    memory.unwritableLog = textIn(all, "unwritableLog");
    memory.pausedUntil = numberIn(all, "pausedUntil");
    memory.tidyEvents();
    memory.tidyDisks();
    return memory;
}
