// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/SettingsRules.h"

#include "state/SettingsStore.h"

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

Values firstRun()
{
    return {key::ShowTrayIcon.first != 0,
            Celsius,
            key::ShowWarning.first != 0,
            key::WarningValue.first,
            key::ShutDownValue.first,
            key::SaveLog.first != 0,
            QLatin1String(key::LogSavePath.first),
            key::MaxLogSize.first};
}

Values load()
{
    SettingsStore store;
    if (!store.flag(key::FirstTimeLaunch)) {
        store.write(key::FirstTimeLaunch, 1);
        return firstRun();
    }
    return {store.flag(key::ShowTrayIcon),
            store.text(key::TempValue) == unitText(Fahrenheit) ? Fahrenheit : Celsius,
            // The companion reads what nobody has stored in the same way.
            store.numberOrFirst(key::ShowWarning) != 0 && !store.flag(key::DontShow),
            store.numberOrFirst(key::WarningValue), store.numberOrFirst(key::ShutDownValue),
            store.numberOrFirst(key::SaveLog) != 0, store.textOrFirst(key::LogSavePath),
            store.numberOrFirst(key::MaxLogSize)};
}

void save(const Values &values)
{
    SettingsStore store;
    if (values.unit == Celsius || values.unit == Fahrenheit) {
        for (const TextSetting &unit : {key::WarningtemValue, key::ShutDowntemValue, key::TempValue})
            store.write(unit, unitText(values.unit));
    }
    store.write(key::ShowWarning, values.alarm ? 1 : 0);
    store.write(key::DontShow, values.alarm ? 0 : 1);
    store.write(key::WarningValue, values.warning);
    store.write(key::ShutDownValue, values.shutDown);
    store.write(key::SaveLog, values.log ? 1 : 0);
    store.write(key::LogSavePath, values.logPath);
    store.write(key::MaxLogSize, values.logKilobytes);
}

AlarmLimits limitsForUnit(int unit, int warning, int shutDown)
{
    if (unit == Fahrenheit)
        return {fahrenheit(warning), fahrenheit(shutDown), 104, 122};
    return {40, 50, 40, 50};
}

QString unitText(int unit)
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

QString logFolderOf(const QString &logPath)
{
    const QStringList parts = logPath.split(QLatin1Char('\\'), Qt::SkipEmptyParts);
    QString folder;
    for (int i = 0; i + 1 < parts.size(); ++i)
        folder += parts[i] + QLatin1Char('\\');
    return folder;
}

} // namespace settings
