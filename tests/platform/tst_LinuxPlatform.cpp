// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/IoControl.h"
#include "platform/Log.h"
#include "platform/linux/LinuxTools.h"
#include "platform/linux/RawDevice.h"
#include "tests/platform/LoopDevice.h"
#include "tests/support/LinuxPlaces.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

namespace
{

constexpr int Sectors = 2049;
constexpr int SectorSize = 512;
const QString FirstDisk = QStringLiteral("\\\\.\\PHYSICALDRIVE0");

QByteArray pattern()
{
    QByteArray bytes(Sectors * SectorSize, '\0');
    for (int i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>((i * 31 + i / SectorSize) & 0xFF);
    return bytes;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

} // namespace

class tst_LinuxPlatform : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void rawDisk_data();
    void rawDisk();
    void bigSectors();
    void opensOnlyWhatIsThere();
    void tellsOnRequest();
    void handlesThatAreNone();
    void mountedVolume();
    void inventoryTool();
    void smartctlDevice_data();
    void smartctlDevice();
    void smartctlOutput();
    void endsACompanion();

private:
    void checkReads(Platform &pc, Platform::RawHandle handle);
    void checkWrites(Platform &pc, Platform::RawHandle handle);
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    std::unique_ptr<Platform> platformOn(const QString &node);
    bool runLine(Platform &pc, const QString &command);

    QTemporaryDir m_home;
    QScopedPointer<QTemporaryDir> m_folder;
};

void tst_LinuxPlatform::initTestCase()
{
    QVERIFY(m_home.isValid());
}

void tst_LinuxPlatform::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
}

std::unique_ptr<Platform> tst_LinuxPlatform::platformOn(const QString &node)
{
    qputenv("HALVANE_DISKS", node.toUtf8());
    return linuxPcIn(m_home.path());
}

bool tst_LinuxPlatform::runLine(Platform &pc, const QString &command)
{
    return pc.CreateProcessAndWait(QStringLiteral("CMD.EXE /c %1 ").arg(command).toStdWString(), true);
}

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
    writeFile(image, pattern());
    QScopedPointer<LoopDevice> device(loop ? new LoopDevice(image) : nullptr);
    if (loop && device->node().isEmpty())
        QSKIP("no loop devices here");
    const auto pc = platformOn(loop ? device->node() : image);

    const auto handle = pc->CreateFileW(FirstDisk, io::GenericRead | io::GenericWrite,
                                        io::ShareRead | io::ShareWrite, io::OpenExisting);
    QVERIFY(handle != Platform::InvalidHandle);
    io::DiskGeometryEx geometry{};
    quint32 returned = 0;
    QVERIFY(pc->DeviceIoControl(handle, io::DiskGetDriveGeometryEx, nullptr, 0, &geometry, sizeof(geometry),
                                &returned));
    QCOMPARE(returned, quint32(sizeof(geometry)));
    QCOMPARE(geometry.diskSize, qint64(Sectors) * SectorSize);
    QCOMPARE(geometry.geometry.bytesPerSector, quint32(SectorSize));
    QCOMPARE(geometry.geometry.mediaType, quint32(io::MediaFixed));
    QVERIFY(!pc->DeviceIoControl(handle, io::DiskGetDriveGeometry, nullptr, 0, &geometry, 23, &returned));
    QVERIFY(
        !pc->DeviceIoControl(handle, io::VolumeGetVolumeDiskExtents, nullptr, 0, &geometry, 40, &returned));
    io::GetVersionInParams version{};
    QVERIFY(
        !pc->DeviceIoControl(handle, io::SmartGetVersion, nullptr, 0, &version, sizeof(version), &returned));
    checkReads(*pc, handle);
    QCOMPARE(contentOf(image), pattern());
    checkWrites(*pc, handle);
    QVERIFY(pc->FlushFileBuffers(handle));

    QByteArray expected = pattern();
    expected.replace(3 * SectorSize, 2 * SectorSize, QByteArray(2 * SectorSize, 'w'));
    expected.replace((Sectors - 1) * SectorSize, SectorSize, QByteArray(SectorSize, 'w'));
    QCOMPARE(contentOf(image).size(), expected.size());
    QCOMPARE(contentOf(image), expected);

    QVERIFY(!pc->IsGone(handle));
    QVERIFY(QFile::resize(image, 0));
    if (loop)
        QVERIFY(runs(QStringLiteral("losetup"), {QStringLiteral("-c"), device->node()}));
    QVERIFY(pc->IsGone(handle));
    pc->CloseHandle(handle);
}

