// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monitor/DiskSummary.h"
#include "monitor/Metrics.h"
#include "monitor/WatchMemory.h"
#include "monitor/WatchSettings.h"

#include <QDateTime>
#include <QString>

#include <atomic>
#include <vector>

enum class ToolPurpose;

/// Who shows to the user what the monitor finds.
class MonitorListener
{
public:
    virtual ~MonitorListener() = default;
    /// Something is to be told: a dialog for a temperature, else a message. Called in a round, on its thread.
    /// As long as Monitor::markTold() does not follow, the next run tells it again. EventTexts has the words.
    virtual void tell(const WatchEvent &event) = 0;
};

/// The resident monitor: asks the disks in rounds, and decides what is logged and told. All its calls but
/// stop() come from one thread, which need not be the main one; a round blocks for the tools. What it knows
/// is kept in the file `watch.json` of the platform's state folder, so that it may be killed at any moment:
/// an event is kept before it is told, and is in the log once.
class Monitor
{
public:
    /// Goes on from what was kept. `listener` has to outlive this object.
    explicit Monitor(MonitorListener &listener);

    /// One round; to be called every Schedule::Round ms of Platform::Now(), which is `now`. Settings are read
    /// anew.
    void round(const QDateTime &now);

    /// A volume came or went: the next round lists the disks again.
    void devicesChanged(bool removed);
    /// The next round asks every disk.
    void refresh();
    /// Nothing is told before that moment, within two hours. Events are logged meanwhile, and told then.
    /// Temperatures are neither: a disk that is still hot then is told as if it had just become so.
    void pauseAlarms(const QDateTime &until);
    /// The end of the last pause, which is kept over restarts.
    QDateTime pausedUntil() const { return QDateTime::fromMSecsSinceEpoch(m_memory.pausedUntil); }
    /// The user has been shown an event: it is not told again.
    void markTold(quint64 event) { mark(event, &WatchEvent::told); }
    /// The user knows of an event: it is no longer among the unseen ones.
    void markSeen(quint64 event) { mark(event, &WatchEvent::seen); }

    /// All disks in the order of the system's table, and behind them those that are missing.
    std::vector<DiskSummary> disks() const;
    const WatchSettings &settings() const { return m_settings; }

    /// Ends a round that waits for a tool. Any thread.
    void stop() { m_stopped = true; }

    /// Asks each disk once, without waking it, and neither tells nor keeps anything. Blocks. `tool` may be
    /// null.
    static std::vector<DiskSummary> once(const QDateTime &now, ToolUse *tool = nullptr);

private:
    void list();
    void ask(std::size_t listed);
    void take(std::size_t listed, const DiskReading &reading);
    void takeReport(WatchedDisk &disk, const DiskReading &reading);
    void takeTemperature(WatchedDisk &disk);
    /// The day in the history, and in the log, which has it of a disk that tells nothing, too.
    void keepDay(WatchedDisk &disk);
    void logDay(WatchedDisk &disk);
    /// Whose record the disk at that place is, now that its report tells its serial number.
    void rebind(std::size_t listed, const DiskReading &reading);
    void tellSilence();
    bool isPaused() const { return Schedule::isPaused(m_memory.pausedUntil, m_now); }
    void happen(WatchedDisk &disk, EventKind kind, qint64 value = 0, qint64 before = 0,
                const QString &detail = QString());
    WatchEvent &add(EventKind kind);
    void mark(quint64 event, bool WatchEvent::*flag);
    bool log(const WatchEvent &event);
    void deliver();
    void save();

    MonitorListener &m_listener;
    WatchMemory m_memory;
    WatchSettings m_settings;
    ToolUse m_tool;
    std::vector<std::size_t> m_listed; ///< places in the memory, in the order of the system's table
    QString m_unwrittenMetrics;        ///< their path, once it was told
    QDateTime m_today;                 ///< of the round, as is the next one
    qint64 m_now = 0;                  ///< ms since 1970
    qint64 m_lastListing = 0;
    qint64 m_lastSave = 0;
    bool m_relist = true;
    bool m_removal = true;    ///< what went before the first round may have been taken away
    bool m_isGone = false;    ///< the last look at the table lacked a disk
    bool m_isUnread = false;  ///< the disks are those of an earlier listing
    bool m_changed = false;   ///< something that must not be forgotten
    bool m_newValues = false; ///< something that may be kept later
    std::atomic<bool> m_stopped{false};
};
