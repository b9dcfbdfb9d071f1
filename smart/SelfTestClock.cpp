#include "smart/SelfTestClock.h"

namespace selftest
{

namespace
{

constexpr int MostSilentTicks = 10;

std::size_t current()
{
    return static_cast<std::size_t>(currentSelfTest());
}

} // namespace

void restartClock()
{
    g_nMinuteTicks = 0;
    g_nElapsedSeconds = 0;
    g_nSilentTicks = 0;
    g_nElapsedDays = 0;
    g_timeElapsed = QTime(0, 0);
}

void setElapsedLimit()
{
    g_nElapsedLimit[current()] = static_cast<qint32>(static_cast<quint32>(currentPollingMinutes()) * 60u);
}

bool takeMinute()
{
    if (g_nMinuteTicks != 60)
        return false;
    g_nMinuteTicks = 0;
    --g_nRemainingMinutes[current()];
    return true;
}

bool passesOver(bool found)
{
    g_nSilentTicks = found ? 0 : g_nSilentTicks + 1;
    return !found && g_nSilentTicks < MostSilentTicks;
}

void tickClock()
{
    if (g_nElapsedSeconds < g_nElapsedLimit[current()]) {
        ++g_nElapsedSeconds;
        ++g_nMinuteTicks;
    } else {
        g_nMinuteTicks = 0;
    }
    g_timeElapsed = g_timeElapsed.addSecs(1);
    if (g_timeElapsed == QTime(0, 0))
        ++g_nElapsedDays;
}

QString elapsedText()
{
    return QStringLiteral("%1:").arg(24 * g_nElapsedDays + g_timeElapsed.hour(), 2, 10, QLatin1Char('0')) +
           g_timeElapsed.toString(QStringLiteral("mm:ss"));
}

} // namespace selftest
