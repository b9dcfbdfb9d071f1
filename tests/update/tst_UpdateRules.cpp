// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/GlobalApp.h"
#include "state/Languages.h"
#include "state/SettingsStore.h"
#include "tests/support/FakePlatform.h"
#include "update/HelpLinks.h"
#include "update/VersionCompare.h"

#include <QtTest>

using links::Topic;

/// Which versions count as newer, and which help and agreement each language has.
class tst_UpdateRules : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pPc = FakePlatform::install();
        g_App.m_strSettingsPath = QStringLiteral("HKEY_CURRENT_USER\\SOFTWARE\\HelpTest");
        g_App.m_strAppFolderCopy = QStringLiteral("C:/Halvane");
        g_App.m_bStandalone = false;
        g_App.m_bHelpOnline = true;
        languages::setFlag(0);
    }

    void cleanup() { Platform::install(nullptr); }

    /// The newest of the first line|of the second, and which they are. Fields are read at fixed positions, so
    /// some results are odd.
    void offers()
    {
        const auto row = [](const char *name, const char *installed, const QStringList &lines,
                            const char *offered) {
            const version::Offer offer = version::offerOf(installed, lines);
            QCOMPARE(name + (": " + offer.latestMajor) + '|' + offer.latestMinor +
                         (offer.major ? " major" : "") + (offer.minor ? " minor" : ""),
                     QString("%1: %2").arg(name, offered));
        };
        row("equal", "11.0.0.8", {"11.0.0.8"}, "|");
        row("one digit against two", "9.0.0.1", {"10.0.0.0"}, "10.0.0.0| major");
        row("second field", "11.0.0.8", {"11.1.0.0"}, "11.1.0.0| minor");
        row("third field", "11.0.0.8", {"11.0.1.0"}, "11.0.1.0| minor");
        row("older in all", "11.1.1.8", {"11.0.0.7"}, "|");
        row("a smaller field does not end it", "11.5.0.8", {"11.0.0.9"}, "11.0.0.9| minor");
        row("a smaller first field neither", "12.0.0.0", {"11.0.0.1"}, "11.0.0.1| minor");
        row("two digits count as their first", "11.0.0.8", {"11.0.0.10"}, "|");
        row("two digits in the middle move the rest", "11.0.0.8", {"11.10.0.9"}, "11.10.0.| minor");
        row("lengths differ, the digits stay in place", "10.0.0.5", {"9.0.0.3"}, "|");
        row("three digits", "11.0.0.8", {"100.9.9.9"}, "|");
        row("three digits installed", "100.0.0.8", {"101.0.0.0"}, "|");
        row("short and newer", "11.0.0.8", {"12"}, "12| major");
        row("installed is no version", "x.0.0.0", {"1.0.0.0"}, "1.0.0.0| major");
        row("both", "11.0.0.8", {"12.0.0.0 beta", "11.0.0.9"}, "12.0.0.0|11.0.0.9 major minor");
        row("third line", "11.0.0.8", {"x", "y", "12.0.0.0"}, "|");
    }

    void helpOfTheLanguage()
    {
        const QString page = QStringLiteral("help/velmora-halvane-11-windows-standard-%1-%2.html");
        languages::setFlag(9);
        const QString clone = page.arg("pt", "performing-clone-disk");
        QCOMPARE(links::helpPage(Topic::CloneDisk), "https://velmora.example/" + clone);
        SettingsStore().write(key::HelpEndpoint, QStringLiteral("http://127.0.0.1:8031/"));
        QCOMPARE(links::helpPage(Topic::CloneDisk), "http://127.0.0.1:8031/" + clone);
        languages::setFlag(5);
        SettingsStore().write(TextSetting{"JA/HelpLink_JA"}, QStringLiteral("https://jp.example/help"));
        links::openHelp(Topic::ScanDisk);
        for (const int without : {6, 7}) { // Chinese has none, that of Korean is not set
            languages::setFlag(without);
            links::openHelp(Topic::ScanDisk);
        }
        // A program that stands alone has one page, and that for all languages alike.
        g_App.m_bStandalone = true;
        languages::setFlag(5);
        QCOMPARE(links::helpPage(Topic::CloneDisk),
                 "http://127.0.0.1:8031/" + page.arg("jp", "about-velmora-halvane"));
        g_App.m_bHelpOnline = false;
        languages::setFlag(8);
        links::openHelp(Topic::DiskStatus);
        QCOMPARE(m_pPc->executed,
                 QStringList({"https://jp.example/help", "open C:/Halvane/qrx_DU.chm  maximised"}));
    }

    void agreementOfTheLanguage()
    {
        languages::setFlag(6);
        QCOMPARE(links::agreement(), QStringLiteral("C:/Halvane/VelmoraHalvane_License_CN.pdf"));
        languages::setFlag(5);
        SettingsStore().write(TextSetting{"JA/EulaLink_JA"}, QStringLiteral("jp.example/eula"));
        QCOMPARE(links::agreement(), QStringLiteral("jp.example/eula"));
    }

private:
    FakePlatform *m_pPc = nullptr;
};

QTEST_GUILESS_MAIN(tst_UpdateRules)
#include "tst_UpdateRules.moc"
