// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DeviceNotifier.h"
#include "platform/IoControl.h"
#include "platform/JsonSettings.h"
#include "tests/platform/DescribedFolder.h"

#include <QJsonDocument>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QtTest>

#include <cstdio>
#include <cstring>

namespace
{

const QString productPath = QStringLiteral(
    "HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Velmora Data Rescue\\Velmora Halvane for Windows");

/// A server for one request, on a thread of its own; answers with `response`.
class OneAnswer
{
public:
    explicit OneAnswer(const QByteArray &response)
        : m_thread(QThread::create([this, response] {
              QTcpServer server;
              server.listen(QHostAddress::LocalHost);
              m_port = server.serverPort();
              m_ready.release();
              if (server.waitForNewConnection(10000)) {
                  QTcpSocket *socket = server.nextPendingConnection();
                  socket->waitForReadyRead(10000);
                  socket->write(response);
                  socket->disconnectFromHost();
                  socket->waitForDisconnected(10000);
              }
          }))
    {
        m_thread->start();
        m_ready.acquire();
    }
    ~OneAnswer() { m_thread->wait(); }
    QString url() const { return QStringLiteral("http://127.0.0.1:%1/page.txt").arg(m_port); }

private:
    QSemaphore m_ready;
    quint16 m_port = 0;
    std::unique_ptr<QThread> m_thread;
};

} // namespace

class TestSimulatedPlatform : public QObject
{
    Q_OBJECT

private slots:
    void volumeQuestions_data();
    void volumeQuestions();
    void toolsOfThePc();
    void companion();
    void paths();
    void settingsKeepTheirTypes();
    void settingsOfOtherPaths();
    void settingsThatKeepNothing();
    void historyIsSeeded();
    void logonTask();
    void downloads_data();
    void downloads();
    void volumeArrivalOncePerTouch();
    void stateOfItsOwn();
    void chosenByTheEnvironment_data();
    void chosenByTheEnvironment();
};

void TestSimulatedPlatform::volumeQuestions_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<quint32>("type");
    QTest::addColumn<QString>("label"); // "!": no readable volume
    QTest::addColumn<quint64>("size");  // 0: no answer
    QTest::newRow("fixed") << "C:\\" << quint32(io::DriveFixed) << "System" << quint64(9);
    QTest::newRow("small letter") << "c:" << quint32(io::DriveFixed) << "System" << quint64(9);
    QTest::newRow("cd without a medium") << "D:\\" << quint32(io::DriveCdrom) << "!" << quint64(0);
    QTest::newRow("unformatted") << "E:\\" << quint32(io::DriveRemovable) << "!" << quint64(7);
    QTest::newRow("no root") << "F:\\" << quint32(io::DriveNoRootDir) << "!" << quint64(0);
    QTest::newRow("unknown") << "G:\\" << quint32(io::DriveUnknown) << "" << quint64(3);
    QTest::newRow("no such letter") << "Q:\\" << quint32(io::DriveNoRootDir) << "!" << quint64(0);
}

void TestSimulatedPlatform::volumeQuestions()
{
    QFETCH(QString, root);
    const DescribedFolder folder;
    const auto pc = folder.open(R"({"volumes": [
        {"letter": "G", "type": "unknown", "fileSystem": "NTFS", "size": 3},
        {"letter": "C", "label": "System", "fileSystem": "NTFS", "size": 9, "free": 4},
        {"letter": "D", "type": "cdrom", "label": "old"}, {"letter": "E", "type": "removable", "size": 7},
        {"letter": "F", "type": "noroot", "label": "x", "size": 5}]})");
    QCOMPARE(pc->GetLogicalDriveStringsW().join(QString()), QStringLiteral("C:\\D:\\E:\\F:\\G:\\"));
    QTEST(pc->GetDriveTypeW(root), "type");
    QString label = QStringLiteral("before");
    QString fileSystem = QStringLiteral("before");
    const bool readable = pc->GetVolumeInformationW(root, &label, &fileSystem);
    QTEST(readable ? label : label + fileSystem + QLatin1Char('!'), "label");
    QFETCH(quint64, size);
    quint64 told = 1;
    quint64 left = 1;
    QCOMPARE(pc->GetDiskFreeSpaceExW(root, &told, &left), size != 0);
    QCOMPARE(told, size);
}

