// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeGraph.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace
{

constexpr int SmallDigits = 6;
constexpr int UndividedDigits = 7; ///< of a single day
constexpr qint64 Divisor = 1024;
constexpr double DayStep = 10;
constexpr double SingleDayWidth = 80;
constexpr int EqualTicks = 3;
constexpr int TicksByDays = -1;
/// Far above what ten days need: a damaged date list must not ask the chart for millions of lines.
constexpr std::size_t MaxTicks = 1000;

enum class Low { Keep, OneLess, SixLess, Zero };

struct Axis {
    int ticks;
    Low low = Low::Keep;
    bool divideHigh = false;
};

struct AxisRule {
    const char *word;
    Axis small;
    Axis other;
    const char *without = nullptr;
};

constexpr Axis Three{3};
constexpr Axis Six{6};
constexpr Axis FromZero{6, Low::Zero};

/// The first word that a key contains decides, so the order counts.
constexpr std::array<AxisRule, 32> AtaRules = {{
    {"Raw Read Error Rate", Three, Six},
    {"Spin Up Time", Three, Six},
    {"Start Stop Count", Three, Six},
    {"Reallocated Sector Ct", Three, Six},
    {"Reallocated Sector Count", Three, Six},
    {"Seek Error Rate", Three, Six},
    {"Power On Hours", Six, Six},
    {"Spin Retry Count", Three, Six},
    {"Calibration Retry Count", Three, Six},
    {"Power Cycle Count", {3, Low::OneLess}, Six},
    {"Power-Off Retract Count", Six, Six},
    {"Load Cycle Count", {6, Low::SixLess}, Six},
    {"Temperature Celsius", FromZero, Six},
    {"Reallocated Event Count", Three, Six},
    {"Current Pending Sector", Three, Six},
    {"Offline Uncorrectable", Three, Six},
    {"UDMA CRC Error Count", Three, Six},
    {"Runtime Bad Block", Three, Six},
    {"Multi Zone Error Rate", Three, Six},
    {"Soft Read Error Rate", Three, Six},
    {"End-to-End Error", Three, Six},
    {"Reported Uncorrect", Three, Six},
    {"Command Timeout", Three, Six},
    {"High Fly Writes", Three, Six},
    {"Airflow Temperature Cel", FromZero, Six},
    {"G-Sense Error Rate", Three, Six},
    {"Hardware ECC Recovered", Three, FromZero},
    {"Write Error Rate", Three, Six},
    {"Head Flying Hours", {4}, Six},
    {"Total LBAs Written", Three, {6, Low::Zero, true}},
    {"Total LBAs Read", Three, {6, Low::Zero, true}},
    {"Free Fall Event Count", Three, Six},
}};
constexpr Axis AtaOther{TicksByDays};

constexpr std::array<AxisRule, 15> NvmeRules = {{
    {"Power Cycles", {3, Low::OneLess}, Six},
    {"Critical Warning", Three, Six},
    {"Temperature", Three, Six},
    {"Available Spare", Three, Six, "Threshold"},
    {"Available Spare Threshold", Three, Six},
    {"Percentage Used", Three, Six},
    {"Data Units Read", Three, Six},
    {"Data Units Written", Three, Six},
    {"Host Read Commands", Three, Six},
    {"Host Write Commands", Three, Six},
    {"Controller Busy Time", Three, Six},
    {"Power On Hours", Three, Six},
    {"Unsafe Shutdowns", Three, Six},
    {"Media and Data Integrity Errors", Three, Six},
    {"Error Information Log Entries", Three, Six},
}};
constexpr Axis NvmeOther{0};

int digitsOf(qint64 value)
{
    int digits = 1;
    for (value /= 10; value != 0; value /= 10)
        ++digits;
    return digits;
}

bool fits(const AxisRule &rule, const QString &key)
{
    return key.contains(QLatin1String(rule.word)) &&
           !(rule.without && key.contains(QLatin1String(rule.without)));
}

template<std::size_t Count>
Axis axisOf(const std::array<AxisRule, Count> &rules, const Axis &fallback, const QString &key, bool small)
{
    const auto rule =
        std::find_if(rules.begin(), rules.end(), [&](const AxisRule &each) { return fits(each, key); });
    if (rule == rules.end())
        return fallback;
    return small ? rule->small : rule->other;
}

qint64 lowered(qint64 low, Low change)
{
    switch (change) {
    case Low::Keep:
        break;
    case Low::OneLess:
        return low == std::numeric_limits<qint64>::min() ? low : low - 1;
    case Low::SixLess:
        return low > 6 ? low - 6 : low;
    case Low::Zero:
        return 0;
    }
    return low;
}

bool isDivided(GraphKind kind, const QString &key)
{
    return kind == GraphKind::Ata && (key.contains(QLatin1String("Total LBAs Written")) ||
                                      key.contains(QLatin1String("Total LBAs Read")));
}

/// The chart takes ends for equal that differ by no more of their size, and draws nothing then.
bool tooCloseToDraw(qint64 low, qint64 high)
{
    constexpr double Least = 2e-12;
    const double width = std::max(static_cast<double>(high) - static_cast<double>(low), 2.0);
    return width < Least * std::max(std::abs(static_cast<double>(low)), std::abs(static_cast<double>(high)));
}

/// value + step, also where the sum does not fit a number of 64 bits. Steps are small, and the value is not.
QString sumText(qint64 value, qint64 step)
{
    const quint64 by = static_cast<quint64>(step);
    if (value >= 0)
        return QString::number(static_cast<quint64>(value) + by);
    const quint64 magnitude = ~static_cast<quint64>(value) + 1;
    return QLatin1Char('-') + QString::number(magnitude - by);
}

/// From base + first to base + last. Three have room for as many digits.
std::vector<QString> labelsBetween(qint64 base, qint64 first, qint64 last)
{
    return {sumText(base, first), sumText(base, first + (last - first) / 2), sumText(base, last)};
}

int cappedTicks(std::size_t ticks)
{
    return static_cast<int>(std::min(ticks, MaxTicks));
}

GraphModel singleDay(qint64 value, const QDate &today)
{
    constexpr double middle = SingleDayWidth / 2;
    GraphModel model;
    model.singleDay = true;
    const bool large = tooCloseToDraw(value, value);
    const double y = large ? 0 : static_cast<double>(value);
    model.series = {{{{middle, y}, {middle, y}, {middle, y - 1}}, true, true},
                    {{{middle, y}, {middle, y + 1}}, true, false},
                    {{{0, y}, {SingleDayWidth, y}}, true, false}};
    model.xMax = SingleDayWidth;
    model.xTicks = 2;
    model.yMin = y - 1;
    model.yMax = y + 1;
    model.yTicks = EqualTicks;
    if (large)
        model.yLabels = labelsBetween(value, -1, 1);
    model.labels = {today.toString(QStringLiteral("dd-MMM"))};
    model.labelEnd = SingleDayWidth;
    return model;
}

/// Returns the number that stands at 0 of the axis.
qint64 setYAxis(GraphModel &model, GraphKind kind, const QString &key, const std::vector<qint64> &values)
{
    const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
    const bool small = digitsOf(*highest) <= SmallDigits;
    const Axis axis = kind == GraphKind::Ata ? axisOf(AtaRules, AtaOther, key, small)
                                             : axisOf(NvmeRules, NvmeOther, key, small);
    const qint64 low = lowered(*lowest, axis.low);
    const qint64 high = axis.divideHigh ? *highest / Divisor : *highest;
    const int margin = low == high ? 1 : 0;
    model.yTicks = axis.ticks == TicksByDays ? cappedTicks(10 * values.size()) : axis.ticks;
    if (low == high)
        model.yTicks = EqualTicks;
    const bool close = tooCloseToDraw(low, high);
    const qint64 base = close ? low : 0;
    model.yMin = static_cast<double>(low - base) - margin;
    model.yMax = static_cast<double>(high - base) + margin;
    if (close)
        model.yLabels = labelsBetween(base, -margin, high - base + margin);
    return base;
}

GraphModel manyDays(GraphKind kind, const QString &key, const std::vector<QString> &dates,
                    const std::vector<qint64> &values)
{
    GraphModel model;
    const bool divided = isDivided(kind, key);
    const qint64 base = setYAxis(model, kind, key, values);
    GraphSeries line;
    line.pointsVisible = true;
    double x = 0;
    for (const qint64 value : values) {
        const bool large = digitsOf(value) > SmallDigits;
        line.points.push_back({x, static_cast<double>(divided && large ? value / Divisor : value - base)});
        x += DayStep;
    }
    // Holds the line out to the right edge.
    line.points.push_back({x, line.points.back().y});
    model.series = {line};
    model.xMax = 100;
    model.xTicks = cappedTicks(values.size());
    for (const QString &date : dates)
        model.labels.push_back(dayLabel(date));
    return model;
}

} // namespace

