// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Steps.h"
#include "tour/Walk.h"

namespace
{

const QString SettingsClass = QStringLiteral("Settings");

void seeSettings(Walk &walk)
{
    walk.expect(SettingsClass);
    walk.openMenu(QStringLiteral("m_pMenuButton"));
    walk.chooseInMenu(QStringLiteral("m_pSettingsAction"));
    walk.waitForWindow(SettingsClass);
    walk.record(QStringLiteral("settings"), SettingsClass);
    walk.press(SettingsClass, {QStringLiteral("CloseButton")});
    walk.waitForNoWindow(SettingsClass);
    walk.noLongerExpect(SettingsClass);
}

} // namespace

StepList settingsSteps(Walk &)
{
    return {{QStringLiteral("settings"), seeSettings}};
}
