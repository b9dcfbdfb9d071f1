// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/SettingsStore.h"
#include "tests/support/WebFolder.h"
#include "tests/ui/WindowFixture.h"
#include "ui/dialogs/QDownloadApp.h"
#include "ui/dialogs/QShowUpdate.h"
#include "ui/screens/Settings.h"
#include "update/UpdateGlobals.h"
#include "update/UpdateTrust.h"

#include <QDirIterator>
#include <QProgressBar>
#include <QTextEdit>

namespace
{

const QByteArray Versions = "VelmoraHalvane.txt";
const QByteArray Installer = "VelmoraHalvane.exe";
constexpr int InstallerBytes = 3 * 1024 * 1024;

} // namespace

/// The update from the check to the installer, with the real window and a web folder on the loopback.
class UpdateTest : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    /// Closes each message by its button and keeps its text.
    void initTestCase()
    {
        m_sections = sectionsOf(QStringLiteral("Update.txt"));
        QApplication::setQuitOnLastWindowClosed(false);
        update::g_publisherKey.clear(); // one may be built in
        auto *answers = new QTimer(this);
        connect(answers, &QTimer::timeout, this, [this] {
            if (const auto *message = dialog<SmallMessageDlg>()) {
                m_messages << message->findChild<QTextEdit *>()->toPlainText().trimmed();
                answer<SmallMessageDlg>("OkButton");
            } else if (const auto *box = dialog<InfoDialogClass>()) {
                m_messages << labelOf(box, "label")->text() + '|' + box->SecondText();
                answer<InfoDialogClass>("OkButton");
            }
        });
        answers->start(20);
    }

    void cleanup()
    {
        // The settings window has no parent, so it would outlive its window.
        delete dialog<Settings>();
        tearDown();
        m_messages.clear();
        m_bManualCheck = false;
    }

    void checkAtStartOffersWhatIsNewer()
    {
        const QString tail = QStringLiteral(" is available. Click Update to proceed further.");
        const std::pair<QByteArray, QString> rows[] = {
            {"11.0.0.8\r\n  11.0.0.9  \r\n", "A new minor update 11.0.0.9" + tail},
            {"11.2.0.0", "A new minor update 11.2.0.0" + tail}, // on the first line
            {QByteArray(100000, '\xff'), QString()},
            {"99.", QString()},
            {"99.1", "A new major release 99.1" + tail}};
        for (const auto &[versions, offer] : rows) {
            const WebFolder web({{Versions, {versions}}});
            startWindow(web.link());
            const auto *shownOffer = dialog<QShowUpdate>();
            QCOMPARE(shownOffer ? shownOffer->findChild<QTextEdit *>()->toPlainText() : QString(), offer);
            QCOMPARE(QFile::exists(loaded(Versions)), !offer.isEmpty());
            if (shownOffer) {
                QVERIFY(g_bUpdateShown);
                answer<QShowUpdate>("CancelButton");
            }
            QVERIFY(!QFile::exists(loaded(Versions)) && m_messages.isEmpty());
            verifyUsable();
            cleanup();
        }
    }

    void checkAskedForTellsThatThereIsNone()
    {
        const WebFolder web({{Versions, {"12.0.0.0\n"}}});
        const auto check = [this](const QByteArray &link, const char *installed, const char *prefix) {
            startWindow(link, installed, prefix);
            m_pWindow->OnShowSettings();
            for (int i = 0; i < 2; ++i)
                buttonOf(dialog<Settings>(), "m_pUpdateButton")->click();
            const QString told = m_messages.join('|') + (dialog<QShowUpdate>() ? " and an offer" : "");
            verifyUsable();
            cleanup();
            return told;
        };
        const QString twice = "No update available.|No update available.";
        QCOMPARE(check(web.link(), "12.0.0.0", "EN"), twice);
        QCOMPARE(check("http://127.0.0.1:9/", "11.0.0.8", "EN"), twice); // nobody serves
        QCOMPARE(check(web.link(), "11.0.0.8", "DE"), QString());        // no link for the language
    }

    void offerLeadsToThePage()
    {
        const WebFolder web({{Versions, {"12.0.0.0"}}});
        startWindow(web.link());
        QPointer<QShowUpdate> first = dialog<QShowUpdate>();
        QLabel *link = labelOf(first, "LinkLabel");
        QVERIFY(link->text().contains(QLatin1String("Visit Update Page")));
        emit link->linkActivated(QStringLiteral("https://velmora.example/new?a=1&b=2"));
        QCOMPARE(logLines("opened.log").last(), QByteArray("url\thttps://velmora.example/new?a=1&b=2\t"));
        g_bMajorUpdate = false;
        const QMajorUpdate twin;
        QVERIFY(twin.findChild<QTextEdit *>()->toPlainText().startsWith(
            QLatin1String("A new major release 12.0.0.0 is")));

        // A second check beside the offer.
        m_pWindow->OnCheckUpdate();
        QVERIFY(!m_bManualCheck);
        while (dialog<QShowUpdate>())
            answer<QShowUpdate>("CancelButton");
        QTRY_VERIFY(first.isNull());
        QCOMPARE(m_messages, QStringList());
        verifyUsable();
    }

    void finishedDownloadStartsTheInstaller()
    {
        const QByteArray installer(InstallerBytes, 'i');
        const WebFolder web({{Versions, {"12.0.0.0"}}, {Installer, {installer, -1, 0, 2500}}});
        startWindow(web.link());
        const QString stale = loaded("from-before/x");
        QVERIFY(QDir().mkpath(stale));
        QTimer::singleShot(0, this, [&] {
            answer<QShowUpdate>("UpdateButton");
            QVERIFY(!dialog<QShowUpdate>() && !QFile::exists(stale));
            auto *download = dialog<QDownloadApp>();
            QVERIFY(download);
            const auto *bar = download->findChild<QProgressBar *>();
            QCOMPARE(bar->maximum(), 4194304);
            // It cannot be closed.
            download->close();
            QTest::keyClick(download, Qt::Key_Escape);
            QVERIFY(download->isVisible());
            // The last few KB may not be in the file yet.
            QTRY_VERIFY(fits(download, "CopiedLabel", "^1\\.(4[89]|50) MB copied\\) $"));
            QVERIFY(bar->value() > InstallerBytes / 2 - 32768);
            QCOMPARE(labelOf(download, "InfoLabel")->text(), QStringLiteral("Downloading under progress..."));
            QTRY_COMPARE(labelOf(download, "TimeLabel")->text(), QStringLiteral("Time Elapsed: 1 sec "));
        });
        QVERIFY(programEnds());
        QCOMPARE(logLines("opened.log").last(), '\t' + loaded(Installer).toUtf8() + '\t');
        QCOMPARE(contentOf(loaded(Installer)), installer);
        QVERIFY(m_messages.isEmpty() && commands("bitsadmin") == 0);
    }

    void onlyWhatThePublisherSignedIsStarted()
    {
        const QByteArray list =
            "# 8 bytes: VelmoraHalvane.txt\n"
            "76d3dcd2962f706bd7008df1920c6636164690c64e8c909b2ff7a87acd73d95d  VelmoraHalvane.txt\n"
            "# 3145728 bytes: VelmoraHalvane.exe\n"
            "181acfe2f62a3d220fd6b0144812b388368b002189fd72118699d31afab0ebf1  VelmoraHalvane.exe\n";
        const QByteArray signature =
            QByteArray::fromHex("297acbcd9feba8dcb69750a348f58488dd78ae650ae1f74eac544d8c4db49d3c3e90af3899c7"
                                "80d21a8855a883c43921222f8364a30082228419d8f36eba150c");
        update::g_publisherKey =
            QByteArray::fromHex("f2d6dcd9b858215338a42247ac15eef70cb3cb21c42a0309d976682630c0ebea");
        // As it was signed, another one, and one that is changed after the check.
        for (const char kind : {'i', 'j', 'c'}) {
            const WebFolder web({{Versions, {"12.0.0.0"}},
                                 {Installer, {QByteArray(InstallerBytes, kind == 'j' ? 'j' : 'i')}},
                                 {"SHA256SUMS", {list}},
                                 {"SHA256SUMS.sig", {signature}}});
            startWindow(web.link());
            answer<QShowUpdate>("UpdateButton");
            if (kind == 'c') {
                QVERIFY(dialog<QDownloadApp>()->findChild<QDownloadThread *>()->wait());
                QDirIterator loaded(m_strState, {Installer}, QDir::Files, QDirIterator::Subdirectories);
                QVERIFY(loaded.hasNext() && QFile::resize(loaded.next(), 5));
            }
            if (kind == 'i') {
                QVERIFY(programEnds());
                QVERIFY(logLines("opened.log").last().endsWith(Installer + '\t') && m_messages.isEmpty());
            } else {
                const QString told = "Update failed|The update could not be verified and was not started.";
                QTRY_COMPARE(m_messages, QStringList{told});
                QCOMPARE(logLines("opened.log"), QList<QByteArray>());
                verifyUsable();
            }
            cleanup();
        }
        update::g_publisherKey.clear();
    }

    void brokenDownloadIsToldAndLeavesTheWindow()
    {
        const WebFolder web(
            {{Versions, {"12.0.0.0"}}, {Installer, {QByteArray(InstallerBytes, 'i'), InstallerBytes / 2}}});
        startWindow(web.link());
        answer<QShowUpdate>("UpdateButton");
        QPointer<QDownloadApp> download = dialog<QDownloadApp>();
        // The progress of a transfer that tells its own.
        download->OnDownloadProgress(1048576, 2097152);
        QCOMPARE(labelOf(download, "CopiedLabel")->text(), QStringLiteral("1.00 MB of  2.00 MB copied) "));
        QVERIFY(fits(download, "RateLabel", "^Transfer Rate: [0-9]+\\.[0-9]{2} KB/sec $"));
        download->OnDownloadProgress(5000000, 6000000); // above the maximum, so it does not move the bar
        QCOMPARE(download->findChild<QProgressBar *>()->value(), 1048576);
        QTRY_COMPARE_WITH_TIMEOUT(
            m_messages, QStringList{QStringLiteral("Update failed|Update failed due to partial download.")},
            20000);
        QTRY_VERIFY(download.isNull());
        // The console was to load what the system could not.
        QCOMPARE(commands("bitsadmin.exe /transfer myDownloadJob /download /priority normal " + web.link() +
                          Installer + ' ' + loaded(Installer).toUtf8()),
                 1);
        QVERIFY(!QFile::exists(m_strState + QStringLiteral("/temp/updatetmp")));
        verifyUsable();
        m_pWindow->OnCheckUpdate();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(dialog<QShowUpdate>()); // it does not go away with its check
    }

