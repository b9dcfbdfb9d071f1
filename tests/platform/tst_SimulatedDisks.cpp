// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/IoControl.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/Files.h"

#include <QtTest>

#include <cstring>

namespace
{

constexpr quint32 readWrite = io::GenericRead | io::GenericWrite;
const QString FirstDisk = "\\\\.\\PHYSICALDRIVE0";
const QString FifthDisk = "\\\\.\\PHYSICALDRIVE4";

/// Disks and volumes, some of which are not plugged in.
const QByteArray Plugged = R"({
  "disks": [{"number": 0, "sectors": 4096}, {"number": 4, "sectors": 4096, "report": "r.txt"},
            {"number": 5, "sectors": 4096, "present": false}],
  "volumes": [
    {"letter": "C", "size": 512, "extents": [{"disk": 0, "length": 512}]},
    {"letter": "L", "size": 512, "fileSystem": "NTFS", "extents": [{"disk": 4, "length": 512}]},
    {"letter": "N", "size": 512, "extents": [{"disk": 4, "offset": 512, "length": 512}], "present": false},
    {"letter": "P", "size": 512, "extents": [{"disk": 5, "length": 512}]},
    {"letter": "S", "size": 512, "extents": [{"disk": 0, "offset": 512, "length": 512},
                                             {"disk": 4, "offset": 1024, "length": 512}]}],
  "partitions": [{"name": "Disk #0, Partition #0", "disk": 0}, {"name": "Disk #4, Partition #0", "disk": 4}]})";

Platform::RawHandle openRaw(Platform &pc, const QString &name, quint32 access = readWrite)
{
    return pc.CreateFileW(name, access, io::ShareRead | io::ShareWrite, io::OpenExisting);
}

/// The bytes that a transfer moved; -1 if it failed.
int readAt(Platform &pc, Platform::RawHandle handle, qint64 offset, int bytes, QByteArray *data = nullptr)
{
    QByteArray buffer(bytes, '?');
    quint32 moved = 77;
    const bool done = pc.SetFilePointer(handle, offset) && pc.ReadFile(handle, buffer.data(), bytes, &moved);
    if (!done && moved != 0)
        return -2;
    if (data != nullptr)
        *data = buffer.left(static_cast<int>(moved));
    return done ? static_cast<int>(moved) : -1;
}

int writeAt(Platform &pc, Platform::RawHandle handle, qint64 offset, const QByteArray &data)
{
    quint32 moved = 77;
    const bool done =
        pc.SetFilePointer(handle, offset) && pc.WriteFile(handle, data.constData(), data.size(), &moved);
    return done ? static_cast<int>(moved) : -1;
}

} // namespace

/// Disks of a described PC: their sectors, and how they are plugged in and pulled out.
class TestSimulatedDisks : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void reads();
    void writes();
    void opens();
    void imageOfTheFolderStaysAsItIs();
    void volumesLieOnDisks();
    void geometryAndExtents();
    void smartCodes();
    void touches_data();
    void touches();
    void absentIsNowhere();
    void openHandlesFail();

private:
    /// Makes the files that plug things in and out, and waits until the PC has removed them.
    void touch(const QStringList &names);

    std::unique_ptr<DescribedFolder> m_folder;
    std::unique_ptr<SimulatedPlatform> m_pc;
};

void TestSimulatedDisks::init()
{
    m_pc.reset();
    m_folder = std::make_unique<DescribedFolder>();
    m_folder->add("r.txt", "a report\n");
}

void TestSimulatedDisks::reads()
{
    m_pc = m_folder->open(R"({"disks": [{"number": 2, "sectors": 100, "badSectors": [10, [20, 5], [102, 1]]},
                                        {"number": 3, "sectors": 100, "pastEnd": "fail"}]})");
    auto handle = openRaw(*m_pc, "\\\\.\\PHYSICALDRIVE2");
    const auto moved = [&](int sector, int sectors) {
        return readAt(*m_pc, handle, sector * 512, sectors * 512);
    };
    QCOMPARE(moved(8, 2), 1024); // up to a bad sector
    QCOMPARE(moved(8, 3), -1);
    QCOMPARE(moved(24, 1), -1); // the last of a stretch
    QCOMPARE(moved(25, 5), 2560);
    QCOMPARE(moved(98, 8), 1024); // across the end, with a bad sector behind it
    QCOMPARE(moved(100, 1), -1);
    m_pc->CloseHandle(handle);
    QVERIFY(!m_pc->SetFilePointer(handle, 0));
    handle = openRaw(*m_pc, "\\\\.\\PHYSICALDRIVE3");
    QCOMPARE(moved(99, 2), -1);
    QCOMPARE(moved(99, 1), 512);
}

