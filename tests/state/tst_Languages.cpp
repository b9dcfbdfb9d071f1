// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Globals.h"
#include "state/Languages.h"
#include "state/SettingsRules.h"
#include "state/SettingsStore.h"
#include "tests/support/FakePlatform.h"

#include <QtTest>

#include <set>

/// The table of languages, and the choice at start.
class tst_Languages : public QObject
{
    Q_OBJECT

private slots:
    void tableIsWhole();
    void flagOfType_data();
    void flagOfType();
    void offered();
    void folders();
    void missingFilesLeaveEnglish();
    void changeIsKept();
    void logFolder();
};

void tst_Languages::tableIsWhole()
{
    std::set<QString> folders;
    for (int i = 0; i < LanguageCount; ++i) {
        const languages::Language &language = languages::table[static_cast<std::size_t>(i)];
        QCOMPARE(language.index(), static_cast<std::size_t>(i));
        folders.insert(QLatin1String(language.folder));
    }
    QCOMPARE(static_cast<int>(folders.size()), LanguageCount);
}

void tst_Languages::flagOfType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("current");
    QTest::newRow("English") << 0 << 1 << 0;
    QTest::newRow("Chinese") << 6 << 1 << 6;
    QTest::newRow("Hindi") << 10 << 1 << 10;
    QTest::newRow("eleven sets none") << 11 << 0 << 0;
    QTest::newRow("below zero sets none") << -1 << 0 << 0;
}

void tst_Languages::flagOfType()
{
    QFETCH(int, type);
    QFETCH(int, flags);
    QFETCH(int, current);
    languages::setFlag(3);
    languages::setFlag(type);
    int set = 0;
    for (const languages::Language &language : languages::table)
        set += g_App.*language.flag ? 1 : 0;
    QCOMPARE(set, flags);
    QCOMPARE(languages::current().type, LanguageType(current));
}

void tst_Languages::offered()
{
    languages::setOffered();
    for (const languages::Language &language : languages::table)
        QCOMPARE(g_App.m_abLanguageOffered[language.index()], language.type != LanguageType::Chinese);
}

void tst_Languages::folders()
{
    g_strApplicationFolder = QStringLiteral("C:/app");
    g_App.m_bKorvaneBrand = false;
    QCOMPARE(languages::translationFolder(languages::table[8]), QStringLiteral("C:/app\\QRXTranslation\\DU"));
    g_App.m_bKorvaneBrand = true;
    QCOMPARE(languages::translationFolder(languages::table[8]),
             QStringLiteral("C:/app\\QRXTranslation\\Korvane\\DU"));
    g_App.m_bKorvaneBrand = false;
}

void tst_Languages::missingFilesLeaveEnglish()
{
    Platform::install(std::make_unique<FakePlatform>());
    languages::setFlag(1);
    languages::loadAtStart();
    QVERIFY(g_strTranslationFolder.endsWith(QLatin1String("DE"))); // the selected one is loaded last
    QCOMPARE(QCoreApplication::translate("MainWindow", "Passed"), QStringLiteral("Passed"));
    languages::setFlag(0);
}

void tst_Languages::changeIsKept()
{
    FakePlatform::install();
    g_App.m_strSettingsPath = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Own");
    g_App.m_strSiblingKey2 = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Sibling");
    g_App.m_bWriteSiblingLanguage = true;
    for (const int type : {7, 7, 0, 10}) {
        languages::change(LanguageType(type));
        QCOMPARE(languages::current().type, LanguageType(type));
        for (const QString &path : {g_App.m_strSettingsPath, g_App.m_strSiblingKey2}) {
            const QVariant stored =
                Platform::current().OpenSettings(path)->value(QLatin1String(key::LanguageType.name));
            QCOMPARE(stored.type(), QVariant::String);
            QCOMPARE(stored.toString(), QString::number(type));
        }
    }
    g_App.m_bWriteSiblingLanguage = false;
    languages::change(LanguageType::German);
    QCOMPARE(Platform::current()
                 .OpenSettings(g_App.m_strSiblingKey2)
                 ->value(QLatin1String(key::LanguageType.name))
                 .toString(),
             QStringLiteral("10"));
    g_App.m_strSiblingKey2.clear();
}

void tst_Languages::logFolder()
{
    QCOMPARE(settings::logFolderOf(QStringLiteral("C:\\a\\b\\log.txt")), QStringLiteral("C:\\a\\b\\"));
    QCOMPARE(settings::logFolderOf(QStringLiteral("C:\\a\\\\b\\")), QStringLiteral("C:\\a\\"));
    QCOMPARE(settings::logFolderOf(QStringLiteral("C:\\LogFile.txt")), QStringLiteral("C:\\"));
    QCOMPARE(settings::logFolderOf(QString()), QString());
    QCOMPARE(settings::logFolderOf(QStringLiteral("log.txt")), QString());
}

QTEST_GUILESS_MAIN(tst_Languages)
#include "tst_Languages.moc"
