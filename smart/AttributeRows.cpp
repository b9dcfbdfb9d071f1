// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeRows.h"

#include "smart/AttributeCatalogue.h"
#include "smart/TextCuts.h"

#include <QCoreApplication>
#include <QSet>

namespace
{

constexpr quint32 TemperatureId = 194;
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

/// A key that is not in `taken`, which holds those of the rows before: of rows with one name the later ones
/// have their ID behind it.
QString ownKey(QSet<QString> *taken, QString key, const QString &id)
{
    while (taken->contains(key))
        key += QLatin1Char(' ') + id;
    taken->insert(key);
    return key;
}

AttributeRow ataRow(const SmartAttributeRecord &record, QSet<QString> *taken)
{
    AttributeRow row;
    const QString name = record.key();
    row.key = ownKey(taken, name, QString::number(record.Id));
    row.historyValue = record.RawValue.text();
    row.cells = {QString::number(record.Id),
                 ataName(name, record.Id, NameIn::Tree),
                 statusText(attributeFailed(record)),
                 QString::number(record.Value),
                 QString::number(record.Worst),
                 QString::number(record.Threshold),
                 row.historyValue,
                 row.key};
    if (redInTree(name, row.historyValue))
        row.redCell = RawColumn;
    return row;
}

AttributeRow nvmeRow(const NvmeAttributeRecord &record, const QString &number, QSet<QString> *taken)
{
    AttributeRow row;
    const QString name = record.Name.text();
    row.key = ownKey(taken, name, number);
    const QString value = record.Value.text().trimmed();
    row.historyValue = cleanedNvmeValue(value);
    row.cells = {number, nvmeName(name, NameIn::Tree), value, row.key};
    return row;
}

} // namespace

std::vector<AttributeRow> ataRows(const SmartAttributeList &rows)
{
    std::vector<AttributeRow> shown;
    QSet<QString> taken;
    for (const SmartAttributeRecord &record : rows)
        shown.push_back(ataRow(record, &taken));
    return shown;
}

std::vector<AttributeRow> nvmeRows(const NvmeAttributeList &rows)
{
    std::vector<AttributeRow> shown;
    QSet<QString> taken;
    for (const NvmeAttributeRecord &record : rows)
        shown.push_back(nvmeRow(record, QString::number(shown.size()), &taken));
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

bool redInTree(const QString &key, const QString &raw)
{
    return raw.toLongLong() > 0 &&
           cuts::holdsOneOf(key, {"Sector Ct", "Sector Count", "Current Pending Sector"});
}

bool redInReport(const QString &key, const QString &raw)
{
    return raw.toLongLong() > 0 &&
           cuts::holdsOneOf(key,
                            {"Current Pending Sector", "Reallocated Sector Count", "Reallocated Sector Ct"},
                            Qt::CaseInsensitive);
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
