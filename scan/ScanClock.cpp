#include "scan/ScanClock.h"

#include <QCoreApplication>

namespace
{

constexpr qint64 Second = 1000;
constexpr qint64 Minute = 60 * Second;
constexpr qint64 Hour = 60 * Minute;
constexpr int Day = static_cast<int>(24 * Hour);

QString withUnit(qint64 number, const char *unit)
{
    return QString::number(number) + QCoreApplication::translate("ScanDisk", unit);
}

/// a * b / c without the product, which may not fit.
qint64 scaledBy(qint64 a, qint64 b, qint64 c)
{
    return a * (b / c) + a * (b % c) / c;
}

} // namespace

void ScanClock::start(QTime now)
{
    m_started = now;
    m_firstSectors = 0;
    m_accumulated = 0;
}

int ScanClock::elapsed(QTime now) const
{
    const int ms = m_started.msecsTo(now);
    return ms < 0 ? ms + Day : ms;
}

void ScanClock::takeFirstChunk(qint64 sectors, qint64 endSector, QTime now)
{
    m_estimate = sectors > 0 ? scaledBy(elapsed(now), endSector, sectors) : 0;
    m_firstSectors = sectors;
}

void ScanClock::forgetEstimate()
{
    m_firstSectors = 0;
    m_estimate = 0;
}

std::optional<QString> ScanClock::remainingText(QTime now) const
{
    if (m_firstSectors <= 0)
        return std::nullopt;
    qint64 remaining = m_estimate - elapsed(now);
    if (remaining < 0)
        remaining = Second;
    return remaining >= Hour ? withUnit(remaining / Hour, QT_TRANSLATE_NOOP("ScanDisk", " hours"))
                             : withUnit(remaining / Minute, QT_TRANSLATE_NOOP("ScanDisk", " minutes"));
}

QString ScanClock::elapsedText(QTime now)
{
    // Past midnight of the reading it goes on from what was counted before.
    const qint64 reading = elapsed(now);
    m_accumulated = m_accumulated > reading ? m_accumulated + reading : reading;
    if (m_accumulated >= Hour)
        return withUnit(m_accumulated / Hour, QT_TRANSLATE_NOOP("ScanDisk", " hours"));
    if (m_accumulated >= Minute)
        return withUnit(m_accumulated / Minute, QT_TRANSLATE_NOOP("ScanDisk", " minutes"));
    return withUnit(m_accumulated / Second, QT_TRANSLATE_NOOP("ScanDisk", " seconds"));
}
