// SPDX-License-Identifier: GPL-3.0-or-later
// What happens to an event: it is kept, logged and told.
#include "monitor/EventLog.h"
#include "monitor/EventTexts.h"
#include "monitor/Monitor.h"
#include "platform/Log.h"
#include "platform/OwnFiles.h"

#include <algorithm>
#include <utility>

void Monitor::mark(quint64 event, bool WatchEvent::*flag)
{
    for (WatchEvent &each : m_memory.events) {
        if (each.id == event)
            each.*flag = true;
    }
    save();
}

void Monitor::happen(WatchedDisk &disk, EventKind kind, qint64 value, qint64 before, const QString &detail)
{
    // The newer event says more than an older one of the kind.
    const EventKind older = kind == EventKind::Back                  ? EventKind::Missing
                            : kind == EventKind::TemperatureShutDown ? EventKind::TemperatureWarning
                                                                     : kind;
    for (WatchEvent &event : m_memory.events) {
        if ((event.kind == kind || event.kind == older) && event.logged && event.told && isOf(event, disk))
            event.seen = true;
    }
    WatchEvent &event = add(kind);
    event.disk = disk.number;
    event.model = disk.model();
    event.serial = disk.serial();
    event.value = value;
    event.before = before;
    event.detail = detail;
    event.told = event.seen = kind == EventKind::Daily;
}

WatchEvent &Monitor::add(EventKind kind)
{
    WatchEvent event;
    event.kind = kind;
    event.when = m_now;
    m_changed = true;
    return m_memory.add(event);
}

bool Monitor::log(const WatchEvent &event)
{
    const EventLog file(m_settings.logPath, m_settings.logBytes);
    const QString line = eventtexts::logLine(event, m_settings.fahrenheit);
    // The line may have been the last thing that a process did before it was killed.
    if (event.recovered && file.holds(line))
        return true;
    const EventLog::Outcome outcome = file.append(line);
    if (outcome == EventLog::Outcome::Written) {
        m_memory.unwritableLog.clear();
        return true;
    }
    if (outcome == EventLog::Outcome::Unwritable && m_memory.unwritableLog != m_settings.logPath) {
        m_memory.unwritableLog = m_settings.logPath;
        WatchEvent &unwritten = add(EventKind::LogUnwritten);
        unwritten.detail = m_settings.logPath;
        unwritten.logged = true;
    }
    return false;
}

void Monitor::deliver()
{
    // First the events are kept, then they are told: a kill in between tells them in the next run.
    if (m_changed)
        save();
    bool logs = true;
    // A failing log adds an event of its own, so the list may move.
    for (std::size_t i = 0; i < m_memory.events.size(); ++i) {
        if (m_memory.events[i].logged)
            continue;
        // Where one line failed, the next ones wait, too: a share that is away holds each of them for long.
        const bool logged = !m_settings.log || (logs && log(WatchEvent(m_memory.events[i])));
        logs = logged;
        m_memory.events[i].logged = logged;
        m_changed = m_changed || logged;
    }
    for (std::size_t i = 0; i < m_memory.events.size() && !isPaused(); ++i) {
        if (!m_memory.events[i].told && !std::exchange(m_memory.events[i].handed, true))
            m_listener.tell(WatchEvent(m_memory.events[i]));
    }
    m_memory.tidyEvents();
}

void Monitor::save()
{
    const QString path = WatchMemory::path();
    // What could not be kept is tried again in the next round.
    m_changed = !path.isEmpty() && !ownfiles::saveFile(path, m_memory.toJson());
    if (m_changed)
        qCDebug(logs::monitor) << "what is known is not kept:" << path;
    m_newValues = false;
    m_lastSave = m_now;
}