void tst_LinuxPlatform::checkReads(Platform &pc, Platform::RawHandle handle)
{
    const QByteArray content = pattern();
    QByteArray buffer(content.size() + SectorSize, 'x');
    quint32 got = 0;

    // The whole disk, to an odd address, past the end.
    QVERIFY(pc.ReadFile(handle, buffer.data() + 1, quint32(content.size() + 100), &got));
    QCOMPARE(got, quint32(content.size()));
    QCOMPARE(buffer.mid(1, content.size()), content);
    QVERIFY(!pc.ReadFile(handle, buffer.data(), SectorSize, &got));
    QCOMPARE(got, 0u);

    // Four sectors are asked for at the last one, which is read; then two sectors one after the other.
    QVERIFY(pc.SetFilePointer(handle, (Sectors - 1) * SectorSize));
    QVERIFY(pc.ReadFile(handle, buffer.data(), 4 * SectorSize, &got));
    QCOMPARE(got, quint32(SectorSize));
    QCOMPARE(buffer.left(SectorSize), content.right(SectorSize));
    QVERIFY(pc.SetFilePointer(handle, 7 * SectorSize));
    QVERIFY(pc.ReadFile(handle, buffer.data(), SectorSize, nullptr));
    QVERIFY(pc.ReadFile(handle, buffer.data() + SectorSize, SectorSize, &got));
    QCOMPARE(buffer.left(2 * SectorSize), content.mid(7 * SectorSize, 2 * SectorSize));

    // A part of a sector.
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

    const auto reader = pc.CreateFileW(FirstDisk, io::GenericRead, io::ShareRead, io::OpenExisting);
    QVERIFY(reader != Platform::InvalidHandle);
    QVERIFY(!pc.WriteFile(reader, data.constData(), SectorSize, &put));
    pc.CloseHandle(reader);
}

void tst_LinuxPlatform::bigSectors()
{
    const QString image = path("disk.img");
    const QByteArray content = pattern().left(64 * 4096);
    writeFile(image, content);
    const LoopDevice device(image, {QStringLiteral("-b"), QStringLiteral("4096")});
    if (device.node().isEmpty())
        QSKIP("no loop devices here");
    const auto pc = platformOn(device.node());
    const auto handle =
        pc->CreateFileW(FirstDisk, io::GenericRead | io::GenericWrite, io::ShareRead, io::OpenExisting);
    io::DiskGeometry geometry{};
    QVERIFY(pc->DeviceIoControl(handle, io::DiskGetDriveGeometry, nullptr, 0, &geometry, sizeof(geometry),
                                nullptr));
    QCOMPARE(geometry.bytesPerSector, 4096u);

    QByteArray sector(SectorSize, 'x');
    quint32 moved = 0;
    QVERIFY(pc->SetFilePointer(handle, 9 * SectorSize));
    QVERIFY(pc->ReadFile(handle, sector.data(), SectorSize, &moved));
    QCOMPARE(sector, content.mid(9 * SectorSize, SectorSize));
    QVERIFY(pc->SetFilePointer(handle, 9 * SectorSize));
    QVERIFY(!pc->WriteFile(handle, sector.constData(), SectorSize, &moved));
    pc->CloseHandle(handle);
    QCOMPARE(contentOf(image), content);
}

void tst_LinuxPlatform::opensOnlyWhatIsThere()
{
    writeFile(path("disk.img"), pattern());
    const auto pc = platformOn(path("disk.img") + QLatin1Char(':') + path("absent.img"));
    for (const char *name : {"\\\\.\\PHYSICALDRIVE1", "\\\\.\\PHYSICALDRIVE2", "\\\\.\\PHYSICALDRIVE",
                             "\\\\.\\PHYSICALDRIVE-0x", "\\\\.\\C:", "\\\\.\\", "", "/dev/null"})
        QCOMPARE(
            pc->CreateFileW(QLatin1String(name), io::GenericRead | io::GenericWrite, 0, io::OpenExisting),
            Platform::InvalidHandle);
    QCOMPARE(pc->CreateFileW(FirstDisk, io::GenericRead, 0, io::CreateNew), Platform::InvalidHandle);
    QVERIFY(!QFile::exists(path("absent.img")));
    QVERIFY(pc->GetLogicalDriveStringsW().isEmpty());
    QCOMPARE(pc->GetDriveTypeW(QStringLiteral("C:\\")), quint32(io::DriveNoRootDir));
}

