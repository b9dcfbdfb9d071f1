// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/Rating.h"

#include "smart/AttributeKey.h"
#include "smart/HealthCatalogue.h"

#include <QCoreApplication>

#include <array>
#include <cmath>
#include <limits>

namespace
{

constexpr quint32 ExpectedLifeDays = 5 * 365;

/// 100 less the damage. A raw value is of 32 bits; differences and products are taken in 64, as a huge count
/// must not wrap to a good rating.
float rest(qint64 damage)
{
    return static_cast<float>(FullPercent - damage);
}

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

float scaledBy(float health, float percent)
{
    return health * percent / 100.0F;
}

float byReallocatedSectors(float, qint32 raw)
{
    return raw <= 70 ? rest(raw) : 30.0F;
}

float bySpinRetries(float health, qint32 raw)
{
    const qint64 damage = qint64(raw) * 3;
    return scaledBy(health, damage <= 60 ? rest(damage) : 40.0F);
}

float byEvents(float health, qint32 raw, int limit, float floorPercent)
{
    const float damage = static_cast<float>(raw) * 0.6F;
    return scaledBy(health,
                    truncated<qint32>(static_cast<double>(damage)) <= limit ? 100.0F - damage : floorPercent);
}

float byReallocationEvents(float health, qint32 raw)
{
    return byEvents(health, raw, 30, 70.0F);
}

float byPendingSectors(float health, qint32 raw)
{
    return byEvents(health, raw, 48, 52.0F);
}

float byUncorrectable(float health, qint32 raw)
{
    return scaledBy(health, raw <= 70 ? rest(raw) : 30.0F);
}

struct HealthRule {
    const char *name;
    float (*apply)(float health, qint32 raw);
};

/// The first name that an attribute contains decides.
constexpr std::array<HealthRule, 6> HealthRules = {{
    {"Reallocated_Sector_Ct", byReallocatedSectors},
    {"Reallocated_Sector_Count", byReallocatedSectors},
    {"Spin_Retry_Count", bySpinRetries},
    {"Reallocated_Event_Count", byReallocationEvents},
    {"Current_Pending_Sector", byPendingSectors},
    {"Offline_Uncorrectable", byUncorrectable},
}};

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

bool containsAny(const QString &text, std::initializer_list<const char *> words)
{
    for (const char *word : words) {
        if (text.contains(QLatin1String(word)))
            return true;
    }
    return false;
}

/// A number that does not fit 32 bits reads as 0, a perfect one.
qint32 rawOf(const SmartAttributeRecord &row)
{
    return row.RawValue.text().toInt();
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

/// What the rules begin with: nothing ahead of the base, which assigns, else the row that stands for it.
std::optional<float> startOfHealth(const SmartAttributeList &rows)
{
    const auto isBase = [](const SmartAttributeRecord &row) {
        const HealthRule *rule = ruleOf(row);
        return rule && rule->apply == byReallocatedSectors;
    };
    if (rows.find(isBase))
        return 0.0F;
    if (const SmartAttributeRecord *blocks = firstNamed(rows, healthcatalogue::BlockRows))
        return byReallocatedSectors(0.0F, rawOf(*blocks));
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
            health = rule->apply(health, rawOf(row));
    }
    return qMin(truncated<int>(static_cast<double>(health) + 0.5), FullPercent);
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
    if (containsAny(ataVersion, {"ATA8", "ATA7", "ATA6", "ATA5", "ATA4", "ATA3"}))
        return 100;
    return containsAny(ataVersion, {"ATA2", "ATA1"}) ? 50 : 100;
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
    const QString key = keyOf(row.AttributeName.text());
    const QString raw = row.RawValue.text();
    if (containsAny(key, {"Power On Hours", "Power On Half Minutes"})) {
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