void TestSimulatedPlatform::toolsOfThePc()
{
    const DescribedFolder folder;
    const auto pc =
        folder.open(R"({"user": "eve", "dpi": 144, "disks": [{"number": 5, "model": "Norvik", "sectors": 8}],
        "volumes": [{"letter": "C", "bitLocker": "2.0"}], "processes": ["one.exe", "two.exe"]})");
    QVERIFY(QString::fromUtf16(
                reinterpret_cast<const ushort *>(
                    outputOf(*pc, QStringLiteral(
                                      "C:\\Windows\\system32\\wbem\\WMIC.exe diskdrive get Model,Index"))
                        .append("\0\0", 2)
                        .constData()))
                .contains(QLatin1String("Norvik")));
    QVERIFY(
        outputOf(*pc, QStringLiteral("C:\\Windows\\system32\\manage-bde.exe -status C:")).contains("2.0"));
    QCOMPARE(outputOf(*pc, QStringLiteral("format.exe C:")), QByteArray());
    pc->CreateProcessAndWait(L"CMD.EXE /c shutdown /s ", true);
    pc->SetThreadExecutionState(0x80000003);
    const QByteArray log = DescribedFolder::contents(folder.state() + QStringLiteral("/commands.log"));
    QCOMPARE(log.count('\n'), 4);
    QVERIFY(log.endsWith("\nCMD.EXE /c shutdown /s \n"));
    QCOMPARE(DescribedFolder::contents(folder.state() + QStringLiteral("/execution-state.log")),
             QByteArray("0x80000003\n"));
    QCOMPARE(pc->GetUserNameW(), QStringLiteral("eve"));
    QCOMPARE(pc->LogPixelsX(), 144);
}

void TestSimulatedPlatform::companion()
{
    const DescribedFolder folder;
    const auto pc = folder.open(R"({"processes": ["one.exe"], "installed": ["VelmoraSMART.exe"]})");
    const QString running = QStringLiteral("\\tasklist.exe | \\findstr.exe VelmoraSMART.exe");
    QCOMPARE(outputOf(*pc, running), QByteArray());
    constexpr auto shown = Platform::Show::Normal;
    QVERIFY(!pc->ShellExecuteW(QStringLiteral("Other.exe"), QString(), QString(), shown));
    QVERIFY(pc->ShellExecuteW(QStringLiteral("C:\\x/VelmoraSMART.exe"), QStringLiteral("Schedular"),
                              QString(), shown));
    QVERIFY(pc->ShellExecuteW(QStringLiteral("VelmoraSMART.exe"), QString(), QString(), shown));
    QCOMPARE(outputOf(*pc, running).count("VelmoraSMART.exe"), 1);
    QVERIFY(pc->OpenUrl(QUrl(QStringLiteral("http://velmora.example/a b"))));
    outputOf(*pc, QStringLiteral("\\TASKKILL.exe /F /IM velmorasmart.exe"));
    QCOMPARE(outputOf(*pc, running), QByteArray());
    QVERIFY(outputOf(*pc, QStringLiteral("\\tasklist.exe")).contains("one.exe"));
    QCOMPARE(DescribedFolder::contents(folder.state() + QStringLiteral("/opened.log")),
             QByteArray("\tOther.exe\t\n\tC:\\x/VelmoraSMART.exe\tSchedular\n\tVelmoraSMART.exe\t\n"
                        "url\thttp://velmora.example/a%20b\t\n"));
}

