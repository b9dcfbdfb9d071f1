// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/DiskSummary.h"

#include "monitor/EventTexts.h"
#include "platform/PlainText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <array>

namespace
{

/// In the order of DiskState.
constexpr const char *StateNames[] = {"failing", "noAnswer", "warning", "ok", "asleep", "notSupported"};

bool isFailing(const DiskReading &reading)
{
    return reading.verdict == DriveVerdict::Failed ||
           (reading.criticalWarning.value_or(0) & ~HeatWarning) != 0 || !reading.failing.isEmpty();
}

template<typename Number>
QJsonValue known(const std::optional<Number> &number)
{
    return number ? QJsonValue(*number) : QJsonValue();
}

QJsonValue known(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonObject attributeObject(const DiskReading::Attribute &attribute)
{
    const bool isAta = attribute.id > 0;
    const auto ofAta = [isAta](const QJsonValue &value) { return isAta ? value : QJsonValue(); };
    return {{"id", ofAta(attribute.id)},
            {"name", attribute.name},
            {"value", ofAta(attribute.value)},
            {"worst", ofAta(attribute.worst)},
            {"threshold", ofAta(attribute.threshold)},
            {"raw", attribute.raw},
            {"status", ofAta(QLatin1String(attribute.failed ? "FAILED" : "OK"))}};
}

QString verdictName(const DiskSummary &disk)
{
    if (disk.reading.verdict == DriveVerdict::NotTold)
        return QStringLiteral("unknown");
    return disk.reading.verdict == DriveVerdict::Passed ? QStringLiteral("passed") : QStringLiteral("failed");
}

QJsonObject diskObject(const DiskSummary &disk)
{
    QJsonArray attributes;
    for (const DiskReading::Attribute &attribute : disk.reading.attributes)
        attributes.append(attributeObject(attribute));
    return {{"number", disk.number},
            {"model", known(disk.model)},
            {"serial", known(disk.serial)},
            {"firmware", known(disk.reading.firmware)},
            {"interface", known(disk.interfaceText)},
            {"bytes", disk.bytes > 0 ? QJsonValue(disk.bytes) : QJsonValue()},
            {"state", once::nameOf(disk.state)},
            {"verdict", verdictName(disk)},
            {"temperatureC", known(disk.reading.celsius)},
            {"healthPercent", known(disk.reading.health)},
            {"performancePercent", known(disk.reading.performance)},
            {"lifeDays", known(disk.reading.lifeDays)},
            {"powerOnHours", known(disk.reading.powerOnHours)},
            {"attributes", attributes}};
}

QString orDash(const QString &text)
{
    const QString plain = plaintext::line(text).simplified();
    return plain.isEmpty() ? QStringLiteral("-") : plain;
}

} // namespace

DiskState stateOf(DiskReading::Answer answer, const DiskReading &last, Heat heat)
{
    switch (answer) {
    case DiskReading::Answer::NoAnswer:
        // A disk that fails does so in silence and in its sleep, too.
        return isFailing(last) ? DiskState::Failing : DiskState::NoAnswer;
    case DiskReading::Answer::NotSupported:
        return DiskState::NotSupported;
    case DiskReading::Answer::Asleep:
        if (isFailing(last))
            return DiskState::Failing;
        return last.attention ? DiskState::Warning : DiskState::Asleep;
    case DiskReading::Answer::Report:
        break;
    }
    if (isFailing(last))
        return DiskState::Failing;
    return last.attention || heat != Heat::InOrder ? DiskState::Warning : DiskState::Ok;
}

namespace once
{

QString nameOf(DiskState state)
{
    return QLatin1String(StateNames[static_cast<std::size_t>(state)]);
}

QString table(const std::vector<DiskSummary> &disks, bool fahrenheit)
{
    constexpr std::size_t Columns = 6;
    using Row = std::array<QString, Columns>;
    std::vector<Row> rows{{QStringLiteral("DISK"), QStringLiteral("STATE"), QStringLiteral("TEMPERATURE"),
                           QStringLiteral("HEALTH"), QStringLiteral("MODEL"), QStringLiteral("SERIAL")}};
    for (const DiskSummary &disk : disks) {
        const DiskReading &reading = disk.reading;
        rows.push_back({QString::number(disk.number), nameOf(disk.state),
                        reading.celsius ? eventtexts::temperature(*reading.celsius, fahrenheit) : orDash({}),
                        reading.health ? QStringLiteral("%1 %").arg(*reading.health) : orDash({}),
                        orDash(disk.model), orDash(disk.serial)});
    }
    std::array<int, Columns> widths{};
    for (const Row &row : rows) {
        for (std::size_t i = 0; i < Columns; ++i)
            widths[i] = std::max(widths[i], row[i].size());
    }
    QString text;
    for (const Row &row : rows) {
        QString line;
        for (std::size_t i = 0; i < Columns; ++i)
            line += row[i].leftJustified(widths[i] + 2);
        text += line.trimmed() + QLatin1Char('\n');
    }
    return text;
}

QByteArray json(const std::vector<DiskSummary> &disks, const QString &version, const QDateTime &now)
{
    QJsonArray list;
    for (const DiskSummary &disk : disks)
        list.append(diskObject(disk));
    const QString time = now.toOffsetFromUtc(now.offsetFromUtc()).toString(Qt::ISODate);
    const QJsonObject all{{"schema", 1}, {"version", version}, {"time", time}, {"disks", list}};
    return QJsonDocument(all).toJson();
}

int exitCode(const std::vector<DiskSummary> &disks)
{
    const auto isAny = [&disks](std::initializer_list<DiskState> states) {
        return std::any_of(disks.cbegin(), disks.cend(), [&states](const DiskSummary &disk) {
            return std::find(states.begin(), states.end(), disk.state) != states.end();
        });
    };
    if (isAny({DiskState::Failing}))
        return 2;
    if (!isAny({DiskState::Warning, DiskState::Ok, DiskState::Asleep}))
        return 3;
    return isAny({DiskState::Warning, DiskState::NoAnswer}) ? 1 : 0;
}

} // namespace once
