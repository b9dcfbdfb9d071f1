// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/IoControl.h"
#include "tests/platform/DescribedFolder.h"

#include <QtTest>

#include <cstring>

namespace
{

constexpr quint32 readWrite = io::GenericRead | io::GenericWrite;

Platform::RawHandle openRaw(Platform &pc, const char *name, quint32 access = readWrite)
{
    return pc.CreateFileW(QString::fromLatin1(name), access, io::ShareRead | io::ShareWrite,
                          io::OpenExisting);
}

/// Bytes that a transfer moved; -1 if it failed.
int readAt(Platform &pc, Platform::RawHandle handle, qint64 offset, quint32 bytes, QByteArray *data = nullptr)
{
    QByteArray buffer(static_cast<int>(bytes), '?');
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
    const bool done = pc.SetFilePointer(handle, offset) &&
                      pc.WriteFile(handle, data.constData(), static_cast<quint32>(data.size()), &moved);
    return done ? static_cast<int>(moved) : -1;
}

} // namespace

class TestSimulatedDisks : public QObject
{
    Q_OBJECT

private slots:
    void reads_data();
    void reads();
    void writes();
    void failsPastTheEnd();
    void opens_data();
    void opens();
    void imageOfTheFolderStaysAsItIs();
    void bigDisk();
    void volumesLieOnDisks();
    void geometryAndExtents();
    void smartCodes();
};

void TestSimulatedDisks::reads_data()
{
    QTest::addColumn<qint64>("sector");
    QTest::addColumn<int>("sectors");
    QTest::addColumn<int>("moved"); // bytes; -1: fails
    QTest::newRow("start") << qint64(0) << 8 << 4096;
    QTest::newRow("up to a bad sector") << qint64(8) << 2 << 1024;
    QTest::newRow("a bad sector last") << qint64(8) << 3 << -1;
    QTest::newRow("a bad sector first") << qint64(10) << 1 << -1;
    QTest::newRow("behind a bad sector") << qint64(11) << 1 << 512;
    QTest::newRow("in a bad stretch") << qint64(22) << 1 << -1;
    QTest::newRow("across a bad stretch") << qint64(15) << 20 << -1;
    QTest::newRow("behind a bad stretch") << qint64(25) << 5 << 2560;
    QTest::newRow("up to the end") << qint64(90) << 10 << 5120;
    QTest::newRow("across the end") << qint64(99) << 2 << 512;
    QTest::newRow("across the end, a bad sector behind it") << qint64(98) << 8 << 1024;
    QTest::newRow("at the end") << qint64(100) << 1 << -1;
    QTest::newRow("far behind the end") << qint64(4000) << 1 << -1;
}

void TestSimulatedDisks::reads()
{
    QFETCH(qint64, sector);
    QFETCH(int, sectors);
    QFETCH(int, moved);
    const DescribedFolder folder;
    const auto pc =
        folder.open(R"({"disks": [{"number": 2, "sectors": 100, "badSectors": [10, [20, 5], [102, 1]]}]})");
    const auto handle = openRaw(*pc, "\\\\.\\PHYSICALDRIVE2");
    QVERIFY(handle != Platform::InvalidHandle);
    QCOMPARE(readAt(*pc, handle, sector * 512, static_cast<quint32>(sectors) * 512), moved);
    pc->CloseHandle(handle);
    QVERIFY(!pc->SetFilePointer(handle, 0));
}

void TestSimulatedDisks::writes()
{
    const DescribedFolder folder;
    const auto pc = folder.open(R"({"disks": [{"number": 0, "sectors": 100, "unwritable": [[50, 2]]}]})");
    const auto handle = openRaw(*pc, "\\\\.\\PhysicalDrive0");
    const QByteArray sector(512, 'w');
    QCOMPARE(writeAt(*pc, handle, 49 * 512, sector), 512);
    QCOMPARE(writeAt(*pc, handle, 49 * 512, sector + sector), -1);
    QCOMPARE(writeAt(*pc, handle, 51 * 512, sector), -1);
    QCOMPARE(writeAt(*pc, handle, 99 * 512, sector + sector), 512);
    QCOMPARE(writeAt(*pc, handle, 100 * 512, sector), -1);
    QByteArray data;
    QCOMPARE(readAt(*pc, handle, 98 * 512, 2048, &data), 1024);
    QCOMPARE(data, QByteArray(512, '\0') + sector);
    QCOMPARE(readAt(*pc, handle, 50 * 512, 512, &data), 512);
    QCOMPARE(data, QByteArray(512, '\0'));
    // A transfer begins where the one before it ended.
    quint32 moved = 0;
    QVERIFY(pc->SetFilePointer(handle, 48 * 512));
    QVERIFY(pc->ReadFile(handle, data.data(), 512, &moved) &&
            pc->ReadFile(handle, data.data(), 512, nullptr));
    QCOMPARE(data, sector);
    QCOMPARE(QFileInfo(pc->imageFile(0)).size(), qint64(51200));

    const auto readOnly = openRaw(*pc, "\\\\.\\PHYSICALDRIVE0", io::GenericRead);
    QCOMPARE(writeAt(*pc, readOnly, 0, sector), -1);
    QCOMPARE(readAt(*pc, readOnly, 0, 512), 512);
}

