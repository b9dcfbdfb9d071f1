// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/HttpDownload.h"
#include "tests/support/AtOnce.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/Files.h"
#include "tests/support/LoopbackServer.h"
#include "update/QDownloadThread.h"
#include "update/UpdateCheck.h"
#include "update/UpdateFetch.h"
#include "update/UpdateGlobals.h"

#include <QProcess>
#include <QSslKey>
#include <QTimer>
#include <QtTest>

namespace
{

constexpr int Bytes = 512 * 4096; ///< of the installer

/// What a server answers for the files with this ending, in place of the truth.
struct Lie {
    QByteArray ending = "none";
    QByteArray head = "200 OK";
    QByteArray body = {};
    int sent = Bytes + 1; ///< at most so many bytes of the body
    bool again = false;   ///< the body comes again and again
    bool swaps = false;   ///< another program replaces the installer after the check
};

} // namespace

/// A server of https that may lie, and a program with the publisher's key built in. The publisher's own tool
/// makes keys, folders and signatures.
class UpdatesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(writeFile(at("installer"), m_installer));
        QVERIFY(publish({"key", "--plain", at("key")}) && publish({"key", "--plain", at("other")}));
        const auto make = [this](const char *folder, const char *version, const char *key) {
            return publish({"make", "--key", at(key), at("installer"), version, at(folder) + '/'});
        };
        QVERIFY(make("good", "12.0.0.0", "key") && make("old", "11.0.0.7", "key"));
        QVERIFY(make("odd", "10.0.9.0", "key") && make("forged", "12.0.0.0", "other"));
        update::g_publisherKey = QByteArray::fromHex(contentOf(at("key.pub")));
        QVERIFY(0 == QProcess::execute("openssl", {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-subj",
                                                   "/CN=x", "-addext", "subjectAltName=IP:127.0.0.1",
                                                   "-keyout", at("tls"), "-out", at("crt")}));
        m_ssl = QSslConfiguration::defaultConfiguration();
        m_ssl.setLocalCertificate(QSslCertificate(contentOf(at("crt"))));
        m_ssl.setPrivateKey(QSslKey(contentOf(at("tls")), QSsl::Rsa));
        QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
        trusting.addCaCertificate(m_ssl.localCertificate());
        QSslConfiguration::setDefaultConfiguration(trusting);
    }

    void init()
    {
        m_pPc = FakePlatform::install();
        m_pPc->onDownload = [](auto &url, auto &path, auto &limits) {
            return httpDownload(url, path, limits);
        };
        QDir(at("state")).removeRecursively();
        m_pPc->stateFolder = at("state");
        m_begins.clear();
    }

    void liars()
    {
        const auto ends = [this](const char *name, const char *answer, const char *folder,
                                 const Lie &lie = {}) {
            init();
            const auto server = serve(folder, &lie, m_ssl);
            QElapsedTimer clock;
            clock.start();
            const QString told = outcome(server->link(), lie.swaps, lie.sent == 1 ? 1500 : 60000);
            QVERIFY2(told == answer, qPrintable(name + (": " + told)));
            QVERIFY2(clock.elapsed() < 20000, name);
            QCOMPARE(m_pPc->commands(), QStringList()); // no other tool tried it
            const QStringList stays = QDir(at("state/update")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
            QVERIFY2(stays.size() == (told == "refused" ? 0 : 1), name);
            QVERIFY2(!QFile::exists(m_pPc->MakePrivateFolder("x") + "/../updatetmp"), name);
        };
        const QByteArray page = "<html>Log in</html>";
        const QByteArray flood(65536, 'x');
        ends("honest", "started", "good");
        ends("other key", "refused", "forged");
        ends("old version with a good signature", "refused", "old");
        ends("old version that a digit makes newer", "refused", "odd");
        ends("newer versions beside an old list", "refused", "old", {".txt", "200 OK", "12.0.0.0"});
        ends("no signature", "refused", "good", {".sig", "404 Not Found"});
        ends("a page for everything", "refused", "good", {"", "200 OK", page});
        ends("truncated", "refused", "good", {".exe", "200 OK", m_installer.left(Bytes / 2)});
        ends("one byte more", "refused", "good", {".exe", "200 OK", m_installer + 'x'});
        ends("another installer", "refused", "good", {".exe", "200 OK", QByteArray(Bytes, 'x')});
        ends("endless", "refused", "good", {".exe", "200 OK", flood, Bytes, true});
        ends("an endless error", "refused", "good", {".exe", "404 Not Found", flood, Bytes, true});
        ends("on to plain http", "refused", "good", {".exe", "302 Found\r\nLocation: http://127.0.0.1:9/"});
        ends("broken off", "interrupted", "good", {".exe", "200 OK", m_installer, Bytes / 2});
        ends("slow", "interrupted", "good", {".exe", "200 OK\r\nContent-Length: 2097152", "x", 1, true});
        ends("swapped after the check", "refused", "good", {"none", {}, {}, 0, false, true});
    }

    /// The window asks for the bytes while a thread makes the folder and takes it away.
    void countsWhileItLoads()
    {
        int downloads = 0;
        m_pPc->onDownload = [&](auto &, auto &path, auto &) {
            downloads += writeFile(path, "part") ? 1 : 0;
            return Platform::DownloadRefused;
        };
        qint64 most = 0;
        atOnce(
            [] {
                update::fetch("https://x/", "x", update::VersionsLimits);
                update::removeLeftovers();
            },
            [&] { most = std::max(most, update::loadedBytes()); });
        QCOMPARE(downloads, 400);
        QVERIFY(most <= 4 && update::loadedBytes() == 0);
    }

    void plainHttpIsNotAsked()
    {
        const Lie lie;
        const auto server = serve("good", &lie, {});
        QCOMPARE(outcome(server->link()), "refused");
        QVERIFY(!update::fetchVersions(server->link() + "EN/"));
    }

    /// The setting may be of an older version than the program.
    void settingOfAnOlderVersion()
    {
        const Lie lie;
        const auto server = serve("old", &lie, m_ssl);
        QCOMPARE(outcome(server->link(), false, 60000, "11.0.0.6"), "refused");
    }

    /// Also after a new start of the program, as long as the server knows the place.
    void interruptedDownloadGoesOn()
    {
        Lie lie{".exe", "206 Partial Content\r\nContent-Range: bytes 0-", m_installer, Bytes / 2};
        const auto server = serve("good", &lie, m_ssl);
        QCOMPARE(outcome(server->link()), "refused"); // at another place
        QCOMPARE(m_begins.size(), 2);
        m_begins.clear();
        lie.head = "200 OK";
        QCOMPARE(outcome(server->link()), "interrupted");
        lie.ending = "none";
        QCOMPARE(outcome(server->link()), "started");
        QVERIFY(m_begins.first() == 0 && m_begins.last() > 0 && m_begins.last() <= Bytes / 2);
        // A check that finds nothing newer, though a digit is, takes it away.
        QVERIFY(QFile::exists(at("state/update")));
        g_strUpdateFile = at("odd/EN/VelmoraHalvane.txt");
        update::compareVersions("11.0.0.8");
        QVERIFY(!g_bMinorUpdate && !g_bMajorUpdate && !QFile::exists(at("state/update")));
        g_strUpdateFile.clear();
    }

    void publisherFindsItsFaults()
    {
        const QString key = contentOf(at("key.pub"));
        QVERIFY(publish({"check", "--public", key, at("good")}));
        QVERIFY(!publish({"check", "--public", key, at("forged")}));
        QVERIFY(publish({"sign", "--key", at("key"), at("installer")}) &&
                publish({"verify", "--public", key, at("installer")}));
        QVERIFY(!publish({"verify", "--public", contentOf(at("other.pub")), at("installer")}));
        QVERIFY(!publish({"make", at("installer"), "12.0.0.10", at("new")}) && !QFile::exists(at("new")));
        QVERIFY(writeFile(at("old/HI/VelmoraHalvane.exe"), "x") && !publish({"check", at("old")}));
    }

private:
    QString at(const QString &name) const { return m_folder.filePath(name); }

    static bool publish(const QStringList &arguments)
    {
        return QProcess::execute(HALVANE_SOURCE_DIR "/packaging/update-folder/publish", arguments) == 0;
    }

    std::unique_ptr<LoopbackServer> serve(const QString &folder, const Lie *lie, const QSslConfiguration &ssl)
    {
        const auto answer = [=](QTcpSocket *client, const QByteArray &request) {
            const QByteArray path = request.split(' ').at(1);
            const int range = request.indexOf("Range: bytes=");
            const int begin = range < 0 ? 0 : request.mid(range + 13).split('-').first().toInt();
            if (path.endsWith(".exe"))
                m_begins << begin;
            Lie said{"", "200 OK", contentOf(at(folder) + path).mid(begin)};
            if (begin > 0)
                said.head = "206 Partial Content\r\nContent-Range: bytes " + QByteArray::number(begin) + '-';
            if (path.endsWith(lie->ending))
                said = *lie;
            const QByteArray length = "\r\nContent-Length: " + QByteArray::number(said.body.size());
            client->write("HTTP/1.1 " + said.head + (said.again ? "" : length) + "\r\n\r\n");
            const QByteArray piece = said.body.left(said.sent);
            client->write(piece);
            if (!said.again)
                return client->disconnectFromHost();
            auto *clock = new QTimer(client);
            QObject::connect(clock, &QTimer::timeout, client, [client, piece] { client->write(piece); });
            clock->start(1);
        };
        return std::make_unique<LoopbackServer>(answer, ssl);
    }

    /// What becomes of an update from the folder at `link`.
    QString outcome(const QString &link, bool swaps = false, int milliseconds = 60000,
                    const char *installed = "11.0.0.8") const
    {
        QDownloadThread thread;
        thread.m_strLink = link + "EN/";
        thread.m_strInstalled = installed;
        thread.m_limits = {milliseconds, 0};
        QString path;
        const auto keep = [&path](const QString &finished) { path = finished; };
        connect(&thread, &QDownloadThread::OnDownloadFinish, &thread, keep, Qt::DirectConnection);
        thread.start();
        thread.wait();
        if (swaps && !(QFile::remove(path) && writeFile(path, QByteArray(Bytes, 'x'))))
            return "not swapped";
        if (!path.isEmpty() && thread.mayStart())
            return contentOf(path) == m_installer ? "started" : "evil";
        return thread.wasRefused() ? "refused" : "interrupted";
    }

    QTemporaryDir m_folder;
    const QByteArray m_installer = pattern(Bytes / 512);
    QSslConfiguration m_ssl;
    FakePlatform *m_pPc = nullptr;
    QVector<qint64> m_begins; ///< of the ranges of the installer that were asked for
};

QTEST_GUILESS_MAIN(UpdatesTest)
#include "tst_Updates.moc"
