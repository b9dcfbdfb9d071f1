// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/HttpDownload.h"
#include "platform/OwnFiles.h"
#include "state/GlobalApp.h"
#include "state/Languages.h"
#include "state/SettingsStore.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/LoopbackServer.h"
#include "update/HelpLinks.h"
#include "update/QDownloadThread.h"
#include "update/UpdateCheck.h"
#include "update/UpdateFetch.h"
#include "update/UpdateGlobals.h"
#include "update/UpdateTrust.h"

#include <QTimer>

#include <atomic>

/// What a network, or a setting with an address, could do to the program.
class NetworkTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { update::g_publisherKey.clear(); } // one may be built in
    void init()
    {
        m_pPc = FakePlatform::install();
        languages::setFlag(0);
    }

    void hostileServers()
    {
        // The head of the answer, and a piece that comes again and again for as long as somebody listens.
        const std::pair<QByteArray, QByteArray> answers[]{
            {"200 OK\r\n\r\n", "1"}, // one byte at a time
            {"200 OK\r\nX: ", "1"},  // a head without an end
            {"200 OK\r\n\r\n", QByteArray(1 << 20, 'x')},
            {"200 OK\r\nContent-Length: 65537\r\n\r\n", "1"},
            {"302 Found\r\nLocation: file:///etc/passwd\r\n\r\n", {}},
            {"302 Found\r\nLocation: http://192.0.2.1/\r\n\r\n", {}}};
        for (const auto &answer : answers) {
            const QByteArray &piece = answer.second;
            std::atomic<qint64> taken{0};
            const LoopbackServer server([&](QTcpSocket *client, const QByteArray &) {
                QObject::connect(client, &QTcpSocket::bytesWritten, client,
                                 [&](qint64 bytes) { taken += bytes; });
                client->write("HTTP/1.1 " + answer.first);
                if (piece.isEmpty())
                    return client->disconnectFromHost();
                auto *clock = new QTimer(client);
                QObject::connect(clock, &QTimer::timeout, client, [client, piece] {
                    if (client->bytesToWrite() < 4 * piece.size())
                        client->write(piece);
                });
                clock->start(piece.size() == 1 ? 100 : 0);
            });
            QElapsedTimer clock;
            clock.start();
            QVERIFY2(httpDownload(server.link(), target(), {1500, 65536}) != 0, answer.first);
            QVERIFY2(clock.elapsed() < 3000, answer.first + QByteArray::number(clock.elapsed()));
            // The system's buffers take more than the program counts.
            QVERIFY2(taken < 16 * 1024 * 1024, answer.first + QByteArray::number(taken));
            QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files), QStringList());
        }
    }

    void strangeAddresses()
    {
        for (const char *url : {"file:///etc/passwd", "ftp://127.0.0.1/a", "data:text/plain,12.0.0.0",
                                "qrc:/a", "\\\\server\\share\\a.exe", "http://update.example/a",
                                "http://127.0.0.1@update.example/a", "http://localhost.update.example/a"})
            QCOMPARE(httpDownload(QLatin1String(url), target(), {1500, 65536}), Platform::DownloadRefused);
    }

    void checkHasItsLimits()
    {
        qint64 limit = 0;
        m_pPc->onDownload = [&](const QString &, const QString &, const DownloadLimits &limits) {
            limit = limits.bytes;
            return limits.milliseconds == 15000 ? Platform::DownloadRefused : 0;
        };
        QVERIFY(!update::fetchVersions("https://update.example/"));
        QCOMPARE(limit, 65536);
        // A refused download is not tried with the transfer tool.
        QCOMPARE(m_pPc->commands(), QStringList());
        QCOMPARE(update::installerLimits(1000).bytes, 40 * 1024 * 1024);
        QCOMPARE(update::installerLimits(20 * 1024 * 1024).bytes, 80 * 1024 * 1024);
    }

    void plantedInstaller()
    {
        const QTemporaryDir here;
        QVERIFY(QDir::setCurrent(here.path())); // the fake machine has its drive C: there
        // While the console runs, another program puts a file where the installer would be. Then the console
        // fails.
        m_pPc->onCommand = [](const QString &) {
            return QDir().mkpath("C:/updatetmp") && writeFile("C:/updatetmp/VelmoraHalvane.exe", "evil");
        };
        QDownloadThread thread;
        thread.m_strUrl = "https://update.example/VelmoraHalvane.exe";
        thread.m_limits = update::installerLimits(0);
        QSignalSpy started(&thread, &QDownloadThread::OnDownloadFinish);
        QSignalSpy failed(&thread, &QDownloadThread::OnDownloadFailed);
        thread.start();
        QVERIFY(thread.wait(10000));
        QCOMPARE(m_pPc->commands().size(), 1);
        QTRY_COMPARE(failed.size(), 1);
        QCOMPARE(started.size(), 0);
        QDir::setCurrent(QDir::tempPath());
    }

    /// The tool's file belongs to a service, and stays in its hands.
    void consoleFileBecomesOurs()
    {
        QString file;
        m_pPc->onCommand = [&file](const QString &line) {
            file = line.section(' ', -1);
            return writeFile(file, "installer") && QFile::setPermissions(file, QFile::Permissions(0x6666));
        };
        QCOMPARE(contentOf(update::fetch("https://update.example/x", "x.exe", {9000, 100})),
                 QByteArray("installer"));
        QCOMPARE(ownfiles::strangerOn(file), QString());
    }

    void consoleThatLoadsTooMuch()
    {
        m_pPc->onCommand = [](const QString &line) {
            return writeFile(line.section(' ', -1), QByteArray(65537, '1'));
        };
        QVERIFY(!update::fetchVersions("https://update.example/"));
        QCOMPARE(m_pPc->commands().size(), 1);
        QCOMPARE(g_strUpdateFile, QString());
    }

    void linksThatAreNoPages()
    {
        languages::setFlag(5); // its agreement and help are links of the settings
        g_App.m_bStandalone = false;
        g_App.m_bHelpOnline = true;
        for (const char *link :
             {"file:///usr/bin/id", "/usr/bin/id", "C:\\Windows\\notepad.exe", "ftp://x.example/",
              "\\\\server\\share\\a.exe", "javascript:alert(1)", "search-ms:query=x", "https:"}) {
            QVERIFY(!links::openPage(QLatin1String(link)));
            SettingsStore().write(TextSetting{"JA/EulaLink_JA"}, QLatin1String(link));
            SettingsStore().write(TextSetting{"JA/HelpLink_JA"}, QLatin1String(link));
            links::openAgreement();
            links::openHelp(links::Topic::DiskStatus);
            QCOMPARE(m_pPc->executed, QStringList());
        }
    }

    void supportIsAnAddressOnly()
    {
        SettingsStore().write(TextSetting{"EN/SupportLink"}, "a@b.example?attach=/etc/x\" %1");
        links::openSupport();
        QCOMPARE(m_pPc->executed, QStringList{"Open mailto:a@b.example%3Fattach%3D%2Fetc%2Fx%22%20%251 "});
    }

    void describedPcAsksNobody()
    {
        std::atomic<int> requests{0};
        const LoopbackServer server([&requests](QTcpSocket *client, const QByteArray &) {
            ++requests;
            client->write("HTTP/1.1 200 OK\r\nContent-Length: 8\r\n\r\n12.0.0.0");
            client->disconnectFromHost();
        });
        const DescribedFolder folder;
        const auto silent = folder.open("{}");
        QCOMPARE(silent->URLDownloadToFileW(server.link(), target(), {1500, 65536}),
                 Platform::DownloadRefused);
        outputOf(*silent,
                 QStringLiteral("bitsadmin.exe /transfer j %1 %2").arg(QString(server.link()), target()));
        QCOMPARE(requests.load(), 0);
        const auto open = folder.open(R"({"network": true})");
        QCOMPARE(open->URLDownloadToFileW("https://192.0.2.1/", target(), {1500, 65536}),
                 Platform::DownloadRefused);
        // A proxy is another PC, so it is not asked.
        qputenv("http_proxy", "http://192.0.2.1:3128");
        QCOMPARE(open->URLDownloadToFileW(server.link(), target(), {1500, 65536}), 0);
        qunsetenv("http_proxy");
        QCOMPARE(contentOf(target()), QByteArray("12.0.0.0"));
    }

private:
    QString target() const { return m_folder.filePath("page"); }

    QTemporaryDir m_folder;
    FakePlatform *m_pPc = nullptr;
};

QTEST_GUILESS_MAIN(NetworkTest)
#include "tst_Network.moc"
