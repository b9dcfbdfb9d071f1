// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/AtaIdentity.h"
#include "platform/JsonSettings.h"
#include "platform/simulated/StateFolder.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/platform/RawDisk.h"
#include "tests/support/ArrowRows.h"

#include <QJsonDocument>
#include <QSettings>
#include <QTextCodec>

using simulated::PcDescription;

namespace
{

const QString Samples = HALVANE_TEST_DATA "/platform/";
const QByteArray Capabilities = contentOf(HALVANE_TEST_DATA "/selftest/caps-idle-72.txt");

/// Stretches of equal bytes: "512 A, 1024 0"; a zero byte is "0".
QString stretches(const QByteArray &bytes)
{
    QStringList told;
    for (int at = 0, end = 0; at < bytes.size(); at = end) {
        while (end < bytes.size() && bytes.at(end) == bytes.at(at))
            ++end;
        told << QString("%1 %2").arg(end - at).arg(QChar(bytes.at(at) ? bytes.at(at) : '0'));
    }
    return told.join(", ");
}

/// A described PC that is used line by line:
/// "$ <command>" prints what the tool prints, "$| <line>; <line>…" what the partition tool says of a script.
/// "$< <device> <sector> <count>" prints what it reads, "$> <device> <sector> <count> <letter>" what it
/// writes.
/// "$! <program>" prints whether the program starts, "$* <device>" prints the slots of its partition table.
/// "$? <device>" prints whether it opens, and what the handle that it was opened with at first tells.
/// "$: <root>" prints what the system tells of a volume.
/// "$+ <touch>…" plugs in and out, and prints the notices of that and the letters of all volumes.
/// "$@ <ms>" lets time pass, "$=" starts the program anew, "$#" is a remark.
class Session : public QObject
{
public:
    explicit Session(const QString &name) : m_description(contentOf(Samples + name + ".json"))
    {
        if (!simulated::copyFolder(Samples + "session", m_folder.path()))
            qFatal("no test data");
        m_folder.add("caps.txt", Capabilities);
        m_folder.add("caps-crlf.txt", QByteArray(Capabilities).replace("\n", "\r\n"));
        m_folder.add("caps-none.txt",
                     QByteArray(Capabilities).replace("Self-test supp", "No Self-test supp"));
        m_folder.add("second.txt", "second \xa0\r\n");
        m_folder.add("a.img", QByteArray(1024, '-') + QByteArray(1024, 'A'));
        m_folder.add("b.img", QByteArray(1024, 'B'));
        start();
    }

    QString does(const QString &line)
    {
        const QString rest = line.mid(3);
        const QStringList words = rest.split(' ');
        switch (line.at(1).unicode()) {
        case ' ':
            return printed(line.mid(2));
        case '!':
            return m_pc->ShellExecuteW(rest, {}, {}, Platform::Show::Normal) ? "it starts\n"
                                                                             : "it does not start\n";
        case '|':
            return played(rest);
        case '*':
            return slotsOf(rest);
        case '<':
        case '>':
            return transferred(line.at(1) == '>', words);
        case '?':
            return shown(rest);
        case ':':
            return volume(rest);
        case '+':
            return touched(words);
        case '@':
            m_now += rest.toLongLong();
            break;
        case '=':
            start();
        }
        return QString();
    }

    bool keptWhatItDoesNotKnow() const { return QFile::exists(place("else")); }

private:
    QString place(const QString &touch) const { return m_folder.state() + "/volumes-changed/" + touch; }

    void start()
    {
        m_handles.clear();
        m_pc.reset();
        m_pc = m_folder.open(m_description, [this] { return m_now; });
        QVERIFY(writeFile(place("arrive-N"), {})); // from an earlier run
        connect(m_pc->deviceNotifier(), &DeviceNotifier::deviceChange, this,
                [this](quint32 event, quint32 type) {
                    QCOMPARE(type, 2u);
                    m_heard += QLatin1Char(event == 0x8000 ? '+' : event == 0x8004 ? '-' : '?');
                });
        QVERIFY(writeFile(place("else"), {}));
    }

