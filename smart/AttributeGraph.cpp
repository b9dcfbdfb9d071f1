// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeGraph.h"

#include "smart/TextCuts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
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

/// The axis of a key, by whether the highest value has few digits.
struct AxisRule {
    QStringList words; ///< the key holds one of them; none: any key
    Axis small{3};
    Axis other{6};
    const char *without = nullptr; ///< the key must not hold it
};

constexpr Axis FromZero{6, Low::Zero};

/// The first rule that fits decides.
const std::vector<AxisRule> &axisRules(GraphKind kind)
{
    static const std::vector<AxisRule> ata = {
        {{"Raw Read Error Rate", "Spin Up Time", "Start Stop Count", "Reallocated Sector Ct",
          "Reallocated Sector Count", "Seek Error Rate"}},
        {{"Power On Hours"}, {6}},
        {{"Spin Retry Count", "Calibration Retry Count"}},
        {{"Power Cycle Count"}, {3, Low::OneLess}},
        {{"Power-Off Retract Count"}, {6}},
        {{"Load Cycle Count"}, {6, Low::SixLess}},
        {{"Temperature Celsius"}, FromZero},
        {{"Reallocated Event Count", "Current Pending Sector", "Offline Uncorrectable",
          "UDMA CRC Error Count", "Runtime Bad Block", "Multi Zone Error Rate", "Soft Read Error Rate",
          "End-to-End Error", "Reported Uncorrect", "Command Timeout", "High Fly Writes"}},
        {{"Airflow Temperature Cel"}, FromZero},
        {{"G-Sense Error Rate"}},
        {{"Hardware ECC Recovered"}, {3}, FromZero},
        {{"Write Error Rate"}},
        {{"Head Flying Hours"}, {4}},
        {{"Total LBAs Written", "Total LBAs Read"}, {3}, {6, Low::Zero, true}},
        {{"Free Fall Event Count"}},
        {{}, {TicksByDays}, {TicksByDays}},
    };
    static const std::vector<AxisRule> nvme = {
        {{"Power Cycles"}, {3, Low::OneLess}},
        {{"Critical Warning", "Temperature", "Available Spare Threshold", "Percentage Used",
          "Data Units Read", "Data Units Written", "Host Read Commands", "Host Write Commands",
          "Controller Busy Time", "Power On Hours", "Unsafe Shutdowns", "Media and Data Integrity Errors",
          "Error Information Log Entries"}},
        {{"Available Spare"}, {3}, {6}, "Threshold"},
        {{}, {0}, {0}},
    };
    return kind == GraphKind::Ata ? ata : nvme;
}

int digitsOf(qint64 value)
{
    int digits = 1;
    for (value /= 10; value != 0; value /= 10)
        ++digits;
    return digits;
}

const Axis &axisOf(GraphKind kind, const QString &key, bool small)
{
    for (const AxisRule &rule : axisRules(kind)) {
        if ((rule.words.isEmpty() || cuts::holdsOneOf(key, rule.words)) &&
            !(rule.without && key.contains(QLatin1String(rule.without))))
            return small ? rule.small : rule.other;
    }
    Q_UNREACHABLE();
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
    return kind == GraphKind::Ata && cuts::holdsOneOf(key, {"Total LBAs Written", "Total LBAs Read"});
}

/// The chart takes two ends for one where they differ by less than this part of their size. It draws nothing
/// then.
bool tooCloseToDraw(qint64 low, qint64 high)
{
    constexpr double Least = 2e-12;
    const double width = std::max(static_cast<double>(high) - static_cast<double>(low), 2.0);
    return width < Least * std::max(std::abs(static_cast<double>(low)), std::abs(static_cast<double>(high)));
}

/// value + step, also where the sum does not fit 64 bits. The step is small against the value.
QString sumText(qint64 value, qint64 step)
{
    const quint64 by = static_cast<quint64>(step);
    if (value >= 0)
        return QString::number(static_cast<quint64>(value) + by);
    const quint64 magnitude = ~static_cast<quint64>(value) + 1;
    return QLatin1Char('-') + QString::number(magnitude - by);
}

/// From base + first to base + last. There is no room for more than three numbers of that length.
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

/// Sets the Y axis of the model. Returns the value that its 0 stands for.
qint64 setYAxis(GraphModel &model, GraphKind kind, const QString &key, const std::vector<qint64> &values)
{
    const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
    const bool small = digitsOf(*highest) <= SmallDigits;
    const Axis &axis = axisOf(kind, key, small);
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
    // The line goes on to the right edge.
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
    const QString digits = date.mid(3, 2);
    const int month = digits.toInt();
    if (month < 1 || month > 12 || digits != QStringLiteral("%1").arg(month, 2, 10, QLatin1Char('0')))
        return date.left(2);
    return date.left(2) + QLatin1Char('-') + QLocale::c().monthName(month, QLocale::ShortFormat);
}

QString graphText(const std::vector<QString> &dates, const std::vector<qint64> &values)
{
    if (dates.empty())
        return QString();
    std::vector<qint64> all = values;
    all.resize(dates.size());
    const auto [lowest, highest] = std::minmax_element(all.begin(), all.end());
    return QCoreApplication::translate("MainWindow", "From %1 to %2: lowest value %3, highest %4, latest %5")
        .arg(dayLabel(dates.front()), dayLabel(dates.back()))
        .arg(*lowest)
        .arg(*highest)
        .arg(all.back());
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
