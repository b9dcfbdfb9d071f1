// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Globals.h"
#include "state/Languages.h"
#include "state/SettingsRules.h"
#include "state/SettingsStore.h"
#include "tests/support/FakePlatform.h"

#include <QtTest>

/// The choice of a language, and rules of the settings.
class tst_Languages : public QObject
{
    Q_OBJECT

private slots:
    void init() { FakePlatform::install(); }

    void folders()
    {
        g_strApplicationFolder = "C:/app";
        const languages::Language &dutch = languages::table[8];
        g_App.m_bKorvaneBrand = true;
        QCOMPARE(languages::translationFolder(dutch), QStringLiteral("C:/app\\QRXTranslation\\Korvane\\DU"));
        g_App.m_bKorvaneBrand = false;
        QCOMPARE(languages::translationFolder(dutch), QStringLiteral("C:/app\\QRXTranslation\\DU"));
        // Missing files leave English.
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
        languages::setFlag(11);
        QCOMPARE(languages::current().type, LanguageType::English);
    }

    void settings()
    {
        using namespace settings;
        const auto limits = [](int unit, int warning, int shutDown) {
            const AlarmLimits found = limitsForUnit(unit, warning, shutDown);
            return QVector<int>{found.warning, found.shutDown, found.lowestWarning, found.lowestShutDown};
        };
        QCOMPARE(limits(Fahrenheit, 41, 63), QVector<int>({105, 145, 104, 122})); // cut, not rounded
        // Whatever they were before, they begin at their lowest.
        QCOMPARE(limits(Celsius, 140, 176), QVector<int>({40, 50, 40, 50}));
        const QString tail = QStringLiteral("\\VelmoraHalvane\\SmartLog\\log.txt");
        QCOMPARE(defaultLogPath("D:\\Windows\\System32"), "D:" + tail);
        QCOMPARE(defaultLogPath("C:\\windows\\system32"), "C:" + tail);
        QCOMPARE(defaultLogPath("C:\\WINDOWS\\system32"), "C:\\WINDOWS" + tail);
        QCOMPARE(logFolderOf("C:\\a\\\\b\\log.txt"), QStringLiteral("C:\\a\\b\\"));
        QCOMPARE(logFolderOf("log.txt"), QString());
    }
};

QTEST_GUILESS_MAIN(tst_Languages)
#include "tst_Languages.moc"
