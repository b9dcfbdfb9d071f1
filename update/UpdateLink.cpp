// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/UpdateLink.h"

#include "state/GlobalApp.h"
#include "state/Languages.h"
#include "state/SettingsStore.h"

namespace update
{

namespace
{

QString brand()
{
    return g_App.m_bKorvaneBrand ? QStringLiteral("KorvaneHalvane") : QStringLiteral("VelmoraHalvane");
}

} // namespace

QString link()
{
    return languages::storedText(key::rxUpdateLink);
}

QString page()
{
    return languages::storedText(key::rxUpdate);
}

QString versionsName()
{
    return brand() + QLatin1String(".txt");
}

QString installerName()
{
    return brand() + QLatin1String(".exe");
}

int expectedSize()
{
    const int size = SettingsStore().number(key::AverageUpdateSize);
    return size > 0 ? size : key::AverageUpdateSize.first;
}

} // namespace update
