#pragma once

#include "state/GlobalApp.h"

#include <QString>

#include <array>

/// The languages of the program as a table, in the order of the setting LanguageType.
namespace languages
{

struct Language {
    int type; ///< value of LanguageType
    bool GlobalApp::*flag;
    const char *folder;  ///< also the prefix of the language's settings
    const char *qtFile;  ///< base name of the Qt translation
    const char *appFile; ///< base name of the application's translation
    const char *text;    ///< in the menus, English
    int offeredIndex;    ///< place in GlobalApp::m_abLanguageOffered
};

extern const std::array<Language, LanguageCount> table;

/// The language whose flag is set; English where none is.
const Language &current();

/// A setting that exists once for each language, such as "rxUpdateLink", in the language in use. Main thread
/// only.
QString storedText(const QString &name);

/// Clears all flags and sets that of `type`; none for a value outside the table.
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

/// Changes the language while the program runs: sets its flag, stores the choice as text here and for the
/// three sibling programs, and swaps the installed translators, which sends every window a LanguageChange.
/// Choosing the current language again does no harm.
void change(int type);

} // namespace languages
