// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/IoControl.h"
#include "platform/Log.h"
#include "platform/linux/LinuxTools.h"
#include "platform/linux/RawDevice.h"
#include "tests/platform/LoopDevice.h"
#include "tests/support/Files.h"
#include "tests/support/LinuxPlaces.h"

#include <QScopeGuard>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

constexpr int Sectors = 2049;
constexpr int SectorSize = 512;
constexpr quint32 ReadWrite = io::GenericRead | io::GenericWrite;
const QString FirstDisk = "\\\\.\\PHYSICALDRIVE0";

} // namespace

class tst_LinuxPlatform : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.reset(new QTemporaryDir); }
    void rawDisk_data();
    void rawDisk();
    void bigSectors();
    void opensOnlyWhatIsThere();
    void tellsOnRequest();
    void handlesThatAreNone();
    void inventoryTool();
    void smartctlDevice();
    void smartctlOutput();
    void endsACompanion();

private:
    void checkReads(Platform &pc, Platform::RawHandle handle);
    void checkWrites(Platform &pc, Platform::RawHandle handle);
    QString path(const char *name) const { return m_folder->filePath(name); }
    Platform::RawHandle openFirst(quint32 access) const
    {
        return m_pc->CreateFileW(FirstDisk, access, io::ShareRead | io::ShareWrite, io::OpenExisting);
    }
    void startOn(const QString &node)
    {
        qputenv("HALVANE_DISKS", node.toUtf8());
        m_pc = linuxPcIn(m_home.path());
    }
    bool runLine(const QString &command)
    {
        return m_pc->CreateProcessAndWait(QString("CMD.EXE /c %1 ").arg(command).toStdWString(), true);
    }

    QTemporaryDir m_home;
    QScopedPointer<QTemporaryDir> m_folder;
    std::unique_ptr<Platform> m_pc;
};

void tst_LinuxPlatform::rawDisk_data()
{
    QTest::addColumn<bool>("loop");
    QTest::newRow("image file") << false;
    QTest::newRow("loop device") << true;
}

void tst_LinuxPlatform::rawDisk()
{
    QFETCH(bool, loop);
    const QString image = path("disk.img");
    QVERIFY(writeFile(image, pattern(Sectors)));
    const QScopedPointer<LoopDevice> device(loop ? new LoopDevice(image) : nullptr);
    if (loop && device->node().isEmpty())
        QSKIP("no loop devices here");
    startOn(loop ? device->node() : image);
    const auto handle = openFirst(ReadWrite);
    QVERIFY(handle != Platform::InvalidHandle);
    io::DiskGeometryEx geometry{};
    quint32 returned = 0;
    const auto asks = [&](quint32 code, quint32 room) {
        return m_pc->DeviceIoControl(handle, code, nullptr, 0, &geometry, room, &returned);
    };
    QVERIFY(asks(io::DiskGetDriveGeometryEx, sizeof geometry));
    QCOMPARE(returned, quint32(sizeof geometry));
    QCOMPARE(geometry.diskSize, qint64(Sectors) * SectorSize);
    QCOMPARE(geometry.geometry.bytesPerSector, quint32(SectorSize));
    QCOMPARE(geometry.geometry.mediaType, quint32(io::MediaFixed));
    QVERIFY(!asks(io::DiskGetDriveGeometry, 23));
    QVERIFY(!asks(io::VolumeGetVolumeDiskExtents, sizeof geometry));
    QVERIFY(!asks(io::SmartGetVersion, sizeof geometry));
    checkReads(*m_pc, handle);
    QCOMPARE(contentOf(image), pattern(Sectors));
    checkWrites(*m_pc, handle);
    QVERIFY(m_pc->FlushFileBuffers(handle));
    QByteArray expected = pattern(Sectors);
    expected.replace(3 * SectorSize, 2 * SectorSize, QByteArray(2 * SectorSize, 'w'));
    expected.replace((Sectors - 1) * SectorSize, SectorSize, QByteArray(SectorSize, 'w'));
    QVERIFY(contentOf(image) == expected);

    QVERIFY(!m_pc->IsGone(handle));
    QVERIFY(QFile::resize(image, 0));
    if (loop)
        QVERIFY(runs("losetup", {"-c", device->node()}));
    QVERIFY(m_pc->IsGone(handle));
    m_pc->CloseHandle(handle);
}

