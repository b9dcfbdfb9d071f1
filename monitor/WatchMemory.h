// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monitor/HealthEvents.h"
#include "monitor/Schedule.h"
#include "monitor/TemperatureAlarm.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// Something that happened and is to be told.
struct WatchEvent {
    quint64 id = 0; ///< never given twice
    EventKind kind = EventKind::Daily;
    qint64 when = 0; ///< ms since 1970
    int disk = -1;   ///< its number at that time; -1: none
    QString model;
    QString serial;
    qint64 value = 0;  ///< a temperature in °C, a count, percent or bits, by kind
    qint64 before = 0; ///< the limit in °C, the count that was told before, or the threshold in percent
    QString detail;
    bool logged = false;
    bool told = false;      ///< the user has been shown it
    bool seen = false;      ///< marked by the user
    bool handed = false;    ///< to be shown, in this run; not kept, as is the next one
    bool recovered = false; ///< comes from an earlier run
};

/// A temperature of the last day.
struct TemperaturePoint {
    qint64 when = 0; ///< ms since 1970
    int celsius = 0;
};

/// What is known of one disk.
struct WatchedDisk {
    int number = -1;
    QString tableModel; ///< of the system's disk table, which tells of a disk that sleeps, too
    QString tableSerial;
    QString interfaceText;
    bool removable = false; ///< its medium, or the whole disk by USB: people take it away
    bool present = false;   ///< at the last round
    bool missing = false;   ///< told, and not back
    bool silent = false;    ///< told as without an answer, and without one since
    int unanswered = 0;     ///< readings in a row without an answer, as far as they are counted
    qint64 lastSeen = 0;    ///< ms since 1970, as are the next ones
    qint64 lastReport = 0;  ///< 0: it never gave one
    DiskReading last;       ///< of the last report; its attributes and history are those of this run
    TemperatureAlarm alarm;
    HealthEvents health;
    QString historyDay; ///< yyyy-MM-dd of the last day in the history, and of the last one in the log
    QString logDay;
    std::vector<TemperaturePoint> day; ///< oldest first

    /// Of this run alone: when it is asked, and what it answered last.
    Schedule schedule;
    bool hangs = false; ///< the tool had to be ended
    DiskReading::Answer answer = DiskReading::Answer::NotSupported;
    bool asked = false;

    /// As the drive's report calls it, else the table.
    QString model() const { return last.model.isEmpty() ? tableModel : last.model; }
    QString serial() const { return last.serial.isEmpty() ? tableSerial : last.serial; }

    /// Adds a temperature: one in ten minutes, of 24 hours.
    void addTemperature(int celsius, qint64 now);
};

/// Whether an event is of that disk.
bool isOf(const WatchEvent &event, const WatchedDisk &disk);

/// What the companion keeps over restarts: one JSON file, which is only ever replaced as a whole. Neither
/// disks nor events grow without bound.
class WatchMemory
{
public:
    std::vector<WatchedDisk> disks;
    std::vector<WatchEvent> events; ///< not yet logged, told or seen; oldest first
    qint64 pausedUntil = 0;         ///< ms since 1970
    QString unwritableLog;          ///< path of the log that was told as such

    /// Adds an event, and gives it its number.
    WatchEvent &add(WatchEvent event);
    /// Forgets events that are done with and, beyond a bound, the oldest told ones.
    void tidyEvents();
    /// Forgets, beyond a bound, the disks that were not seen for longest.
    void tidyDisks();

    /// Its native path; empty where nothing can be kept.
    static QString path();
    QByteArray toJson() const;
    /// Takes what is sound, and leaves the rest out.
    static WatchMemory fromJson(const QByteArray &json);

private:
    quint64 m_nextEvent = 1;
};

/// The name of a kind in the file.
QString nameOf(EventKind kind);
