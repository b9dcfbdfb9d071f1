#include "state/Languages.h"

#include "platform/Platform.h"
#include "state/Globals.h"
#include "state/SettingsStore.h"

#include <QCoreApplication>

namespace languages
{

const std::array<Language, LanguageCount> table = {{
    {0, &GlobalApp::m_bEnglish, "EN", "qt_en", "LANG_EN", QT_TRANSLATE_NOOP("MainWindow", "English"), 0},
    {1, &GlobalApp::m_bGerman, "DE", "qt_de", "LANG_DE", QT_TRANSLATE_NOOP("MainWindow", "German"), 1},
    {2, &GlobalApp::m_bFrench, "FR", "qt_fr", "LANG_FR", QT_TRANSLATE_NOOP("MainWindow", "French"), 2},
    {3, &GlobalApp::m_bItalian, "IT", "qt_it", "LANG_IT", QT_TRANSLATE_NOOP("MainWindow", "Italian"), 3},
    {4, &GlobalApp::m_bSpanish, "ES", "qt_es", "LANG_ES", QT_TRANSLATE_NOOP("MainWindow", "Spanish"), 4},
    {5, &GlobalApp::m_bJapanese, "JA", "qt_ja", "LANG_JA", QT_TRANSLATE_NOOP("MainWindow", "Japanese"), 5},
    {6, &GlobalApp::m_bChinese, "CN", "qt_cn", "LANG_CN", QT_TRANSLATE_NOOP("MainWindow", "Chinese"), 6},
    {7, &GlobalApp::m_bKorean, "KO", "qt_ko", "LANG_KO", QT_TRANSLATE_NOOP("MainWindow", "Korean"), 7},
    {8, &GlobalApp::m_bDutch, "DU", "qt_du", "LANG_DU", QT_TRANSLATE_NOOP("MainWindow", "Dutch"), 8},
    {9, &GlobalApp::m_bBrazil, "BR", "qt_br", "LANG_BR", QT_TRANSLATE_NOOP("MainWindow", "Brazil"), 9},
    {10, &GlobalApp::m_bHindi, "HI", "qt_hi", "LANG_HI", QT_TRANSLATE_NOOP("MainWindow", "Hindi"), 10},
}};

namespace
{

QTranslator &qtTranslator(const Language &language)
{
    return g_App.m_aTranslators[static_cast<std::size_t>(2 * language.type)];
}

QTranslator &appTranslator(const Language &language)
{
    return g_App.m_aTranslators[static_cast<std::size_t>(2 * language.type + 1)];
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

QString storedText(const QString &name)
{
    return SettingsStore().text(key::ofLanguage(QLatin1String(current().folder), name));
}

void setFlag(int type)
{
    for (const Language &language : table)
        g_App.*language.flag = language.type == type;
}

void setOffered()
{
    g_App.m_abLanguageOffered.fill(true);
    for (const Language &language : table) {
        if (language.flag == &GlobalApp::m_bChinese)
            g_App.m_abLanguageOffered[static_cast<std::size_t>(language.offeredIndex)] = false;
    }
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
        qtTranslator(language).load(QLatin1String(language.qtFile), folder);
    appTranslator(language).load(QLatin1String(language.appFile), folder);
}

void loadAtStart()
{
    const bool anyFlag = g_App.*current().flag;
    // English comes first and without its Qt file: the toolkit's own texts are English already.
    loadTranslators(table.front(), false);
    for (const Language &language : table) {
        const bool selected = anyFlag && g_App.*language.flag;
        if (language.type != 0 && !selected)
            loadTranslators(language);
    }
    loadTranslators(current());
    QCoreApplication::installTranslator(&qtTranslator(current()));
    QCoreApplication::installTranslator(&appTranslator(current()));
}

void change(int type)
{
    setFlag(type);
    QStringList stores{g_App.m_strSettingsPath};
    if (g_App.m_bWriteSiblingLanguage)
        stores << g_App.m_strSiblingKey1 << g_App.m_strSiblingKey2 << g_App.m_strSiblingKey3;
    for (const QString &path : stores)
        SettingsStore(path).writeText(key::LanguageType, QString::number(type));
    for (const Language &language : table) {
        if (language.type == type)
            continue;
        QCoreApplication::removeTranslator(&qtTranslator(language));
        QCoreApplication::removeTranslator(&appTranslator(language));
    }
    QCoreApplication::installTranslator(&qtTranslator(current()));
    QCoreApplication::installTranslator(&appTranslator(current()));
}

} // namespace languages
