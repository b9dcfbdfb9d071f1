// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/Monitor.h"

#include "inventory/CommandRunner.h"
#include "monitor/DiskTable.h"
#include "monitor/EventTexts.h"
#include "platform/FileLock.h"
#include "platform/OwnFiles.h"
#include "platform/Platform.h"
#include "smart/ToolInvocation.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>
#include <utility>

namespace
{

const QString TableFile = QStringLiteral("WatchDisks.txt");
const QString OnceTableFile = QStringLiteral("OnceDisks.txt");

/// So many readings in a row without an answer are told: a bridge may be busy for one.
constexpr int SilentAfter = 2;

using Answer = DiskReading::Answer;

/// One run of the tool. Nothing where it had to be ended, or did not start.
std::optional<DiskReading> read(ToolPurpose purpose, const WatchedDisk &disk, ToolUse *tool,
                                const std::function<bool()> &mayGoOn)
{
    DiskReading reading;
    reading.answer = Answer::NotSupported;
    if (deviceName(disk.number).isEmpty())
        return reading;
    QElapsedTimer time;
    time.start();
    const bool answered =
        readToolWithin(purpose, deviceString(disk.number, disk.interfaceText), Schedule::ToolLimit, mayGoOn,
                       [&reading](QTextStream &stream) { reading = readingOf(stream.readAll()); });
    ++tool->runs;
    tool->failures += !answered || reading.answer == Answer::NoAnswer;
    tool->milliseconds += time.elapsed();
    return answered ? std::optional<DiskReading>(reading) : std::nullopt;
}

/// A disk that gave reports does not cease to do so in good health.
Answer answerOf(const WatchedDisk &disk, const DiskReading &reading)
{
    const bool lost = reading.answer == Answer::NotSupported && disk.lastReport > 0;
    return lost ? Answer::NoAnswer : reading.answer;
}

/// Takes over what a report tells. What it does not tell of the disk's size the table does.
void takeOver(WatchedDisk &disk, const DiskReading &reading, qint64 now)
{
    const qint64 bytes = reading.bytes > 0 ? reading.bytes : disk.last.bytes;
    disk.last = reading;
    disk.last.bytes = bytes;
    disk.lastReport = now;
}

DiskSummary summaryOf(const WatchedDisk &disk, const WatchSettings &settings,
                      const QHash<QString, LastScan> &scans)
{
    DiskSummary summary;
    summary.number = disk.number;
    summary.model = disk.model();
    summary.serial = disk.serial();
    summary.interfaceText = disk.interfaceText;
    summary.bytes = disk.last.bytes;
    summary.limits = settings.limitsOf(disk.last, summary.serial);
    summary.setLimits = settings.setLimitsOf(disk.last, summary.serial);
    if (disk.answer == Answer::Report)
        summary.heat = heatOf(disk.last.celsius, summary.limits);
    summary.missing = disk.missing;
    summary.asked = disk.asked;
    summary.answer = disk.missing ? Answer::NoAnswer : disk.answer;
    summary.state = stateOf(summary.answer, disk.last, summary.heat);
    summary.lastReport = disk.lastReport;
    const auto scan = scans.constFind(summary.serial);
    if (scan != scans.cend())
        summary.scan = *scan;
    summary.reading = disk.last;
    summary.day = disk.day;
    return summary;
}

} // namespace

Monitor::Monitor(MonitorListener &listener)
    : m_listener(listener), m_memory(WatchMemory::fromJson(ownfiles::contents(WatchMemory::path())))
{
    const QString path = WatchMemory::path();
    if (path.isEmpty())
        return;
    // What a process left behind that was killed while it wrote. The program may just be writing there, too,
    // but not that file.
    QDir folder(QFileInfo(path).path());
    ownfiles::removeUnfinished(folder.path());
    for (const QString &name : folder.entryList({QStringLiteral("watch.json.*")}, QDir::Files))
        folder.remove(name);
}

void Monitor::devicesChanged(bool removed)
{
    m_relist = true;
    m_removal = m_removal || removed;
}

void Monitor::refresh()
{
    m_relist = true;
    for (WatchedDisk &disk : m_memory.disks)
        disk.schedule.askNext();
}

void Monitor::pauseAlarms(const QDateTime &until)
{
    m_memory.pausedUntil = until.toMSecsSinceEpoch();
    save();
}

