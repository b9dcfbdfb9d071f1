// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CCreateDiskDriveList.h"

#include "platform/NativePlatform.h"
#include "state/GlobalApp.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/platform/LoopDevice.h"
#include "tests/platform/RawDisk.h"
#include "tests/support/WatchedPlatform.h"

#include <grp.h>
#include <sys/inotify.h>

using namespace rawdisk;

namespace
{

constexpr qint64 Megabyte = 1024 * 1024;
constexpr int Settled = 1500; ///< milliseconds after which a notice would have come
const char *const ProbeVariable = "HALVANE_TEST_PROBE";
bool ownMounts = false; ///< this process has a mount table of its own

QByteArray toldBy(const QString &program, const QStringList &arguments)
{
    QByteArray output;
    return runs(program, arguments, &output) ? output.simplified() : QByteArray("failed");
}

/// Prints what a process of another user sees. Runs without an application, so without an event loop.
int probe(const QByteArray &user)
{
    const auto id = static_cast<uid_t>(user.toUInt());
    if (id != 0 && (setgroups(0, nullptr) != 0 || setresgid(id, id, id) != 0 || setresuid(id, id, id) != 0))
        return 3;
    Platform::install(makeNativePlatform());
    Platform &pc = Platform::current();
    if (!pc.deviceNotifier())
        return 4;
    QString volumes = open(pc, First, io::GenericRead) == Platform::InvalidHandle ? "no disk" : "a disk";
    for (const QString &root : pc.GetLogicalDriveStringsW()) {
        QString fileSystem;
        pc.GetVolumeInformationW(root, nullptr, &fileSystem);
        volumes += ", " + root + fileSystem;
    }
    return std::puts(qPrintable(volumes)) < 0 ? 5 : 0;
}

} // namespace