void TestSimulatedDisks::failsPastTheEnd()
{
    const DescribedFolder folder;
    const auto pc = folder.open(R"({"disks": [{"number": 0, "sectors": 100, "pastEnd": "fail"}]})");
    const auto handle = openRaw(*pc, "\\\\.\\PHYSICALDRIVE0");
    QCOMPARE(readAt(*pc, handle, 99 * 512, 1024), -1);
    QCOMPARE(readAt(*pc, handle, 99 * 512, 512), 512);
    QCOMPARE(writeAt(*pc, handle, 99 * 512, QByteArray(1024, 'x')), -1);
}

void TestSimulatedDisks::opens_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<quint32>("disposition");
    QTest::addColumn<bool>("opens");
    QTest::newRow("disk") << "\\\\.\\PHYSICALDRIVE0" << io::OpenExisting << true;
    QTest::newRow("no such disk") << "\\\\.\\PHYSICALDRIVE2" << io::OpenExisting << false;
    QTest::newRow("locked disk") << "\\\\.\\PHYSICALDRIVE1" << io::OpenExisting << false;
    QTest::newRow("volume of a locked disk") << "\\\\.\\D:" << io::OpenExisting << true;
    QTest::newRow("small letter") << "\\\\.\\c:" << io::OpenExisting << true;
    QTest::newRow("no such volume") << "\\\\.\\Z:" << io::OpenExisting << false;
    QTest::newRow("no extents") << "\\\\.\\E:" << io::OpenExisting << false;
    QTest::newRow("other device") << "\\\\.\\SMARTVSD" << io::CreateNew << false;
    QTest::newRow("plain file") << "/etc/hostname" << io::OpenExisting << false;
    QTest::newRow("empty") << "" << io::OpenExisting << false;
}

void TestSimulatedDisks::opens()
{
    QFETCH(QString, name);
    QFETCH(quint32, disposition);
    QFETCH(bool, opens);
    const DescribedFolder folder;
    const auto pc =
        folder.open(R"({"disks": [{"number": 0, "sectors": 9}, {"number": 1, "sectors": 9, "opens": false}],
        "volumes": [{"letter": "C", "extents": [{"disk": 0, "offset": 0, "length": 512}]},
                    {"letter": "D", "extents": [{"disk": 1, "offset": 0, "length": 512}]},
                    {"letter": "E", "type": "removable"}]})");
    QCOMPARE(pc->CreateFileW(name, readWrite, 7, disposition) != Platform::InvalidHandle, opens);
}

void TestSimulatedDisks::imageOfTheFolderStaysAsItIs()
{
    const DescribedFolder folder;
    const QByteArray image = QByteArray(512, 'i') + QByteArray(200000, '\0') + QByteArray(512, 'j');
    folder.add(QStringLiteral("disk.img"), image);
    const QByteArray json = R"({"disks": [{"number": 0, "sectors": 1000, "image": "disk.img"}]})";
    auto pc = folder.open(json);
    auto handle = openRaw(*pc, "\\\\.\\PHYSICALDRIVE0");
    QByteArray data;
    QCOMPARE(readAt(*pc, handle, 0, static_cast<quint32>(image.size()), &data), image.size());
    QCOMPARE(data, image);
    QCOMPARE(readAt(*pc, handle, 999 * 512, 512), 512); // the image grew to the disk's size
    QCOMPARE(writeAt(*pc, handle, 0, QByteArray(512, 'n')), 512);
    QCOMPARE(DescribedFolder::contents(folder.path() + QStringLiteral("/disk.img")), image);
    // The state stays when the program ends.
    pc = folder.open(json);
    handle = openRaw(*pc, "\\\\.\\PHYSICALDRIVE0");
    QCOMPARE(readAt(*pc, handle, 0, 512, &data), 512);
    QCOMPARE(data, QByteArray(512, 'n'));
}