    /// A line that ends with "\r\n" is told as such.
    QString printed(const QString &command)
    {
        static const QRegularExpression end("will complete after .*");
        const QByteArray bytes = outputOf(*m_pc, command);
        const QByteArray name = bytes.startsWith("\xFF\xFE") ? "UTF-16LE" : "ISO-8859-1";
        const QString text = QTextCodec::codecForName(name)->toUnicode(bytes);
        return QString(text).replace('\r', "\\r").replace(end, "will complete after ...");
    }

    QString played(QString script)
    {
        const QString file = m_pc->GetTempPathW() + "s.txt";
        const QByteArray lines = script.replace("; ", "\r\n").toLatin1();
        return writeFile(file, lines) ? printed("diskpart.exe /S " + file) : "no script";
    }

    QString slotsOf(const QString &device)
    {
        QByteArray record(512, '?');
        const bool read = m_pc->SetFilePointer(kept(device), 0) &&
                          m_pc->ReadFile(kept(device), record.data(), 512, nullptr);
        return read ? record.mid(446).toHex(' ') + '\n' : "it fails";
    }

    Platform::RawHandle kept(const QString &device)
    {
        if (!m_handles.contains(device))
            m_handles[device] = rawdisk::open(*m_pc, "\\\\.\\" + device);
        return m_handles[device];
    }

    QString transferred(bool writes, const QStringList &words)
    {
        const auto handle = kept(words.at(0));
        QByteArray data(words.at(2).toInt() * 512, writes ? words.at(3).at(0).toLatin1() : '?');
        if (data.startsWith('0'))
            data.fill('\0');
        quint32 moved = 77;
        const auto size = quint32(data.size());
        const bool done = m_pc->SetFilePointer(handle, words.at(1).toLongLong() * 512) &&
                          (writes ? m_pc->WriteFile(handle, data.constData(), size, &moved)
                                  : m_pc->ReadFile(handle, data.data(), size, &moved));
        return (done ? stretches(data.left(int(moved))) : "it fails") + '\n';
    }

    QString shown(const QString &device)
    {
        struct {
            io::VolumeDiskExtents first;
            io::DiskExtent second;
        } extents{};
        io::DiskGeometryEx geometry{};
        const QString name = "\\\\.\\" + device;
        const auto handle = kept(device);
        const auto asks = [&](quint32 code, void *answer, quint32 room) {
            return m_pc->DeviceIoControl(handle, code, nullptr, 0, answer, room, nullptr);
        };
        QString told = rawdisk::open(*m_pc, name) != Platform::InvalidHandle ? "it opens"
                       : m_pc->IsAccessDenied(name)                          ? "without the rights"
                                                                             : "it does not open";
        told += m_pc->IsGone(handle) ? ", gone" : "";
        if (asks(io::DiskGetDriveGeometryEx, &geometry, sizeof geometry))
            told += QString(", %1 bytes").arg(geometry.diskSize);
        if (asks(io::VolumeGetVolumeDiskExtents, &extents, sizeof extents))
            told += QString(", %1 extents, then %2 bytes of disk %3 from %4")
                        .arg(extents.first.numberOfDiskExtents)
                        .arg(extents.second.extentLength)
                        .arg(extents.second.diskNumber)
                        .arg(extents.second.startingOffset);
        return told + '\n';
    }

    QString volume(const QString &root)
    {
        QString label = "?";
        QString fileSystem = "?";
        quint64 size = 1;
        quint64 left = 1;
        const bool readable = m_pc->GetVolumeInformationW(root, &label, &fileSystem);
        const bool hasSize = m_pc->GetDiskFreeSpaceExW(root, &size, &left);
        return joined("type", m_pc->GetDriveTypeW(root), "readable", readable, label, fileSystem, "sized",
                      hasSize, size, left) +
               '\n';
    }

