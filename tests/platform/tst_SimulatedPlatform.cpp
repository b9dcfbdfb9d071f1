// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/IoControl.h"
#include "platform/JsonSettings.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/Files.h"
#include "tests/support/WebFolder.h"

#include <QJsonDocument>
#include <QSettings>
#include <QtTest>

namespace
{

const QString ProductPath =
    "HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Velmora Data Rescue\\Velmora Halvane for Windows";

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
    void historyIsSeeded();
    void logonTask();
    void downloads();
    void stateOfItsOwn();

private:
    QString kept(const char *name) const { return m_folder.state() + '/' + name; }

    const DescribedFolder m_folder;
};

void TestSimulatedPlatform::volumeQuestions_data()
{
    QTest::addColumn<quint32>("type");
    QTest::addColumn<QString>("label"); // "!": no readable volume
    QTest::addColumn<quint64>("size");  // 0: no answer
    // Named after the root.
    QTest::newRow("c:") << quint32(io::DriveFixed) << "System" << quint64(9);
    QTest::newRow("D:\\") << quint32(io::DriveCdrom) << "!" << quint64(0);     // no medium
    QTest::newRow("E:\\") << quint32(io::DriveRemovable) << "!" << quint64(7); // unformatted
    QTest::newRow("F:\\") << quint32(io::DriveNoRootDir) << "!" << quint64(0);
    QTest::newRow("G:\\") << quint32(io::DriveUnknown) << "" << quint64(3);
    QTest::newRow("Q:\\") << quint32(io::DriveNoRootDir) << "!" << quint64(0); // no such letter
}

void TestSimulatedPlatform::volumeQuestions()
{
    const QString root = QTest::currentDataTag();
    const auto pc = m_folder.open(R"({"volumes": [
        {"letter": "G", "type": "unknown", "fileSystem": "NTFS", "size": 3},
        {"letter": "C", "label": "System", "fileSystem": "NTFS", "size": 9, "free": 4},
        {"letter": "D", "type": "cdrom", "label": "old"}, {"letter": "E", "type": "removable", "size": 7},
        {"letter": "F", "type": "noroot", "label": "x", "size": 5}]})");
    QCOMPARE(pc->GetLogicalDriveStringsW().join(QString()), "C:\\D:\\E:\\F:\\G:\\");
    QTEST(pc->GetDriveTypeW(root), "type");
    QString label = "before";
    QString fileSystem = "before";
    const bool readable = pc->GetVolumeInformationW(root, &label, &fileSystem);
    QTEST(readable ? label : label + fileSystem + '!', "label");
    quint64 size = 1;
    quint64 left = 1;
    const bool told = pc->GetDiskFreeSpaceExW(root, &size, &left);
    QCOMPARE(told, size != 0);
    QTEST(size, "size");
}

void TestSimulatedPlatform::toolsOfThePc()
{
    const auto pc =
        m_folder.open(R"({"user": "eve", "dpi": 144, "disks": [{"number": 5, "model": "N", "sectors": 8}],
        "volumes": [{"letter": "C", "bitLocker": "2.0"}]})");
    QCOMPARE(outputOf(*pc, "C:\\Windows\\system32\\wbem\\WMIC.exe diskdrive get Model,Index"),
             utf16("Index  Model  \r\n5      N      \r\n\r\n"));
    QVERIFY(outputOf(*pc, "C:\\Windows\\system32\\manage-bde.exe -status C:").contains("2.0"));
    QVERIFY(QFile::remove(kept("commands.log")));
    pc->CreateProcessAndWait(L"CMD.EXE /c shutdown /s ", true);
    pc->CreateProcessAndWait(L"CMD.EXE /c format.exe C:", true);
    pc->SetThreadExecutionState(0x80000003);
    QCOMPARE(contentOf(kept("commands.log")),
             QByteArray("CMD.EXE /c shutdown /s \nCMD.EXE /c format.exe C:\n"));
    QCOMPARE(contentOf(kept("execution-state.log")), QByteArray("0x80000003\n"));
    QCOMPARE(pc->GetUserNameW(), "eve");
    QCOMPARE(pc->LogPixelsX(), 144);
}

