// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The rules behind the settings window.
namespace settings
{

/// Indexes of the unit choice.
enum TemperatureUnit { Celsius = 0, Fahrenheit = 1 };

/// Thresholds of the temperature alarm, in the unit in use, and their lowest values.
struct AlarmLimits {
    int warning;
    int shutDown;
    int lowestWarning;
    int lowestShutDown;
};

/// Thresholds that a first start begins with, °C.
constexpr int FirstWarning = 45;
constexpr int FirstShutDown = 50;

/// The thresholds after the unit was changed to `unit`, from those shown before. Fahrenheit converts the
/// numbers as if they were °C; Celsius does not convert back but begins at its lowest values.
AlarmLimits limitsForUnit(TemperatureUnit unit, int warning, int shutDown);

/// The text of a unit as the settings store keeps it: "C" or "F".
QString unitText(TemperatureUnit unit);

/// The log file on the drive of the system folder.
QString defaultLogPath(const QString &systemFolder);

} // namespace settings
