// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/WebFolder.h"
#include "tests/ui/Named.h"
#include "tests/ui/WindowFixture.h"
#include "ui/dialogs/QDownloadApp.h"
#include "ui/dialogs/QShowUpdate.h"
#include "ui/dialogs/SmallMessageDlg.h"
#include "ui/screens/Settings.h"
#include "update/UpdateGlobals.h"

#include <QMessageBox>
#include <QProgressBar>
#include <QTextEdit>

using Files = QHash<QByteArray, WebFolder::File>;

namespace
{

const QByteArray Versions = "VelmoraHalvane.txt";
const QByteArray Installer = "VelmoraHalvane.exe";
constexpr int InstallerBytes = 3 * 1024 * 1024;

QByteArray pc(const QByteArray &link, const QByteArray &version = "11.0.0.8", const QByteArray &prefix = "EN")
{
    return R"({"pauses": false, "network": true, "settings": {"FirstTimeLaunch": 1, "AverageUpdateSize": "4194304", ")" +
           prefix + R"(/rxUpdateLink": ")" + link +
           R"(", "EN/rxUpdate": "https://velmora.example/new?a=1&b=2", "rxVersion": ")" + version + R"("}})";
}

template<typename Dialog>
Dialog *shown()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *dialog = qobject_cast<Dialog *>(window); dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

} // namespace

Q_DECLARE_METATYPE(Files)

/// The update from the check to the installer, with the real window and a web folder on the loopback.
class UpdateTest : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void checkAtStartOffersWhatIsNewer_data();
    void checkAtStartOffersWhatIsNewer();
    void checkAskedForTellsThatThereIsNone_data();
    void checkAskedForTellsThatThereIsNone();
    void offerLeadsToThePage();
    void secondCheckBesideAnOffer();
    void noCheckWhileAJobRuns();
    void consoleLoadsWhatTheSystemCouldNot();
    void finishedDownloadStartsTheInstaller();
    void brokenDownloadIsToldAndLeavesTheWindow();
    void ownProgressOfATransfer();

private:
    /// The window with a check at its start.
    void startWindow(const QByteArray &json)
    {
        startPc(json);
        makeWindow();
    }
    /// Presses the update button of Settings and closes each message by its button. Returns their texts.
    QStringList askForUpdate();
    void verifyUsable();

    QStringList m_messages;
};

void UpdateTest::initTestCase()
{
    setUpProgram();
    QApplication::setQuitOnLastWindowClosed(false);
    auto *answers = new QTimer(this);
    connect(answers, &QTimer::timeout, this, [this] {
        if (auto *message = shown<SmallMessageDlg>()) {
            m_messages << message->findChild<QTextEdit *>()->toPlainText().trimmed();
            buttonOf(message, "OkButton")->click();
        } else if (auto *box = shown<QMessageBox>()) {
            m_messages << box->text();
            box->button(QMessageBox::Ok)->click();
        }
    });
    answers->start(20);
}

void UpdateTest::cleanup()
{
    // The settings window has no parent, so it would outlive its window.
    delete shown<Settings>();
    tearDown();
    m_messages.clear();
    m_bManualCheck = false;
    languages::setFlag(0);
}

QStringList UpdateTest::askForUpdate()
{
    m_messages.clear();
    buttonOf(shown<Settings>(), "m_pUpdateButton")->click();
    return m_messages;
}

void UpdateTest::verifyUsable()
{
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
    press("DiskPartitionButton");
    QVERIFY(child<MyButton>("DiskPartitionButton")->isDown());
}