std::vector<DiskSummary> Monitor::disks() const
{
    std::vector<const WatchedDisk *> shown;
    for (const std::size_t place : m_listed)
        shown.push_back(&m_memory.disks[place]);
    const auto isListed = [this](const WatchedDisk &disk) {
        const auto place = static_cast<std::size_t>(&disk - m_memory.disks.data());
        return std::find(m_listed.cbegin(), m_listed.cend(), place) != m_listed.cend();
    };
    for (const WatchedDisk &disk : m_memory.disks) {
        if (!isListed(disk) && (disk.missing || disk.present))
            shown.push_back(&disk);
    }
    const QHash<QString, LastScan> scans = lastscan::load();
    std::vector<DiskSummary> summaries;
    for (const WatchedDisk *disk : shown) {
        DiskSummary summary = summaryOf(*disk, m_settings, scans);
        summary.listed = isListed(*disk);
        std::copy_if(m_memory.events.cbegin(), m_memory.events.cend(), std::back_inserter(summary.unseen),
                     [disk](const WatchEvent &event) { return !event.seen && isOf(event, *disk); });
        // Once the user knows that a disk is gone, it has no row any more.
        if (!disk->missing || !summary.unseen.empty())
            summaries.push_back(std::move(summary));
    }
    return summaries;
}

std::vector<DiskSummary> Monitor::once(const QDateTime &now, ToolUse *tool)
{
    // Two of these would write the same temp files.
    const FileLock lock(nativePath(tempFile(QStringLiteral("OnceReport.lock"))), Schedule::ToolLimit);
    if (!lock.isHeld())
        return {};
    const WatchSettings settings = WatchSettings::load();
    const QHash<QString, LastScan> scans = lastscan::load();
    ToolUse unasked;
    WatchMemory memory = WatchMemory::fromJson(ownfiles::contents(WatchMemory::path()));
    std::vector<DiskSummary> summaries;
    const auto table = listDisks(OnceTableFile, [] { return true; });
    for (const std::size_t place : recordsOf(table.value_or(std::vector<ListedDisk>()), &memory)) {
        WatchedDisk &disk = memory.disks[place];
        const auto reading = read(ToolPurpose::OnceReport, disk, tool ? tool : &unasked, [] { return true; });
        disk.asked = true;
        disk.answer = answerOf(disk, reading.value_or(DiskReading()));
        if (disk.answer == Answer::Report || disk.answer == Answer::NotSupported)
            takeOver(disk, *reading, now.toMSecsSinceEpoch());
        else if (disk.answer == Answer::NoAnswer)
            disk.last.celsius.reset(); // may be weeks old
        summaries.push_back(summaryOf(disk, settings, scans));
    }
    return summaries;
}

void Monitor::round(const QDateTime &now)
{
    m_today = now;
    m_now = now.toMSecsSinceEpoch();
    m_settings = WatchSettings::load();
    if (m_relist || Schedule::isDue(m_lastListing, m_now, Schedule::FullEvery))
        list();
    for (std::size_t i = 0; i < m_listed.size() && !m_stopped; ++i)
        ask(i);
    tellSilence();
    deliver();
    if (m_changed || (m_newValues && Schedule::isDue(m_lastSave, m_now, Schedule::IdleEvery)))
        save();
    const QString &path = m_settings.metricsPath;
    // Without a list of the disks each of them would count as lost.
    const bool writes = !m_stopped && !path.isEmpty() && (m_lastListing > 0 || !m_listed.empty());
    if (writes && !metrics::save(path, disks(), m_tool, now) &&
        std::exchange(m_unwrittenMetrics, path) != path) {
        WatchEvent &unwritten = add(EventKind::MetricsUnwritten);
        unwritten.detail = path;
        unwritten.told = unwritten.seen = true;
    }
}

