// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/DiskReading.h"

#include "smart/AttributeRows.h"
#include "smart/Rating.h"
#include "smart/ReportParser.h"
#include "smart/SelfTestText.h"
#include "smart/Temperature.h"
#include "smart/TextCuts.h"

#include <QRegularExpression>
#include <QTextStream>

#include <algorithm>
#include <iterator>

namespace
{

constexpr int MostFailing = 32; ///< attributes; a report that names more is damaged

bool holdsLine(const QString &text, const QString &pattern)
{
    return QRegularExpression(pattern, QRegularExpression::MultilineOption).match(text).hasMatch();
}

/// What the tool says of a disk that it leaves asleep.
bool tellsSleep(const QString &text)
{
    return holdsLine(text, QStringLiteral("^Device is in (STANDBY|SLEEP|IDLE)\\S*( .*)? mode"));
}

/// What it says of one that it cannot reach, apart from what it says of one without SMART.
bool tellsNoAnswer(const QString &text)
{
    return holdsLine(text, QStringLiteral("^(Smartctl open device: .* failed: |Read Device Identity failed: |"
                                          "Read NVMe Identify Controller failed: )"));
}

std::optional<int> temperature(int celsius)
{
    return celsius > 0 && celsius <= HottestCelsius ? std::optional<int>(celsius) : std::nullopt;
}

/// The figure that `pattern` finds in the report, without what groups its digits.
std::optional<qint64> figureIn(const QString &text, const QString &pattern)
{
    const QRegularExpression line(pattern, QRegularExpression::MultilineOption);
    QString digits = line.match(text).captured(1);
    digits.remove(QRegularExpression(QStringLiteral("[^0-9]")));
    bool isNumber = false;
    const qint64 figure = digits.toLongLong(&isNumber);
    return isNumber ? std::optional<qint64>(figure) : std::nullopt;
}

/// The raw values of all rows of these names; nothing where there is none. A packed value, beyond 32 bits, is
/// no count.
std::optional<qint64> countOf(const SmartAttributeList &rows, const QStringList &names)
{
    std::optional<qint64> sum;
    for (const SmartAttributeRecord &row : rows) {
        if (cuts::holdsOneOf(row.AttributeName.text(), names))
            sum = sum.value_or(0) + std::max(0, row.RawValue.text().toInt());
    }
    return sum;
}

/// The number of the first row of an NVMe log that begins with `name`.
std::optional<qint64> countOf(const NvmeAttributeList &rows, const QString &name)
{
    const NvmeAttributeRecord *row =
        rows.find([&name](const NvmeAttributeRecord &each) { return each.Name.text() == name; });
    bool isNumber = false;
    const qint64 number = row ? cleanedNvmeValue(row->Value.text()).toLongLong(&isNumber) : 0;
    return isNumber ? std::optional<qint64>(std::max<qint64>(0, number)) : std::nullopt;
}

std::optional<int> percentOf(const NvmeAttributeList &rows, const QString &name)
{
    const std::optional<qint64> count = countOf(rows, name);
    return count && *count <= 255 ? std::optional<int>(static_cast<int>(*count)) : std::nullopt;
}

template<typename Rows>
void takeRows(DiskReading &reading, const std::vector<AttributeRow> &shown, const Rows &records)
{
    auto row = shown.cbegin();
    for (const auto &record : records) {
        reading.history.push_back({row->key, row->historyValue});
        DiskReading::Attribute attribute;
        attribute.name = row->key;
        if constexpr (std::is_same_v<Rows, SmartAttributeList>) {
            attribute.id = static_cast<int>(record.Id & 0xFFFFu);
            attribute.value = static_cast<int>(record.Value & 0xFFFFu);
            attribute.worst = static_cast<int>(record.Worst & 0xFFFFu);
            attribute.threshold = static_cast<int>(record.Threshold & 0xFFFFu);
            attribute.raw = record.RawValue.text();
            attribute.failed = attributeFailed(record);
            if (record.WhenFailed.text() == QLatin1String("FAILING_NOW") && // heat has an alarm of its own
                !attribute.name.contains(QLatin1String("Temperature")) &&
                reading.failing.size() < MostFailing)
                reading.failing.append(attribute.name);
        } else {
            attribute.raw = record.Value.text();
        }
        reading.attributes.push_back(attribute);
        ++row;
    }
}

/// The number at the begin of a raw value, without what groups its digits.
std::optional<double> numberOf(const QString &raw)
{
    QString digits;
    for (const QChar letter : raw.section(QLatin1Char('['), 0, 0)) {
        if (letter >= QLatin1Char('0') && letter <= QLatin1Char('9'))
            digits += letter;
    }
    bool isNumber = false;
    const double number = digits.toDouble(&isNumber);
    return isNumber ? std::optional<double>(number) : std::nullopt;
}

void takeAta(DiskReading &reading, const report::Report &report)
{
    const SmartAttributeList &rows = report.ata.rows;
    takeRows(reading, ataRows(rows), rows);
    reading.celsius = temperature(ataTemperature(rows));
    reading.health = healthOfAta(rows);
    reading.performance = performanceOf(report.identity.ataVersion.value_or(QString()));
    reading.wear = wearOfAta(rows);
    reading.reallocated = replacedOfAta(rows);
    reading.pending = countOf(rows, {QStringLiteral("Current_Pending"), QStringLiteral("Pending_Sector")});
    reading.uncorrectable =
        countOf(rows, {QStringLiteral("Offline_Uncorrectable"), QStringLiteral("Reported_Uncorrect")});
    LifeFigures figures;
    for (const SmartAttributeRecord &row : rows) {
        if (!cuts::holdsOneOf(row.key(), {"Power On Hours", "Power On Half Minutes"}))
            continue;
        takeLifeRow(figures, row, reading.health.value_or(FullPercent));
        reading.powerOnHours = qint64(figures.nPowerOnDays) * 24 + figures.nPowerOnRestHours;
    }
    // Past its five years the estimate of the screen wraps; here the rest is none.
    const quint32 fullLife = diskLifeDays(0, FullPercent);
    if (reading.powerOnHours && reading.health)
        reading.lifeDays = figures.nDiskLifeDays > fullLife ? 0 : qint64(figures.nDiskLifeDays);
}

void takeNvme(DiskReading &reading, const report::Report &report, const QString &text)
{
    const NvmeAttributeList &rows = report.log.rows;
    takeRows(reading, nvmeRows(rows), rows);
    reading.celsius = temperature(nvmeTemperature(rows));
    reading.health = healthOfNvme(rows);
    if (reading.health) // the screen shows a wear above 100 % as a negative health
        reading.health = std::max(0, *reading.health);
    reading.performance = FullPercent;
    reading.wear = percentOf(rows, QStringLiteral("Percentage Used"));
    reading.spare = percentOf(rows, QStringLiteral("Available Spare"));
    reading.spareThreshold = percentOf(rows, QStringLiteral("Available Spare Threshold"));
    reading.mediaErrors = countOf(rows, QStringLiteral("Media and Data Integrity Errors"));
    reading.powerOnHours = countOf(rows, QStringLiteral("Power On Hours"));
    if (const std::optional<uint> bits = criticalWarning(rows))
        reading.criticalWarning = *bits & 0xFFu;
    const auto own =
        figureIn(text, QStringLiteral("^Warning  ?Comp\\. Temp\\. Threshold: *([0-9]+) Celsius"));
    reading.warningCelsius = temperature(static_cast<int>(own.value_or(0) & 0xFFFF));
}

bool isAbove(const std::optional<qint64> &count)
{
    return count.value_or(0) > 0;
}

bool needsAttention(const DiskReading &reading)
{
    return isAbove(reading.pending) || isAbove(reading.uncorrectable) || isAbove(reading.mediaErrors) ||
           !reading.selfTest.isEmpty() || reading.wear.value_or(0) >= 90 ||
           (reading.spare && reading.spareThreshold && *reading.spare < *reading.spareThreshold) ||
           (reading.health && healthPicture(reading.health, FullPercent) != TilePicture::Good);
}

} // namespace

