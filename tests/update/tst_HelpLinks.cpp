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
    void init();
    void onePageWhereTheProgramStandsAlone();
    void pageOfTheTopic_data();
    void pageOfTheTopic();
    void fileOfTheLanguage();
    void agreementOfTheLanguage();
    void opensWhatThereIs();
    void cleanup() { Platform::install(nullptr); }

private:
    FakePlatform *m_pPc = nullptr;
};

void tst_HelpLinks::init()
{
    m_pPc = new FakePlatform;
    Platform::install(std::unique_ptr<Platform>(m_pPc));
    g_App.m_strSettingsPath = QStringLiteral("HKEY_CURRENT_USER\\SOFTWARE\\HelpTest");
    g_App.m_strAppFolderCopy = QStringLiteral("C:/Halvane");
    g_App.m_bStandalone = true;
    g_App.m_bHelpOnline = true;
    languages::setFlag(0);
}

void tst_HelpLinks::onePageWhereTheProgramStandsAlone()
{
    QStringList codes;
    for (const languages::Language &language : languages::table) {
        languages::setFlag(static_cast<int>(language.type));
        const QString page = links::helpPage(Topic::CloneDisk);
        QCOMPARE(links::helpPage(Topic::Settings), page);
        codes << page.section(QLatin1Char('-'), 5, 5);
    }
    QCOMPARE(codes, QStringList({"en", "de", "fr", "it", "es", "jp", "", "ko", "nl", "pt", "hi"}));
    languages::setFlag(9);
    SettingsStore().write(key::HelpEndpoint, QStringLiteral("http://127.0.0.1:8031/"));
    QCOMPARE(links::helpPage(Topic::ScanDisk),
             QStringLiteral("http://127.0.0.1:8031/help/"
                            "velmora-halvane-11-windows-standard-pt-about-velmora-halvane.html"));
}

void tst_HelpLinks::pageOfTheTopic_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("topic");
    QTest::addColumn<QString>("page"); ///< the part after the common words, or the whole address
    const auto row = [](const char *name, int language, Topic topic, const char *page) {
        QTest::newRow(name) << language << static_cast<int>(topic) << QString(page);
    };
    row("status", 0, Topic::DiskStatus, "en-about-velmora-halvane.html");
    row("smart", 1, Topic::SmartStatus, "de-about-smart-status.html");
    row("partition", 2, Topic::DiskPartition, "fr-about-disk-partition.html");
    row("scan", 3, Topic::ScanDisk, "it-performing-scan-disk.html");
    row("clone", 8, Topic::CloneDisk, "nl-performing-clone-disk.html");
    row("settings", 10, Topic::Settings, "hi-getting-familiar-with-settings.html");
    row("window", 4, Topic::Window, "es-getting-familiar-with-user-interface.html");
    row("japanese", 5, Topic::ScanDisk, "https://jp.example/help");
    row("korean, not set", 7, Topic::ScanDisk, "");
    row("chinese", 6, Topic::ScanDisk, "");
}

void tst_HelpLinks::pageOfTheTopic()
{
    QFETCH(int, language);
    QFETCH(int, topic);
    QFETCH(QString, page);
    g_App.m_bStandalone = false;
    SettingsStore().write(TextSetting{"JA/HelpLink_JA"}, QStringLiteral("https://jp.example/help"));
    languages::setFlag(language);
    const QString own = QStringLiteral("https://velmora.example/help/velmora-halvane-11-windows-standard-");
    QCOMPARE(links::helpPage(static_cast<Topic>(topic)),
             page.isEmpty() || page.startsWith(QLatin1String("http")) ? page : own + page);
}

void tst_HelpLinks::fileOfTheLanguage()
{
    g_App.m_bHelpOnline = false;
    languages::setFlag(8);
    links::openHelp(Topic::DiskStatus);
    QCOMPARE(m_pPc->executed, QStringList({"open C:/Halvane/qrx_DU.chm  maximised"}));
}

void tst_HelpLinks::agreementOfTheLanguage()
{
    QCOMPARE(links::agreement(), QStringLiteral("C:/Halvane/VelmoraHalvane_License_EN.pdf"));
    languages::setFlag(6);
    QCOMPARE(links::agreement(), QStringLiteral("C:/Halvane/VelmoraHalvane_License_CN.pdf"));
    languages::setFlag(5);
    QCOMPARE(links::agreement(), QString());
    SettingsStore().write(TextSetting{"JA/EulaLink_JA"}, QStringLiteral("jp.example/eula"));
    QCOMPARE(links::agreement(), QStringLiteral("jp.example/eula"));
}

void tst_HelpLinks::opensWhatThereIs()
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

QTEST_GUILESS_MAIN(tst_HelpLinks)
#include "tst_HelpLinks.moc"