void TestSimulatedPlatform::companion()
{
    const auto pc = m_folder.open(R"({"processes": ["one.exe"], "installed": ["VelmoraSMART.exe"]})");
    const QString running = "\\tasklist.exe | \\findstr.exe VelmoraSMART.exe";
    QCOMPARE(outputOf(*pc, running), QByteArray());
    constexpr auto shown = Platform::Show::Normal;
    QVERIFY(!pc->ShellExecuteW("Other.exe", {}, {}, shown));
    QVERIFY(pc->ShellExecuteW("C:\\x/VelmoraSMART.exe", "Schedular", {}, shown));
    QVERIFY(pc->ShellExecuteW("VelmoraSMART.exe", {}, {}, shown));
    QCOMPARE(outputOf(*pc, running).count("VelmoraSMART.exe"), 1);
    QVERIFY(pc->OpenUrl(QUrl("http://velmora.example/a b")));
    outputOf(*pc, "\\TASKKILL.exe /F /IM velmorasmart.exe");
    QCOMPARE(outputOf(*pc, running), QByteArray());
    QVERIFY(outputOf(*pc, "\\tasklist.exe").contains("one.exe"));
    QCOMPARE(contentOf(kept("opened.log")),
             QByteArray("\tOther.exe\t\n\tC:\\x/VelmoraSMART.exe\tSchedular\n\tVelmoraSMART.exe\t\n"
                        "url\thttp://velmora.example/a%20b\t\n"));
}

void TestSimulatedPlatform::paths()
{
    const auto pc = m_folder.open("{}");
    QCOMPARE(pc->GetTempPathW(), kept("temp/"));
    QVERIFY(QFileInfo(pc->GetTempPathW()).isWritable());
    QCOMPARE(pc->NativePath(pc->GetTempPathW() + "\\tmpFile"), kept("temp/tmpFile"));
    QCOMPARE(pc->NativePath("c:\\updatetmp\\a.txt"), kept("drives/C/updatetmp/a.txt"));
    QCOMPARE(pc->NativePath("a\\b\\"), "a/b/");
    QCOMPARE(pc->NativePath({}), QString());
}

void TestSimulatedPlatform::settingsKeepTheirTypes()
{
    const QVariantMap values{{"TempValue", "C"}, {"EN/rxLink", "http://x/\u00e4\u65e5"},
                             {"Limit", 45},      {"Big", 5000000000LL},
                             {"Half", 0.5},      {"On", true}};
    const QJsonObject first = QJsonObject::fromVariantMap(values);
    const auto pc = m_folder.open(QJsonDocument(QJsonObject{{"settings", first}}).toJson());
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const auto settings = pc->OpenSettings(ProductPath);
        QCOMPARE(settings->value(it.key()), it.value());
        QCOMPARE(settings->value(it.key()).type(), it.value().type());
        settings->setValue("New" + it.key(), it.value());
    }
    const QString file = jsonsettings::fileOf(kept("registry"), ProductPath);
    const QJsonObject written = QJsonDocument::fromJson(contentOf(file)).object();
    for (const QString &key : first.keys()) {
        QCOMPARE(written.value(key), first.value(key));
        QCOMPARE(written.value("New" + key), first.value(key));
    }
    // The first values count only once.
    const auto again = m_folder.open(R"({"settings": {"TempValue": "F"}})");
    QCOMPARE(again->OpenSettings(ProductPath)->value("TempValue"), QVariant("C"));
}

void TestSimulatedPlatform::settingsOfOtherPaths()
{
    const DescribedFolder folder;
    const auto pc = folder.open(R"({"settings": {"TempValue": "C"}})");
    QVERIFY(pc->OpenSettings("HKEY_CURRENT_USER\\Elsewhere")->allKeys().isEmpty());
    QCOMPARE(jsonsettings::fileOf("/state", "A\\..\\B//C:D"), "/state/A/B/C_D.json");
    // A file that is no JSON reads as empty, and reading does not change it.
    const QString broken = jsonsettings::fileOf(folder.state() + "/registry", "X");
    QVERIFY(writeFile(broken, "{ \"a\": "));
    QVERIFY(pc->OpenSettings("X")->allKeys().isEmpty());
    QCOMPARE(contentOf(broken), QByteArray("{ \"a\": "));
    // Nothing is kept without a path, nor if a file has the name of the folder.
    QVERIFY(writeFile(folder.state() + "/registry/HKEY_LOCAL_MACHINE", {}));
    for (const QString &path : {QString(), ProductPath}) {
        pc->OpenSettings(path)->setValue("LanguageType", "7");
        QVERIFY(pc->OpenSettings(path)->allKeys().isEmpty());
    }
}

