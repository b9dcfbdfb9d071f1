// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/EventLog.h"
#include "platform/Log.h"
#include "platform/linux/DesktopNotes.h"
#include "platform/linux/LinuxDisks.h"
#include "platform/linux/LinuxTools.h"
#include "platform/linux/LsblkInventory.h"
#include "platform/linux/RawDevice.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "tests/platform/LoopDevice.h"
#include "tests/platform/RawDisk.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/DiskImage.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/WatchedPlatform.h"

#include <QSettings>
#include <QStorageInfo>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace rawdisk;

namespace
{

const QString Samples = HALVANE_TEST_DATA "/platform/";

lsblk::Inventory parseFile(const QString &name, const QStringList &onlyNodes = {})
{
    return lsblk::parse(contentOf(Samples + name + ".json"), onlyNodes);
}

/// Disks, volumes and partitions, a line each. Places and lengths of volumes are in sectors.
QString told(const lsblk::Inventory &pc)
{
    QString text;
    QTextStream out(&text);
    for (const inventory::Disk &disk : pc.machine.disks)
        out << disk.number << ' ' << disk.media << ' ' << disk.model << " [" << disk.interfaceType << "] "
            << disk.status << ' ' << disk.bytesPerSector << ' ' << disk.sectors << ' ' << disk.node << '\n';
    for (const inventory::Volume &volume : pc.machine.volumes) {
        out << volume.letter << ' ' << volume.mountPoint << ' ' << volume.type << " [" << volume.label << "] "
            << volume.fileSystem << ' ' << volume.bitLocker;
        for (const inventory::Extent &extent : volume.extents)
            out << ' ' << extent.disk << '@' << extent.offset / 512 << '+' << extent.length / 512;
        out << '\n';
    }
    for (const inventory::Partition &partition : pc.machine.partitions)
        out << partition.name << "; " << partition.type << "; " << partition.size << "; " << partition.disk
            << '\n';
    return text;
}

/// A machine of disks that are mounted as a whole: "name:folder".
lsblk::Inventory wholeDisks(const QByteArrayList &disks, const lsblk::Inventory &previous = {})
{
    QByteArrayList json;
    for (const QByteArray &disk : disks) {
        const QByteArrayList parts = disk.split(':');
        json += R"({"kname":")" + parts.at(0) + R"(","path":"/dev/)" + parts.at(0) +
                R"(","type":"disk","size":1048576,"mountpoints":[")" + parts.at(1) + "\"]}";
    }
    return lsblk::parse(R"({"blockdevices":[)" + json.join(',') + "]}", {}, previous);
}

/// The same without what these disks have in common.
QString placesOf(const lsblk::Inventory &pc)
{
    static const QRegularExpression same(
        " fixed Disk \\w+ HDD Device.* 2048|fixed \\[\\]  None |\\+2048|Disk #.*\n");
    return told(pc).remove(same).replace('\n', ' ');
}

} // namespace