void TestSimulatedDisks::writes()
{
    constexpr qint64 Sectors = 1953525168;
    m_pc = m_folder->open(R"({"disks": [{"number": 0, "sectors": 1953525168, "unwritable": [[50, 2]]}]})");
    const auto handle = openRaw(*m_pc, "\\\\.\\PhysicalDrive0");
    const QByteArray sector(512, 'w');
    QCOMPARE(writeAt(*m_pc, handle, 49 * 512, sector), 512);
    QCOMPARE(writeAt(*m_pc, handle, 49 * 512, sector + sector), -1);
    QCOMPARE(writeAt(*m_pc, handle, (Sectors - 1) * 512, sector + sector), 512);
    QCOMPARE(writeAt(*m_pc, handle, Sectors * 512, sector), -1);
    QByteArray data;
    QCOMPARE(readAt(*m_pc, handle, (Sectors - 2) * 512, 2048, &data), 1024);
    QCOMPARE(data, QByteArray(512, '\0') + sector);
    QCOMPARE(readAt(*m_pc, handle, 50 * 512, 512, &data), 512);
    QCOMPARE(data, QByteArray(512, '\0'));
    // A transfer begins where the one before it ended.
    QVERIFY(m_pc->SetFilePointer(handle, 48 * 512));
    for (int i = 0; i < 2; ++i)
        QVERIFY(m_pc->ReadFile(handle, data.data(), 512, nullptr));
    QCOMPARE(data, sector);
    // Zeros over data read as zeros, whether or not they became a hole.
    constexpr int MiB = 1024 * 1024;
    QCOMPARE(writeAt(*m_pc, handle, MiB, QByteArray(MiB, 'a')), MiB);
    QCOMPARE(writeAt(*m_pc, handle, MiB + 512, QByteArray(MiB / 2, '\0')), MiB / 2);
    QCOMPARE(readAt(*m_pc, handle, MiB, MiB, &data), MiB);
    QCOMPARE(data, QByteArray(512, 'a') + QByteArray(MiB / 2, '\0') + QByteArray(MiB / 2 - 512, 'a'));

    const auto readOnly = openRaw(*m_pc, FirstDisk, io::GenericRead);
    QCOMPARE(writeAt(*m_pc, readOnly, 0, sector), -1);
    QCOMPARE(readAt(*m_pc, readOnly, 0, 512), 512);
}

void TestSimulatedDisks::opens()
{
    m_pc = m_folder->open(
        R"({"disks": [{"number": 0, "sectors": 9}, {"number": 4, "sectors": 9, "opens": false}],
        "volumes": [{"letter": "C", "extents": [{"disk": 0, "length": 512}]},
                    {"letter": "D", "extents": [{"disk": 4, "length": 512}]},
                    {"letter": "E", "type": "removable"}]})");
    for (const char *name : {"\\\\.\\PHYSICALDRIVE0", "\\\\.\\D:", "\\\\.\\c:"})
        QVERIFY2(openRaw(*m_pc, name) != Platform::InvalidHandle, name);
    for (const char *name :
         {"\\\\.\\PHYSICALDRIVE2", "\\\\.\\PHYSICALDRIVE4", "\\\\.\\Z:", "\\\\.\\E:", "/etc/hostname"})
        QCOMPARE(openRaw(*m_pc, name), Platform::InvalidHandle);
    QCOMPARE(m_pc->CreateFileW(FirstDisk, readWrite, 7, io::CreateNew), Platform::InvalidHandle);
    QVERIFY(m_pc->IsAccessDenied(FifthDisk) && !m_pc->IsAccessDenied(FirstDisk));
}