private:
    /// Whether the program ends by itself, as it does when it starts the installer.
    bool programEnds()
    {
        QTimer limit;
        connect(&limit, &QTimer::timeout, this, [] { QCoreApplication::exit(1); });
        limit.start(20000);
        return QCoreApplication::exec() == 0;
    }

    /// The window with a check at its start.
    void startWindow(const QByteArray &link, const QByteArray &installed = "11.0.0.8",
                     const QByteArray &prefix = "EN")
    {
        install(QStringLiteral("online"));
        SettingsStore().write(TextSetting{prefix + "/rxUpdateLink"}, link);
        SettingsStore().write(key::rxVersion, installed);
        makeWindow();
    }

    QString loaded(const QByteArray &name) const
    {
        return m_strState + QStringLiteral("/temp/updatetmp/") + QString::fromLatin1(name);
    }

    static bool fits(const QWidget *window, const char *label, const char *form)
    {
        return QRegularExpression(QLatin1String(form)).match(labelOf(window, label)->text()).hasMatch();
    }

    void verifyUsable() const
    {
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
        press("DiskPartitionButton");
        QVERIFY(isDown("DiskPartitionButton"));
    }

    QStringList m_messages;
};

QTEST_MAIN(UpdateTest)
#include "tst_Update.moc"