/// The Linux platform on image files and loop devices, the tables of its disks, and the demo PC as
/// demo/make-pc makes it here.
class tst_LinuxPlatform : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.reset(new QTemporaryDir); }

    void imageFile() { checkRawDisk(false); }
    void loopDevice() { checkRawDisk(true); }

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

    void disksAlone()
    {
        QVERIFY(writeFile(path("disk.img"), pattern(1)));
        startOn(path("disk.img"));
        const auto sees = [this] { return open(*m_pc, "\\\\.\\PHYSICALDRIVE1") != Platform::InvalidHandle; };
        QVERIFY(m_pc->BeginDiskListing(60000, [] { return true; }) && !sees());
        qputenv("HALVANE_DISKS", (path("disk.img") + ':' + path("disk.img")).toUtf8());
        QVERIFY(!m_pc->BeginDiskListing(60000, [] { return false; }) && !sees());
        QVERIFY(m_pc->BeginDiskListing(60000, [] { return true; }) && sees());
    }

    void smartctlDevice()
    {
        inventory::Machine machine;
        machine.disks.resize(2);
        machine.disks[0].node = "/dev/nvme0n1";
        machine.disks[1].number = 2;
        machine.disks[1].node = "/dev/sdb";
        compareRows("LinuxPlatform/smartctl", [&machine](const QString &words) {
            return linuxtools::smartctlArguments(machine, words.split(' ')).join(' ');
        });
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

    void endsToolsAtTheirLimits()
    {
        QElapsedTimer clock;
        clock.start();
        {
            const linuxtools::Limits limits(2000, [] { return true; });
            const linuxtools::Ended ended = linuxtools::run("sh", {"-c", "echo begun; exec sleep 60"});
            QVERIFY(limits.wereReached() && !ended.well);
            QCOMPARE(ended.output, QByteArray("begun\n"));
        }
        {
            const linuxtools::Limits limits(60000, [] { return false; });
            QVERIFY(!linuxtools::run("sleep", {"60"}).well && limits.wereReached());
        }
        QVERIFY(clock.elapsed() < 30000);
        const linuxtools::Limits limits(60000, [] { return true; });
        const linuxtools::Ended ended = linuxtools::run("head", {"-c", "1000000", "/dev/zero"});
        QVERIFY(ended.well && !limits.wereReached());
        QCOMPARE(ended.output.size(), 1000000);
        QVERIFY(!linuxtools::run("no-such-tool", {}).well);
    }

    /// A limit of the process stands for a disk that is full in the middle of a line.
    void fullDisk()
    {
        FakePlatform::install();
        const QString path = m_folder->filePath("log.txt");
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit old{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &old), 0);
        const rlimit low{8, old.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &low), 0);
        const EventLog log(path, 1000);
        const auto first = log.append("first");
        const auto second = log.append("second");
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &old), 0);
        QCOMPARE(first, EventLog::Outcome::Written);
        QCOMPARE(second, EventLog::Outcome::Unwritable);
        QCOMPARE(contentOf(path), QByteArray("first\n"));
    }

    void systemPlaces()
    {
        compareRows("LinuxPlatform/systemPlaces", [](const QString &places) {
            return linuxdisks::bearsSystem(linuxdisks::mountPoints(
                R"({"blockdevices":[{"path":"/dev/x","mountpoints":[null],"children":[{"path":"/dev/x1",)"
                R"("mountpoints":[null],"children":[{"path":"/dev/mapper/y","mountpoints":[)" +
                places.toUtf8() + "]}]}]}]}"));
        });
    }

    void machineIsProtected()
    {
        const QString root = QString::fromLocal8Bit(QStorageInfo::root().device());
        if (!root.startsWith(QLatin1String("/dev/")) || !QFile::exists(root))
            QSKIP("the root of this machine is on no disk of its own");
        QVERIFY(linuxdisks::isProtected(root));
        QVERIFY(linuxdisks::isProtected("/dev/no-such-disk"));
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

    /// Made by the shell: the mode of a folder that is taken for the program's own.
    void privateFolder()
    {
        QVERIFY(!folders::ensurePrivate(path("a blank")).isEmpty()); // command lines have no quotes
        const auto modeOf = [this](const QString &command) {
            init();
            const bool made = std::system(qPrintable("cd " + m_folder->path() + " && " + command)) == 0;
            const bool taken = folders::ensurePrivate(path("private")).isEmpty();
            struct stat status = {};
            const bool there = stat(QFile::encodeName(path("private")).constData(), &status) == 0;
            const QString mode = QString::number(status.st_mode & 07777, 8);
            return !made || !there ? "missing" : taken ? mode : "refused";
        };
        compareRows("LinuxPlatform/private", modeOf);
        if (geteuid() == 0) // who alone can give a folder away
            compareRows("LinuxPlatform/given", modeOf);
    }

    void ownFolders()
    {
        startOn(path("none.img"));
        QCOMPARE(m_pc->GetTempPathW(), m_home.path() + "/velmora-halvane/");
        // If that folder cannot be used, a fresh one is made.
        QVERIFY(QFile::link(m_home.path(), path("spoilt")));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("temp folder cannot be used: .*/spoilt: "));
        const QString fresh = folders::chooseTemp({path("spoilt")});
        QVERIFY(fresh.startsWith("/tmp/velmora-halvane-") && QDir().rmdir(fresh));
        // A path on C: leads below the root folder, not into the temp folder.
        QCOMPARE(m_pc->NativePath("C:\\updatetmps\\a"), "/updatetmps/a");
        QCOMPARE(m_pc->NativePath("C:\\LogFile.txt"), m_pc->StateFolder() + "/LogFile.txt");
        QCOMPARE(m_pc->HistoryFolder(m_folder->path()), path("history"));
        const QString own = m_home.filePath("data/velmora-halvane/history");
        QCOMPARE(m_pc->HistoryFolder("/usr/bin"), own);
        QVERIFY(QFileInfo(own).isDir());
        QCOMPARE(m_pc->HistoryFolder(path("missing")), own);
    }

    void logonEntry()
    {
        const LogonTask task{"VelmoraSMART", "anna", path("My 50% $App\\VelmoraSMART.exe"), "Schedular"};
        // Root's companion is started by a session of this user, who has to be asked.
        const bool isRoot = geteuid() == 0;
        const QByteArray exec =
            isRoot ? "start\" \"--companion\" \"65534\"\n" : "VelmoraSMART\" \"Schedular\"\n";
        qunsetenv("SUDO_UID");
        qputenv("PKEXEC_UID", "65534");
        const QString program = path("My 50% $App/VelmoraSMART");
        QVERIFY(QDir().mkpath(path("My 50% $App")) && writeFile(program, {}));
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));

        startOn(path("none.img"));
        const QString entry = m_home.filePath("config/autostart/VelmoraSMART.desktop");
        if (isRoot) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("nothing is started .*/start is missing"));
            m_pc->CreateLogonTask(task);
            QVERIFY(!QFile::exists(entry));
            QVERIFY(QFile::copy(program, path("My 50% $App/start")));
        }
        m_pc->CreateLogonTask(task);
        QCOMPARE(int(QFile::permissions(entry) & QFile::ReadOther), int(QFile::ReadOther));
        const QByteArray text = contentOf(entry);
        const QByteArray folder = m_folder->path().toUtf8();
        QVERIFY2(text.startsWith("[Desktop Entry]\nType=Application\nName=VelmoraSMART\nTryExec=" + folder +
                                 "/My 50% $App/" + (isRoot ? "start" : "VelmoraSMART") + "\nExec=\"" +
                                 folder + "/My 50%% \\\\$App/" + exec),
                 text.constData());
        m_pc->DeleteLogonTask(task.name);
        QVERIFY(!QFile::exists(entry));
    }

    void settings()
    {
        startOn(path("none.img"));
        const QString key = "HKEY_LOCAL_MACHINE\\Software\\Velmora\\Probe";
        m_pc->OpenSettings(key)->setValue("TempValue", "7");
        const auto store = m_pc->OpenSettings(key);
        QCOMPARE(store->value("TempValue"), QVariant("7"));
        QVERIFY(store->fileName().startsWith(m_home.path()));
        QVERIFY(!m_pc->OpenSettings({})->contains("TempValue"));
    }

    /// The desktop would take the second text for markup, and both for options.
    void notice()
    {
        QCOMPARE(desktopnotes::notifyArguments("-t", "<a href='x'>&\\n").mid(2),
                 (QStringList{"--", "-t", "&lt;a href='x'>&amp;\\\\n"}));
    }

    /// In the virtual machine a disk without a table is one partition, and "/" makes it the system's. "dos"
    /// and "gpt" are systems without a partition for the firmware. In "strange" numbers are quoted, as older
    /// versions of the tool do it, or lies.
    void machines()
    {
        for (const QString name : {"workstation", "virtual-machine", "dos", "gpt", "strange"})
            QCOMPARE(told(parseFile("lsblk-" + name)), contentOf(Samples + "lsblk-" + name + ".txt"));
        QCOMPARE(
            told(parseFile("lsblk-workstation", {"/dev/sdb", "/dev/nowhere", "/dev/loop7", "/dev/sda1"})),
            contentOf(Samples + "lsblk-named-nodes.txt"));
        QCOMPARE(parseFile("lsblk-strange").machine.disks.last().serial, "S\uFFFD");
        const lsblk::Inventory pc = parseFile("lsblk-workstation");
        QCOMPARE(pc.volumeNodes.value('E') + pc.volumeNodes.value('J'), "/dev/mapper/home/dev/sda1");
        QCOMPARE(pc.volumeNodes.size(), pc.machine.volumes.size());
    }

    /// The letters end; those of disks that stay are kept, as their numbers are.
    void numbersAndLetters()
    {
        QByteArrayList disks;
        for (int i = 10; i < 40; ++i)
            disks << "sd:/m" + QByteArray::number(i);
        const auto volumes = wholeDisks(disks).machine.volumes;
        QCOMPARE(volumes.size(), 23);
        QCOMPARE(volumes.last().letter, QChar('Z'));
        const auto before = wholeDisks({"sda:/", "sdb:/b", "sdc:/c"});
        QCOMPARE(placesOf(before), "0 /dev/sda 1 /dev/sdb 2 /dev/sdc C / 0@0 D /b 1@0 E /c 2@0 ");
        const auto without = wholeDisks({"sda:/", "sdc:/c"}, before);
        QCOMPARE(placesOf(without), "0 /dev/sda 2 /dev/sdc C / 0@0 E /c 2@0 ");
        const auto after = wholeDisks({"nvme0n1:/a", "sda:/", "sdc:/c", "sdd:/d"}, without);
        QCOMPARE(placesOf(after), "0 /dev/sda 1 /dev/nvme0n1 2 /dev/sdc 3 /dev/sdd "
                                  "C / 0@0 D /a 1@0 E /c 2@0 F /d 3@0 ");
        QVERIFY(placesOf(wholeDisks({"sdb:/b", "sdb:/b"}, before)).startsWith("0 /dev/sdb 1 /dev/sdb "));
    }

    /// Read whole, and with a node that is named.
    void brokenText()
    {
        compareRows("LinuxPlatform/broken", [](const QString &json) {
            const auto named = lsblk::parse(json.toUtf8(), {"/dev/loop1"});
            return told(lsblk::parse(json.toUtf8())) + joined(named.machine.disks.size());
        });
    }

    void demoPc()
    {
        if (!DiskImage::missingTool().isEmpty())
            QSKIP("the makers of partition tables and file systems are not installed");
        QVERIFY(runs(HALVANE_SOURCE_DIR "/demo/make-pc", {path("pc")}));
        QString error;
        const auto pc = SimulatedPlatform::open(path("pc"), path("state"), &error);
        QVERIFY2(pc, qPrintable(error));
        const auto bytesOfDisk = [&pc](int disk, qint64 offset, int count) {
            pc->CloseHandle(open(*pc, QString("\\\\.\\PHYSICALDRIVE%1").arg(disk))); // makes the image
            QFile image(pc->imageFile(disk));
            return image.open(QIODevice::ReadOnly) && image.seek(offset) ? image.read(count) : QByteArray();
        };
        const QString place = "%1: start=%2, size=%3"; // in sectors
        const QRegularExpression form("start= *([0-9]+), size= *([0-9]+)");
        QStringList partitions;
        for (const auto &disk : pc->description().disks) {
            const int number = disk.record.number;
            QCOMPARE(bytesOfDisk(number, 510, 2), QByteArray("\x55\xAA"));
            QByteArray table;
            QVERIFY(runs("/sbin/sfdisk", {"--dump", pc->imageFile(number)}, &table));
            for (auto rows = form.globalMatch(table); rows.hasNext();) {
                const QRegularExpressionMatch row = rows.next();
                partitions << place.arg(number).arg(row.captured(1), row.captured(2));
            }
        }
        QCOMPARE(partitions.size(), 17);
        for (const inventory::Volume &volume : pc->description().volumes) {
            for (const inventory::Extent &extent : volume.extents)
                QVERIFY(partitions.contains(
                    place.arg(extent.disk).arg(extent.offset / 512).arg(extent.length / 512)));
        }
        // A disk, the first sector of a partition on it, and a place in the partition.
        QCOMPARE(bytesOfDisk(2, 151001088 * 512LL + 1144, 7), QByteArray("/media\0", 7)); // name of an ext4
        QCOMPARE(bytesOfDisk(3, 1246066688 * 512LL + 28, 4),
                 QByteArray("\0\x78\x45\x4a", 4)); // place of an NTFS
        QCOMPARE(bytesOfDisk(4, 2048 * 512 + 71, 19), QByteArray("STICK      FAT32   "));

        const QList<QByteArray> days =
            contentOf(pc->HistoryFolder({}) + "/OK-83H2F6610Date.txt").trimmed().split('\n');
        QCOMPARE(days.size(), 10);
        QCOMPARE(days.last(), QDate::currentDate().addDays(-1).toString("dd-MM-yyyy").toLatin1());
    }

private:
    QString path(const char *name) const { return m_folder->filePath(name); }
    void checkRawDisk(bool loop)
    {
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
        const auto before = m_pc->DiskActivity(0);
        QCOMPARE(before.has_value(), loop);
        checkReads(*m_pc, handle);
        QVERIFY(!loop || m_pc->DiskActivity(0) > before);
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