void UpdateTest::checkAtStartOffersWhatIsNewer_data()
{
    QTest::addColumn<QByteArray>("versions");
    QTest::addColumn<QByteArray>("installed");
    QTest::addColumn<QString>("offer"); ///< empty: none
    const QString major =
        QStringLiteral("A new major release %1 is available. Click Update to proceed further.");
    const QString minor =
        QStringLiteral("A new minor update %1 is available. Click Update to proceed further.");
    QTest::newRow("major") << QByteArray("12.0.0.0\r\n11.0.0.8\r\n") << QByteArray("11.0.0.8")
                           << major.arg(QLatin1String("12.0.0.0"));
    QTest::newRow("minor") << QByteArray("11.0.0.8\n  11.0.0.9  \n") << QByteArray("11.0.0.8")
                           << minor.arg(QLatin1String("11.0.0.9"));
    QTest::newRow("minor on the first line")
        << QByteArray("11.2.0.0") << QByteArray("11.0.0.8") << minor.arg(QLatin1String("11.2.0.0"));
    QTest::newRow("two digits in the last field")
        << QByteArray("11.0.0.10\n") << QByteArray("11.0.0.8") << QString();
    QTest::newRow("equal") << QByteArray("11.0.0.8\n11.0.0.8\n") << QByteArray("11.0.0.8") << QString();
    QTest::newRow("nothing installed") << QByteArray("12.0.0.0\n") << QByteArray() << QString();
    QTest::newRow("garbage") << QByteArray(100000, '\xff') << QByteArray("11.0.0.8") << QString();
    QTest::newRow("three bytes") << QByteArray("99.") << QByteArray("11.0.0.8") << QString();
    QTest::newRow("four bytes") << QByteArray("99.1") << QByteArray("11.0.0.8")
                                << major.arg(QLatin1String("99.1"));
}

void UpdateTest::checkAtStartOffersWhatIsNewer()
{
    QFETCH(QByteArray, versions);
    QFETCH(QByteArray, installed);
    QFETCH(QString, offer);
    const WebFolder web({{Versions, {versions}}});
    startWindow(pc(web.link(), installed));
    QShowUpdate *dialog = shown<QShowUpdate>();
    QCOMPARE(dialog ? dialog->findChild<QTextEdit *>()->toPlainText() : QString(), offer);
    if (dialog) {
        QVERIFY(g_bUpdateShown);
        QVERIFY(QFile::exists(m_strState + QStringLiteral("/temp/updatetmp/VelmoraHalvane.txt")));
        buttonOf(dialog, "CancelButton")->click();
        QVERIFY(!QFile::exists(m_strState + QStringLiteral("/temp/updatetmp/VelmoraHalvane.txt")));
    }
    QTest::qWait(50);
    QCOMPARE(m_messages, QStringList());
    verifyUsable();
}

void UpdateTest::checkAskedForTellsThatThereIsNone_data()
{
    QTest::addColumn<QByteArray>("link"); ///< empty: the web folder
    QTest::addColumn<Files>("files");
    QTest::addColumn<QByteArray>("installed");
    QTest::addColumn<QByteArray>("prefix");
    QTest::addColumn<QStringList>("told");
    const QStringList none{QStringLiteral("No update available.")};
    const QByteArray now("11.0.0.8");
    QTest::newRow("equal") << QByteArray() << Files{{Versions, {"11.0.0.8\n11.0.0.8\n"}}} << now
                           << QByteArray("EN") << none;
    QTest::newRow("three bytes") << QByteArray() << Files{{Versions, {"99."}}} << now << QByteArray("EN")
                                 << none;
    QTest::newRow("no file") << QByteArray() << Files() << now << QByteArray("EN") << none;
    QTest::newRow("nothing installed")
        << QByteArray() << Files{{Versions, {"12.0.0.0"}}} << QByteArray() << QByteArray("EN") << none;
    QTest::newRow("nobody serves") << QByteArray("http://127.0.0.1:9/") << Files() << now << QByteArray("EN")
                                   << none;
    QTest::newRow("no address") << QByteArray("nonsense & more | ") << Files() << now << QByteArray("EN")
                                << none;
    QTest::newRow("no link for the language")
        << QByteArray() << Files{{Versions, {"12.0.0.0"}}} << now << QByteArray("DE") << QStringList();
}