void TestSimulatedPlatform::paths()
{
    const DescribedFolder folder;
    const auto pc = folder.open("{}");
    QCOMPARE(pc->GetTempPathW(), folder.state() + QStringLiteral("/temp/"));
    QVERIFY(QFileInfo(pc->GetTempPathW()).isWritable());
    QCOMPARE(pc->NativePath(pc->GetTempPathW() + QStringLiteral("\\tmpFile")),
             folder.state() + QStringLiteral("/temp/tmpFile"));
    QCOMPARE(pc->NativePath(QStringLiteral("c:\\updatetmp\\a.txt")),
             folder.state() + QStringLiteral("/drives/C/updatetmp/a.txt"));
    QCOMPARE(pc->NativePath(QStringLiteral("a\\b\\")), QStringLiteral("a/b/"));
    QCOMPARE(pc->NativePath(QString()), QString());
}

void TestSimulatedPlatform::settingsKeepTheirTypes()
{
    const DescribedFolder folder;
    const auto pc =
        folder.open(R"({"settings": {"TempValue": "C", "EN/rxUpdateLink": "http://x/", "Limit": 45}})");
    {
        const auto settings = pc->OpenSettings(productPath);
        QCOMPARE(settings->value(QStringLiteral("EN/rxUpdateLink")).toString(), QStringLiteral("http://x/"));
        QCOMPARE(settings->value(QStringLiteral("Limit")).type(), QVariant::Int);
        QVERIFY(!settings->contains(QStringLiteral("FirstTimeLaunch")));
        settings->setValue(QStringLiteral("LanguageType"), QStringLiteral("7"));
        settings->setValue(QStringLiteral("FirstTimeLaunch"), 1);
        settings->setValue(QStringLiteral("Big"), 5000000000LL);
        settings->setValue(QStringLiteral("Half"), 0.5);
        settings->setValue(QStringLiteral("On"), true);
        settings->setValue(QStringLiteral("Umlaut"), QStringLiteral("\u00e4 \u65e5"));
    }
    const QJsonObject kept =
        QJsonDocument::fromJson(DescribedFolder::contents(jsonsettings::fileOf(
                                    folder.state() + QStringLiteral("/registry"), productPath)))
            .object();
    QCOMPARE(kept.value(QStringLiteral("LanguageType")), QJsonValue(QStringLiteral("7")));
    QCOMPARE(kept.value(QStringLiteral("FirstTimeLaunch")), QJsonValue(1));
    QCOMPARE(kept.value(QStringLiteral("EN/rxUpdateLink")), QJsonValue(QStringLiteral("http://x/")));
    const auto again = folder.open(R"({"settings": {"TempValue": "F"}})");
    const auto settings = again->OpenSettings(productPath);
    QCOMPARE(settings->value(QStringLiteral("TempValue")).toString(),
             QStringLiteral("C")); // first values only once
    QCOMPARE(settings->value(QStringLiteral("LanguageType")).type(), QVariant::String);
    QCOMPARE(settings->value(QStringLiteral("Big")), QVariant(5000000000LL));
    QCOMPARE(settings->value(QStringLiteral("Half")), QVariant(0.5));
    QCOMPARE(settings->value(QStringLiteral("On")), QVariant(true));
    QCOMPARE(settings->value(QStringLiteral("Umlaut")).toString(), QStringLiteral("\u00e4 \u65e5"));
}

void TestSimulatedPlatform::settingsOfOtherPaths()
{
    const DescribedFolder folder;
    const auto pc = folder.open(R"({"settings": {"TempValue": "C"}})");
    QVERIFY(pc->OpenSettings(QStringLiteral("HKEY_CURRENT_USER\\Elsewhere"))->allKeys().isEmpty());
    const QString file = jsonsettings::fileOf(QStringLiteral("/state"), QStringLiteral("A\\..\\B//C:D"));
    QCOMPARE(file, QStringLiteral("/state/A/B/C_D.json"));
    // A file that is no JSON reads as empty, and reading does not change it.
    const QString broken =
        jsonsettings::fileOf(folder.state() + QStringLiteral("/registry"), QStringLiteral("X"));
    QFile out(broken);
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write("{ \"a\": ") > 0);
    out.close();
    QVERIFY(pc->OpenSettings(QStringLiteral("X"))->allKeys().isEmpty());
    QCOMPARE(DescribedFolder::contents(broken), QByteArray("{ \"a\": "));
}

