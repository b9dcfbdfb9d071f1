#include "smart/AttributeRows.h"

#include "smart/AttributeCatalogue.h"
#include "smart/AttributeKey.h"

#include <QCoreApplication>

namespace
{

constexpr std::uint32_t TemperatureId = 194;
constexpr int HotCelsius = 50;
constexpr int RawColumn = 6;

bool tooHot(const SmartAttributeRecord &record)
{
    return record.RawValue.text().toInt() >= HotCelsius;
}

QString statusText(bool failed)
{
    return failed ? QCoreApplication::translate("AttributeRows", "FAILED")
                  : QCoreApplication::translate("AttributeRows", "OK");
}

/// Goes by the name on show, so a language without these words shows no red.
bool countsBadSectors(const QString &displayName)
{
    return displayName.contains(QLatin1String("Sector Ct")) ||
           displayName.contains(QLatin1String("Sector Count"));
}

AttributeRow ataRow(const SmartAttributeRecord &record)
{
    AttributeRow row;
    row.key = keyOf(record.AttributeName.text());
    row.historyValue = record.RawValue.text();
    const QString display = ataDisplayName(row.key, record.Id);
    row.cells = {QString::number(record.Id),
                 display,
                 statusText(attributeFailed(record)),
                 QString::number(record.Value),
                 QString::number(record.Worst),
                 QString::number(record.Threshold),
                 row.historyValue,
                 row.key};
    if (countsBadSectors(display) && row.historyValue.toLongLong() > 0)
        row.redCell = RawColumn;
    return row;
}

AttributeRow nvmeRow(const NvmeAttributeRecord &record, std::size_t number)
{
    AttributeRow row;
    row.key = record.Name.text();
    const QString value = record.Value.text().trimmed();
    row.historyValue = cleanedNvmeValue(value);
    row.cells = {QString::number(number), nvmeDisplayName(row.key), value, row.key};
    return row;
}

} // namespace

std::vector<AttributeRow> ataRows(const SmartAttributeRecord *head)
{
    std::vector<AttributeRow> rows;
    for (const SmartAttributeRecord *record = head; record; record = record->Next)
        rows.push_back(ataRow(*record));
    return rows;
}

std::vector<AttributeRow> nvmeRows(const NvmeAttributeRecord *head)
{
    std::vector<AttributeRow> rows;
    for (const NvmeAttributeRecord *record = head; record; record = record->Next)
        rows.push_back(nvmeRow(*record, rows.size()));
    return rows;
}

bool attributeFailed(const SmartAttributeRecord &record)
{
    return record.Id == TemperatureId ? tooHot(record) : record.Value <= record.Threshold;
}

bool reportStatusFailed(const SmartAttributeRecord &record)
{
    return record.Id == TemperatureId ? tooHot(record) : record.Value < record.Threshold;
}

QString cleanedNvmeValue(const QString &value)
{
    QString copy = value;
    if (copy.contains(QLatin1String("0x00")))
        return QStringLiteral("0");
    const int remark = copy.indexOf(QLatin1String(" ["));
    if (remark >= 0)
        return copy.left(remark).remove(QLatin1Char(',')).remove(QLatin1Char('"'));
    for (const char *word : {" Celsius", "%", ",", "\""}) {
        if (copy.contains(QLatin1String(word)))
            return copy.remove(QLatin1String(word));
    }
    return copy;
}