void UpdateTest::checkAskedForTellsThatThereIsNone()
{
    QFETCH(QByteArray, link);
    QFETCH(Files, files);
    QFETCH(QByteArray, installed);
    QFETCH(QByteArray, prefix);
    const WebFolder web(files);
    startWindow(pc(link.isEmpty() ? web.link() : link, installed, prefix));
    QCOMPARE(m_messages, QStringList());
    m_pWindow->OnShowSettings();
    QTEST(askForUpdate(), "told");
    QTEST(askForUpdate(), "told");
    QCOMPARE(shown<QShowUpdate>(), nullptr);
    verifyUsable();
}

void UpdateTest::offerLeadsToThePage()
{
    const WebFolder web({{Versions, {"12.0.0.0"}}});
    startWindow(pc(web.link()));
    QShowUpdate *dialog = shown<QShowUpdate>();
    QVERIFY(dialog);
    QVERIFY(labelOf(dialog, "LinkLabel")->text().contains(QLatin1String("Visit Update Page")));
    emit labelOf(dialog, "LinkLabel")->linkActivated(QStringLiteral("https://velmora.example/new?a=1&b=2"));
    QCOMPARE(logLines("opened.log").last(), QByteArray("url\thttps://velmora.example/new?a=1&b=2\t"));
    g_bMajorUpdate = false;
    const QMajorUpdate twin;
    QVERIFY(twin.findChild<QTextEdit *>()->toPlainText().startsWith(
        QLatin1String("A new major release 12.0.0.0 is")));
    buttonOf(dialog, "CancelButton")->click();
}

void UpdateTest::secondCheckBesideAnOffer()
{
    const WebFolder web({{Versions, {"12.0.0.0"}}});
    startWindow(pc(web.link()));
    QPointer<QShowUpdate> first = shown<QShowUpdate>();
    QVERIFY(first);
    m_pWindow->OnCheckUpdate();
    QVERIFY(!m_bManualCheck);
    for (QShowUpdate *offer = shown<QShowUpdate>(); offer; offer = shown<QShowUpdate>())
        buttonOf(offer, "CancelButton")->click();
    QTRY_VERIFY(first.isNull());
    QCOMPARE(m_messages, QStringList());
    verifyUsable();
}

void UpdateTest::noCheckWhileAJobRuns()
{
    const WebFolder web({{Versions, {"11.0.0.8"}}});
    startWindow(pc(web.link()));
    g_bJobRunning = true;
    m_pWindow->OnCheckUpdate();
    QCOMPARE(m_messages, QStringList());
    g_bJobRunning = false;
    m_pWindow->OnCheckUpdate();
    QCOMPARE(m_messages, QStringList{QStringLiteral("No update available.")});
}

void UpdateTest::consoleLoadsWhatTheSystemCouldNot()
{
    const WebFolder web({{Versions, {"12.0.0.0", -1, 1}}});
    startWindow(pc(web.link()));
    QVERIFY(shown<QShowUpdate>());
    QCOMPARE(
        commands(
            " /c C:\\Windows\\system32\\bitsadmin.exe /transfer myDownloadJob /download /priority normal " +
            web.link() + "VelmoraHalvane.txt " + m_strState.toUtf8() + "/temp/updatetmp/VelmoraHalvane.txt"),
        1);
    buttonOf(shown<QShowUpdate>(), "CancelButton")->click();
}

