// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeRows.h"

#include "smart/AttributeCatalogue.h"
#include "smart/AttributeKey.h"
#include "smart/TextCuts.h"

#include <QCoreApplication>
#include <QSet>

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

/// The keys of one table, each once: of rows with one name the later ones have their ID behind it.
class Keys
{
public:
    QString own(QString key, const QString &id)
    {
        while (m_taken.contains(key))
            key += QLatin1Char(' ') + id;
        m_taken.insert(key);
        return key;
    }

private:
    QSet<QString> m_taken;
};

AttributeRow ataRow(const SmartAttributeRecord &record, Keys &keys)
{
    AttributeRow row;
    const QString name = keyOf(record.AttributeName.text());
    row.key = keys.own(name, QString::number(record.Id));
    row.historyValue = record.RawValue.text();
    const QString display = ataDisplayName(name, record.Id);
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

AttributeRow nvmeRow(const NvmeAttributeRecord &record, const QString &number, Keys &keys)
{
    AttributeRow row;
    const QString name = record.Name.text();
    row.key = keys.own(name, number);
    const QString value = record.Value.text().trimmed();
    row.historyValue = cleanedNvmeValue(value);
    row.cells = {number, nvmeDisplayName(name), value, row.key};
    return row;
}

} // namespace

std::vector<AttributeRow> ataRows(const SmartAttributeList &rows)
{
    std::vector<AttributeRow> shown;
    Keys keys;
    for (const SmartAttributeRecord &record : rows)
        shown.push_back(ataRow(record, keys));
    return shown;
}

std::vector<AttributeRow> nvmeRows(const NvmeAttributeList &rows)
{
    std::vector<AttributeRow> shown;
    Keys keys;
    for (const NvmeAttributeRecord &record : rows)
        shown.push_back(nvmeRow(record, QString::number(shown.size()), keys));
    return shown;
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
        return cuts::withoutGroups(copy.left(remark).remove(QLatin1Char(',')).remove(QLatin1Char('"')));
    for (const char *word : {" Celsius", "%", ",", "\""}) {
        if (copy.contains(QLatin1String(word))) {
            copy.remove(QLatin1String(word));
            break;
        }
    }
    return cuts::withoutGroups(copy);
}
