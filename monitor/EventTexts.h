// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monitor/WatchMemory.h"

#include <QDateTime>
#include <QString>

/// The words for what happened. The log is English; what the user reads is translated.
namespace eventtexts
{

enum class Severity { Information, Warning, Critical };
Severity severityOf(EventKind kind);

/// "57 °C", or in °F.
QString temperature(int celsius, bool fahrenheit);

/// What happened, such as "Pending sectors: 8 (before: 5)", and what to do about it: "Back up this disk
/// now."; empty where nothing is to be done. Translated.
QString message(const WatchEvent &event, bool fahrenheit);
QString advice(const WatchEvent &event);

/// The event's line of the log, without its end: time with offset, severity, disk, model, serial number and
/// what happened, with two blanks between them. English. Whatever a drive calls itself, it is one line.
QString logLine(const WatchEvent &event, bool fahrenheit);

} // namespace eventtexts