void TestSimulatedDisks::imageOfTheFolderStaysAsItIs()
{
    const QByteArray image = QByteArray(512, 'i') + QByteArray(200000, '\0') + QByteArray(512, 'j');
    m_folder->add("disk.img", image);
    const QByteArray json = R"({"disks": [{"number": 0, "sectors": 1000, "image": "disk.img"}]})";
    m_pc = m_folder->open(json);
    const auto handle = openRaw(*m_pc, FirstDisk);
    QByteArray data;
    QCOMPARE(readAt(*m_pc, handle, 0, image.size(), &data), image.size());
    QCOMPARE(data, image);
    QCOMPARE(readAt(*m_pc, handle, 999 * 512, 512), 512); // the image grew to the disk's size
    QCOMPARE(writeAt(*m_pc, handle, 0, QByteArray(512, 'n')), 512);
    QCOMPARE(contentOf(m_folder->path() + "/disk.img"), image);
    // The state stays when the program ends.
    m_pc = m_folder->open(json);
    QCOMPARE(readAt(*m_pc, openRaw(*m_pc, FirstDisk), 0, 512, &data), 512);
    QCOMPARE(data, QByteArray(512, 'n'));
}

void TestSimulatedDisks::volumesLieOnDisks()
{
    m_folder->add("a.img", QByteArray(1024, '-') + QByteArray(1024, 'A'));
    m_folder->add("b.img", QByteArray(1024, 'B'));
    m_pc = m_folder->open(R"({
        "disks": [{"number": 0, "sectors": 8, "image": "a.img"},
                  {"number": 1, "sectors": 8, "image": "b.img", "badSectors": [1]}],
        "volumes": [{"letter": "S", "extents": [{"disk": 0, "offset": 1024, "length": 1024},
                                                {"disk": 1, "offset": 0, "length": 1024}]},
                    {"letter": "T", "extents": [{"disk": 0, "offset": 3584, "length": 4096}]}]})");
    const auto spanned = openRaw(*m_pc, "\\\\.\\S:");
    QByteArray data;
    QCOMPARE(readAt(*m_pc, spanned, 512, 1024, &data), 1024);
    QCOMPARE(data, QByteArray(512, 'A') + QByteArray(512, 'B'));
    QCOMPARE(readAt(*m_pc, spanned, 512, 1536), -1); // includes the bad sector of the second disk
    QCOMPARE(readAt(*m_pc, spanned, 2048, 512), -1); // the volume ends before the disk
    QCOMPARE(writeAt(*m_pc, spanned, 0, QByteArray(512, 'n')), 512);
    QCOMPARE(readAt(*m_pc, openRaw(*m_pc, FirstDisk), 1024, 512, &data), 512);
    QCOMPARE(data, QByteArray(512, 'n'));
    const auto tooLong = openRaw(*m_pc, "\\\\.\\T:");
    QCOMPARE(readAt(*m_pc, tooLong, 0, 512), 512);
    QCOMPARE(readAt(*m_pc, tooLong, 512, 512), -1); // there is no disk behind it
}

void TestSimulatedDisks::geometryAndExtents()
{
    m_pc = m_folder->open(R"({
        "disks": [{"number": 0, "sectors": 160650, "media": "removable", "bytesPerSector": 4096},
                  {"number": 1, "sectors": 1, "media": "tape"}],
        "volumes": [{"letter": "S", "extents": [{"disk": 1, "offset": 0, "length": 512},
                                                {"disk": 0, "offset": 4096, "length": 8192}]}]})");
    QByteArray told(1024, '\0');
    quint32 returned = 0;
    const auto asks = [&](const QString &device, quint32 code, quint32 room) {
        return m_pc->DeviceIoControl(openRaw(*m_pc, device, io::GenericRead), code, nullptr, 0, told.data(),
                                     room, &returned);
    };
    QVERIFY(asks(FirstDisk, io::DiskGetDriveGeometryEx, 40));
    QCOMPARE(returned, 40u);
    io::DiskGeometryEx size{};
    std::memcpy(&size, told.constData(), sizeof size);
    QCOMPARE(size.diskSize, std::int64_t(160650) * 512);
    QCOMPARE(size.geometry.mediaType, io::MediaRemovable);
    QCOMPARE(size.geometry.bytesPerSector, 4096u);
    QVERIFY(!asks(FirstDisk, io::DiskGetDriveGeometryEx, 24));
    QVERIFY(!asks(FirstDisk, io::VolumeGetVolumeDiskExtents, 1024));
    QVERIFY(asks("\\\\.\\PHYSICALDRIVE1", io::DiskGetDriveGeometry, 24));
    std::memcpy(&size, told.constData(), sizeof size.geometry);
    QCOMPARE(size.geometry.mediaType, io::MediaUnknown);

    QVERIFY(asks("\\\\.\\S:", io::VolumeGetVolumeDiskExtents, 1024));
    QCOMPARE(returned, 56u);
    QCOMPARE(int(told.at(0)), 2);
    io::DiskExtent second{};
    std::memcpy(&second, told.constData() + 32, sizeof second);
    QCOMPARE(second.diskNumber, 0u);
    QCOMPARE(second.startingOffset, std::int64_t(4096));
    QCOMPARE(second.extentLength, std::int64_t(8192));
}

