// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Globals.h"
#include "state/Languages.h"
#include "state/SettingsStore.h"
#include "tests/support/FakePlatform.h"

#include <QtTest>

/// The table of languages, and the choice at start.
class tst_Languages : public QObject
{
    Q_OBJECT

private slots:
    void init() { FakePlatform::install(); }

    void tableIsWhole()
    {
        languages::setOffered();
        QStringList folders;
        for (const languages::Language &language : languages::table) {
            QCOMPARE(static_cast<int>(language.index()), folders.size());
            QVERIFY(!folders.contains(language.folder));
            folders << language.folder;
            QCOMPARE(g_App.m_abLanguageOffered[language.index()], language.type != LanguageType::Chinese);
        }
    }

    void flagOfType()
    {
        for (const int type : {0, 10, 11, -1}) {
            languages::setFlag(3);
            languages::setFlag(type);
            const bool known = type == 0 || type == 10;
            const auto flags = std::count_if(languages::table.cbegin(), languages::table.cend(),
                                             [](const auto &language) { return g_App.*language.flag; });
            QCOMPARE(flags, known ? 1 : 0);
            QCOMPARE(languages::current().type, LanguageType(known ? type : 0));
        }
    }

    void folders()
    {
        g_strApplicationFolder = "C:/app";
        g_App.m_bKorvaneBrand = false;
        const languages::Language &dutch = languages::table[8];
        QCOMPARE(languages::translationFolder(dutch), QStringLiteral("C:/app\\QRXTranslation\\DU"));
        g_App.m_bKorvaneBrand = true;
        QCOMPARE(languages::translationFolder(dutch), QStringLiteral("C:/app\\QRXTranslation\\Korvane\\DU"));
        g_App.m_bKorvaneBrand = false;
    }

    void missingFilesLeaveEnglish()
    {
        languages::setFlag(1);
        languages::loadAtStart();
        QVERIFY(g_strTranslationFolder.endsWith(QLatin1String("DE"))); // the selected one is loaded last
        QCOMPARE(QCoreApplication::translate("MainWindow", "Passed"), QStringLiteral("Passed"));
    }

    void changeIsKept()
    {
        g_App.m_strSettingsPath = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Own";
        g_App.m_strSiblingKey2 = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Sibling";
        const auto stored = [](const QString &path) {
            return Platform::current().OpenSettings(path)->value(QLatin1String(key::LanguageType.name));
        };
        g_App.m_bWriteSiblingLanguage = true;
        for (const int type : {7, 7, 10}) {
            languages::change(LanguageType(type));
            QCOMPARE(languages::current().type, LanguageType(type));
            for (const QString &path : {g_App.m_strSettingsPath, g_App.m_strSiblingKey2})
                QCOMPARE(stored(path), QVariant(QString::number(type)));
        }
        g_App.m_bWriteSiblingLanguage = false;
        languages::change(LanguageType::German);
        QCOMPARE(stored(g_App.m_strSiblingKey2), QVariant("10"));
        g_App.m_strSiblingKey2.clear();
    }
};

QTEST_GUILESS_MAIN(tst_Languages)
#include "tst_Languages.moc"