void tst_LinuxPlatform::checkReads(Platform &pc, Platform::RawHandle handle)
{
    const QByteArray content = pattern(Sectors);
    QByteArray buffer(content.size() + SectorSize, 'x');
    quint32 got = 0;
    // The whole disk, to an odd address, past the end.
    QVERIFY(pc.ReadFile(handle, buffer.data() + 1, quint32(content.size() + 100), &got));
    QCOMPARE(got, quint32(content.size()));
    QVERIFY(buffer.mid(1, content.size()) == content);
    QVERIFY(!pc.ReadFile(handle, buffer.data(), SectorSize, &got));
    QCOMPARE(got, 0u);
    // Two sectors one after the other, then a part of a sector.
    QVERIFY(pc.SetFilePointer(handle, 7 * SectorSize));
    QVERIFY(pc.ReadFile(handle, buffer.data(), SectorSize, nullptr));
    QVERIFY(pc.ReadFile(handle, buffer.data() + SectorSize, SectorSize, &got));
    QCOMPARE(buffer.left(2 * SectorSize), content.mid(7 * SectorSize, 2 * SectorSize));
    QVERIFY(pc.SetFilePointer(handle, SectorSize + 100));
    QVERIFY(pc.ReadFile(handle, buffer.data(), 600, &got));
    QCOMPARE(buffer.left(600), content.mid(SectorSize + 100, 600));
    QVERIFY(!pc.SetFilePointer(handle, -1));
    QVERIFY(pc.SetFilePointer(handle, qint64(Sectors + 9) * SectorSize));
    QVERIFY(!pc.ReadFile(handle, buffer.data(), SectorSize, &got));
}

void tst_LinuxPlatform::checkWrites(Platform &pc, Platform::RawHandle handle)
{
    const QByteArray data(4 * SectorSize, 'w');
    quint32 put = 0;
    QVERIFY(pc.SetFilePointer(handle, 3 * SectorSize));
    QVERIFY(pc.WriteFile(handle, data.constData() + 1, 2 * SectorSize, &put));
    QCOMPARE(put, quint32(2 * SectorSize));
    QVERIFY(pc.SetFilePointer(handle, (Sectors - 1) * SectorSize));
    QVERIFY(pc.WriteFile(handle, data.constData(), 4 * SectorSize, &put));
    QCOMPARE(put, quint32(SectorSize));
    QVERIFY(!pc.WriteFile(handle, data.constData(), SectorSize, &put));
    QCOMPARE(put, 0u);
    const auto reader = openFirst(io::GenericRead);
    QVERIFY(reader != Platform::InvalidHandle);
    QVERIFY(!pc.WriteFile(reader, data.constData(), SectorSize, &put));
    pc.CloseHandle(reader);
}

void tst_LinuxPlatform::bigSectors()
{
    const QByteArray content = pattern(512);
    QVERIFY(writeFile(path("disk.img"), content));
    const LoopDevice device(path("disk.img"), {"-b", "4096"});
    if (device.node().isEmpty())
        QSKIP("no loop devices here");
    startOn(device.node());
    const auto handle = openFirst(ReadWrite);
    io::DiskGeometry geometry{};
    QVERIFY(m_pc->DeviceIoControl(handle, io::DiskGetDriveGeometry, nullptr, 0, &geometry, sizeof geometry,
                                  nullptr));
    QCOMPARE(geometry.bytesPerSector, 4096u);
    QByteArray sector(SectorSize, 'x');
    QVERIFY(m_pc->SetFilePointer(handle, 9 * SectorSize));
    QVERIFY(m_pc->ReadFile(handle, sector.data(), SectorSize, nullptr));
    QCOMPARE(sector, content.mid(9 * SectorSize, SectorSize));
    QVERIFY(m_pc->SetFilePointer(handle, 9 * SectorSize));
    QVERIFY(!m_pc->WriteFile(handle, sector.constData(), SectorSize, nullptr));
    m_pc->CloseHandle(handle);
    QVERIFY(contentOf(path("disk.img")) == content);
}

void tst_LinuxPlatform::opensOnlyWhatIsThere()
{
    QVERIFY(writeFile(path("disk.img"), pattern(1)));
    startOn(path("disk.img") + ':' + path("absent.img"));
    for (const char *name : {"\\\\.\\PHYSICALDRIVE1", "\\\\.\\PHYSICALDRIVE2", "\\\\.\\PHYSICALDRIVE",
                             "\\\\.\\PHYSICALDRIVE-0x", "\\\\.\\C:", "\\\\.\\", "", "/dev/null"})
        QCOMPARE(m_pc->CreateFileW(name, ReadWrite, 0, io::OpenExisting), Platform::InvalidHandle);
    QCOMPARE(m_pc->CreateFileW(FirstDisk, io::GenericRead, 0, io::CreateNew), Platform::InvalidHandle);
    QVERIFY(!QFile::exists(path("absent.img")));
    QVERIFY(m_pc->GetLogicalDriveStringsW().isEmpty());
    QCOMPARE(m_pc->GetDriveTypeW("C:\\"), quint32(io::DriveNoRootDir));
}

void tst_LinuxPlatform::tellsOnRequest()
{
    QVERIFY(!logs::platform().isDebugEnabled());
    QLoggingCategory::setFilterRules("halvane.platform=true");
    const auto quiet = qScopeGuard([] { QLoggingCategory::setFilterRules({}); });
    QTest::ignoreMessage(QtDebugMsg, "/dev/no-such-disk does not open: No such file or directory");
    QVERIFY(!RawDevice::open("/dev/no-such-disk", false));
}