void tst_LinuxPlatform::tellsOnRequest()
{
    QVERIFY(!logs::platform().isDebugEnabled());
    QLoggingCategory::setFilterRules(QStringLiteral("halvane.platform=true"));
    const auto quiet = qScopeGuard([] { QLoggingCategory::setFilterRules(QString()); });
    QTest::ignoreMessage(QtDebugMsg, "/dev/no-such-disk does not open: No such file or directory");
    QVERIFY(!RawDevice::open(QStringLiteral("/dev/no-such-disk"), false));
}

void tst_LinuxPlatform::handlesThatAreNone()
{
    writeFile(path("disk.img"), pattern());
    const auto pc = platformOn(path("disk.img"));
    const auto handle = pc->CreateFileW(FirstDisk, io::GenericRead, 0, io::OpenExisting);
    pc->CloseHandle(handle);
    pc->CloseHandle(handle);
    char byte = 0;
    quint32 moved = 9;
    for (const Platform::RawHandle none : {handle, Platform::InvalidHandle, Platform::RawHandle(0)}) {
        QVERIFY(!pc->SetFilePointer(none, 0));
        QVERIFY(!pc->ReadFile(none, &byte, 1, &moved));
        QCOMPARE(moved, 0u);
        QVERIFY(!pc->WriteFile(none, &byte, 1, nullptr));
        QVERIFY(!pc->DeviceIoControl(none, io::DiskGetDriveGeometry, nullptr, 0, &byte, 1, nullptr));
        pc->CloseHandle(none);
    }
}

void tst_LinuxPlatform::mountedVolume()
{
    const QString image = path("disk.img");
    writeFile(image, QByteArray(4 * 1024 * 1024, '\0'));
    const LoopDevice device(image);
    const QString folder = path("mnt");
    QDir().mkpath(folder);
    if (device.node().isEmpty() ||
        !runs(QStringLiteral("mke2fs"),
              {QStringLiteral("-q"), QStringLiteral("-L"), QStringLiteral("Probe"), device.node()}) ||
        !runs(QStringLiteral("mount"), {device.node(), folder}))
        QSKIP("no volumes can be mounted here");
    const auto unmount = qScopeGuard([&folder] { runs(QStringLiteral("umount"), {folder}); });

    const auto pc = platformOn(device.node());
    QCOMPARE(pc->GetLogicalDriveStringsW(), QStringList{QStringLiteral("D:\\")});
    QString fileSystem;
    QVERIFY(pc->GetVolumeInformationW(QStringLiteral("d:\\"), nullptr, &fileSystem));
    QVERIFY2(fileSystem.startsWith(QLatin1String("ext")), qPrintable(fileSystem));
    QCOMPARE(pc->GetDriveTypeW(QStringLiteral("D:\\")), quint32(io::DriveFixed));
    quint64 total = 0;
    quint64 free = 0;
    QVERIFY(pc->GetDiskFreeSpaceExW(QStringLiteral("D:\\"), &total, &free));
    QVERIFY(total > 1024 * 1024 && total <= 4 * 1024 * 1024);
    QVERIFY(free > 0 && free < total);

    const auto handle =
        pc->CreateFileW(QStringLiteral("\\\\.\\D:"), io::GenericRead, io::ShareRead, io::OpenExisting);
    QVERIFY(handle != Platform::InvalidHandle);
    io::VolumeDiskExtents extents{};
    QVERIFY(!pc->DeviceIoControl(handle, io::VolumeGetVolumeDiskExtents, nullptr, 0, &extents, 31, nullptr));
    QVERIFY(pc->DeviceIoControl(handle, io::VolumeGetVolumeDiskExtents, nullptr, 0, &extents, sizeof(extents),
                                nullptr));
    QCOMPARE(extents.numberOfDiskExtents, 1u);
    QCOMPARE(extents.extents[0].diskNumber, 0u);
    QCOMPARE(extents.extents[0].startingOffset, qint64(0));
    QCOMPARE(extents.extents[0].extentLength, qint64(4 * 1024 * 1024));
    pc->CloseHandle(handle);
}

void tst_LinuxPlatform::inventoryTool()
{
    writeFile(path("disk.img"), pattern());
    const auto pc = platformOn(path("disk.img"));
    const QString target = path("out.txt");
    QVERIFY(runLine(
        *pc, pc->GetSystemDirectoryW() +
                 QStringLiteral("\\wbem\\WMIC.exe diskdrive get Model,InterfaceType,Status,Index >> ") +
                 target));
    const QByteArray bytes = contentOf(target);
    QVERIFY(bytes.startsWith("\xFF\xFE"));
    QCOMPARE(QString::fromUtf16(reinterpret_cast<const ushort *>(bytes.constData()), bytes.size() / 2),
             QStringLiteral("Index  InterfaceType  Model                     Status  \r\n"
                            "0      SCSI           Disk disk.img HDD Device  OK      \r\n\r\n"));
}

