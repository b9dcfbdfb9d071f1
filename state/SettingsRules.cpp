// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/SettingsRules.h"

#include <QDir>

namespace settings
{

namespace
{

int fahrenheit(int celsius)
{
    return celsius * 9 / 5 + 32;
}

} // namespace

AlarmLimits limitsForUnit(TemperatureUnit unit, int warning, int shutDown)
{
    if (unit == Fahrenheit)
        return {fahrenheit(warning), fahrenheit(shutDown), 104, 122};
    return {40, 50, 40, 50};
}

QString unitText(TemperatureUnit unit)
{
    return unit == Fahrenheit ? QStringLiteral("F") : QStringLiteral("C");
}

QString defaultLogPath(const QString &systemFolder)
{
    QString path = systemFolder;
    for (const char *part : {"\\Windows", "\\windows", "\\system32", "\\System32"})
        path.remove(QLatin1String(part));
    return QDir::toNativeSeparators(path + QStringLiteral("\\VelmoraHalvane\\SmartLog\\log.txt"));
}

} // namespace settings
