// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Steps.h"
#include "tour/Walk.h"
#include "tour/Windows.h"

#include <QJsonArray>

namespace
{

const QString SettingsClass = QStringLiteral("Settings");
constexpr int SettleTime = 600; ///< ms

/// Changes the language in Settings, and records Settings in it.
void chooseLanguage(Walk &walk, const QString &language)
{
    const Expectation settings(&walk, SettingsClass);
    walk.openMenu(QStringLiteral("m_pMenuButton"));
    walk.chooseInMenu(QStringLiteral("m_pSettingsAction"));
    walk.waitForWindow(SettingsClass);
    walk.press(SettingsClass, {QStringLiteral("m_pLanguageButton")});
    walk.waitFor(QStringLiteral("the menu of languages"), []() { return windows::openMenu() != nullptr; });
    walk.chooseInMenu(language);
    // The windows need some time to lay out their new texts.
    walk.program().pause(SettleTime);
    walk.record(QStringLiteral("settings"), SettingsClass);
    walk.press(SettingsClass, {QStringLiteral("CloseButton")});
    walk.waitForNoWindow(SettingsClass);
}

} // namespace

StepList languageSteps(Walk &walk)
{
    StepList steps;
    for (const QJsonValue &value : walk.plan().wishes[QStringLiteral("languages")].toArray()) {
        const QString language = value.toString();
        steps.push_back({QStringLiteral("settings in ") + language,
                         [language](Walk &person) { chooseLanguage(person, language); }});
        for (Step step : pageSteps()) {
            step.name += QStringLiteral(" in ") + language;
            steps.push_back(step);
        }
        for (Step step : aboutSteps(walk)) {
            step.name += QStringLiteral(" in ") + language;
            steps.push_back(step);
        }
        if (!walk.plan().wishes[QStringLiteral("companion")].toBool())
            continue;
        for (Step step : companionSteps(walk)) {
            step.name += QStringLiteral(" in ") + language;
            steps.push_back(step);
        }
    }
    return steps;
}