void Monitor::list()
{
    m_relist = false;
    const auto table = listDisks(TableFile, [this] { return !m_stopped; });
    m_lastListing = table || !m_listed.empty() ? m_now : 0;
    const auto stays = [this](const WatchedDisk &disk) {
        return disk.present && !(disk.removable && m_removal);
    };
    // Of a system that is not ready, or whose tool failed; it may be ready at the next round.
    const bool isUnlikely =
        table && table->empty() && std::any_of(m_memory.disks.cbegin(), m_memory.disks.cend(), stays);
    if (!table || isUnlikely) {
        if (isUnlikely)
            m_lastListing = 0;
        // The only disk may just have been taken away, and the notice may still be on its way.
        if (isUnlikely && !std::exchange(m_isGone, true))
            m_relist = true;
        else if (!m_stopped && !std::exchange(m_isUnread, true)) {
            WatchEvent &unread = add(EventKind::ListUnread);
            unread.told = unread.seen = true;
        }
        return;
    }
    m_isUnread = false;
    m_memory.tidyDisks();
    m_listed = recordsOf(*table, &m_memory);
    const bool isSecondLook = std::exchange(m_isGone, false);
    for (std::size_t place = 0; place < m_memory.disks.size(); ++place) {
        WatchedDisk &disk = m_memory.disks[place];
        const bool isHere = std::find(m_listed.cbegin(), m_listed.cend(), place) != m_listed.cend();
        // People take away disks of USB, and others only while the PC is off.
        const bool isTaken = disk.removable && m_removal;
        if (isHere)
            disk.lastSeen = m_now;
        if (isHere == disk.present)
            continue;
        // The table may not have been readable, and a notice may still be on its way.
        if (!isHere && !isTaken && !isSecondLook) {
            m_isGone = m_relist = true;
            continue;
        }
        disk.present = isHere;
        disk.schedule.askNext();
        m_changed = true;
        if (isHere && std::exchange(disk.missing, false))
            happen(disk, EventKind::Back);
        if (!isHere && !isTaken) {
            disk.missing = true;
            happen(disk, EventKind::Missing);
        }
    }
    m_removal = m_removal && m_isGone;
}

void Monitor::ask(std::size_t listed)
{
    WatchedDisk &disk = m_memory.disks[m_listed[listed]];
    const bool rests = disk.lastReport > 0 && disk.last.rotating;
    if (!disk.schedule.asks(rests, Platform::current().DiskActivity(disk.number), m_now))
        return;
    const auto reading = read(ToolPurpose::WatchReport, disk, &m_tool, [this] { return !m_stopped; });
    if (m_stopped)
        return;
    disk.hangs = !reading;
    if (disk.hangs)
        disk.schedule.hung();
    take(listed, reading.value_or(DiskReading()));
}

void Monitor::take(std::size_t listed, const DiskReading &reading)
{
    rebind(listed, reading);
    WatchedDisk &disk = m_memory.disks[m_listed[listed]];
    disk.asked = true;
    disk.answer = answerOf(disk, reading);
    if (disk.answer == Answer::Report) {
        // Its report may call it by other names than the table did.
        std::vector<WatchEvent *> own;
        for (WatchEvent &event : m_memory.events) {
            if (isOf(event, disk))
                own.push_back(&event);
        }
        takeOver(disk, reading, m_now);
        for (WatchEvent *event : own) {
            event->model = disk.model();
            event->serial = disk.serial();
        }
    }
    // Without one it lets those go that are a day old.
    disk.addTemperature(reading.celsius.value_or(0), m_now);
    // One that has just ceased to answer may have been taken away.
    if (disk.answer != Answer::NoAnswer || disk.silent || disk.lastReport == 0)
        logDay(disk);
    if (disk.answer == Answer::NoAnswer) {
        if (disk.unanswered >= SilentAfter)
            return;
        ++disk.unanswered;
        m_changed = true;
        if (!disk.hangs)
            disk.schedule.askNext();
        return;
    }
    m_changed = std::exchange(disk.unanswered, 0) > 0 || m_changed;
    if (std::exchange(disk.silent, false)) {
        for (WatchEvent &event : m_memory.events)
            event.seen = event.seen || (event.kind == EventKind::NoAnswer && event.told && isOf(event, disk));
    }
    if (disk.answer == Answer::Report)
        takeReport(disk, reading);
}

void Monitor::takeReport(WatchedDisk &disk, const DiskReading &reading)
{
    m_newValues = true;
    keepDay(disk);
    takeTemperature(disk);
    DiskReading news = reading;
    // Heat that has an alarm is told by it alone.
    if (news.criticalWarning &&
        heatOf(news.celsius, m_settings.limitsOf(news, disk.serial())) != Heat::InOrder)
        *news.criticalWarning &= ~HeatWarning;
    for (const HealthEvents::Happened &each : disk.health.take(news, m_now))
        happen(disk, each.kind, each.value, each.before, each.detail);
}

