// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Steps.h"
#include "tour/Walk.h"

#include <QJsonArray>

StepList jobSteps(Walk &walk)
{
    const QJsonObject jobs = walk.plan().wishes[QStringLiteral("jobs")].toObject();
    const QJsonValue scan = jobs[QStringLiteral("scan")];
    const QJsonArray clone = jobs[QStringLiteral("clone")].toArray();
    const QJsonValue selfTest = jobs[QStringLiteral("selfTest")];
    StepList steps = scan.isDouble() ? stoppedScanSteps(scan.toInt()) : StepList();
    for (const StepList &more :
         {clone.size() == 2 ? stoppedCloneSteps(clone.at(0).toInt(-1), clone.at(1).toInt(-1)) : StepList(),
          selfTest.isDouble() ? stoppedSelfTestSteps(selfTest.toInt()) : StepList()})
        steps.insert(steps.end(), more.begin(), more.end());
    return steps;
}
