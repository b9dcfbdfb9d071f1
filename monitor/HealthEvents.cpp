// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/HealthEvents.h"

namespace
{

constexpr qint64 LowerFor = 24 * 3600 * 1000;
constexpr int MostTold = 128; ///< names; a report that goes beyond is damaged
const QString Failing = QStringLiteral("failing ");

/// A count of a reading, and the event that its rise is.
struct Count {
    const char *name;
    EventKind kind;
    std::optional<qint64> DiskReading::*figure;
};

constexpr Count Counts[] = {
    {"reallocated", EventKind::Reallocated, &DiskReading::reallocated},
    {"pending", EventKind::Pending, &DiskReading::pending},
    {"uncorrectable", EventKind::Uncorrectable, &DiskReading::uncorrectable},
    {"mediaErrors", EventKind::MediaErrors, &DiskReading::mediaErrors},
};

/// The wear that is told: 90 or 100, else 0.
qint64 wornLevel(int percent)
{
    if (percent >= 100)
        return 100;
    return percent >= 90 ? 90 : 0;
}

} // namespace

bool HealthEvents::rises(const QString &name, qint64 level, qint64 now, qint64 *before)
{
    if (level == 0 && !told.contains(name))
        return false;
    if (!told.contains(name) && told.size() >= MostTold)
        return false;
    Told &known = told[name];
    *before = known.level;
    if (level > known.level) {
        known = {level, 0};
        return true;
    }
    if (level == known.level)
        known.lowerSince = 0;
    else if (known.lowerSince == 0 || known.lowerSince > now)
        known.lowerSince = now;
    else if (now - known.lowerSince >= LowerFor)
        known = {level, 0};
    if (known.level == 0)
        told.remove(name);
    return false;
}

void HealthEvents::takeFailures(const DiskReading &reading, qint64 now, std::vector<Happened> *happened)
{
    qint64 before = 0;
    QStringList attributes;
    for (const QString &key : reading.failing) {
        if (rises(Failing + key, 1, now, &before))
            attributes << key;
    }
    for (const QString &name : told.keys()) {
        if (name.startsWith(Failing) && !reading.failing.contains(name.mid(Failing.size())))
            rises(name, 0, now, &before);
    }
    qint64 bits = 0;
    for (uint bit = 1; reading.criticalWarning && bit <= 0x80; bit <<= 1) {
        const bool isSet = (*reading.criticalWarning & bit) != 0;
        if (rises(QStringLiteral("warning %1").arg(bit), isSet ? 1 : 0, now, &before))
            bits |= bit;
    }
    // One failure is told once: the drive's own verdict brings along what has made it.
    const bool isKnown = reading.verdict != DriveVerdict::NotTold;
    if (isKnown && rises(QStringLiteral("verdict"), reading.verdict == DriveVerdict::Failed, now, &before)) {
        happened->push_back({EventKind::DriveFailing, bits, 0, attributes.join(QStringLiteral(", "))});
        return;
    }
    if (bits != 0)
        happened->push_back({EventKind::CriticalWarning, bits, 0, QString()});
    if (!attributes.isEmpty())
        happened->push_back({EventKind::FailingAttribute, 0, 0, attributes.join(QStringLiteral(", "))});
}

std::vector<HealthEvents::Happened> HealthEvents::take(const DiskReading &reading, qint64 now)
{
    std::vector<Happened> happened;
    takeFailures(reading, now, &happened);
    qint64 before = 0;
    for (const Count &count : Counts) {
        const std::optional<qint64> figure = reading.*count.figure;
        if (figure && rises(QLatin1String(count.name), *figure, now, &before))
            happened.push_back({count.kind, *figure, before, QString()});
    }
    if (reading.spare && reading.spareThreshold &&
        rises(QStringLiteral("spare"), *reading.spare < *reading.spareThreshold, now, &before))
        happened.push_back({EventKind::SpareLow, *reading.spare, *reading.spareThreshold, QString()});
    if (reading.wear && rises(QStringLiteral("wear"), wornLevel(*reading.wear), now, &before))
        happened.push_back({EventKind::Worn, *reading.wear, before, QString()});
    if (!reading.selfTest.isEmpty() && reading.selfTestMark != selfTestMark)
        happened.push_back({EventKind::SelfTestFailed, 0, 0, reading.selfTest});
    if (!reading.selfTest.isEmpty())
        selfTestMark = reading.selfTestMark;
    return happened;
}
