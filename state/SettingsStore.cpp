// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/SettingsStore.h"

#include "platform/Log.h"
#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/Product.h"

#include <QSettings>
#include <QVariant>

SettingsStore::SettingsStore()
{
    g_App.m_strScratchSettingsPath = g_App.m_strSettingsPath;
    m_pSettings = Platform::current().OpenSettings(g_App.m_strScratchSettingsPath);
}

SettingsStore::SettingsStore(const QString &registryPath)
    : m_pSettings(Platform::current().OpenSettings(registryPath))
{
}

SettingsStore::~SettingsStore()
{
    if (!m_bWritten)
        return;
    m_pSettings->sync();
    if (m_pSettings->status() != QSettings::NoError)
        qCDebug(logs::state) << "settings were not written:" << m_pSettings->fileName();
}

QString SettingsStore::text(const TextSetting &setting, const QString &prefix) const
{
    return m_pSettings->value(prefix + QLatin1String(setting.name)).toString();
}

int SettingsStore::number(const NumberSetting &setting) const
{
    return m_pSettings->value(QLatin1String(setting.name)).toInt();
}

bool SettingsStore::flag(const NumberSetting &setting) const
{
    return m_pSettings->value(QLatin1String(setting.name)).toBool();
}

QString SettingsStore::textOrFirst(const TextSetting &setting, const QString &prefix) const
{
    const QString name = prefix + QLatin1String(setting.name);
    if (m_pSettings->contains(name))
        return text(setting, prefix);
    const QString own = product::text(name);
    return own.isEmpty() ? QString::fromLatin1(setting.first) : own;
}

int SettingsStore::numberOrFirst(const NumberSetting &setting) const
{
    return m_pSettings->contains(QLatin1String(setting.name)) ? number(setting) : setting.first;
}

void SettingsStore::write(const TextSetting &setting, const QString &value)
{
    m_pSettings->setValue(QLatin1String(setting.name), value);
    m_bWritten = true;
}

void SettingsStore::write(const NumberSetting &setting, int value)
{
    m_pSettings->setValue(QLatin1String(setting.name), value);
    m_bWritten = true;
}