/// Real block devices, made by the test: how the platform shows them, its notices when they change, and how
/// it erases and partitions them.
class tst_LinuxVolumes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        init();
        if (!ownMounts || LoopDevice(makeImage("probe.img", 1)).node().isEmpty())
            QSKIP("no mounts or loop devices here");
    }

    void init()
    {
        m_folder.reset(new QTemporaryDir);
        for (const char *name : {"a", "b", "c"})
            QVERIFY(QDir().mkpath(path(name)));
        m_heard.clear();
    }

    void cleanup()
    {
        // The platform is deleted first, as it may have the devices open.
        Platform::install(nullptr);
        m_parted.reset();
        m_whole.reset();
        m_loops.clear();
    }

    void disksAndVolumes()
    {
        makeVolumes();
        const QString first = m_parted->partition(1);
        const QString second = m_parted->partition(2);
        const Mount mountB(first, path("b"));
        const Mount mountA(second, path("a"));
        const Mount mountC(m_whole->node(), path("c"));
        QVERIFY(mountA.isMounted() && mountB.isMounted() && mountC.isMounted());

        Platform &pc = startOn({m_whole->node(), m_parted->node()});
        QCOMPARE(pc.GetLogicalDriveStringsW(), QStringList({"D:\\", "E:\\", "F:\\"}));
        compareVolume("D:\\", second, path("a"), 1);
        compareVolume("E:\\", first, path("b"), 1);
        compareVolume("F:\\", m_whole->node(), path("c"), 0);
    }

    void withoutRights()
    {
        makeVolumes();
        // Others may not enter the folder of the images, and would not see a volume mounted in it.
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
        const Mount mounted(m_parted->partition(2), path("a"));
        QVERIFY(mounted.isMounted());
        qputenv("HALVANE_DISKS", (m_parted->node() + ':' + m_whole->node()).toUtf8());
        const auto seenBy = [](const char *user) {
            const QString command = QString("%1=%2 \"$0\" 2>&1").arg(ProbeVariable, user);
            return toldBy("sh", {"-c", command, QCoreApplication::applicationFilePath()});
        };
        QCOMPARE(seenBy("0"), QByteArray("a disk, D:\\ext2"));
        QCOMPARE(seenBy("65534"), QByteArray("no disk, D:\\ext2"));
    }

    void mountingTells()
    {
        makeVolumes();
        Platform &pc = startOn({m_parted->node(), m_whole->node()});
        auto first = std::make_unique<Mount>(m_parted->partition(1), path("a"));
        QTRY_COMPARE(m_heard, "+");
        QCOMPARE(pc.GetLogicalDriveStringsW(), QStringList("D:\\"));

        QVERIFY(first->unmount());
        QTRY_COMPARE(m_heard, "+-");
        // A question alone changes nothing that a list shows.
        QCOMPARE(pc.GetLogicalDriveStringsW(), QStringList("D:\\"));
        pc.BeginListing();
        QVERIFY(pc.GetLogicalDriveStringsW().isEmpty());

        // Two volumes at the same time give one notice.
        auto second = std::make_unique<Mount>(m_parted->partition(2), path("b"));
        auto third = std::make_unique<Mount>(m_whole->node(), path("c"));
        QTRY_COMPARE(m_heard, "+-+");
        second.reset();
        third.reset();
        QTRY_COMPARE(m_heard, "+-+-");
    }

    void attachingTells()
    {
        const QString image = makeImage("stick.img", 4);
        auto stick = std::make_unique<LoopDevice>(image);
        const QString node = stick->node();
        startOn({node});
        stick.reset();
        QTRY_COMPARE(m_heard, "-");
        stick = std::make_unique<LoopDevice>(image);
        for (const char *heard : {"-+", "-+-+"}) {
            if (stick->node() != node)
                QSKIP("another program took the device");
            QTRY_COMPARE(m_heard, heard);
            // Another medium on the same node at once.
            stick.reset();
            stick = std::make_unique<LoopDevice>(image);
        }
    }

    void whatTellsNothing()
    {
        makeVolumes();
        Platform &pc = startOn({m_parted->node()});
        // The system reads a disk anew when a descriptor for writing is closed. It watches the nodes as this
        // does.
        const int watch = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
        QVERIFY(inotify_add_watch(watch, QFile::encodeName(m_parted->node()).constData(), IN_CLOSE_WRITE) >=
                0);
        char events[1024];
        CCreateDiskDriveList().BuildDriveList();
        const auto handle = open(pc, First);
        QByteArray sector(512, '\0');
        QVERIFY(pc.ReadFile(handle, sector.data(), 512, nullptr));
        pc.CloseHandle(handle);
        QVERIFY(::read(watch, events, sizeof events) < 0);
        const auto writer = open(pc, First);
        QVERIFY(pc.WriteFile(writer, sector.constData(), 512, nullptr));
        pc.CloseHandle(writer);
        QVERIFY(::read(watch, events, sizeof events) > 0);
        ::close(watch);
        QTest::qWait(Settled);
        QCOMPARE(m_heard, QString());
        // A second mount of a volume is no new volume, and a disk that is not listed is of no interest.
        const Mount mounted(m_parted->partition(1), path("a"));
        QTRY_COMPARE(m_heard, "+");
        QVERIFY(runs("mount", {"--bind", path("a"), path("b")}));
        Mount unlisted(m_whole->node(), path("c"));
        QVERIFY(unlisted.isMounted());
        QTest::qWait(Settled);
        QVERIFY(runs("umount", {path("b")}) && unlisted.unmount());
        QTest::qWait(Settled);
        QCOMPARE(m_heard, "+");
    }

    void partitionsOneDiskOnly()
    {
        makeLoops();
        const QString node = m_loops[1]->node();
        QVERIFY(runs("sfdisk", {"-q", node}, nullptr, "label: gpt\nsize=2MiB\nsize=2MiB\n"));
        QVERIFY(m_loops[1]->showPartitions());
        const QByteArray before = contentOf(path("1.img"));

        QVERIFY(run("SELECT DISK 1\nonline disk\nEXIT").contains("This disk is already online."));
        QVERIFY(run("SELECT DISK 1\nconvert MBR\nEXIT").contains("The disk is not empty."));
        QVERIFY(run("SELECT DISK 3\nclean\nEXIT").contains("There is no disk selected."));
        QVERIFY(run("SELECT DISK 1\nclean\n").contains("Reached the end of the file."));
        QVERIFY(contentOf(path("1.img")) == before);

        const QByteArray cleaned = run("SELECT DISK 1\nclean\nEXIT");
        QVERIFY2(cleaned.contains("DiskPart succeeded in cleaning the disk."), cleaned.constData());
        QByteArray signatures;
        QVERIFY(runs("wipefs", {node}, &signatures));
        QCOMPARE(signatures, QByteArray());
        QVERIFY(!QFile::exists(m_loops[1]->partition(1)));

        const QByteArray made = run("SELECT DISK 1\nconvert MBR\ncreate partition primary\nEXIT");
        QVERIFY2(made.contains("succeeded in creating the specified partition."), made.constData());
        QByteArray table;
        QVERIFY(runs("sfdisk", {"--dump", node}, &table));
        QCOMPARE(table.count("start="), 1);
        QVERIFY2(table.contains("start=        2048, size=       14336, type=7"), table.constData());
        QVERIFY(run("SELECT DISK 1\nRESCAN\nEXIT").contains("DiskPart has finished scanning"));
        QVERIFY(QFile::exists(m_loops[1]->partition(1)));
        QVERIFY(contentOf(path("0.img")) == QByteArray(ImageBytes, 'o'));
        QVERIFY(contentOf(path("2.img")) == QByteArray(ImageBytes, 'o'));
    }

    void cleansADiskInUse()
    {
        makeLoops();
        Mount mount(m_loops[1]->node(), path("a"));
        QVERIFY(mount.isMounted());
        QFile busy(path("a/busy"));
        QVERIFY(busy.open(QIODevice::WriteOnly));
        QVERIFY(run("SELECT DISK 1\nclean\nEXIT").contains("The device is in use."));
        busy.close();
        const QByteArray cleaned = run("SELECT DISK 1\nclean\nEXIT");
        QVERIFY2(cleaned.contains("DiskPart succeeded in cleaning the disk."), cleaned.constData());
        QVERIFY(!mount.unmount()); // it is unmounted already
    }

    void sparesTheRunningSystem()
    {
        // In this process's own mount table only.
        makeLoops();
        Mount mount(m_loops[1]->node(), "/boot");
        QVERIFY(mount.isMounted());
        for (const char *script : {"SELECT DISK 1\nclean\nEXIT", "SELECT DISK 1\nconvert MBR\nEXIT",
                                   "SELECT DISK 1\ncreate partition primary\nEXIT"})
            QVERIFY(run(script).contains("Clean is not allowed on the disk containing the current boot,"));
        const auto handle = rawdisk::open(Platform::current(), "\\\\.\\PHYSICALDRIVE1");
        QVERIFY(handle != Platform::InvalidHandle);
        QByteArray sector(512, 'x');
        QVERIFY(!Platform::current().WriteFile(handle, sector.constData(), 512, nullptr));
        QVERIFY(Platform::current().ReadFile(handle, sector.data(), 512, nullptr));
        Platform::current().CloseHandle(handle);
        QVERIFY(mount.unmount());
        QByteArray signatures;
        QVERIFY(runs("wipefs", {m_loops[1]->node()}, &signatures));
        QVERIFY(signatures.contains("ext2"));
    }

    void readOnlyDisk()
    {
        const LoopDevice device(makeImage("locked.img", 1), {"-r"});
        Platform &pc = startOn({device.node()});
        QCOMPARE(open(pc, First), Platform::InvalidHandle);
        const auto handle = open(pc, First, io::GenericRead);
        QVERIFY(handle != Platform::InvalidHandle);
        pc.CloseHandle(handle);
    }