void TestSimulatedDisks::bigDisk()
{
    const DescribedFolder folder;
    const auto pc =
        folder.open(R"({"disks": [{"number": 0, "sectors": 1953525168, "badSectors": [1953525166]}]})");
    const auto handle = openRaw(*pc, "\\\\.\\PHYSICALDRIVE0");
    const qint64 last = (1953525168LL - 1) * 512;
    QCOMPARE(writeAt(*pc, handle, last, QByteArray(512, 'z')), 512);
    QByteArray data;
    QCOMPARE(readAt(*pc, handle, last, 512, &data), 512);
    QCOMPARE(data, QByteArray(512, 'z'));
    QCOMPARE(readAt(*pc, handle, last - 512, 512), -1);
    // Zeros over data read as zeros, whether or not they became a hole.
    QCOMPARE(writeAt(*pc, handle, 1 << 20, QByteArray(1 << 20, 'a')), 1 << 20);
    QCOMPARE(writeAt(*pc, handle, (1 << 20) + 512, QByteArray(512 * 1024, '\0')), 512 * 1024);
    QCOMPARE(readAt(*pc, handle, 1 << 20, 1 << 20, &data), 1 << 20);
    QCOMPARE(data, QByteArray(512, 'a') + QByteArray(512 * 1024, '\0') + QByteArray(512 * 1024 - 512, 'a'));
}

void TestSimulatedDisks::volumesLieOnDisks()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("a.img"), QByteArray(1024, '-') + QByteArray(1024, 'A'));
    folder.add(QStringLiteral("b.img"), QByteArray(1024, 'B'));
    const auto pc = folder.open(R"({
        "disks": [{"number": 0, "sectors": 8, "image": "a.img"},
                  {"number": 1, "sectors": 8, "image": "b.img", "badSectors": [1]}],
        "volumes": [{"letter": "S", "extents": [{"disk": 0, "offset": 1024, "length": 1024},
                                                {"disk": 1, "offset": 0, "length": 1024}]},
                    {"letter": "T", "extents": [{"disk": 0, "offset": 3584, "length": 4096}]}]})");
    const auto spanned = openRaw(*pc, "\\\\.\\S:");
    QByteArray data;
    QCOMPARE(readAt(*pc, spanned, 512, 1024, &data), 1024);
    QCOMPARE(data, QByteArray(512, 'A') + QByteArray(512, 'B'));
    QCOMPARE(readAt(*pc, spanned, 512, 1536), -1); // includes the bad sector of the second disk
    QCOMPARE(readAt(*pc, spanned, 2048, 512), -1); // the volume ends before the disk
    QCOMPARE(writeAt(*pc, spanned, 0, QByteArray(512, 'n')), 512);
    QCOMPARE(readAt(*pc, openRaw(*pc, "\\\\.\\PHYSICALDRIVE0"), 1024, 512, &data), 512);
    QCOMPARE(data, QByteArray(512, 'n'));
    const auto tooLong = openRaw(*pc, "\\\\.\\T:");
    QCOMPARE(readAt(*pc, tooLong, 0, 512), 512);
    QCOMPARE(readAt(*pc, tooLong, 512, 512), -1); // there is no disk behind it
}

