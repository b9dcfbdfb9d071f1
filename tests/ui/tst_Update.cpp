// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/WebFolder.h"
#include "tests/ui/WindowFixture.h"
#include "ui/dialogs/QDownloadApp.h"
#include "ui/dialogs/QShowUpdate.h"
#include "ui/dialogs/SmallMessageDlg.h"
#include "ui/screens/Settings.h"
#include "update/UpdateGlobals.h"

#include <QMessageBox>
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
        QApplication::setQuitOnLastWindowClosed(false);
        auto *answers = new QTimer(this);
        connect(answers, &QTimer::timeout, this, [this] {
            if (const auto *message = dialog<SmallMessageDlg>()) {
                m_messages << message->findChild<QTextEdit *>()->toPlainText().trimmed();
                answer<SmallMessageDlg>("OkButton");
            } else if (const auto *box = dialog<QMessageBox>()) {
                m_messages << box->text();
                box->button(QMessageBox::Ok)->click();
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

    void checkAtStartOffersWhatIsNewer_data()
    {
        QTest::addColumn<QByteArray>("versions");
        QTest::addColumn<QString>("offer"); ///< empty: none
        QTest::newRow("major")
            << QByteArray("12.0.0.0\r\n11.0.0.8\r\n")
            << "A new major release 12.0.0.0 is available. Click Update to proceed further.";
        QTest::newRow("minor")
            << QByteArray("11.0.0.8\n  11.0.0.9  \n")
            << "A new minor update 11.0.0.9 is available. Click Update to proceed further.";
        QTest::newRow("minor on the first line")
            << QByteArray("11.2.0.0")
            << "A new minor update 11.2.0.0 is available. Click Update to proceed further.";
        QTest::newRow("garbage") << QByteArray(100000, '\xff') << QString();
        QTest::newRow("three bytes") << QByteArray("99.") << QString();
        QTest::newRow("four bytes")
            << QByteArray("99.1")
            << "A new major release 99.1 is available. Click Update to proceed further.";
    }

    void checkAtStartOffersWhatIsNewer()
    {
        QFETCH(QByteArray, versions);
        QFETCH(QString, offer);
        const WebFolder web({{Versions, {versions}}});
        startWindow(web.link());
        const auto *shownOffer = dialog<QShowUpdate>();
        QCOMPARE(shownOffer ? shownOffer->findChild<QTextEdit *>()->toPlainText() : QString(), offer);
        if (shownOffer) {
            QVERIFY(g_bUpdateShown && QFile::exists(loaded(Versions)));
            answer<QShowUpdate>("CancelButton");
            QVERIFY(!QFile::exists(loaded(Versions)));
        }
        verifyUsable();
        QCOMPARE(m_messages, QStringList());
    }

    void checkAskedForTellsThatThereIsNone_data()
    {
        QTest::addColumn<QByteArray>("link"); ///< empty: the web folder, which has the version 12
        QTest::addColumn<QByteArray>("installed");
        QTest::addColumn<QByteArray>("prefix");
        QTest::addColumn<QStringList>("told");
        const QStringList none{QStringLiteral("No update available.")};
        const QByteArray web;
        QTest::newRow("equal") << web << QByteArray("12.0.0.0") << QByteArray("EN") << none;
        QTest::newRow("nothing installed") << web << QByteArray() << QByteArray("EN") << none;
        QTest::newRow("nobody serves")
            << QByteArray("http://127.0.0.1:9/") << QByteArray("11.0.0.8") << QByteArray("EN") << none;
        QTest::newRow("no address") << QByteArray("nonsense & more | ") << QByteArray("11.0.0.8")
                                    << QByteArray("EN") << none;
        QTest::newRow("no link for the language")
            << web << QByteArray("11.0.0.8") << QByteArray("DE") << QStringList();
    }

    void checkAskedForTellsThatThereIsNone()
    {
        QFETCH(QByteArray, link);
        QFETCH(QByteArray, installed);
        QFETCH(QByteArray, prefix);
        const WebFolder web({{Versions, {"12.0.0.0\n"}}});
        startWindow(link.isEmpty() ? web.link() : link, installed, prefix);
        QCOMPARE(m_messages, QStringList());
        m_pWindow->OnShowSettings();
        for (int i = 0; i < 2; ++i) {
            m_messages.clear();
            buttonOf(dialog<Settings>(), "m_pUpdateButton")->click();
            QTEST(m_messages, "told");
        }
        QCOMPARE(dialog<QShowUpdate>(), nullptr);
        verifyUsable();
    }

    void offerLeadsToThePage()
    {
        const WebFolder web({{Versions, {"12.0.0.0"}}});
        startWindow(web.link());
        QLabel *link = labelOf(dialog<QShowUpdate>(), "LinkLabel");
        QVERIFY(link->text().contains(QLatin1String("Visit Update Page")));
        emit link->linkActivated(QStringLiteral("https://velmora.example/new?a=1&b=2"));
        QCOMPARE(logLines("opened.log").last(), QByteArray("url\thttps://velmora.example/new?a=1&b=2\t"));
        g_bMajorUpdate = false;
        const QMajorUpdate twin;
        QVERIFY(twin.findChild<QTextEdit *>()->toPlainText().startsWith(
            QLatin1String("A new major release 12.0.0.0 is")));
    }

    void secondCheckBesideAnOffer()
    {
        const WebFolder web({{Versions, {"12.0.0.0"}}});
        startWindow(web.link());
        QPointer<QShowUpdate> first = dialog<QShowUpdate>();
        QVERIFY(first);
        m_pWindow->OnCheckUpdate();
        QVERIFY(!m_bManualCheck);
        while (dialog<QShowUpdate>())
            answer<QShowUpdate>("CancelButton");
        QTRY_VERIFY(first.isNull());
        QCOMPARE(m_messages, QStringList());
        verifyUsable();
    }

    void noCheckWhileAJobRuns()
    {
        const WebFolder web({{Versions, {"11.0.0.8"}}});
        startWindow(web.link());
        g_bJobRunning = true;
        m_pWindow->OnCheckUpdate();
        QCOMPARE(m_messages, QStringList());
        g_bJobRunning = false;
        m_pWindow->OnCheckUpdate();
        QCOMPARE(m_messages, QStringList{QStringLiteral("No update available.")});
    }

    void consoleLoadsWhatTheSystemCouldNot()
    {
        const WebFolder web({{Versions, {"12.0.0.0", -1, 1}}});
        startWindow(web.link());
        QVERIFY(dialog<QShowUpdate>());
        QCOMPARE(
            commands(" /c C:\\Windows\\system32\\bitsadmin.exe /transfer myDownloadJob /download /priority "
                     "normal " +
                     web.link() + Versions + ' ' + loaded(Versions).toUtf8()),
            1);
    }

    void finishedDownloadStartsTheInstaller()
    {
        const QByteArray installer(InstallerBytes, 'i');
        const WebFolder web({{Versions, {"12.0.0.0"}}, {Installer, {installer, -1, 0, 1500}}});
        startWindow(web.link());
        const QString stale = loaded("from-before/x");
        QVERIFY(QDir().mkpath(stale));
        QTimer::singleShot(0, this, [&] {
            answer<QShowUpdate>("UpdateButton");
            QVERIFY(!QFile::exists(stale));
            auto *download = dialog<QDownloadApp>();
            QVERIFY(download);
            const auto *bar = download->findChild<QProgressBar *>();
            QCOMPARE(bar->maximum(), 4194304);
            // The dialog cannot be closed.
            download->close();
            QTest::keyClick(download, Qt::Key_Escape);
            QVERIFY(download->isVisible());
            // The last few KB may not be in the file yet.
            QTRY_VERIFY(fits(download, "CopiedLabel", "^1\\.(4[89]|50) MB copied\\) $"));
            QVERIFY(bar->value() > InstallerBytes / 2 - 32768);
            QCOMPARE(labelOf(download, "InfoLabel")->text(), QStringLiteral("Downloading under progress..."));
            QVERIFY(fits(download, "TimeLabel", "^Time Elapsed: [01] sec $"));
        });
        QTimer limit;
        connect(&limit, &QTimer::timeout, this, [] { QCoreApplication::exit(1); });
        limit.start(20000);
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(logLines("opened.log").last(), '\t' + loaded(Installer).toUtf8() + '\t');
        QCOMPARE(contentOf(loaded(Installer)), installer);
        QCOMPARE(m_messages, QStringList());
        QCOMPARE(commands("bitsadmin"), 0);
    }

    void brokenDownloadIsToldAndLeavesTheWindow()
    {
        const WebFolder web(
            {{Versions, {"12.0.0.0"}}, {Installer, {QByteArray(InstallerBytes, 'i'), InstallerBytes / 2}}});
        startWindow(web.link());
        answer<QShowUpdate>("UpdateButton");
        QPointer<QDownloadApp> download = dialog<QDownloadApp>();
        QTRY_COMPARE_WITH_TIMEOUT(
            m_messages,
            QStringList{QStringLiteral("Update failed \n\nUpdate failed due to partial download.")}, 20000);
        QTRY_VERIFY(download.isNull());
        QCOMPARE(commands("bitsadmin.exe /transfer myDownloadJob"), 1);
        QVERIFY(!QFile::exists(m_strState + QStringLiteral("/temp/updatetmp")));
        verifyUsable();
        m_pWindow->OnCheckUpdate();
        QVERIFY(dialog<QShowUpdate>());
    }

    void ownProgressOfATransfer()
    {
        const WebFolder web({{Installer, {QByteArray(1000, 'i'), 0}}});
        startWindow(web.link());
        QDownloadApp download;
        download.OnDownloadStart();
        download.OnDownloadProgress(1048576, 2097152);
        QCOMPARE(labelOf(&download, "CopiedLabel")->text(), QStringLiteral("1.00 MB of  2.00 MB copied) "));
        QVERIFY(fits(&download, "RateLabel", "^Transfer Rate: [0-9]+\\.[0-9]{2} KB/sec $"));
        QCOMPARE(download.findChild<QProgressBar *>()->value(), 1048576);
        // A value above the maximum does not move the bar.
        download.OnDownloadProgress(5000000, 6000000);
        QCOMPARE(download.findChild<QProgressBar *>()->value(), 1048576);
        QTRY_VERIFY_WITH_TIMEOUT(!m_messages.isEmpty(), 20000);
    }

private:
    /// The window with a check at its start.
    void startWindow(const QByteArray &link, const QByteArray &installed = "11.0.0.8",
                     const QByteArray &prefix = "EN")
    {
        startPc(pcOf("",
                     R"(, "AverageUpdateSize": "4194304", ")" + prefix + R"(/rxUpdateLink": ")" + link +
                         R"(", "EN/rxUpdate": "https://velmora.example/new?a=1&b=2", "rxVersion": ")" +
                         installed + '"',
                     R"(, "network": true)"));
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
