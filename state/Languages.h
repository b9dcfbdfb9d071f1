// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/GlobalApp.h"
#include "state/SettingsStore.h"

#include <QString>

#include <array>

/// The values of the setting LanguageType.
enum class LanguageType {
    English,
    German,
    French,
    Italian,
    Spanish,
    Japanese,
    Chinese,
    Korean,
    Dutch,
    Brazil,
    Hindi
};

/// Widths in design pixels of the eight lower labels of Disk Status.
struct DiskStatusMetrics {
    int lifeName;
    int lifeValue;
    int powerOnName;
    int powerOnValue;
    int startStopName;
    int startStopValue;
    int verdictName;
    int verdictValue;
    int performanceTitleHeight;
};

/// A table of the languages, in the order of LanguageType, with all that differs by language.
namespace languages
{

struct Language {
    LanguageType type;
    bool GlobalApp::*flag;
    const char *folder;   ///< also the prefix of the language's settings
    const char *helpCode; ///< in the names of the help pages; empty: no help
    const char *text;     ///< in the menus, English
    bool ofSecondBrand;   ///< in the menu of the second brand, too
    int reportWidth;      ///< of the button Save Report, in design pixels
    int screenshotWidth;  ///< of the button Screenshot, in design pixels
    DiskStatusMetrics diskStatus;

    /// Place in GlobalApp::m_abLanguageOffered and other tables in the order of LanguageType.
    std::size_t index() const { return static_cast<std::size_t>(type); }
};

extern const std::array<Language, LanguageCount> table;

/// The language whose flag is set; English where none is.
const Language &current();

/// A setting that exists once for each language, in the language in use. Main thread only.
QString storedText(const TextSetting &setting);
/// The same, but an absent setting reads as what the publisher has chosen.
QString shownText(const TextSetting &setting);

/// Clears all flags and sets that of a stored LanguageType; none for a value outside the table.
void setFlag(int type);

/// Marks which languages the menus offer: all but Chinese, which runs only from a stored setting.
void setOffered();

/// The folder that a language's translations are loaded from, with the brand's own part.
QString translationFolder(const Language &language);

/// Loads the two translators of a language into g_App. A missing file leaves the language untranslated.
/// `withQt` false leaves the Qt file out.
void loadTranslators(const Language &language, bool withQt = true);

/// Loads all languages but the selected one, then loads and installs the selected one's translators.
void loadAtStart();

/// Takes over the stored language where another program has changed it.
void follow();

/// Changes the language while the program runs: sets its flag, stores the choice as text here and for the
/// three sibling programs, and swaps the installed translators, which sends every window a LanguageChange.
/// Choosing the current language again does no harm.
void change(LanguageType type);

} // namespace languages
