// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monitor/DiskReading.h"
#include "monitor/TemperatureAlarm.h"

#include <QString>

/// What the companion takes from the settings. Read anew in each round; plain values.
struct WatchSettings {
    /// Reads the settings of the program. What is absent or makes no sense is what a first run begins with.
    static WatchSettings load();

    /// The limits that hold for a disk of that serial number: its own, else those of all disks. While these
    /// are what a first run begins with, an NVMe drive is held to its own warning temperature less 10 °C, and
    /// to that temperature itself for the shutdown warning.
    TemperatureLimits setLimitsOf(const DiskReading &reading, const QString &serial) const;
    /// Of these the ones that the user is warned of.
    TemperatureLimits limitsOf(const DiskReading &reading, const QString &serial) const;

    bool fahrenheit = false; ///< how temperatures are shown
    bool warns = true;       ///< ShowWarning without DontShow
    bool warnsOfShutDown = true;
    int warning = 0; ///< °C, as is the next one
    int shutDown = 0;
    bool firstRunLimits = true;
    bool log = true;
    QString logPath;
    qint64 logBytes = 0;
    QString metricsPath; ///< empty: none are written
};

/// The limits of one disk, kept in the settings below its serial number.
namespace ownlimits
{

struct Limits {
    int warning = 0; ///< °C
    int shutDown = 0;
};

/// Nothing where the disk has none, or none that make sense.
std::optional<Limits> load(const QString &serial);
/// Nothing takes them back. A disk without a serial number keeps none.
void save(const QString &serial, const std::optional<Limits> &limits);

} // namespace ownlimits
