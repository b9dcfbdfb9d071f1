// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Languages.h"

#include "platform/Platform.h"
#include "state/Globals.h"
#include "state/SettingsStore.h"

#include <QCoreApplication>

namespace languages
{

namespace
{

constexpr DiskStatusMetrics Common{120, 190, 120, 140, 120, 140, 120, 170, 20};
constexpr DiskStatusMetrics ForGerman{185, 190, 130, 140, 130, 140, 130, 170, 25};
constexpr DiskStatusMetrics ForFrench{180, 190, 180, 145, 180, 140, 180, 145, 20};
constexpr DiskStatusMetrics ForItalian{140, 190, 140, 140, 170, 140, 140, 175, 20};
constexpr DiskStatusMetrics ForSpanish{140, 190, 140, 140, 200, 140, 140, 150, 20};
constexpr DiskStatusMetrics ForDutch{160, 190, 130, 140, 130, 140, 140, 185, 20};
constexpr DiskStatusMetrics ForBrazil{160, 190, 150, 140, 175, 140, 150, 165, 25};

} // namespace

const std::array<Language, LanguageCount> table = {{
    {LanguageType::English, &GlobalApp::m_bEnglish, "EN", "en", QT_TRANSLATE_NOOP("MainWindow", "English"),
     true, 117, 128, Common},
    {LanguageType::German, &GlobalApp::m_bGerman, "DE", "de", QT_TRANSLATE_NOOP("MainWindow", "German"), true,
     128, 128, ForGerman},
    {LanguageType::French, &GlobalApp::m_bFrench, "FR", "fr", QT_TRANSLATE_NOOP("MainWindow", "French"), true,
     152, 180, ForFrench},
    {LanguageType::Italian, &GlobalApp::m_bItalian, "IT", "it", QT_TRANSLATE_NOOP("MainWindow", "Italian"),
     true, 117, 160, ForItalian},
    {LanguageType::Spanish, &GlobalApp::m_bSpanish, "ES", "es", QT_TRANSLATE_NOOP("MainWindow", "Spanish"),
     true, 122, 128, ForSpanish},
    {LanguageType::Japanese, &GlobalApp::m_bJapanese, "JA", "jp", QT_TRANSLATE_NOOP("MainWindow", "Japanese"),
     true, 117, 128, Common},
    {LanguageType::Chinese, &GlobalApp::m_bChinese, "CN", "", QT_TRANSLATE_NOOP("MainWindow", "Chinese"),
     true, 117, 128, Common},
    {LanguageType::Korean, &GlobalApp::m_bKorean, "KO", "ko", QT_TRANSLATE_NOOP("MainWindow", "Korean"),
     false, 117, 128, Common},
    {LanguageType::Dutch, &GlobalApp::m_bDutch, "DU", "nl", QT_TRANSLATE_NOOP("MainWindow", "Dutch"), true,
     117, 128, ForDutch},
    {LanguageType::Brazil, &GlobalApp::m_bBrazil, "BR", "pt", QT_TRANSLATE_NOOP("MainWindow", "Brazil"), true,
     130, 128, ForBrazil},
    {LanguageType::Hindi, &GlobalApp::m_bHindi, "HI", "hi", QT_TRANSLATE_NOOP("MainWindow", "Hindi"), false,
     122, 128, Common},
}};

namespace
{

QTranslator &qtTranslator(const Language &language)
{
    return g_App.m_aTranslators[2 * language.index()];
}

QTranslator &appTranslator(const Language &language)
{
    return g_App.m_aTranslators[2 * language.index() + 1];
}

/// Those of the current language take the place of all others.
void swapTranslators()
{
    for (const Language &language : table) {
        if (&language == &current())
            continue;
        QCoreApplication::removeTranslator(&qtTranslator(language));
        QCoreApplication::removeTranslator(&appTranslator(language));
    }
    QCoreApplication::installTranslator(&qtTranslator(current()));
    QCoreApplication::installTranslator(&appTranslator(current()));
}

} // namespace

const Language &current()
{
    for (const Language &language : table) {
        if (g_App.*language.flag)
            return language;
    }
    return table.front();
}

QString storedText(const TextSetting &setting)
{
    return SettingsStore().text(setting, QLatin1String(current().folder) + QLatin1Char('/'));
}

QString shownText(const TextSetting &setting)
{
    return SettingsStore().textOrFirst(setting, QLatin1String(current().folder) + QLatin1Char('/'));
}

void setFlag(int type)
{
    for (const Language &language : table)
        g_App.*language.flag = static_cast<int>(language.type) == type;
}

void setOffered()
{
    for (const Language &language : table)
        g_App.m_abLanguageOffered[language.index()] = language.type != LanguageType::Chinese;
}

QString translationFolder(const Language &language)
{
    const QString brand = g_App.m_bKorvaneBrand ? QStringLiteral("Korvane\\") : QString();
    return g_strApplicationFolder + QStringLiteral("\\QRXTranslation\\") + brand +
           QLatin1String(language.folder);
}

void loadTranslators(const Language &language, bool withQt)
{
    g_strTranslationFolder = translationFolder(language);
    const QString folder = Platform::current().NativePath(g_strTranslationFolder);
    if (withQt)
        qtTranslator(language).load(QLatin1String("qt_") + QString::fromLatin1(language.folder).toLower(),
                                    folder);
    appTranslator(language).load(QLatin1String("LANG_") + QLatin1String(language.folder), folder);
}

void loadAtStart()
{
    const bool anyFlag = g_App.*current().flag;
    // English comes first and without its Qt file: the toolkit's own texts are English already.
    loadTranslators(table.front(), false);
    for (const Language &language : table) {
        const bool selected = anyFlag && g_App.*language.flag;
        if (language.type != LanguageType::English && !selected)
            loadTranslators(language);
    }
    loadTranslators(current());
    QCoreApplication::installTranslator(&qtTranslator(current()));
    QCoreApplication::installTranslator(&appTranslator(current()));
}

void change(LanguageType type)
{
    setFlag(static_cast<int>(type));
    QStringList stores{g_App.m_strSettingsPath};
    if (g_App.m_bWriteSiblingLanguage)
        stores << g_App.m_strSiblingKey1 << g_App.m_strSiblingKey2 << g_App.m_strSiblingKey3;
    for (const QString &path : stores)
        SettingsStore(path).write(key::LanguageType, QString::number(static_cast<int>(type)));
    swapTranslators();
}

void follow()
{
    const int stored = SettingsStore().text(key::LanguageType).toInt();
    if (stored < 0 || stored >= LanguageCount || stored == static_cast<int>(current().type))
        return;
    setFlag(stored);
    swapTranslators();
}

} // namespace languages
