// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/Rating.h"

#include "smart/HealthCatalogue.h"
#include "smart/TextCuts.h"
#include "state/Scale.h"

#include <QCoreApplication>

#include <array>
#include <cmath>
#include <limits>

namespace
{

constexpr quint32 ExpectedLifeDays = 5 * 365;

/// Truncates; what is out of range goes to its end, no number to 0.
template<typename Integer>
Integer truncated(double value)
{
    using Limits = std::numeric_limits<Integer>;
    if (std::isnan(value))
        return 0;
    if (value <= static_cast<double>(Limits::min()))
        return Limits::min();
    if (value >= static_cast<double>(Limits::max()))
        return Limits::max();
    return static_cast<Integer>(value);
}

/// What a row's raw value leaves of the health: 100 % less its damage, or the floor where that is above the
/// limit. A float holds any product of a raw value, so that a huge count does not wrap to a good rating.
struct HealthRule {
    const char *name;
    float damagePerUnit;
    int limit; ///< of the damage, truncated
    float floorPercent;
    bool isBase = false; ///< sets the health, whatever it was; the others scale it
};

/// The first name that an attribute contains decides.
constexpr std::array<HealthRule, 6> HealthRules = {{
    {"Reallocated_Sector_Ct", 1, 70, 30, true},
    {"Reallocated_Sector_Count", 1, 70, 30, true},
    {"Spin_Retry_Count", 3, 60, 40},
    {"Reallocated_Event_Count", 0.6F, 30, 70},
    {"Current_Pending_Sector", 0.6F, 48, 52},
    {"Offline_Uncorrectable", 1, 70, 30},
}};

/// A raw number that does not fit 32 bits reads as 0, a perfect one.
float healthBy(const HealthRule &rule, float health, const SmartAttributeRecord &row)
{
    const float damage = static_cast<float>(row.RawValue.text().toInt()) * rule.damagePerUnit;
    const bool within = truncated<qint32>(static_cast<double>(damage)) <= rule.limit;
    const float percent = within ? 100.0F - damage : rule.floorPercent;
    return rule.isBase ? percent : health * percent / 100.0F;
}

/// Null for a row without a rule.
const HealthRule *ruleOf(const SmartAttributeRecord &row)
{
    const QString name = row.AttributeName.text();
    for (const HealthRule &rule : HealthRules) {
        if (name.contains(QLatin1String(rule.name)))
            return &rule;
    }
    return nullptr;
}

/// The row whose name comes first in the list of names.
template<typename Names>
const SmartAttributeRecord *firstNamed(const SmartAttributeList &rows, const Names &names)
{
    for (const char *name : names) {
        const auto isNamed = [name](const SmartAttributeRecord &row) {
            return row.AttributeName.text() == QLatin1String(name);
        };
        if (const SmartAttributeRecord *row = rows.find(isNamed))
            return row;
    }
    return nullptr;
}

bool isBase(const SmartAttributeRecord &row)
{
    const HealthRule *rule = ruleOf(row);
    return rule && rule->isBase;
}

/// What the rules begin with: 0 where there is a base, which sets the health, else the row in its place.
std::optional<float> startOfHealth(const SmartAttributeList &rows)
{
    if (rows.find(isBase))
        return 0.0F;
    if (const SmartAttributeRecord *blocks = firstNamed(rows, healthcatalogue::BlockRows))
        return healthBy(HealthRules.front(), 0.0F, *blocks);
    if (const SmartAttributeRecord *life = firstNamed(rows, healthcatalogue::LifeRows))
        return static_cast<float>(qMin<quint32>(life->Value, FullPercent));
    return std::nullopt;
}

} // namespace

std::optional<int> healthOfAta(const SmartAttributeList &rows)
{
    if (rows.isEmpty())
        return 0;
    const std::optional<float> start = startOfHealth(rows);
    if (!start)
        return std::nullopt;
    float health = *start;
    for (const SmartAttributeRecord &row : rows) {
        if (const HealthRule *rule = ruleOf(row))
            health = healthBy(*rule, health, row);
    }
    return qMin(truncated<int>(static_cast<double>(health) + 0.5), FullPercent);
}

std::optional<int> wearOfAta(const SmartAttributeList &rows)
{
    const SmartAttributeRecord *life = firstNamed(rows, healthcatalogue::LifeRows);
    if (!life)
        return std::nullopt;
    return FullPercent - static_cast<int>(qMin<quint32>(life->Value, FullPercent));
}

std::optional<qint64> replacedOfAta(const SmartAttributeList &rows)
{
    const SmartAttributeRecord *row = rows.find(isBase);
    if (!row)
        row = firstNamed(rows, healthcatalogue::BlockRows);
    return row ? std::optional<qint64>(row->RawValue.text().toInt()) : std::nullopt;
}