void UpdateTest::finishedDownloadStartsTheInstaller()
{
    const QByteArray installer(InstallerBytes, 'i');
    const WebFolder web({{Versions, {"12.0.0.0"}}, {Installer, {installer, -1, 0, 1500}}});
    startWindow(pc(web.link()));
    const QString stale = m_strState + QStringLiteral("/temp/updatetmp/from-before/x");
    QVERIFY(QDir().mkpath(stale));
    QTimer::singleShot(0, this, [&] {
        buttonOf(shown<QShowUpdate>(), "UpdateButton")->click();
        QVERIFY(!QFile::exists(stale));
        auto *download = shown<QDownloadApp>();
        QVERIFY(download);
        QCOMPARE(download->findChild<QProgressBar *>()->maximum(), 4194304);
        // The dialog cannot be closed.
        download->close();
        QTest::keyClick(download, Qt::Key_Escape);
        QVERIFY(download->isVisible());
        // The last few KB may not be in the file yet.
        const QRegularExpression half(QStringLiteral("^1\\.(4[89]|50) MB copied\\) $"));
        QTRY_VERIFY(half.match(labelOf(download, "CopiedLabel")->text()).hasMatch());
        QVERIFY(download->findChild<QProgressBar *>()->value() > InstallerBytes / 2 - 32768);
        QCOMPARE(labelOf(download, "InfoLabel")->text(), QStringLiteral("Downloading under progress..."));
        QVERIFY(QRegularExpression(QStringLiteral("^Time Elapsed: [01] sec $"))
                    .match(labelOf(download, "TimeLabel")->text())
                    .hasMatch());
    });
    QTimer limit;
    connect(&limit, &QTimer::timeout, this, [] { QCoreApplication::exit(1); });
    limit.start(20000);
    QCOMPARE(QCoreApplication::exec(), 0);
    const QByteArray path = (m_strState + QStringLiteral("/temp/updatetmp/VelmoraHalvane.exe")).toUtf8();
    QCOMPARE(logLines("opened.log").last(), '\t' + path + '\t');
    QCOMPARE(DescribedFolder::contents(QString::fromUtf8(path)), installer);
    QCOMPARE(m_messages, QStringList());
    QCOMPARE(commands("bitsadmin"), 0);
}

void UpdateTest::brokenDownloadIsToldAndLeavesTheWindow()
{
    const WebFolder web(
        {{Versions, {"12.0.0.0"}}, {Installer, {QByteArray(InstallerBytes, 'i'), InstallerBytes / 2}}});
    startWindow(pc(web.link()));
    buttonOf(shown<QShowUpdate>(), "UpdateButton")->click();
    QPointer<QDownloadApp> download = shown<QDownloadApp>();
    QTRY_COMPARE_WITH_TIMEOUT(
        m_messages, QStringList{QStringLiteral("Update failed \n\nUpdate failed due to partial download.")},
        20000);
    QTRY_VERIFY(download.isNull());
    QCOMPARE(commands("bitsadmin.exe /transfer myDownloadJob"), 1);
    QVERIFY(!QFile::exists(m_strState + QStringLiteral("/temp/updatetmp")));
    verifyUsable();
    m_pWindow->OnCheckUpdate();
    QVERIFY(shown<QShowUpdate>());
    buttonOf(shown<QShowUpdate>(), "CancelButton")->click();
}

void UpdateTest::ownProgressOfATransfer()
{
    const WebFolder web({{Installer, {QByteArray(1000, 'i'), 0}}});
    startWindow(pc(web.link()));
    QDownloadApp download;
    download.OnDownloadStart();
    download.OnDownloadProgress(1048576, 2097152);
    QCOMPARE(labelOf(&download, "CopiedLabel")->text(), QStringLiteral("1.00 MB of  2.00 MB copied) "));
    QVERIFY(QRegularExpression(QStringLiteral("^Transfer Rate: [0-9]+\\.[0-9]{2} KB/sec $"))
                .match(labelOf(&download, "RateLabel")->text())
                .hasMatch());
    QCOMPARE(download.findChild<QProgressBar *>()->value(), 1048576);
    // A value above the maximum does not move the bar.
    download.OnDownloadProgress(5000000, 6000000);
    QCOMPARE(download.findChild<QProgressBar *>()->value(), 1048576);
    QTRY_VERIFY_WITH_TIMEOUT(!m_messages.isEmpty(), 20000);
}

QTEST_MAIN(UpdateTest)

#include "tst_Update.moc"