    QString touched(const QStringList &names)
    {
        m_heard.clear();
        m_folder.touch(names);
        return m_heard + ' ' + m_pc->GetLogicalDriveStringsW().join(QString()).remove(":\\") + '\n';
    }

    const DescribedFolder m_folder;
    const QByteArray m_description;
    qint64 m_now = 1700000000000;
    std::unique_ptr<SimulatedPlatform> m_pc;
    QMap<QString, Platform::RawHandle> m_handles; ///< as they were first opened
    QString m_heard;                              ///< + arrival, - removal
};

} // namespace

/// A described PC: what its description says, and how it behaves then.
class TestSimulatedPlatform : public QObject
{
    Q_OBJECT

private slots:
    void tools() { play("tools"); }
    void disks() { play("disks"); }
    void plugging() { play("plugging"); }
    void diskpart() { play("diskpart"); }

    /// "JSON -> what is wrong with it".
    void errors()
    {
        const DescribedFolder folder;
        folder.add("there.txt", "size=1");
        compareRows(QString::fromUtf8(contentOf(Samples + "pc-errors.txt")).trimmed().split('\n'),
                    [&folder](const QString &json) {
                        QString error;
                        const bool wrong = !simulated::parsePc(json.toUtf8(), folder.path(), &error);
                        error.replace(folder.path(), "<folder>").replace(QDir::rootPath(), "/");
                        return wrong ? error : "none";
                    });
        const auto refusal = [&folder](const QString &place) {
            QString error;
            return simulated::readPc(folder.path() + place, &error) ? "it opens"
                                                                    : error.remove(folder.path());
        };
        QCOMPARE(refusal({}), "/pc.json: no such file");
        folder.add("pc.json", "{\n \"name\": \"x\",\n \"dpi\": 9 6 }");
        QCOMPARE(refusal({}), "/pc.json: line 3: unterminated object");
        QCOMPARE(refusal("/gone"), "/gone: no such folder");
    }

    /// Those that show in no other test, and all of a disk that is barely described.
    void keysAndDefaults()
    {
        compareRows("SimulatedPlatform/keys", [](const QString &json) {
            QString error;
            const auto pc = simulated::parsePc(json.toUtf8(), "/none", &error);
            const auto disk = pc.value_or(PcDescription()).disks.value(0);
            return pc ? joined(pc->name, pc->user, pc->operatingSystem, pc->dpi, pc->pauses, pc->hasSmartctl,
                               pc->network, pc->toolMilliseconds, pc->secondsPerMinute,
                               disk.record.bytesPerSector, disk.bytesPerSecond, disk.opens, disk.failsPastEnd,
                               disk.identity.has_value(), disk.selfTestEnd.status,
                               disk.selfTestEnd.remainingTenths)
                      : error;
        });
    }

    void windowAndClock()
    {
        static int times = 0;
        qint64 now = 1000;
        const auto pc = m_folder.open(R"({"clockSpeed": 60})", [&now] { return now; });
        now = 2000;
        QCOMPARE(pc->Now().toMSecsSinceEpoch(), 61000);
        QCOMPARE(pc->TimerInterval(60000), 1000);
        QVERIFY(!pc->BringToFront({}));
        pc->WhenWanted([] { ++times; });
        QVERIFY(pc->BringToFront({}));
        QTRY_COMPARE(times, 1);
    }