void TestSimulatedPlatform::settingsThatKeepNothing()
{
    const DescribedFolder folder;
    const auto pc = folder.open("{}");
    pc->OpenSettings(QString())->setValue(QStringLiteral("LanguageType"), QStringLiteral("7"));
    QVERIFY(pc->OpenSettings(QString())->allKeys().isEmpty());
    // The same if the folder cannot be made, because a file has its name.
    QFile blocker(folder.state() + QStringLiteral("/registry/HKEY_LOCAL_MACHINE"));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    pc->OpenSettings(productPath)->setValue(QStringLiteral("LanguageType"), QStringLiteral("7"));
    QVERIFY(pc->OpenSettings(productPath)->allKeys().isEmpty());
}

void TestSimulatedPlatform::historyIsSeeded()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("history/NX-1.ini"), "old");
    folder.add(QStringLiteral("history/more/dates.txt"), "d");
    auto pc = folder.open("{}");
    const QString history = pc->HistoryFolder(QStringLiteral("/opt/halvane"));
    QCOMPARE(history, folder.state() + QStringLiteral("/history"));
    QCOMPARE(DescribedFolder::contents(history + QStringLiteral("/NX-1.ini")), QByteArray("old"));
    QCOMPARE(DescribedFolder::contents(history + QStringLiteral("/more/dates.txt")), QByteArray("d"));
    QVERIFY(QFile::remove(history + QStringLiteral("/NX-1.ini")));
    pc = folder.open("{}");
    QVERIFY(!QFileInfo::exists(pc->HistoryFolder(QString()) + QStringLiteral("/NX-1.ini")));
}

void TestSimulatedPlatform::logonTask()
{
    const DescribedFolder folder;
    const auto pc = folder.open("{}");
    const QString file = folder.state() + QStringLiteral("/logon-task.json");
    pc->CreateLogonTask({QStringLiteral("VelmoraSMART"), QStringLiteral("eve"), QStringLiteral("C:\\x.exe"),
                         QStringLiteral("Schedular")});
    const QJsonObject task = QJsonDocument::fromJson(DescribedFolder::contents(file)).object();
    QCOMPARE(task.value(QStringLiteral("program")).toString(), QStringLiteral("C:\\x.exe"));
    QCOMPARE(task.value(QStringLiteral("arguments")).toString(), QStringLiteral("Schedular"));
    pc->DeleteLogonTask(QStringLiteral("Another"));
    QVERIFY(QFileInfo::exists(file));
    pc->DeleteLogonTask(QStringLiteral("VelmoraSMART"));
    QVERIFY(!QFileInfo::exists(file));
}

void TestSimulatedPlatform::downloads_data()
{
    QTest::addColumn<QByteArray>("response");
    QTest::addColumn<bool>("succeeds");
    QTest::newRow("page") << QByteArray(
                                 "HTTP/1.1 200 OK\r\nContent-Length: 5\r\nConnection: close\r\n\r\nhello")
                          << true;
    QTest::newRow("not found") << QByteArray(
                                      "HTTP/1.1 404 No\r\nContent-Length: 2\r\nConnection: close\r\n\r\nno")
                               << false;
    QTest::newRow("cut off") << QByteArray(
                                    "HTTP/1.1 200 OK\r\nContent-Length: 50\r\nConnection: close\r\n\r\nhello")
                             << false;
}

void TestSimulatedPlatform::downloads()
{
    QFETCH(QByteArray, response);
    QFETCH(bool, succeeds);
    const DescribedFolder folder;
    const auto pc = folder.open(R"({"network": true})");
    const QString file = pc->GetTempPathW() + QStringLiteral("\\page.txt");
    const QString native = pc->NativePath(file);
    {
        const OneAnswer server(response);
        QCOMPARE(pc->URLDownloadToFileW(server.url(), file, {15000, 65536}) == 0, succeeds);
    }
    QCOMPARE(QFileInfo::exists(native), succeeds);
    QFile::remove(native);
    const OneAnswer server(response);
    outputOf(*pc, QStringLiteral("bitsadmin.exe /transfer myDownloadJob /download /priority normal %1 %2")
                      .arg(server.url(), file));
    QCOMPARE(DescribedFolder::contents(native), succeeds ? QByteArray("hello") : QByteArray());
    QVERIFY(pc->URLDownloadToFileW(QStringLiteral("nonsense"), file, {15000, 65536}) < 0);
    QCOMPARE(QDir(pc->GetTempPathW()).entryList(QDir::Files).size(), succeeds ? 2 : 1);
}