std::optional<int> healthOfNvme(const NvmeAttributeList &rows)
{
    if (rows.isEmpty())
        return 0;
    for (const NvmeAttributeRecord &row : rows) {
        if (!row.Name.text().contains(QLatin1String("Percentage Used")))
            continue;
        const int used = row.Value.text().trimmed().remove(QLatin1Char('%')).toInt();
        return used == 1 ? FullPercent
                         : static_cast<int>(qMin<qint64>(FullPercent - qint64(used), FullPercent));
    }
    return std::nullopt;
}

int performanceOf(const QString &ataVersion)
{
    if (cuts::holdsOneOf(ataVersion, {"ATA8", "ATA7", "ATA6", "ATA5", "ATA4", "ATA3"}))
        return 100;
    return cuts::holdsOneOf(ataVersion, {"ATA2", "ATA1"}) ? 50 : 100;
}

QString pictureText(TilePicture picture)
{
    switch (picture) {
    case TilePicture::Good:
        return QCoreApplication::translate("MainWindow", "Good");
    case TilePicture::Average:
        return QCoreApplication::translate("MainWindow", "Average");
    case TilePicture::Bad:
        return QCoreApplication::translate("MainWindow", "Bad");
    default:
        return QString();
    }
}

TilePicture healthPicture(std::optional<int> percent, int scalePercent)
{
    if (!percent)
        return TilePicture::Unknown;
    if (*percent > 75)
        return TilePicture::Good;
    // At 125 percent alone there is a picture for 65.
    if (*percent >= (scalePercent == 125 ? 65 : 66))
        return TilePicture::Average;
    return *percent < 65 ? TilePicture::Bad : TilePicture::Same;
}

TilePicture performancePicture(int percent, int scalePercent)
{
    const bool plain = scalePercent == 100;
    if (percent >= (plain ? 80 : 81))
        return TilePicture::Good;
    if (percent < 65)
        return TilePicture::Bad;
    return plain ? TilePicture::Average : TilePicture::Same;
}

OverallResult overallResult(bool available, int temperature, DriveVerdict verdict)
{
    if (verdict == DriveVerdict::Failed)
        return OverallResult::Failed;
    if (temperature == 0)
        return OverallResult::NotSupported;
    return available ? OverallResult::Passed : OverallResult::Failed;
}

quint32 diskLifeDays(int powerOnDays, int healthPercent)
{
    const float factor = static_cast<float>(healthPercent) / 100.0F;
    const float rest = static_cast<float>(ExpectedLifeDays - static_cast<quint32>(powerOnDays));
    return truncated<quint32>(static_cast<double>(rest * factor * factor));
}

void takeLifeRow(LifeFigures &figures, const SmartAttributeRecord &row, int healthPercent)
{
    const QString key = row.key();
    const QString raw = row.RawValue.text();
    if (cuts::holdsOneOf(key, {"Power On Hours", "Power On Half Minutes"})) {
        const int hours = raw.left(raw.indexOf(QLatin1Char('h'))).toInt();
        figures.nPowerOnRestHours = hours % 24;
        figures.nPowerOnDays = hours / 24;
        figures.nDiskLifeDays = diskLifeDays(figures.nPowerOnDays, healthPercent);
    }
    if (key.contains(QLatin1String("Start Stop Count")))
        figures.nStartStopCount = raw.toInt();
}

LifeKind lifeKind(bool nvme, bool removable, bool hasRows)
{
    if (nvme)
        return LifeKind::Nvme;
    if (removable)
        return LifeKind::Removable;
    return hasRows ? LifeKind::Known : LifeKind::NoRows;
}

LifeTexts lifeTexts(LifeKind kind, const LifeFigures &figures, const QString &separator)
{
    const auto same = [](const QString &text) { return LifeTexts{text, text, text}; };
    switch (kind) {
    case LifeKind::Nvme:
        return same(QCoreApplication::translate("MainWindow", "Not available"));
    case LifeKind::Removable:
        return same(QCoreApplication::translate("MainWindow", "Not Available"));
    case LifeKind::NoRows:
        return {};
    case LifeKind::Known:
        break;
    }
    const QString days = QCoreApplication::translate("MainWindow", " days");
    const QString hours = QCoreApplication::translate("MainWindow", " hours");
    const QString life = figures.nDiskLifeDays >= 1000
                             ? QCoreApplication::translate("MainWindow", "More than 1000")
                             : QString::number(figures.nDiskLifeDays);
    return {figures.bLifeKnown ? life + days : QCoreApplication::translate("MainWindow", "Not Available"),
            QString::number(figures.nPowerOnDays) + days + separator +
                QString::number(figures.nPowerOnRestHours) + hours,
            QString::number(figures.nStartStopCount)};
}
