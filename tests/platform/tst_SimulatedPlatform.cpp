// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/IoControl.h"
#include "platform/JsonSettings.h"
#include "tests/platform/DescribedFolder.h"

#include <QJsonDocument>
#include <QSettings>
#include <QtTest>

class TestSimulatedPlatform : public QObject
{
    Q_OBJECT

private slots:
    void volumes()
    {
        const auto pc = m_folder.open(R"({"volumes": [
            {"letter": "G", "type": "unknown", "fileSystem": "NTFS", "size": 3},
            {"letter": "C", "label": "System", "fileSystem": "NTFS", "size": 9, "free": 4},
            {"letter": "D", "type": "cdrom", "label": "old"}, {"letter": "E", "type": "removable", "size": 7},
            {"letter": "F", "type": "noroot", "label": "x", "size": 5}]})");
        QCOMPARE(pc->GetLogicalDriveStringsW().join(QString()), "C:\\D:\\E:\\F:\\G:\\");
        QString told;
        for (const char *root : {"c:", "D:\\", "E:\\", "F:\\", "G:\\", "Q:\\"}) {
            QString label = "?";
            QString fileSystem = "?";
            quint64 size = 1;
            quint64 left = 1;
            const bool readable = pc->GetVolumeInformationW(root, &label, &fileSystem);
            const bool hasSize = pc->GetDiskFreeSpaceExW(root, &size, &left);
            told += QString("%1 %2[%3]%4 %5[%6 %7]\n")
                        .arg(pc->GetDriveTypeW(root))
                        .arg(readable)
                        .arg(label, fileSystem)
                        .arg(hasSize)
                        .arg(size)
                        .arg(left);
        }
        QCOMPARE(told, QString("3 1[System]NTFS 1[9 4]\n"
                               "5 0[] 0[0 0]\n" // no medium
                               "2 0[] 1[7 0]\n" // unformatted
                               "1 0[] 0[0 0]\n"
                               "0 1[]NTFS 1[3 0]\n"
                               "1 0[] 0[0 0]\n")); // no such letter
    }

    void companion()
    {
        const std::unique_ptr<Platform> pc = m_folder.open(R"({"installed": ["VelmoraSMART.exe"]})");
        const QString running = "\\tasklist.exe | \\findstr.exe VelmoraSMART.exe";
        QVERIFY(!pc->ShellExecuteW("Other.exe", {}, {}));
        for (int start = 0; start < 2; ++start)
            QVERIFY(pc->ShellExecuteW("C:\\x/VelmoraSMART.exe", "Schedular", {}));
        QCOMPARE(outputOf(*pc, running).count("VelmoraSMART.exe"), 1);
        outputOf(*pc, "\\TASKKILL.exe /F /IM velmorasmart.exe");
        QCOMPARE(outputOf(*pc, running), QByteArray());
        pc->CreateLogonTask({"VelmoraSMART", "eve", "C:\\x.exe", "Schedular"});
        pc->DeleteLogonTask("Another");
        QVERIFY(contentOf(kept("logon-task.json")).contains(R"("program": "C:\\x.exe")"));
        pc->DeleteLogonTask("VelmoraSMART");
        QVERIFY(!QFileInfo::exists(kept("logon-task.json")));
    }

    void paths()
    {
        const auto pc = m_folder.open("{}");
        QVERIFY(QFileInfo(pc->GetTempPathW()).isWritable());
        QCOMPARE(pc->NativePath(pc->GetTempPathW() + "\\tmpFile"), kept("temp/tmpFile"));
        QCOMPARE(pc->NativePath("c:\\updatetmp\\a.txt"), kept("drives/C/updatetmp/a.txt"));
        QCOMPARE(pc->NativePath("a\\b\\"), "a/b/");
    }

    void settingsKeepTheirTypes()
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

    void settingsOfOtherPaths()
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

    void historyIsSeededOnce()
    {
        m_folder.add("history/more/dates.txt", "d");
        auto pc = m_folder.open("{}");
        QCOMPARE(pc->HistoryFolder("/opt/halvane"), kept("history"));
        QCOMPARE(contentOf(kept("history/more/dates.txt")), QByteArray("d"));
        QVERIFY(QFile::remove(kept("history/more/dates.txt")));
        pc = m_folder.open("{}");
        pc->HistoryFolder({});
        QVERIFY(!QFileInfo::exists(kept("history/more/dates.txt")));
    }

    void stateOfItsOwn()
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
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList("pc.json"));
    }

private:
    const QString ProductPath =
        "HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Velmora Data Rescue\\Velmora Halvane for Windows";
    QString kept(const char *name) const
    {
        return m_folder.state() + '/' + name;
    }

    const DescribedFolder m_folder;
};

QTEST_GUILESS_MAIN(TestSimulatedPlatform)
#include "tst_SimulatedPlatform.moc"
