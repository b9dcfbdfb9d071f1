// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/AtaIdentity.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/platform/RawDisk.h"

using rawdisk::First;

namespace
{

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

} // namespace

/// Disks of a described PC: their sectors, and how they are plugged in and pulled out.
class TestSimulatedDisks : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pc.reset();
        m_folder = std::make_unique<DescribedFolder>();
        m_folder->add("r.txt", "a report\n");
    }

    void isADiskLikeAnother()
    {
        const QByteArray json = R"({"disks": [{"number": 0, "sectors": 2049, "image": "disk.img"}]})";
        m_folder->add("disk.img", pattern(rawdisk::Sectors));
        m_pc = m_folder->open(json);
        const auto handle = open(First);
        rawdisk::checkReads(*m_pc, handle);
        rawdisk::checkWrites(*m_pc, handle, rawdisk::Sectors - 1);
        QVERIFY(contentOf(m_pc->imageFile(0)) == rawdisk::written());
        QCOMPARE(open("/etc/hostname"), Platform::InvalidHandle);
        rawdisk::checkNoHandles(*m_pc, handle);
        QCOMPARE(m_pc->CreateFileW(First, rawdisk::ReadWrite, 7, io::CreateNew), Platform::InvalidHandle);
        // The image of the folder stays as it is. The state stays when the program ends.
        QVERIFY(contentOf(m_folder->path() + "/disk.img") == pattern(rawdisk::Sectors));
        m_pc = m_folder->open(json);
        QCOMPARE(readAt(open(First), 3 * 512, 512), 512);
        QCOMPARE(m_data, QByteArray(512, 'w'));
    }

    void failsWhereItIsDescribed()
    {
        m_pc = m_folder->open(R"({"disks": [
            {"number": 0, "sectors": 100, "badSectors": [[22, 2], 10, [20, 3], [23, 2], [102, 1]],
             "unwritable": [[50, 2]]},
            {"number": 3, "sectors": 100, "pastEnd": "fail"}, {"number": 4, "sectors": 9, "opens": false}]})");
        auto handle = open(First);
        const auto moved = [&](int sector, int sectors) {
            return readAt(handle, sector * 512, sectors * 512);
        };
        QCOMPARE(moved(8, 2), 1024); // up to a bad sector
        QCOMPARE(moved(8, 3), -1);
        QCOMPARE(moved(11, 9), 4608);
        QCOMPARE(moved(20, 1), -1); // the first and the last of a stretch
        QCOMPARE(moved(24, 1), -1);
        QCOMPARE(moved(25, 5), 2560);
        QCOMPARE(moved(98, 8), 1024); // across the end, with a bad sector behind it
        const QByteArray sector(512, 'w');
        QCOMPARE(writeAt(handle, 49 * 512, sector + sector), -1);
        QCOMPARE(writeAt(handle, 51 * 512, sector), -1);
        QCOMPARE(writeAt(handle, 52 * 512, sector), 512);
        QCOMPARE(moved(51, 2), 1024);
        QCOMPARE(m_data, QByteArray(512, '\0') + sector);
        handle = open("\\\\.\\PhysicalDrive3");
        QCOMPARE(moved(99, 2), -1);
        QCOMPARE(moved(99, 1), 512);
        QCOMPARE(open(FifthDisk), Platform::InvalidHandle);
        QVERIFY(m_pc->IsAccessDenied(FifthDisk) && !m_pc->IsAccessDenied(First));
    }

    /// Zeros over data read as zeros, whether or not they became a hole.
    void largeDiskWithHoles()
    {
        constexpr int MiB = 1024 * 1024;
        m_pc = m_folder->open(R"({"disks": [{"number": 0, "sectors": 1953525168}]})");
        const auto handle = open(First);
        QCOMPARE(writeAt(handle, 1953525167LL * 512, QByteArray(1024, 'w')), 512);
        QCOMPARE(readAt(handle, 1953525166LL * 512, 2048), 1024);
        QCOMPARE(m_data, QByteArray(512, '\0') + QByteArray(512, 'w'));
        QCOMPARE(writeAt(handle, MiB, QByteArray(MiB, 'a')), MiB);
        QCOMPARE(writeAt(handle, MiB + 512, QByteArray(MiB / 2, '\0')), MiB / 2);
        QCOMPARE(readAt(handle, MiB, MiB), MiB);
        QCOMPARE(m_data, QByteArray(512, 'a') + QByteArray(MiB / 2, '\0') + QByteArray(MiB / 2 - 512, 'a'));
    }

    void volumesLieOnDisks()
    {
        m_folder->add("a.img", QByteArray(1024, '-') + QByteArray(1024, 'A'));
        m_folder->add("b.img", QByteArray(1024, 'B'));
        m_pc = m_folder->open(R"({
            "disks": [{"number": 0, "sectors": 8, "image": "a.img"},
                      {"number": 1, "sectors": 8, "image": "b.img", "badSectors": [1]}],
            "volumes": [{"letter": "S", "extents": [{"disk": 0, "offset": 1024, "length": 1024},
                                                    {"disk": 1, "offset": 0, "length": 1024}]},
                        {"letter": "T", "extents": [{"disk": 0, "offset": 3584, "length": 4096}]},
                        {"letter": "E", "type": "removable"}]})");
        const auto spanned = open("\\\\.\\s:");
        QCOMPARE(readAt(spanned, 512, 1024), 1024);
        QCOMPARE(m_data, QByteArray(512, 'A') + QByteArray(512, 'B'));
        QCOMPARE(readAt(spanned, 1024, 512), 512); // the second disk alone
        QCOMPARE(readAt(spanned, 512, 1536), -1);  // includes the bad sector of the second disk
        QCOMPARE(readAt(spanned, 2048, 512), -1);  // the volume ends before the disk
        QCOMPARE(writeAt(spanned, 0, QByteArray(512, 'n')), 512);
        QCOMPARE(readAt(open(First), 1024, 512), 512);
        QCOMPARE(m_data, QByteArray(512, 'n'));
        const auto tooLong = open("\\\\.\\T:");
        QCOMPARE(readAt(tooLong, 0, 512), 512);
        QCOMPARE(readAt(tooLong, 512, 512), -1); // there is no disk behind it
        QCOMPARE(open("\\\\.\\E:"), Platform::InvalidHandle);

        QByteArray told(1024, '\0');
        quint32 returned = 0;
        QVERIFY(m_pc->DeviceIoControl(spanned, io::VolumeGetVolumeDiskExtents, nullptr, 0, told.data(), 1024,
                                      &returned));
        const io::DiskExtent second{1, 0, 0, 1024};
        QCOMPARE(told.left(int(returned)).right(sizeof second),
                 QByteArray(reinterpret_cast<const char *>(&second), sizeof second));
        QCOMPARE(int(told.at(0)), 2);
    }

    void tellsItsIdentity()
    {
        Platform::install(m_folder->open(R"({"disks": [{"number": 0, "sectors": 1953525168, "identity":
            {"model": "NorvikNX", "serial": "S1", "firmware": "F123", "smart": "0a00 c2 0000 64 63 1f"}},
            {"number": 4, "sectors": 1}]})"));
        DiskIdentity identity;
        QVERIFY(ReadAtaIdentity(128, &identity));
        QCOMPARE(identity.szModel.text() + ' ' + identity.szSerial.text() + ' ' + identity.szFirmware.text(),
                 "NorvikNX S1 F123");
        QCOMPARE(identity.nTotalLba, 0x0FFFFFFFu);
        QCOMPARE(int(identity.nCylinders), 16383);
        QCOMPARE(int(identity.bSmartEnabled), 1);
        QCOMPARE(identity.nTemperature, 31u);
        DiskIdentity none;
        QVERIFY(ReadAtaIdentity(132, &none));
        QCOMPARE(none.szModel.text(), QString());
    }

    void touches_data()
    {
        QTest::addColumn<QString>("notices"); // + arrival, - removal
        QTest::addColumn<QString>("letters");
        // Named after the touches; those of one step have blanks between them.
        const auto row = [](const char *name, const char *notices, const char *letters) {
            QTest::newRow(name) << notices << letters;
        };
        row("remove;arrive", "-+", "CLS");
        row("remove-l;remove-L", "-", "CS");
        row("arrive-N;arrive-C;remove-X;remove-disk99", "+", "CLNS");
        row("remove-disk4;arrive-N;arrive-disk4", "--+++", "CLNS");
        row("remove-L;remove-disk4;arrive-disk4", "--+", "CS");
        row("arrive-disk4 remove-disk4", "--++", "CLS");
    }

    void touches()
    {
        m_pc = m_folder->open(Plugged);
        const QString place = m_folder->state() + "/volumes-changed/";
        QVERIFY(writeFile(place + "arrive-N", {})); // from an earlier run
        QString heard;
        connect(m_pc->deviceNotifier(), &DeviceNotifier::deviceChange, this,
                [&](quint32 event, quint32 type) {
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

    void absentIsNowhere()
    {
        m_pc = m_folder->open(Plugged);
        m_pc->deviceNotifier();
        const auto disk = open(FifthDisk);
        const auto volume = open("\\\\.\\L:");
        /// What an open handle can do.
        const auto works = [this](Platform::RawHandle handle) {
            const bool writes = writeAt(handle, 0, QByteArray(512, 'x')) > 0;
            const bool reads = readAt(handle, 0, 512) > 0;
            QByteArray told(64, '\0');
            const bool tells = m_pc->DeviceIoControl(handle, io::DiskGetDriveGeometryEx, nullptr, 0,
                                                     told.data(), 64, nullptr);
            return writes + reads + tells + !m_pc->IsGone(handle);
        };
        QCOMPARE(works(disk) + works(volume), 8);
        touch({"remove-L"});
        QCOMPARE(works(disk), 4);
        QCOMPARE(works(volume), 0);
        QCOMPARE(open("\\\\.\\L:"), Platform::InvalidHandle);
        touch({"arrive-L", "remove-disk4"});
        QCOMPARE(works(disk) + works(volume), 0);
        for (const char *name : {"\\\\.\\PHYSICALDRIVE4", "\\\\.\\L:", "\\\\.\\S:"})
            QCOMPARE(open(name), Platform::InvalidHandle);
        QCOMPARE(outputOf(*m_pc, "WMIC partition get Name").count('\n'), 3); // heading, one row, blank
        QVERIFY(outputOf(*m_pc, "smartctl -a /dev/sde").contains("/dev/sde failed: No such file"));
        touch({"arrive-disk4"});
        QCOMPARE(works(disk) + works(volume), 8);
        QCOMPARE(outputOf(*m_pc, "smartctl -a /dev/sde"), QByteArray("a report\n"));
    }

private:
    Platform::RawHandle open(const QString &name) { return rawdisk::open(*m_pc, name); }
    /// The bytes that a transfer moved; -1 if it failed.
    int readAt(Platform::RawHandle handle, qint64 offset, int bytes)
    {
        m_data.fill('?', bytes);
        quint32 moved = 77;
        const bool done = m_pc->SetFilePointer(handle, offset) &&
                          m_pc->ReadFile(handle, m_data.data(), quint32(bytes), &moved);
        m_data.truncate(int(moved));
        return done ? int(moved) : -1;
    }
    int writeAt(Platform::RawHandle handle, qint64 offset, const QByteArray &data)
    {
        quint32 moved = 77;
        const bool done = m_pc->SetFilePointer(handle, offset) &&
                          m_pc->WriteFile(handle, data.constData(), quint32(data.size()), &moved);
        return done ? int(moved) : -1;
    }
    /// Makes the files that plug things in and out, and waits until the PC has removed them.
    void touch(const QStringList &names)
    {
        const QString place = m_folder->state() + "/volumes-changed/";
        for (const QString &name : names)
            QVERIFY(writeFile(place + name, {}));
        for (const QString &name : names)
            QTRY_VERIFY(!QFileInfo::exists(place + name));
    }

    std::unique_ptr<DescribedFolder> m_folder;
    std::unique_ptr<SimulatedPlatform> m_pc;
    QByteArray m_data; ///< what was read last
};

QTEST_GUILESS_MAIN(TestSimulatedDisks)
#include "tst_SimulatedDisks.moc"