DiskReading readingOf(const QString &text)
{
    DiskReading reading;
    if (tellsSleep(text)) {
        reading.answer = DiskReading::Answer::Asleep;
        return reading;
    }
    QString copy = text;
    QTextStream stream(&copy, QIODevice::ReadOnly);
    reading.nvme = report::detectKind(stream).value_or(false);
    stream.seek(0);
    const report::Report report = report::read(stream, reading.nvme);
    reading.model = report.identity.model.value_or(QString());
    reading.serial = report.identity.serial.value_or(QString());
    reading.firmware = report.identity.firmware.value_or(QString());
    reading.verdict = report.verdict;
    // A drive of these days says so if nothing turns in it.
    reading.rotating = !reading.nvme && !holdsLine(text, QStringLiteral("^Rotation Rate: +Solid State"));
    reading.bytes = figureIn(text, QStringLiteral("^(?:User Capacity|Total NVM Capacity|Namespace 1 "
                                                  "Size/Capacity): +([0-9][^\\[a-z\n]*)"))
                        .value_or(0);
    if (!report.ata.rows.isEmpty())
        takeAta(reading, report);
    else if (!report.log.rows.isEmpty())
        takeNvme(reading, report, text);
    reading.written = writtenOf(reading.attributes);
    stream.seek(0);
    const selftest::LoggedTest test = selftest::newestLogged(stream);
    reading.selfTest = test.failed ? test.words : QString();
    reading.selfTestMark = test.mark;
    reading.selfTestHours = test.hours;
    reading.attention = needsAttention(reading);
    if (!reading.attributes.empty() || reading.verdict != DriveVerdict::NotTold)
        reading.answer = DiskReading::Answer::Report;
    else
        reading.answer =
            tellsNoAnswer(text) ? DiskReading::Answer::NoAnswer : DiskReading::Answer::NotSupported;
    return reading;
}

std::optional<double> writtenOf(const std::vector<DiskReading::Attribute> &rows)
{
    constexpr double MiB = 1024.0 * 1024;
    constexpr double GiB = 1024 * MiB;
    static const struct {
        const char *name;
        double unit; ///< bytes
    } units[] = {
        {"Data Units Written", 512000},  {"Total LBAs Written", 512},  {"Total Host Sector Write", 512},
        {"Host Writes 32MiB", 32 * MiB}, {"Host Writes MiB", MiB},     {"Host Writes GiB", GiB},
        {"Total Writes GiB", GiB},       {"Lifetime Writes GiB", GiB},
    };
    for (const DiskReading::Attribute &row : rows) {
        const auto unit = std::find_if(std::begin(units), std::end(units), [&row](const auto &each) {
            return row.name.startsWith(QLatin1String(each.name));
        });
        if (unit == std::end(units))
            continue;
        const std::optional<double> number = numberOf(row.raw);
        return number ? std::optional<double>(*number * unit->unit) : std::nullopt;
    }
    return std::nullopt;
}