private:
    QString path(const char *name) const { return m_folder->filePath(name); }
    QString makeImage(const char *name, qint64 megabytes)
    {
        QFile file(path(name));
        return file.open(QIODevice::WriteOnly) && file.resize(megabytes * Megabyte) ? file.fileName()
                                                                                    : QString();
    }

    void makeVolumes()
    {
        const QString table = makeImage("parted.img", 64);
        QVERIFY(
            runs("sfdisk", {"-q", table}, nullptr, "label: gpt\nstart=2048,size=20M\nsize=16M\nsize=8M\n"));
        m_parted = std::make_unique<LoopDevice>(table, QStringList("-P"));
        m_whole = std::make_unique<LoopDevice>(makeImage("whole.img", 8));
        QVERIFY(m_parted->showPartitions());
        for (const auto &[kind, label, node] : {std::tuple("ext4", "Größe 1", m_parted->partition(1)),
                                                std::tuple("ext2", "Second", m_parted->partition(2)),
                                                std::tuple("ext4", "Whole", m_whole->node())})
            QVERIFY(runs("mke2fs", {"-q", "-t", kind, "-L", label, node}));
    }

    /// Starts on three disks, the second of which has a file system.
    void makeLoops()
    {
        QStringList nodes;
        for (const char *name : {"0.img", "1.img", "2.img"}) {
            if (!writeFile(path(name), QByteArray(ImageBytes, 'o')))
                qFatal("an image cannot be made");
            m_loops.push_back(std::make_unique<LoopDevice>(path(name)));
            nodes << m_loops.back()->node();
        }
        // Else the scripts would find other disks.
        if (nodes.contains(QString()) || !runs("mke2fs", {"-q", "-F", nodes.at(1)}))
            qFatal("no loop devices here");
        startOn(nodes);
    }

    QByteArray run(const QByteArray &script) const
    {
        if (!writeFile(path("script.txt"), script))
            qFatal("a script cannot be written");
        return outputOf(Platform::current(), "C:\\Windows\\system32\\diskpart.exe /s " + path("script.txt"));
    }

    /// Starts on these disks, and keeps the notices about volumes.
    Platform &startOn(const QStringList &nodes)
    {
        qputenv("HALVANE_DISKS", nodes.join(':').toUtf8());
        Platform::install(linuxPcIn(m_home.path()));
        connect(Platform::current().deviceNotifier(), &DeviceNotifier::deviceChange, this,
                [this](quint32 event, quint32 type) {
                    if (type == DeviceChange::Volume)
                        m_heard += event == DeviceChange::Arrival ? '+' : '-';
                });
        return Platform::current();
    }

    /// Compares with what the system's own tools say.
    void compareVolume(const QString &root, const QString &node, const QString &folder, quint32 disk)
    {
        Platform &pc = Platform::current();
        QString label;
        QString fileSystem;
        QVERIFY(pc.GetVolumeInformationW(root, &label, &fileSystem));
        QCOMPARE(label.toUtf8(), toldBy("e2label", {node}));
        QCOMPARE(fileSystem.toUtf8(), toldBy("blkid", {"-po", "value", "-s", "TYPE", node}));
        QCOMPARE(pc.GetDriveTypeW(root), quint32(io::DriveFixed));
        quint64 total = 0;
        quint64 free = 0;
        QVERIFY(pc.GetDiskFreeSpaceExW(root, &total, &free));
        const QByteArray used = QByteArray::number(total - free);
        QCOMPARE("1B-blocks Used " + QByteArray::number(total) + ' ' + used,
                 toldBy("df", {"-B1", "--output=size,used", folder}));

        const auto handle = open(pc, "\\\\.\\" + root.left(2), io::GenericRead);
        io::VolumeDiskExtents extents{};
        QVERIFY(pc.DeviceIoControl(handle, io::VolumeGetVolumeDiskExtents, nullptr, 0, &extents,
                                   sizeof extents, nullptr));
        pc.CloseHandle(handle);
        QCOMPARE(extents.numberOfDiskExtents, 1u);
        QCOMPARE(extents.extents[0].diskNumber, disk);
        QCOMPARE(extents.extents[0].startingOffset,
                 toldBy("lsblk", {"-dbno", "START", node}).toLongLong() * 512);
        QCOMPARE(extents.extents[0].extentLength, toldBy("lsblk", {"-dbno", "SIZE", node}).toLongLong());
    }

    static constexpr int ImageBytes = 8 * Megabyte;
    QTemporaryDir m_home;
    QScopedPointer<QTemporaryDir> m_folder;
    std::vector<std::unique_ptr<LoopDevice>> m_loops;
    std::unique_ptr<LoopDevice> m_parted; ///< two partitions with file systems, one without
    std::unique_ptr<LoopDevice> m_whole;  ///< one file system on the whole disk
    QString m_heard;                      ///< + arrival, - removal
};

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet(ProbeVariable))
        return probe(qgetenv(ProbeVariable));
    ownMounts = keepMountsToOurselves();
    QCoreApplication application(argc, argv);
    tst_LinuxVolumes test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_LinuxVolumes.moc"
