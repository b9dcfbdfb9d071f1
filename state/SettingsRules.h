// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The rules behind the settings window.
namespace settings
{

/// Indexes of the unit choice.
enum TemperatureUnit { Celsius = 0, Fahrenheit = 1 };

/// What the window shows, and stores when it is left. The thresholds are in the unit.
struct Values {
    bool tray;
    int unit; ///< TemperatureUnit
    bool alarm;
    int warning;
    int shutDown;
    bool log;
    QString logPath;
    int logKilobytes; ///< 0: no limit
};

/// What a first run begins with.
Values firstRun();

/// What is stored; alarm, limits and log are those of a first run until they are. Before the first start has
/// finished all is that of a first run, and the start counts as finished.
Values load();

/// Stores all but the tray.
void save(const Values &values);

/// Thresholds of the temperature alarm, in the unit in use, and their lowest values.
struct AlarmLimits {
    int warning;
    int shutDown;
    int lowestWarning;
    int lowestShutDown;
};

/// The thresholds after the unit was changed to `unit`, from those shown before. Fahrenheit converts the
/// numbers as if they were °C; Celsius does not convert back but begins at its lowest values.
AlarmLimits limitsForUnit(int unit, int warning, int shutDown);

/// The text of a unit as the settings store keeps it: "C" or "F".
QString unitText(int unit);

/// The log file on the drive of the system folder.
QString defaultLogPath(const QString &systemFolder);

/// The folder part of a log path as the settings hold it: all its parts but the last, each one followed by a
/// backslash. Empty parts do not count.
QString logFolderOf(const QString &logPath);

} // namespace settings
