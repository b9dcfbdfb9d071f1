// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/ScanClock.h"

#include <QCoreApplication>

namespace
{

constexpr qint64 Second = 1000;
constexpr qint64 Minute = 60 * Second;
constexpr qint64 Hour = 60 * Minute;

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

void ScanClock::takeFirstChunk(qint64 sectors, qint64 endSector, qint64 elapsed)
{
    m_estimate.reset();
    if (sectors > 0)
        m_estimate = scaledBy(elapsed, endSector, sectors);
}

std::optional<QString> ScanClock::remainingText(qint64 elapsed) const
{
    if (!m_estimate)
        return std::nullopt;
    qint64 remaining = *m_estimate - elapsed;
    if (remaining < 0)
        remaining = Second;
    return remaining >= Hour ? withUnit(remaining / Hour, QT_TRANSLATE_NOOP("ScanDisk", " hours"))
                             : withUnit(remaining / Minute, QT_TRANSLATE_NOOP("ScanDisk", " minutes"));
}

QString ScanClock::elapsedText(qint64 elapsed)
{
    if (elapsed >= Hour)
        return withUnit(elapsed / Hour, QT_TRANSLATE_NOOP("ScanDisk", " hours"));
    if (elapsed >= Minute)
        return withUnit(elapsed / Minute, QT_TRANSLATE_NOOP("ScanDisk", " minutes"));
    return withUnit(elapsed / Second, QT_TRANSLATE_NOOP("ScanDisk", " seconds"));
}
