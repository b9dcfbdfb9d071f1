// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/WatchSettings.h"

#include "state/GlobalApp.h"
#include "state/SettingsStore.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace
{

constexpr int NvmeMargin = 10;  ///< °C below the drive's own warning
constexpr int NvmeWarning = 80; ///< °C, where the drive tells none
constexpr int LowestLogKB = 10; ///< as in Settings
constexpr int UnlimitedLogKB = 16 * 1024;

bool isLimit(int celsius)
{
    return celsius > 0 && celsius <= HottestCelsius;
}

/// A threshold in °C: the lowest temperature that is shown as this number or a higher one.
int limitOf(const SettingsStore &store, const NumberSetting &value, const TextSetting &unit)
{
    const int stored = store.numberOrFirst(value);
    const bool fahrenheit = store.text(unit) == QLatin1String("F");
    const int celsius = fahrenheit && stored > 32 && stored < 1000 ? ((stored - 32) * 5 + 8) / 9 : stored;
    return isLimit(celsius) ? celsius : value.first;
}

/// The key of a disk's own limits. A serial number may hold what parts keys.
QString keyOf(const QString &serial)
{
    static const QRegularExpression others(QStringLiteral("[^A-Za-z0-9._ -]"));
    return QString(serial).replace(others, QStringLiteral("_"));
}

const QString OwnLimits = QStringLiteral("Limits/");

} // namespace

WatchSettings WatchSettings::load()
{
    const SettingsStore store(g_App.m_strSettingsPath);
    WatchSettings settings;
    settings.fahrenheit = store.text(key::TempValue) == QLatin1String("F");
    settings.warns = store.numberOrFirst(key::ShowWarning) != 0 && !store.flag(key::DontShow);
    settings.warnsOfShutDown = !store.flag(key::ShutDownDontShow);
    settings.warning = limitOf(store, key::WarningValue, key::WarningtemValue);
    settings.shutDown = limitOf(store, key::ShutDownValue, key::ShutDowntemValue);
    settings.firstRunLimits =
        settings.warning == key::WarningValue.first && settings.shutDown == key::ShutDownValue.first;
    settings.logPath = store.textOrFirst(key::LogSavePath);
    settings.log = store.numberOrFirst(key::SaveLog) != 0 && !settings.logPath.isEmpty();
    settings.metricsPath = store.text(key::MetricsPath);
    const int kilobytes = store.numberOrFirst(key::MaxLogSize);
    // 0 stands for no limit of the user's own.
    settings.logBytes =
        qint64(1024) * (kilobytes == 0
                            ? UnlimitedLogKB
                            : std::max(kilobytes > 0 ? kilobytes : key::MaxLogSize.first, LowestLogKB));
    return settings;
}

TemperatureLimits WatchSettings::setLimitsOf(const DiskReading &reading, const QString &serial) const
{
    if (const auto own = ownlimits::load(serial))
        return {own->warning, own->shutDown};
    if (reading.nvme && firstRunLimits) {
        const int own = reading.warningCelsius.value_or(NvmeWarning);
        return {std::max(1, own - NvmeMargin), own};
    }
    return {warning, shutDown};
}

TemperatureLimits WatchSettings::limitsOf(const DiskReading &reading, const QString &serial) const
{
    TemperatureLimits limits = setLimitsOf(reading, serial);
    if (!warns)
        limits.warning.reset();
    if (!warnsOfShutDown)
        limits.shutDown.reset();
    return limits;
}

namespace ownlimits
{

std::optional<Limits> load(const QString &serial)
{
    const QByteArray name = keyOf(serial).toLatin1();
    if (name.isEmpty())
        return std::nullopt;
    const SettingsStore store(g_App.m_strSettingsPath);
    const QStringList told =
        store.text({name.constData()}, OwnLimits).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const Limits limits{told.value(0).toInt(), told.value(1).toInt()};
    return isLimit(limits.warning) && isLimit(limits.shutDown) ? std::optional<Limits>(limits) : std::nullopt;
}

void save(const QString &serial, const std::optional<Limits> &limits)
{
    const QByteArray name = OwnLimits.toLatin1() + keyOf(serial).toLatin1();
    if (serial.isEmpty())
        return;
    SettingsStore store(g_App.m_strSettingsPath);
    store.write(TextSetting{name.constData()},
                limits ? QStringLiteral("%1 %2").arg(limits->warning).arg(limits->shutDown) : QString());
}

} // namespace ownlimits
