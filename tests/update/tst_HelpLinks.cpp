// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/GlobalApp.h"
#include "state/Languages.h"
#include "state/SettingsStore.h"
#include "tests/support/FakePlatform.h"
#include "update/HelpLinks.h"

#include <QtTest>

using links::Topic;

/// The help page, file, address and agreement of each language.
class tst_HelpLinks : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pPc = FakePlatform::install();
        g_App.m_strSettingsPath = QStringLiteral("HKEY_CURRENT_USER\\SOFTWARE\\HelpTest");
        g_App.m_strAppFolderCopy = QStringLiteral("C:/Halvane");
        g_App.m_bStandalone = true;
        g_App.m_bHelpOnline = true;
        languages::setFlag(0);
    }

    void cleanup() { Platform::install(nullptr); }
    void onePageWhereTheProgramStandsAlone()
    {
        QStringList codes;
        for (const languages::Language &language : languages::table) {
            languages::setFlag(static_cast<int>(language.type));
            codes << links::helpPage(Topic::CloneDisk).section(QLatin1Char('-'), 5, 5);
        }
        QCOMPARE(codes, QStringList({"en", "de", "fr", "it", "es", "jp", "", "ko", "nl", "pt", "hi"}));
        languages::setFlag(9);
        SettingsStore().write(key::HelpEndpoint, QStringLiteral("http://127.0.0.1:8031/"));
        QCOMPARE(links::helpPage(Topic::ScanDisk),
                 QStringLiteral("http://127.0.0.1:8031/help/"
                                "velmora-halvane-11-windows-standard-pt-about-velmora-halvane.html"));
    }

    void pageOfTheTopic()
    {
        g_App.m_bStandalone = false;
        QStringList pages;
        for (int topic = 0; topic <= static_cast<int>(Topic::Window); ++topic)
            pages << links::helpPage(static_cast<Topic>(topic)).section(QLatin1String("standard-"), 1);
        QCOMPARE(pages,
                 QStringList({"en-about-velmora-halvane.html", "en-about-smart-status.html",
                              "en-about-disk-partition.html", "en-performing-scan-disk.html",
                              "en-performing-clone-disk.html", "en-getting-familiar-with-settings.html",
                              "en-getting-familiar-with-user-interface.html"}));
        languages::setFlag(5);
        SettingsStore().write(TextSetting{"JA/HelpLink_JA"}, QStringLiteral("https://jp.example/help"));
        QCOMPARE(links::helpPage(Topic::ScanDisk), QStringLiteral("https://jp.example/help"));
        for (const int without : {6, 7}) { // Chinese has none, that of Korean is not set
            languages::setFlag(without);
            QCOMPARE(links::helpPage(Topic::ScanDisk), QString());
        }
    }

    void fileOfTheLanguage()
    {
        g_App.m_bHelpOnline = false;
        languages::setFlag(8);
        links::openHelp(Topic::DiskStatus);
        QCOMPARE(m_pPc->executed, QStringList({"open C:/Halvane/qrx_DU.chm  maximised"}));
    }

    void agreementOfTheLanguage()
    {
        languages::setFlag(6);
        QCOMPARE(links::agreement(), QStringLiteral("C:/Halvane/VelmoraHalvane_License_CN.pdf"));
        languages::setFlag(5);
        SettingsStore().write(TextSetting{"JA/EulaLink_JA"}, QStringLiteral("jp.example/eula"));
        QCOMPARE(links::agreement(), QStringLiteral("jp.example/eula"));
    }

    void opensWhatThereIs()
    {
        languages::setFlag(6);
        links::openHelp(Topic::DiskStatus);
        QVERIFY(m_pPc->executed.isEmpty());
        languages::setFlag(5);
        links::openHelp(Topic::DiskStatus);
        QCOMPARE(m_pPc->executed,
                 QStringList({"https://velmora.example/help/"
                              "velmora-halvane-11-windows-standard-jp-about-velmora-halvane.html"}));
    }

private:
    FakePlatform *m_pPc = nullptr;
};

QTEST_GUILESS_MAIN(tst_HelpLinks)
#include "tst_HelpLinks.moc"