void tst_LinuxPlatform::handlesThatAreNone()
{
    QVERIFY(writeFile(path("disk.img"), pattern(1)));
    startOn(path("disk.img"));
    const auto handle = openFirst(io::GenericRead);
    m_pc->CloseHandle(handle);
    char byte = 0;
    quint32 moved = 9;
    for (const Platform::RawHandle none : {handle, Platform::RawHandle(0), Platform::InvalidHandle}) {
        QVERIFY(!m_pc->SetFilePointer(none, 0));
        QVERIFY(!m_pc->ReadFile(none, &byte, 1, &moved));
        QCOMPARE(moved, 0u);
        QVERIFY(!m_pc->WriteFile(none, &byte, 1, nullptr));
        QVERIFY(!m_pc->DeviceIoControl(none, io::DiskGetDriveGeometry, nullptr, 0, &byte, 1, nullptr));
        QVERIFY(!m_pc->FlushFileBuffers(none) && m_pc->IsGone(none));
        m_pc->CloseHandle(none);
    }
}

void tst_LinuxPlatform::inventoryTool()
{
    QVERIFY(writeFile(path("disk.img"), pattern(1)));
    startOn(path("disk.img"));
    QVERIFY(runLine(m_pc->GetSystemDirectoryW() + "\\wbem\\WMIC.exe diskdrive get Model,Status,Index >> " +
                    path("out.txt")));
    QCOMPARE(contentOf(path("out.txt")), utf16("Index  Model                     Status  \r\n"
                                               "0      Disk disk.img HDD Device  OK      \r\n\r\n"));
}

void tst_LinuxPlatform::smartctlDevice()
{
    inventory::Machine machine;
    machine.disks.resize(2);
    machine.disks[0].node = "/dev/nvme0n1";
    machine.disks[1].number = 2;
    machine.disks[1].node = "/dev/sdb";
    const auto asked = [&machine](const QString &words) {
        return linuxtools::smartctlArguments(machine, words.split(' ')).join(' ');
    };
    QCOMPARE(asked("-a /dev/sda"), "-a /dev/nvme0n1");
    QCOMPARE(asked("-a -d sat,12 /dev/sdc"), "-a -d sat,12 /dev/sdb");
    QCOMPARE(asked("-a"), "-a");
    for (const char *none : {"-a /dev/sdb", "-t short /dev/sdd", "-a /dev/sdac"})
        QCOMPARE(asked(none), QString());
}

void tst_LinuxPlatform::smartctlOutput()
{
    QVERIFY(writeFile(path("smartctl"), "#!/bin/sh\necho \"asked $*\"\necho noise >&2\nexit 64\n"));
    QVERIFY(QFile::setPermissions(path("smartctl"), QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY(writeFile(path("disk.img"), pattern(1)));
    const QByteArray oldPath = qgetenv("PATH");
    qputenv("PATH", m_folder->path().toUtf8() + ':' + oldPath);
    const auto restore = qScopeGuard([&oldPath] { qputenv("PATH", oldPath); });

    startOn(path("disk.img"));
    const QString line = "smartctl64Bit.exe -a  -d sat,12 /dev/sda >> " + path("out.txt");
    const auto rootAgain = qScopeGuard([] { (void)seteuid(getuid()); });
    if (getuid() == 0) {
        // As root no tool is taken from the search path.
        QVERIFY(runLine(line));
        QVERIFY(!contentOf(path("out.txt")).contains("asked"));
        QVERIFY(QFile::remove(path("out.txt")));
        constexpr uid_t Nobody = 65534;
        for (const QString &name : {m_folder->path(), path("smartctl")})
            QCOMPARE(chown(QFile::encodeName(name).constData(), Nobody, Nobody), 0);
        QCOMPARE(seteuid(Nobody), 0);
    }
    QVERIFY(runLine(line));
    QCOMPARE(contentOf(path("out.txt")), "asked -a -d sat,12 " + path("disk.img").toUtf8() + '\n');
}

void tst_LinuxPlatform::endsACompanion()
{
    const QString name = QString("hvprobe%1").arg(getpid());
    QVERIFY(QFile::copy("/bin/sleep", m_folder->filePath(name)));
    QProcess companion;
    companion.start(m_folder->filePath(name), {"60"});
    QVERIFY(companion.waitForStarted());

    startOn(path("none.img"));
    const auto listed = [&] {
        QFile::remove(path("out.txt"));
        runLine(QString("S\\tasklist.exe | S\\findstr.exe %1.exe >> %2").arg(name, path("out.txt")));
        return contentOf(path("out.txt"));
    };
    QVERIFY(listed().startsWith(name.toLatin1() + ".exe "));
    QVERIFY(runLine(QString("S\\Taskkill.exe /IM %1.exe /F").arg(name)));
    QVERIFY(companion.waitForFinished(5000));
    QCOMPARE(listed(), QByteArray());
}

QTEST_GUILESS_MAIN(tst_LinuxPlatform)
#include "tst_LinuxPlatform.moc"
