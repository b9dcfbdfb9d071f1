// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Steps.h"
#include "tour/Walk.h"

#include <QJsonArray>

StepList jobSteps(Walk &walk)
{
    const QJsonObject jobs = walk.plan().wishes[QStringLiteral("jobs")].toObject();
    const QJsonArray clone = jobs[QStringLiteral("clone")].toArray();
    StepList steps = stoppedScanSteps(jobs[QStringLiteral("scan")].toInt(-1));
    for (const StepList &more : {stoppedCloneSteps(clone.at(0).toInt(-1), clone.at(1).toInt(-1)),
                                 stoppedSelfTestSteps(jobs[QStringLiteral("selfTest")].toInt(-1))})
        steps.insert(steps.end(), more.begin(), more.end());
    return steps;
}
