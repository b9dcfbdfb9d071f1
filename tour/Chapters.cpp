// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Steps.h"

const std::vector<Chapter> &chapters()
{
    static const std::vector<Chapter> all{
        {QStringLiteral("start"), startSteps},
        {QStringLiteral("screens"), screenSteps},
        {QStringLiteral("menus"), menuSteps},
        {QStringLiteral("hurry"), hurrySteps, true},
        {QStringLiteral("scan"), scanSteps, true},
        {QStringLiteral("selfTest"), selfTestSteps, true},
        {QStringLiteral("clone"), cloneSteps, true},
        {QStringLiteral("settings"), settingsSteps, true},
        {QStringLiteral("update"), updateSteps, true},
        {QStringLiteral("about"), aboutSteps, true},
        {QStringLiteral("languages"), languageSteps, true},
        // The chapter of the languages does them in each.
        {QStringLiteral("jobs"), [](Walk &) { return StepList(); }, true},
        {QStringLiteral("companion"), companionSteps, true},
        {QStringLiteral("close"), closeSteps},
    };
    return all;
}
