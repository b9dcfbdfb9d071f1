// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/Temperature.h"

#include "smart/SmartGlobals.h"
#include "state/GlobalApp.h"

namespace
{

constexpr QChar DegreeSign(0xB0);

} // namespace

int GetDiskTemperature()
{
    return g_App.m_bNVMe ? nvmeTemperature(g_nvmeTable.rows) : ataTemperature(g_smartTable.rows);
}

int ataTemperature(const SmartAttributeList &rows)
{
    for (const SmartAttributeRecord &row : rows) {
        const QString name = row.AttributeName.text();
        if (name.contains(QLatin1String("Temperature_Celsius")) ||
            name.contains(QLatin1String("Airflow_Temperature_Cel")))
            return row.RawValue.text().toInt();
    }
    return 0;
}

int nvmeTemperature(const NvmeAttributeList &rows)
{
    for (const NvmeAttributeRecord &row : rows) {
        if (row.Name.text().contains(QLatin1String("Temperature")))
            return row.Value.text().remove(QLatin1String("Celsius")).toInt();
    }
    return 0;
}

int displayTemperature(int celsius, bool fahrenheit)
{
    if (!fahrenheit || celsius == 0)
        return celsius;
    // A row may hold any number: the product is formed wide and the result cut to 32 bits.
    return static_cast<int>(32 + static_cast<qint64>(celsius) * 9 / 5);
}

QString loadTemperatureText(int celsius, const QString &unit)
{
    const bool fahrenheit = unit == QLatin1String("F");
    return QString::number(displayTemperature(celsius, fahrenheit)) + DegreeSign +
           QLatin1Char(fahrenheit ? 'F' : 'C');
}

QString pollTemperatureText(int celsius, const QString &unit)
{
    const bool known = unit == QLatin1String("C") || unit == QLatin1String("F");
    return known ? loadTemperatureText(celsius, unit) : QString();
}

QString waitingTemperatureText(const QString &unit)
{
    const QString text = pollTemperatureText(0, unit);
    return text.isEmpty() ? QString(QLatin1Char('0')) + DegreeSign : text;
}

TilePicture loadTemperaturePicture(int celsius)
{
    if (celsius < 50)
        return TilePicture::Good;
    return celsius <= 65 ? TilePicture::Average : TilePicture::Bad;
}

TilePicture pollTemperaturePicture(int celsius)
{
    return celsius >= 50 ? TilePicture::Good : TilePicture::Same;
}
