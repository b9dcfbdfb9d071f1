// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Languages.h"
#include "tour/Steps.h"
#include "tour/Walk.h"
#include "tour/Windows.h"

#include <QJsonArray>
#include <QVariant>
#include <QWidget>

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

/// A language whose translation is missing would show English, and pass.
void changeLanguage(Walk &walk, const QString &language)
{
    chooseLanguage(walk, language);
    const bool isUntranslated = walk.program().ask([] {
        QWidget *window = windows::byClass(QStringLiteral("MainWindow"));
        const QWidget *entry = windows::button(window, {QStringLiteral("ScanDiskButton")});
        return languages::current().type != LanguageType::English && entry &&
               entry->property("text").toString().trimmed() == QLatin1String("Scan Disk");
    });
    if (isUntranslated)
        throw StepFailed(QStringLiteral("the texts are English"));
}

} // namespace

StepList languageSteps(Walk &walk)
{
    // The jobs end on a disk with SMART data, which the pages then show.
    static const Chapter shownAgain[] = {{QStringLiteral("jobs"), jobSteps, true},
                                         {QStringLiteral("pages"), [](Walk &) { return pageSteps(); }},
                                         {QStringLiteral("about"), aboutSteps},
                                         {QStringLiteral("companion"), companionSteps, true}};
    StepList steps;
    for (const QJsonValue &value : walk.plan().wishes[QStringLiteral("languages")].toArray()) {
        const QString language = value.toString();
        steps.push_back({QStringLiteral("settings in ") + language,
                         [language](Walk &person) { changeLanguage(person, language); }});
        StepList more;
        for (const Chapter &chapter : shownAgain) {
            if (chapter.onWish && !walk.plan().wants(chapter.name))
                continue;
            for (const Step &step : chapter.steps(walk))
                more.push_back(step);
        }
        for (Step &step : more) {
            step.name += QStringLiteral(" in ") + language;
            steps.push_back(step);
        }
    }
    return steps;
}
