// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monitor/DiskReading.h"

#include <QMap>
#include <QString>

#include <vector>

/// What may happen to a disk. The names are those in the file of WatchMemory.
enum class EventKind {
    TemperatureWarning,
    TemperatureShutDown,
    DriveFailing,
    CriticalWarning,
    FailingAttribute,
    Reallocated,
    Pending,
    Uncorrectable,
    MediaErrors,
    SpareLow,
    Worn,
    SelfTestFailed,
    NoAnswer,
    Missing,
    Back,
    Daily,        ///< no event: the day's line of the log
    LogUnwritten, ///< of no disk, as is the next one
    ListUnread,   ///< for the log alone, as is the next one
    MetricsUnwritten
};

/// The health of one disk: compares what was told of it with a reading. Moments in ms since 1970.
class HealthEvents
{
public:
    /// How far something was told. It goes back to a lower level only when it was below for a day, so that a
    /// count that flickers is not told again and again.
    struct Told {
        qint64 level = 0;
        qint64 lowerSince = 0; ///< 0: it is not below
    };
    struct Happened {
        EventKind kind;
        qint64 value = 0;
        qint64 before = 0;
        QString detail; ///< the attributes, or the words for a self-test
    };

    /// What the reading has above what was told; from now on it counts as told. What the reading does not
    /// tell changes nothing.
    std::vector<Happened> take(const DiskReading &reading, qint64 now);

    QMap<QString, Told> told; ///< by the name of a count, or of an attribute
    QString selfTestMark;     ///< of the failed self-test that was told

private:
    bool rises(const QString &name, qint64 level, qint64 now, qint64 *before);
    void takeFailures(const DiskReading &reading, qint64 now, std::vector<Happened> *happened);
};
