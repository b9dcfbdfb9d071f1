// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/GlobalApp.h"
#include "state/Languages.h"
#include "state/SettingsStore.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/FakePlatform.h"
#include "update/Ed25519.h"
#include "update/HelpLinks.h"
#include "update/UpdateFetch.h"
#include "update/VersionCompare.h"

using links::Topic;

/// Which versions count as newer, which signatures hold, and which help and agreement each language has.
class tst_UpdateRules : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pPc = FakePlatform::install();
        g_App.m_strSettingsPath = "HKEY_CURRENT_USER\\SOFTWARE\\HelpTest";
        g_App.m_strAppFolderCopy = "C:/Halvane";
        g_App.m_bStandalone = false;
        g_App.m_bHelpOnline = true;
        languages::setFlag(0);
    }

    /// Of the installed version and the lines of the list: the newest of the first line|of the second, and
    /// which they are. Fields are read at fixed positions, so some results are odd.
    void offers()
    {
        compareRows("UpdateRules/offers", [](const QString &row) {
            const version::Offer offer =
                version::offerOf(row.section(": ", 0, 0), row.section(": ", 1).split('/'));
            return offer.latestMajor + '|' + offer.latestMinor + (offer.major ? " major" : "") +
                   (offer.minor ? " minor" : "");
        });
    }

    /// Of key, message and signature.
    void signatures()
    {
        compareRows("UpdateRules/signatures", [](const QString &row) {
            const auto part = [&row](int i) {
                return QByteArray::fromHex(row.section(' ', i, i).toLatin1());
            };
            return ed25519::isSigned(part(1), part(2), part(0));
        });
    }

    /// With the first ones as key, this signature would hold for every message.
    void keysThatAreNotSound()
    {
        const QByteArray signature = QByteArray("01").leftJustified(64, '0') + QByteArray(64, '0');
        compareRows("UpdateRules/keys", [&](const QString &row) {
            const QByteArray key = QByteArray::fromHex(row.toLatin1());
            return ed25519::isSigned("", QByteArray::fromHex(signature), key) || ed25519::isSoundKey(key);
        });
    }

    void helpOfTheLanguage()
    {
        const QString page = "help/velmora-halvane-11-windows-standard-%1-%2.html";
        languages::setFlag(9);
        const QString clone = page.arg("pt", "performing-clone-disk");
        QCOMPARE(links::helpPage(Topic::CloneDisk), "https://velmora.example/" + clone);
        SettingsStore().write(key::HelpEndpoint, QString("http://127.0.0.1:8031/"));
        QCOMPARE(links::helpPage(Topic::CloneDisk), "http://127.0.0.1:8031/" + clone);
        languages::setFlag(5);
        SettingsStore().write(TextSetting{"JA/HelpLink_JA"}, QString("https://jp.example/help"));
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
        QCOMPARE(links::agreement(), QString("C:/Halvane/VelmoraHalvane_License_CN.pdf"));
        languages::setFlag(5);
        SettingsStore().write(TextSetting{"JA/EulaLink_JA"}, QString("jp.example/eula"));
        QCOMPARE(links::agreement(), QString("jp.example/eula"));
    }

    /// Where there is no place to keep a file, it gets a private folder, and nothing from the root of the
    /// disk.
    void keepsNothingWithoutAPlace()
    {
        QCOMPARE(update::keptFolder("halvane-kept"), m_pPc->MakePrivateFolder("updatetmp"));
        m_pPc->stateFolder = m_pPc->MakePrivateFolder("state");
        QCOMPARE(update::keptFolder("halvane-kept"), m_pPc->stateFolder + "/update/halvane-kept");
    }

private:
    FakePlatform *m_pPc = nullptr;
};

QTEST_GUILESS_MAIN(tst_UpdateRules)
#include "tst_UpdateRules.moc"
