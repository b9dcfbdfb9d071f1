// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Log.h"
#include "platform/linux/LinuxTools.h"
#include "platform/linux/RawDevice.h"
#include "tests/platform/LoopDevice.h"
#include "tests/platform/RawDisk.h"
#include "tests/support/LinuxPlaces.h"

using namespace rawdisk;

class tst_LinuxPlatform : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.reset(new QTemporaryDir); }

    void rawDisk_data()
    {
        QTest::addColumn<bool>("loop");
        QTest::newRow("image file") << false;
        QTest::newRow("loop device") << true;
    }

    void rawDisk()
    {
        QFETCH(bool, loop);
        const QString image = path("disk.img");
        QVERIFY(writeFile(image, pattern(Sectors)));
        const QScopedPointer<LoopDevice> device(loop ? new LoopDevice(image) : nullptr);
        if (loop && device->node().isEmpty())
            QSKIP("no loop devices here");
        startOn(loop ? device->node() : image);
        const auto handle = open(*m_pc, First);
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
        checkWrites(*m_pc, handle, Sectors - 1);
        QVERIFY(contentOf(image) == written());

        QVERIFY(!m_pc->IsGone(handle));
        QVERIFY(QFile::resize(image, 0));
        if (loop)
            QVERIFY(runs("losetup", {"-c", device->node()}));
        QVERIFY(m_pc->IsGone(handle));
        QCOMPARE(open(*m_pc, "/etc/hostname", io::GenericRead), Platform::InvalidHandle);
        checkNoHandles(*m_pc, handle);
    }

    void bigSectors()
    {
        const QByteArray content = pattern(512);
        QVERIFY(writeFile(path("disk.img"), content));
        const LoopDevice device(path("disk.img"), {"-b", "4096"});
        if (device.node().isEmpty())
            QSKIP("no loop devices here");
        startOn(device.node());
        const auto handle = open(*m_pc, First);
        io::DiskGeometry geometry{};
        QVERIFY(m_pc->DeviceIoControl(handle, io::DiskGetDriveGeometry, nullptr, 0, &geometry,
                                      sizeof geometry, nullptr));
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

    void opensOnlyWhatIsThere()
    {
        QVERIFY(writeFile(path("disk.img"), pattern(1)));
        startOn(path("disk.img") + ':' + path("absent.img"));
        for (const char *name : {"\\\\.\\PHYSICALDRIVE1", "\\\\.\\PHYSICALDRIVE-0x", "\\\\.\\", "/dev/null"})
            QCOMPARE(open(*m_pc, name), Platform::InvalidHandle);
        QCOMPARE(m_pc->CreateFileW(First, io::GenericRead, 0, io::CreateNew), Platform::InvalidHandle);
        QVERIFY(!QFile::exists(path("absent.img")));
        QTest::ignoreMessage(QtDebugMsg, "/dev/no-such-disk does not open: No such file or directory");
        QVERIFY(!logs::platform().isDebugEnabled());
        QLoggingCategory::setFilterRules("halvane.platform=true");
        QVERIFY(!RawDevice::open("/dev/no-such-disk", false));
        QLoggingCategory::setFilterRules({});
    }

    void smartctlDevice()
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

    void toolOutput()
    {
        QVERIFY(writeFile(path("smartctl"), "#!/bin/sh\necho \"asked $*\"\necho noise >&2\nexit 64\n"));
        QVERIFY(QFile::setPermissions(path("smartctl"), QFile::ReadOwner | QFile::ExeOwner));
        QVERIFY(writeFile(path("disk.img"), pattern(1)));
        const QByteArray oldPath = qgetenv("PATH");
        qputenv("PATH", m_folder->path().toUtf8() + ':' + oldPath);
        const auto restore = qScopeGuard([&oldPath] { qputenv("PATH", oldPath); });

        startOn(path("disk.img"));
        QCOMPARE(said(m_pc->GetSystemDirectoryW() + "\\wbem\\WMIC.exe diskdrive get Model,Status,Index"),
                 utf16("Index  Model                     Status  \r\n"
                       "0      Disk disk.img HDD Device  OK      \r\n\r\n"));
        const QString command = "smartctl64Bit.exe -a  -d sat,12 /dev/sda";
        const auto rootAgain = qScopeGuard([] { (void)seteuid(getuid()); });
        if (getuid() == 0) {
            // As root no tool is taken from the search path.
            QVERIFY(!said(command).contains("asked"));
            QVERIFY(QFile::remove(path("out.txt")));
            constexpr uid_t Nobody = 65534;
            for (const QString &name : {m_folder->path(), path("smartctl")})
                QCOMPARE(chown(QFile::encodeName(name).constData(), Nobody, Nobody), 0);
            QCOMPARE(seteuid(Nobody), 0);
        }
        QCOMPARE(said(command), "asked -a -d sat,12 " + path("disk.img").toUtf8() + '\n');
    }

    void endsACompanion()
    {
        const QString name = QString("hvprobe%1").arg(getpid());
        QVERIFY(QFile::copy("/bin/sleep", m_folder->filePath(name)));
        QProcess companion;
        companion.start(m_folder->filePath(name), {"60"});
        QVERIFY(companion.waitForStarted());

        startOn(path("none.img"));
        const QString listing = QString("S\\tasklist.exe | S\\findstr.exe %1.exe").arg(name);
        QVERIFY(said(listing).startsWith(name.toLatin1() + ".exe "));
        said(QString("S\\Taskkill.exe /IM %1.exe /F").arg(name));
        QVERIFY(companion.waitForFinished(5000));
        QCOMPARE(said(listing), QByteArray());
    }

private:
    QString path(const char *name) const { return m_folder->filePath(name); }
    void startOn(const QString &node)
    {
        qputenv("HALVANE_DISKS", node.toUtf8());
        m_pc = linuxPcIn(m_home.path());
    }
    QByteArray said(const QString &command)
    {
        QFile::remove(path("out.txt"));
        const QString line = QString("CMD.EXE /c %1 >> %2 ").arg(command, path("out.txt"));
        return m_pc->CreateProcessAndWait(line.toStdWString(), true) ? contentOf(path("out.txt")) : "failed";
    }

    QTemporaryDir m_home;
    QScopedPointer<QTemporaryDir> m_folder;
    std::unique_ptr<Platform> m_pc;
};

QTEST_GUILESS_MAIN(tst_LinuxPlatform)
#include "tst_LinuxPlatform.moc"