void Monitor::takeTemperature(WatchedDisk &disk)
{
    if (!disk.last.celsius)
        return;
    const int celsius = *disk.last.celsius;
    const TemperatureLimits limits = m_settings.limitsOf(disk.last, disk.serial());
    const TemperatureAlarm before = disk.alarm;
    const TemperatureAlarm::Tells tells = disk.alarm.take(celsius, limits, m_now);
    if (tells != TemperatureAlarm::Tells::Nothing && isPaused()) {
        disk.alarm = before; // due behind the pause, if it is still hot then
        return;
    }
    m_changed = m_changed || disk.alarm.hasMoved(before);
    if (tells == TemperatureAlarm::Tells::Warning)
        happen(disk, EventKind::TemperatureWarning, celsius, *limits.warning);
    else if (tells == TemperatureAlarm::Tells::ShutDown)
        happen(disk, EventKind::TemperatureShutDown, celsius, *limits.shutDown);
}

void Monitor::keepDay(WatchedDisk &disk)
{
    const QString today = m_today.date().toString(Qt::ISODate);
    if (disk.historyDay != today && !disk.serial().isEmpty() && !disk.last.history.empty() &&
        recordHistory(disk.serial(), m_today, disk.last.history)) {
        disk.historyDay = today;
        m_changed = true;
    }
}

void Monitor::logDay(WatchedDisk &disk)
{
    const QString today = m_today.date().toString(Qt::ISODate);
    if (!m_settings.log || disk.logDay == today)
        return;
    disk.logDay = today;
    QStringList figures;
    if (disk.last.celsius)
        figures << QLatin1String(disk.answer == Answer::Report ? "temperature " : "last temperature ") +
                       eventtexts::temperature(*disk.last.celsius, m_settings.fahrenheit);
    if (disk.last.health)
        figures << QStringLiteral("health %1 %").arg(*disk.last.health);
    const Heat heat = heatOf(disk.last.celsius, m_settings.limitsOf(disk.last, disk.serial()));
    figures << once::nameOf(stateOf(disk.answer, disk.last, heat));
    happen(disk, EventKind::Daily, 0, 0, figures.join(QStringLiteral(", ")));
}

void Monitor::rebind(std::size_t listed, const DiskReading &reading)
{
    const std::size_t old = m_listed[listed];
    const QString known = m_memory.disks[old].last.serial;
    if (reading.serial.isEmpty() || reading.serial == known)
        return;
    // Another disk came to the place of this one: in an enclosure, or under its number. Or the table names a
    // disk in another way: in a dock, or without its serial number.
    const auto record =
        std::find_if(m_memory.disks.begin(), m_memory.disks.end(), [&reading](const WatchedDisk &each) {
            return each.last.serial == reading.serial && each.last.model == reading.model;
        });
    const std::size_t place = static_cast<std::size_t>(record - m_memory.disks.begin());
    const auto other = std::find(m_listed.begin(), m_listed.end(), place);
    const bool swaps = other != m_listed.end();
    // A new disk keeps its record; two that tell one serial number stay two.
    if (known.isEmpty() && (record == m_memory.disks.end() || swaps))
        return;
    if (record == m_memory.disks.end())
        m_memory.disks.emplace_back();
    WatchedDisk &found = m_memory.disks[place];
    for (QString WatchedDisk::*text :
         {&WatchedDisk::tableModel, &WatchedDisk::tableSerial, &WatchedDisk::interfaceText})
        std::swap(m_memory.disks[old].*text, found.*text);
    std::swap(m_memory.disks[old].number, found.number);
    std::swap(m_memory.disks[old].removable, found.removable);
    std::swap(m_memory.disks[old].schedule, found.schedule);
    m_memory.disks[old].present = swaps;
    if (swaps)
        *other = old;
    m_listed[listed] = place;
    found.present = true;
    if (std::exchange(found.missing, false))
        happen(found, EventKind::Back);
    found.lastSeen = m_now;
    m_changed = true;
}

void Monitor::tellSilence()
{
    const auto isNewlySilent = [this](std::size_t place) {
        const WatchedDisk &disk = m_memory.disks[place];
        return disk.answer == Answer::NoAnswer && (disk.lastReport > 0 || disk.hangs) && !disk.silent;
    };
    // It may just have been taken away.
    if (!m_relist && std::any_of(m_listed.cbegin(), m_listed.cend(), isNewlySilent))
        list();
    for (const std::size_t place : m_listed) {
        WatchedDisk &disk = m_memory.disks[place];
        // Where the disks are to be listed again, the next round knows more.
        if (m_relist || !isNewlySilent(place) || (!disk.hangs && disk.unanswered < SilentAfter))
            continue;
        disk.silent = true;
        happen(disk, EventKind::NoAnswer);
    }
}
