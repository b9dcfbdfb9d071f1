// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <optional>

/// When the temperature of a disk is told. Temperatures in °C, moments in ms since 1970.

/// The limits that hold for a disk. Nothing where that alarm is off.
struct TemperatureLimits {
    std::optional<int> warning;
    std::optional<int> shutDown;
};

/// How warm a disk is, by its limits.
enum class Heat { InOrder, Warm, Hot };
Heat heatOf(std::optional<int> celsius, const TemperatureLimits &limits);

/// The alarms of one disk.
class TemperatureAlarm
{
public:
    /// What is kept of one alarm.
    struct State {
        bool told = false;
        qint64 toldAt = 0;     ///< later by the time that it was below the limit since
        int coolRounds = 0;    ///< in a row, 3 °C or more below the limit of an alarm that was told
        qint64 belowSince = 0; ///< 0: it is not
    };
    enum class Tells { Nothing, Warning, ShutDown };

    /// Takes a temperature in. An alarm is told when its limit is reached, and again only after the disk was
    /// 3 °C below it for two readings, or after 24 hours at it. The shutdown warning replaces the warning.
    Tells take(int celsius, const TemperatureLimits &limits, qint64 now);

    /// Whether it is to be kept at once, after it was `before`.
    bool hasMoved(const TemperatureAlarm &before) const;

    State warning;
    State shutDown;
};
