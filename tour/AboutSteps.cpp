// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Steps.h"
#include "tour/Walk.h"

namespace
{

const QString AboutClass = QStringLiteral("AboutDlg");

/// Looks at the About box; support and licence would open other programs.
void seeAbout(Walk &walk)
{
    const Expectation about(&walk, AboutClass);
    walk.openMenu(QStringLiteral("m_pMenuButton"));
    walk.chooseInMenu(QStringLiteral("m_pAboutAction"));
    walk.waitForWindow(AboutClass);
    walk.record(QStringLiteral("about"), AboutClass);
    walk.press(AboutClass, {QStringLiteral("OkButton")});
    walk.waitForNoWindow(AboutClass);
}

} // namespace

StepList aboutSteps(Walk &)
{
    return {{QStringLiteral("about"), seeAbout}};
}