QString dayLabel(const QString &date)
{
    static const std::array<QString, 12> months = {
        QStringLiteral("-Jan"), QStringLiteral("-Feb"), QStringLiteral("-Mar"), QStringLiteral("-Apr"),
        QStringLiteral("-May"), QStringLiteral("-Jun"), QStringLiteral("-Jul"), QStringLiteral("-Aug"),
        QStringLiteral("-Sep"), QStringLiteral("-Oct"), QStringLiteral("-Nov"), QStringLiteral("-Dec")};
    const QString digits = date.mid(3, 2);
    for (std::size_t month = 0; month < months.size(); ++month) {
        if (digits == QStringLiteral("%1").arg(month + 1, 2, 10, QLatin1Char('0')))
            return date.left(2) + months.at(month);
    }
    return date.left(2);
}

std::optional<GraphModel> graphModel(GraphKind kind, const QString &key, const std::vector<QString> &dates,
                                     const std::vector<qint64> &values, const QDate &today)
{
    if (dates.empty())
        return std::nullopt;
    std::vector<qint64> all = values;
    all.resize(dates.size());
    if (all.size() > 1)
        return manyDays(kind, key, dates, all);
    const bool divide = isDivided(kind, key) && digitsOf(all.front()) > UndividedDigits;
    return singleDay(divide ? all.front() / Divisor : all.front(), today);
}