void TestSimulatedPlatform::volumeArrivalOncePerTouch()
{
    const DescribedFolder folder;
    const auto pc = folder.open("{}");
    const QString place = folder.state() + QStringLiteral("/volumes-changed/");
    const auto touch = [&place](const char *name) {
        QFile file(place + QLatin1String(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    };
    touch("arrive"); // from an earlier run
    QSignalSpy spy(pc->deviceNotifier(), &DeviceNotifier::deviceChange);
    touch("remove");
    QVERIFY(spy.wait(5000));
    QCOMPARE(spy.takeFirst(), (QVariantList{0x8004u, 2u}));
    touch("arrive");
    QVERIFY(spy.wait(5000));
    QCOMPARE(spy.takeFirst(), (QVariantList{0x8000u, 2u}));
    touch("else");
    QTest::qWait(200);
    QCOMPARE(spy.size(), 0);
}

void TestSimulatedPlatform::stateOfItsOwn()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("pc.json"), R"({"disks": [{"number": 0, "sectors": 9}]})");
    QString error;
    auto pc = SimulatedPlatform::open(folder.path(), QString(), &error);
    QVERIFY(pc != nullptr);
    const QString state = pc->stateFolder();
    QVERIFY(!state.contains(QLatin1Char(' ')));
#ifndef Q_OS_WIN // on Windows the access list of the user's temp folder keeps others out
    QCOMPARE(QFile::permissions(state) &
                 (QFile::ReadGroup | QFile::ReadOther | QFile::ExeGroup | QFile::ExeOther),
             QFile::Permissions());
#endif
    QVERIFY(pc->CreateFileW(QStringLiteral("\\\\.\\PHYSICALDRIVE0"), io::GenericRead, io::ShareRead,
                            io::OpenExisting) != Platform::InvalidHandle);
    pc.reset();
    QVERIFY(!QFileInfo::exists(state));
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("pc.json")});
}

void TestSimulatedPlatform::chosenByTheEnvironment_data()
{
    QTest::addColumn<QByteArray>("json"); // empty: no such file
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("error");
    QTest::newRow("good") << QByteArray(R"({"user": "eve"})") << 0 << QByteArray();
    QTest::newRow("broken") << QByteArray(R"({"disks": [{"number": 0, "sectors": true}]})") << 2
                            << QByteArray("/pc.json: disks[0].sectors: a whole number is wanted\n");
    QTest::newRow("missing") << QByteArray() << 2 << QByteArray("/pc.json: no such file\n");
}

void TestSimulatedPlatform::chosenByTheEnvironment()
{
    QFETCH(QByteArray, json);
    QFETCH(QByteArray, error);
    const DescribedFolder folder;
    if (!json.isEmpty()) {
        folder.add(QStringLiteral("pc.json"), json);
    }
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HALVANE_PC"), folder.path());
    environment.insert(QStringLiteral("HALVANE_PC_STATE"), folder.state());
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--who-am-i")});
    QVERIFY(program.waitForFinished());
    QTEST(program.exitCode(), "exitCode");
    QCOMPARE(program.readAllStandardError().replace("\r\n", "\n"),
             error.isEmpty() ? QByteArray() : "VelmoraHalvane: " + folder.path().toLocal8Bit() + error);
    QCOMPARE(program.readAllStandardOutput(), error.isEmpty() ? QByteArray("eve") : QByteArray());
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (argc == 2 && std::strcmp(argv[1], "--who-am-i") == 0) {
        std::fputs(qPrintable(Platform::current().GetUserNameW()), stdout);
        Platform::current().deviceNotifier();
        return 0;
    }
    TestSimulatedPlatform test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_SimulatedPlatform.moc"