void TestSimulatedDisks::smartCodes()
{
    m_pc = m_folder->open(R"({"disks": [{"number": 0, "sectors": 1953525168,
         "identity": {"model": "Norvik NX", "serial": "S1", "firmware": "F123", "smart": "0a00c20b"}},
        {"number": 4, "sectors": 1}]})");
    io::SendCmdInParams in{};
    in.regs.command = 0xEC;
    QByteArray out(528, '?');
    const auto ask = [&](quint32 code, const QString &disk = FirstDisk) {
        return m_pc->DeviceIoControl(openRaw(*m_pc, disk), code, &in, sizeof(in), out.data(), 528, nullptr);
    };
    QVERIFY(ask(io::SmartGetVersion));
    QCOMPARE(int(reinterpret_cast<const io::GetVersionInParams *>(out.constData())->ideDeviceMap), 1);
    QVERIFY(ask(io::SmartRcvDriveData));
    const QByteArray identify = out.mid(16);
    QCOMPARE(identify.mid(54, 40), QByteArray("oNvrkiN  X").leftJustified(40));
    QCOMPARE(identify.mid(20, 20), QByteArray("1S").leftJustified(20));
    QCOMPARE(identify.mid(46, 8), QByteArray("1F32    "));
    QCOMPARE(identify.mid(120, 4), QByteArray("\xff\xff\xff\x0f"));
    QCOMPARE(identify.mid(2, 2), QByteArray("\xff\x3f"));
    in.regs.command = 0xB0;
    in.regs.features = 0xD8;
    QVERIFY(ask(io::SmartSendDriveCommand));
    QVERIFY(!ask(io::SmartRcvDriveData));
    in.regs.features = 0xD0;
    QVERIFY(ask(io::SmartRcvDriveData));
    QCOMPARE(out.mid(16), QByteArray("\x0a\0\xc2\x0b", 4).leftJustified(512, '\0'));
    in.driveNumber = 1;
    QVERIFY(!ask(io::SmartRcvDriveData));
    QVERIFY(!ask(io::SmartGetVersion, FifthDisk));
}

void TestSimulatedDisks::touch(const QStringList &names)
{
    const QString place = m_folder->state() + "/volumes-changed/";
    for (const QString &name : names)
        QVERIFY(writeFile(place + name, {}));
    for (const QString &name : names)
        QTRY_VERIFY(!QFileInfo::exists(place + name));
}

void TestSimulatedDisks::touches_data()
{
    QTest::addColumn<QString>("notices"); // + arrival, - removal
    QTest::addColumn<QString>("letters");
    // Named after the touches; those of one step have blanks between them.
    QTest::newRow("remove;arrive") << "-+"
                                   << "CLS";
    QTest::newRow("remove-l;remove-L") << "-"
                                       << "CS";
    QTest::newRow("remove-L;arrive-l") << "-+"
                                       << "CLS";
    QTest::newRow("arrive-N;arrive-C;remove-X;remove-disk99") << "+"
                                                              << "CLNS";
    QTest::newRow("remove-disk4;arrive-disk4") << "--++"
                                               << "CLS";
    QTest::newRow("remove-L;remove-disk4;arrive-disk4") << "--+"
                                                        << "CS";
    QTest::newRow("remove-disk4;arrive-N;arrive-disk4") << "--+++"
                                                        << "CLNS";
    QTest::newRow("arrive-disk5") << "+"
                                  << "CLPS";
    QTest::newRow("arrive-disk4 remove-disk4") << "--++"
                                               << "CLS";
}

