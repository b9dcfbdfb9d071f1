// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/SettingsStore.h"

#include "platform/Platform.h"
#include "state/GlobalApp.h"

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

SettingsStore::~SettingsStore() = default;

QString SettingsStore::text(const QString &key) const
{
    return m_pSettings->value(key).toString();
}

int SettingsStore::number(const QString &key) const
{
    return m_pSettings->value(key).toInt();
}

bool SettingsStore::flag(const QString &key) const
{
    return m_pSettings->value(key).toBool();
}

void SettingsStore::writeText(const QString &key, const QString &value)
{
    m_pSettings->setValue(key, value);
}

void SettingsStore::writeNumber(const QString &key, int value)
{
    m_pSettings->setValue(key, value);
}
