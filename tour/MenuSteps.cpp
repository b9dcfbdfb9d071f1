// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Steps.h"
#include "tour/Walk.h"

namespace
{

Step menuStep(const QString &name, const QString &button)
{
    return {name, [name, button](Walk &walk) {
                walk.openMenu(button);
                walk.recordMenu(name);
                walk.closeMenu();
            }};
}

} // namespace

StepList menuSteps(Walk &walk)
{
    StepList steps{menuStep(QStringLiteral("menu"), QStringLiteral("m_pMenuButton")),
                   menuStep(QStringLiteral("more-tools"), QStringLiteral("m_pMoreToolsButton"))};
    // Without a disk there is no list.
    if (walk.driveCount() > 0)
        steps.push_back({QStringLiteral("drive-list"), [](Walk &person) { person.recordDriveList(); }});
    return steps;
}