void TestSimulatedPlatform::historyIsSeeded()
{
    m_folder.add("history/NX-1.ini", "old");
    m_folder.add("history/more/dates.txt", "d");
    auto pc = m_folder.open("{}");
    QCOMPARE(pc->HistoryFolder("/opt/halvane"), kept("history"));
    QCOMPARE(contentOf(kept("history/NX-1.ini")), QByteArray("old"));
    QCOMPARE(contentOf(kept("history/more/dates.txt")), QByteArray("d"));
    QVERIFY(QFile::remove(kept("history/NX-1.ini")));
    pc = m_folder.open("{}");
    pc->HistoryFolder({});
    QVERIFY(!QFileInfo::exists(kept("history/NX-1.ini")));
}

void TestSimulatedPlatform::logonTask()
{
    const auto pc = m_folder.open("{}");
    pc->CreateLogonTask({"VelmoraSMART", "eve", "C:\\x.exe", "Schedular"});
    QCOMPARE(QJsonDocument::fromJson(contentOf(kept("logon-task.json"))).object(),
             QJsonObject({{"name", "VelmoraSMART"},
                          {"author", "eve"},
                          {"program", "C:\\x.exe"},
                          {"arguments", "Schedular"}}));
    pc->DeleteLogonTask("Another");
    QVERIFY(QFileInfo::exists(kept("logon-task.json")));
    pc->DeleteLogonTask("VelmoraSMART");
    QVERIFY(!QFileInfo::exists(kept("logon-task.json")));
}

void TestSimulatedPlatform::downloads()
{
    const WebFolder web({{"page", {"hello"}}, {"cut", {"hello", 3}}});
    const auto pc = m_folder.open(R"({"network": true})");
    const QString file = kept("temp/\\page.txt");
    for (const char *name : {"page", "cut", "none"}) {
        const QString url = web.link() + name;
        const QByteArray expected = QByteArray(name) == "page" ? "hello" : "";
        QCOMPARE(pc->URLDownloadToFileW(url, file, {15000, 65536}) == 0, !expected.isEmpty());
        QCOMPARE(contentOf(kept("temp/page.txt")), expected);
        QCOMPARE(QFile::remove(kept("temp/page.txt")), !expected.isEmpty());
        outputOf(*pc, QString("bitsadmin.exe /transfer j /download /priority normal %1 %2").arg(url, file));
        QCOMPARE(contentOf(kept("temp/page.txt")), expected);
        QFile::remove(kept("temp/page.txt"));
    }
    QCOMPARE(QDir(kept("temp")).entryList(QDir::Files), QStringList("out.txt"));
}

void TestSimulatedPlatform::stateOfItsOwn()
{
    const DescribedFolder folder;
    folder.add("pc.json", R"({"disks": [{"number": 0, "sectors": 9}]})");
    QString error;
    auto pc = SimulatedPlatform::open(folder.path(), {}, &error);
    QVERIFY(pc != nullptr);
    const QString state = pc->stateFolder();
    QVERIFY(!state.contains(' '));
#ifndef Q_OS_WIN // on Windows the access list of the user's temp folder keeps others out
    QCOMPARE(QFile::permissions(state) &
                 (QFile::ReadGroup | QFile::ReadOther | QFile::ExeGroup | QFile::ExeOther),
             QFile::Permissions());
#endif
    QVERIFY(pc->CreateFileW("\\\\.\\PHYSICALDRIVE0", io::GenericRead, 3, io::OpenExisting) !=
            Platform::InvalidHandle);
    pc.reset();
    QVERIFY(!QFileInfo::exists(state));
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("pc.json"));
}

QTEST_GUILESS_MAIN(TestSimulatedPlatform)
#include "tst_SimulatedPlatform.moc"
