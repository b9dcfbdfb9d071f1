// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/TemperatureAlarm.h"

#include <algorithm>
#include <utility>

namespace
{

constexpr int CoolBelow = 3; ///< °C below the limit
constexpr int CoolRounds = 2;
constexpr qint64 AgainAfter = 24 * 3600 * 1000;

bool isReached(const std::optional<int> &limit, int celsius)
{
    return limit && celsius >= *limit;
}

/// Whether the alarm is due now. An alarm that is off forgets what it has told.
bool isDue(TemperatureAlarm::State &state, const std::optional<int> &limit, int celsius, qint64 now)
{
    if (!limit) {
        state = {};
        return false;
    }
    // With a clock that was set back the day would be too long.
    state.toldAt = std::min(state.toldAt, now);
    state.belowSince = std::min(state.belowSince, now);
    if (isReached(limit, celsius)) {
        state.coolRounds = 0;
        if (state.belowSince > 0)
            state.toldAt += now - std::exchange(state.belowSince, 0);
        return !state.told || now - state.toldAt >= AgainAfter;
    }
    if (!state.told)
        return false;
    if (state.belowSince == 0)
        state.belowSince = now;
    state.coolRounds = celsius <= *limit - CoolBelow ? state.coolRounds + 1 : 0;
    if (state.coolRounds >= CoolRounds)
        state = {};
    return false;
}

} // namespace

Heat heatOf(std::optional<int> celsius, const TemperatureLimits &limits)
{
    if (celsius && isReached(limits.shutDown, *celsius))
        return Heat::Hot;
    return celsius && isReached(limits.warning, *celsius) ? Heat::Warm : Heat::InOrder;
}

bool TemperatureAlarm::hasMoved(const TemperatureAlarm &before) const
{
    const auto differ = [](const State &one, const State &other) {
        return one.told != other.told || one.coolRounds != other.coolRounds;
    };
    return differ(warning, before.warning) || differ(shutDown, before.shutDown);
}

TemperatureAlarm::Tells TemperatureAlarm::take(int celsius, const TemperatureLimits &limits, qint64 now)
{
    const bool warns = isDue(warning, limits.warning, celsius, now);
    const bool shutsDown = isDue(shutDown, limits.shutDown, celsius, now);
    if (shutsDown)
        shutDown = {true, now};
    // As long as the higher limit is reached, the lower one has nothing to add.
    const bool isReplaced = isReached(limits.shutDown, celsius);
    if (warns)
        warning = {true, now};
    if (shutsDown)
        return Tells::ShutDown;
    return warns && !isReplaced ? Tells::Warning : Tells::Nothing;
}