void tst_LinuxPlatform::smartctlDevice_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("expected");
    QTest::newRow("first") << QStringLiteral("-a /dev/sda") << QStringLiteral("-a /dev/nvme0n1");
    QTest::newRow("type passed on") << QStringLiteral("-a -d sat,12 /dev/sdc")
                                    << QStringLiteral("-a -d sat,12 /dev/sdb");
    QTest::newRow("a gap is no disk") << QStringLiteral("-a /dev/sdb") << QString();
    QTest::newRow("behind the last") << QStringLiteral("-t short /dev/sdd") << QString();
    QTest::newRow("longer name") << QStringLiteral("-a /dev/sda1") << QString();
    QTest::newRow("no device") << QStringLiteral("-a") << QStringLiteral("-a");
}

void tst_LinuxPlatform::smartctlDevice()
{
    QFETCH(QString, words);
    QFETCH(QString, expected);
    inventory::Machine machine;
    machine.disks.resize(2);
    machine.disks[0].node = QStringLiteral("/dev/nvme0n1");
    machine.disks[1].number = 2;
    machine.disks[1].node = QStringLiteral("/dev/sdb");
    QCOMPARE(linuxtools::smartctlArguments(machine, words.split(QLatin1Char(' '))).join(QLatin1Char(' ')),
             expected);
}

void tst_LinuxPlatform::smartctlOutput()
{
    writeFile(path("smartctl"), "#!/bin/sh\necho \"asked $*\"\necho noise >&2\nexit 64\n");
    QFile::setPermissions(path("smartctl"), QFile::ReadOwner | QFile::ExeOwner);
    writeFile(path("disk.img"), pattern());
    const QByteArray oldPath = qgetenv("PATH");
    qputenv("PATH", m_folder->path().toUtf8() + ':' + oldPath);
    const auto restore = qScopeGuard([&oldPath] { qputenv("PATH", oldPath); });

    const auto pc = platformOn(path("disk.img"));
    const QString line = QStringLiteral("smartctl64Bit.exe -a  -d sat,12 /dev/sda >> ") + path("out.txt");
    const auto rootAgain = qScopeGuard([] { (void)seteuid(getuid()); });
    if (getuid() == 0) {
        // As root no tool is taken from the search path.
        QVERIFY(runLine(*pc, line));
        QVERIFY(!contentOf(path("out.txt")).contains("asked"));
        QVERIFY(QFile::remove(path("out.txt")));
        constexpr uid_t Nobody = 65534;
        for (const QString &name : {m_folder->path(), path("smartctl")})
            QCOMPARE(chown(QFile::encodeName(name).constData(), Nobody, Nobody), 0);
        QCOMPARE(seteuid(Nobody), 0);
    }
    QVERIFY(runLine(*pc, line));
    QCOMPARE(contentOf(path("out.txt")), "asked -a -d sat,12 " + path("disk.img").toUtf8() + '\n');
}

void tst_LinuxPlatform::endsACompanion()
{
    const QString name = QStringLiteral("hvprobe%1").arg(getpid());
    const QString program = m_folder->filePath(name);
    QVERIFY(QFile::copy(QStringLiteral("/bin/sleep"), program));
    QProcess companion;
    companion.start(program, {QStringLiteral("60")});
    QVERIFY(companion.waitForStarted());

    const auto pc = platformOn(path("none.img"));
    const QString system = pc->GetSystemDirectoryW();
    const QString ask =
        QStringLiteral("%1\\tasklist.exe | %1\\findstr.exe %2.exe >> %3").arg(system, name, path("tmpFile"));
    QVERIFY(runLine(*pc, ask));
    QVERIFY(contentOf(path("tmpFile")).startsWith(name.toLatin1() + ".exe "));
    QVERIFY(runLine(*pc, QStringLiteral("%1\\Taskkill.exe /IM %2.exe /F").arg(system, name)));
    QVERIFY(companion.waitForFinished(5000));
    QFile::remove(path("tmpFile"));
    QVERIFY(runLine(*pc, ask));
    QVERIFY(QFile::exists(path("tmpFile")));
    QCOMPARE(contentOf(path("tmpFile")), QByteArray());
}

QTEST_GUILESS_MAIN(tst_LinuxPlatform)
#include "tst_LinuxPlatform.moc"
