// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monitor/WatchMemory.h"
#include "monitor/WatchSettings.h"
#include "scan/LastScan.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <vector>

/// How it stands with a disk, worst first where several hold.
enum class DiskState { Failing, NoAnswer, Warning, Ok, Asleep, NotSupported };

/// A disk as it is shown: in the tray, in the flyout and by --once.
struct DiskSummary {
    int number = -1;
    QString model;
    QString serial;
    QString interfaceText;
    qint64 bytes = 0; ///< 0: not known
    DiskState state = DiskState::NotSupported;
    Heat heat = Heat::InOrder;
    TemperatureLimits limits;
    TemperatureLimits setLimits; ///< also those that the user is not warned of
    bool missing = false;
    bool listed = true; ///< in the system's table, at the latest look
    bool asked = true;  ///< by this run
    DiskReading::Answer answer = DiskReading::Answer::NotSupported; ///< the latest
    qint64 lastReport = 0;                                          ///< ms since 1970; 0: it never gave one
    std::optional<LastScan> scan;
    DiskReading reading; ///< of a disk that sleeps or does not answer the last one, as far as it is kept
    std::vector<TemperaturePoint> day; ///< oldest first
    std::vector<WatchEvent> unseen;

    /// Whether `reading` is the latest answer.
    bool isNow() const { return answer == DiskReading::Answer::Report; }
};

/// How it stands with a disk whose latest answer is `answer`, and whose last report is in `last`.
DiskState stateOf(DiskReading::Answer answer, const DiskReading &last, Heat heat);

namespace once
{

/// The words of a state in the JSON text: "ok", "warning", …
QString nameOf(DiskState state);

/// What --once prints, with an aligned line for each disk. English.
QString table(const std::vector<DiskSummary> &disks, bool fahrenheit);

/// What --once --json prints: one object, schema 1. What is not known is null.
QByteArray json(const std::vector<DiskSummary> &disks, const QString &version, const QDateTime &now);

/// 0 all in order, 1 something needs attention, 2 a disk is failing, 3 nothing could be read.
int exitCode(const std::vector<DiskSummary> &disks);

} // namespace once