void TestSimulatedDisks::touches()
{
    m_pc = m_folder->open(Plugged);
    const QString place = m_folder->state() + "/volumes-changed/";
    QVERIFY(writeFile(place + "arrive-N", {})); // from an earlier run
    QString heard;
    connect(m_pc->deviceNotifier(), &DeviceNotifier::deviceChange, this, [&](quint32 event, quint32 type) {
        QCOMPARE(type, 2u);
        heard += QLatin1Char(event == 0x8000 ? '+' : event == 0x8004 ? '-' : '?');
    });
    QVERIFY(writeFile(place + "else", {}));
    for (const QString &step : QString(QTest::currentDataTag()).split(';'))
        touch(step.split(' '));
    QVERIFY(QFileInfo::exists(place + "else"));
    QTEST(heard, "notices");
    QTEST(m_pc->GetLogicalDriveStringsW().join(QString()).remove(":\\"), "letters");
}

void TestSimulatedDisks::absentIsNowhere()
{
    m_pc = m_folder->open(Plugged);
    m_pc->deviceNotifier();
    const auto report = [this] { return outputOf(*m_pc, "smartctl -a /dev/sde"); };
    /// The devices that open, and the rows of the three tables, in UTF-16.
    const auto seen = [this] {
        QList<int> counts;
        for (const char *name : {"\\\\.\\PHYSICALDRIVE0", "\\\\.\\PHYSICALDRIVE4", "\\\\.\\L:", "\\\\.\\S:"})
            counts << (openRaw(*m_pc, name) != Platform::InvalidHandle);
        for (const char *what : {"diskdrive", "logicaldisk", "partition"})
            counts << outputOf(*m_pc, QString("WMIC %1 get Name").arg(what)).count('\n') - 2;
        return counts;
    };
    const QList<int> all{1, 1, 1, 1, 2, 3, 2};
    QCOMPARE(seen(), all);
    QCOMPARE(report(), QByteArray("a report\n"));
    touch({"remove-disk4"});
    QCOMPARE(seen(), QList<int>({1, 0, 0, 0, 1, 1, 1}));
    QVERIFY(report().contains("/dev/sde failed: No such file or directory"));
    touch({"arrive-disk4"});
    QCOMPARE(seen(), all);
    QCOMPARE(report(), QByteArray("a report\n"));

    const QString root = "L:\\";
    QVERIFY(m_pc->GetVolumeInformationW(root, nullptr, nullptr));
    touch({"remove-L"});
    quint64 size = 0;
    QVERIFY(!m_pc->GetVolumeInformationW(root, nullptr, nullptr));
    QVERIFY(!m_pc->GetDiskFreeSpaceExW(root, &size, nullptr));
    QCOMPARE(m_pc->GetDriveTypeW(root), quint32(io::DriveNoRootDir));
    QCOMPARE(seen(), QList<int>({1, 1, 0, 1, 2, 2, 2}));
}

void TestSimulatedDisks::openHandlesFail()
{
    m_pc = m_folder->open(Plugged);
    m_pc->deviceNotifier();
    const auto disk = openRaw(*m_pc, FifthDisk);
    const auto volume = openRaw(*m_pc, "\\\\.\\L:");
    const auto works = [this](Platform::RawHandle handle) {
        QByteArray told(64, '\0');
        const bool writes = writeAt(*m_pc, handle, 0, QByteArray(512, 'x')) > 0;
        const bool reads = readAt(*m_pc, handle, 0, 512) > 0;
        const bool tells =
            m_pc->DeviceIoControl(handle, io::DiskGetDriveGeometryEx, nullptr, 0, told.data(), 64, nullptr);
        return QList<bool>{writes, reads, tells, !m_pc->IsGone(handle)};
    };
    const QList<bool> all{true, true, true, true};
    const QList<bool> none{false, false, false, false};
    QCOMPARE(works(disk) + works(volume), all + all);
    touch({"remove-L"});
    QCOMPARE(works(disk) + works(volume), all + none);
    touch({"arrive-L", "remove-disk4"});
    QCOMPARE(works(disk) + works(volume), none + none);
}

QTEST_GUILESS_MAIN(TestSimulatedDisks)
#include "tst_SimulatedDisks.moc"