    void isADiskLikeAnother()
    {
        const QByteArray json = R"({"disks": [{"number": 0, "sectors": 2049, "image": "disk.img"}]})";
        m_folder.add("disk.img", pattern(rawdisk::Sectors));
        auto pc = m_folder.open(json);
        const auto handle = rawdisk::open(*pc, rawdisk::First);
        rawdisk::checkReads(*pc, handle);
        rawdisk::checkWrites(*pc, handle, rawdisk::Sectors - 1);
        QVERIFY(contentOf(pc->imageFile(0)) == rawdisk::written());
        QCOMPARE(rawdisk::open(*pc, "/etc/hostname"), Platform::InvalidHandle);
        rawdisk::checkNoHandles(*pc, handle);
        QCOMPARE(pc->CreateFileW(rawdisk::First, rawdisk::ReadWrite, 7, io::CreateNew),
                 Platform::InvalidHandle);
        // The image of the folder stays as it is. The state stays when the program ends.
        QVERIFY(contentOf(m_folder.path() + "/disk.img") == pattern(rawdisk::Sectors));
        pc = m_folder.open(json);
        QByteArray whole(rawdisk::written().size(), '?');
        const auto again = rawdisk::open(*pc, rawdisk::First);
        QVERIFY(pc->ReadFile(again, whole.data(), quint32(whole.size()), nullptr));
        QVERIFY(whole == rawdisk::written());
    }

    void tellsItsIdentity()
    {
        Platform::install(m_folder.open(R"({"disks": [{"number": 0, "sectors": 1953525168, "identity":
            {"model": "NorvikNX", "serial": "S1", "firmware": "F123", "smart": "0a00 c2 0000 64 63 1f"}},
            {"number": 4, "sectors": 1}]})"));
        DiskIdentity identity;
        QVERIFY(ReadAtaIdentity(128, &identity));
        QCOMPARE(joined(identity.szModel.text(), identity.szSerial.text(), identity.szFirmware.text(),
                        identity.nTotalLba, identity.nCylinders, identity.bSmartEnabled,
                        identity.nTemperature),
                 "NorvikNX|S1|F123|268435455|16383|1|31");
        DiskIdentity none;
        QVERIFY(ReadAtaIdentity(132, &none));
        QCOMPARE(none.szModel.text(), QString());
        Platform::install(nullptr);
    }

    void logonTaskAndPaths()
    {
        const std::unique_ptr<Platform> pc = m_folder.open("{}");
        pc->CreateLogonTask({"VelmoraSMART", "eve", "C:\\x.exe", "Schedular"});
        pc->DeleteLogonTask("Another");
        QVERIFY(contentOf(kept("logon-task.json")).contains(R"("program": "C:\\x.exe")"));
        pc->DeleteLogonTask("VelmoraSMART");
        QVERIFY(!QFileInfo::exists(kept("logon-task.json")));
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
        QJsonObject both = first;
        for (const QString &key : first.keys())
            both["New" + key] = first.value(key);
        QCOMPARE(QJsonDocument::fromJson(contentOf(file)).object(), both);
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
        m_folder.add("old/more/dates.txt", "d");
        auto pc = m_folder.open(R"({"history": "old"})");
        QCOMPARE(pc->HistoryFolder("/opt/halvane"), kept("history"));
        QCOMPARE(contentOf(kept("history/more/dates.txt")), QByteArray("d"));
        QVERIFY(QFile::remove(kept("history/more/dates.txt")));
        pc = m_folder.open(R"({"history": "old"})");
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
        QCOMPARE(int(QFile::permissions(state)) & 0x0077, 0); // of the group and of others
#endif
        QVERIFY(rawdisk::open(*pc, rawdisk::First, io::GenericRead) != Platform::InvalidHandle);
        pc.reset();
        QVERIFY(!QFileInfo::exists(state));
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList("pc.json"));
    }

private:
    static void play(const QString &name)
    {
        Session session(name);
        const QStringList expected = QString::fromUtf8(contentOf(Samples + name + ".txt")).split('\n');
        QStringList told;
        for (const QString &line : expected.filter(QRegularExpression("^\\$"))) {
            told << line;
            const QString prints = session.does(line);
            if (!QString("@=#").contains(line.at(1)))
                told += prints.split('\n');
        }
        QCOMPARE(told, expected);
        QVERIFY(session.keptWhatItDoesNotKnow());
    }

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
