// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Steps.h"
#include "tour/Walk.h"
#include "tour/Windows.h"

namespace
{

const QString SettingsClass = QStringLiteral("Settings");
const QString MessageClass = QStringLiteral("SmallMessageDlg");
const QString OfferClass = QStringLiteral("QShowUpdate");

/// Asks for an update. There is one only if somebody serves it at the link of the described PC; an offer is
/// recorded and not accepted.
void askForUpdate(Walk &walk)
{
    const Expectation settings(&walk, SettingsClass);
    const Expectation message(&walk, MessageClass);
    const Expectation offer(&walk, OfferClass);
    walk.openMenu(QStringLiteral("m_pMenuButton"));
    walk.chooseInMenu(QStringLiteral("m_pSettingsAction"));
    walk.waitForWindow(SettingsClass);
    walk.press(SettingsClass, {QStringLiteral("m_pUpdateButton")});
    walk.waitFor(QStringLiteral("the outcome of the check"),
                 []() { return windows::byClass(MessageClass) || windows::byClass(OfferClass); });
    const bool offered = walk.sees(OfferClass);
    const QString shownClass = offered ? OfferClass : MessageClass;
    walk.record(QStringLiteral("update"), shownClass);
    walk.press(shownClass, {offered ? QStringLiteral("CancelButton") : QStringLiteral("OkButton")});
    walk.waitForNoWindow(shownClass);
    walk.press(SettingsClass, {QStringLiteral("CloseButton")});
    walk.waitForNoWindow(SettingsClass);
}

} // namespace

StepList updateSteps(Walk &)
{
    return {{QStringLiteral("update"), askForUpdate}};
}