void TestSimulatedDisks::geometryAndExtents()
{
    const DescribedFolder folder;
    const auto pc = folder.open(R"({
        "disks": [{"number": 0, "sectors": 160650, "media": "removable", "bytesPerSector": 4096},
                  {"number": 1, "sectors": 1, "media": "tape"}],
        "volumes": [{"letter": "S", "extents": [{"disk": 1, "offset": 0, "length": 512},
                                                {"disk": 0, "offset": 4096, "length": 8192}]}]})");
    const auto disk = openRaw(*pc, "\\\\.\\PHYSICALDRIVE0");
    io::DiskGeometryEx size{};
    quint32 returned = 0;
    QVERIFY(pc->DeviceIoControl(disk, io::DiskGetDriveGeometryEx, nullptr, 0, &size, 40, &returned));
    QCOMPARE(returned, 40u);
    QCOMPARE(size.diskSize, std::int64_t(160650) * 512);
    QCOMPARE(size.geometry.mediaType, io::MediaRemovable);
    QCOMPARE(size.geometry.bytesPerSector, 4096u);
    QVERIFY(!pc->DeviceIoControl(disk, io::DiskGetDriveGeometryEx, nullptr, 0, &size, 24, nullptr));
    QVERIFY(!pc->DeviceIoControl(disk, io::VolumeGetVolumeDiskExtents, nullptr, 0, &size, 40, nullptr));
    io::DiskGeometry geometry{};
    const auto tape = openRaw(*pc, "\\\\.\\PHYSICALDRIVE1");
    QVERIFY(pc->DeviceIoControl(tape, io::DiskGetDriveGeometry, nullptr, 0, &geometry, sizeof(geometry),
                                nullptr));
    QCOMPARE(geometry.mediaType, io::MediaUnknown);

    const auto volume = openRaw(*pc, "\\\\.\\S:", io::GenericRead);
    char buffer[1024];
    QVERIFY(pc->DeviceIoControl(volume, io::VolumeGetVolumeDiskExtents, nullptr, 0, buffer, 1024, &returned));
    QCOMPARE(returned, 56u);
    quint32 count = 0;
    io::DiskExtent second{};
    std::memcpy(&count, buffer, sizeof(count));
    std::memcpy(&second, buffer + 32, sizeof(second));
    QCOMPARE(count, 2u);
    QCOMPARE(second.diskNumber, 0u);
    QCOMPARE(second.startingOffset, std::int64_t(4096));
    QCOMPARE(second.extentLength, std::int64_t(8192));
}

void TestSimulatedDisks::smartCodes()
{
    const DescribedFolder folder;
    const auto pc = folder.open(R"({"disks": [
        {"number": 0, "sectors": 1953525168,
         "identity": {"model": "Norvik NX", "serial": "S1", "firmware": "F123", "smart": "0a00c20b"}},
        {"number": 1, "sectors": 1}]})");
    const auto disk = openRaw(*pc, "\\\\.\\PHYSICALDRIVE0");
    io::GetVersionInParams version{};
    QVERIFY(pc->DeviceIoControl(disk, io::SmartGetVersion, nullptr, 0, &version, sizeof(version), nullptr));
    QCOMPARE(int(version.ideDeviceMap), 1);
    io::SendCmdInParams in{};
    in.regs.command = 0xEC;
    QByteArray out(528, '?');
    const auto ask = [&](quint32 code, Platform::RawHandle handle) {
        return pc->DeviceIoControl(handle, code, &in, sizeof(in), out.data(), 528, nullptr);
    };
    QVERIFY(ask(io::SmartRcvDriveData, disk));
    const QByteArray identify = out.mid(16);
    QCOMPARE(identify.mid(54, 40), QByteArray("oNvrkiN  X").leftJustified(40));
    QCOMPARE(identify.mid(20, 20), QByteArray("1S").leftJustified(20));
    QCOMPARE(identify.mid(46, 8), QByteArray("1F32    "));
    QCOMPARE(identify.mid(120, 4), QByteArray("\xff\xff\xff\x0f"));
    QCOMPARE(identify.mid(2, 2), QByteArray("\xff\x3f"));
    in.regs.command = 0xB0;
    in.regs.features = 0xD8;
    QVERIFY(ask(io::SmartSendDriveCommand, disk));
    QVERIFY(!ask(io::SmartRcvDriveData, disk));
    in.regs.features = 0xD0;
    QVERIFY(ask(io::SmartRcvDriveData, disk));
    QCOMPARE(out.mid(16), QByteArray("\x0a\0\xc2\x0b", 4).leftJustified(512, '\0'));
    in.driveNumber = 1;
    QVERIFY(!ask(io::SmartRcvDriveData, disk));
    const auto silent = openRaw(*pc, "\\\\.\\PHYSICALDRIVE1");
    QVERIFY(
        !pc->DeviceIoControl(silent, io::SmartGetVersion, nullptr, 0, &version, sizeof(version), nullptr));
}

QTEST_GUILESS_MAIN(TestSimulatedDisks)
#include "tst_SimulatedDisks.moc"
