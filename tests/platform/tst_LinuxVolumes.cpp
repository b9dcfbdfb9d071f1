// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CCreateDiskDriveList.h"

#include "platform/NativePlatform.h"
#include "state/GlobalApp.h"
#include "tests/platform/LoopDevice.h"
#include "tests/platform/RawDisk.h"

#include <grp.h>
#include <sys/inotify.h>

using namespace rawdisk;

namespace
{

constexpr qint64 Megabyte = 1024 * 1024;
constexpr int Settled = 1500; ///< milliseconds after which a notice would have come
const char *const ProbeVariable = "HALVANE_TEST_PROBE";

QByteArray toldBy(const QString &program, const QStringList &arguments)
{
    QByteArray output;
    return runs(program, arguments, &output) ? output.simplified() : QByteArray("failed");
}

QString describe(const DiskNode &node)
{
    if (node.pDetails)
        return QString("disk %1 %2 %3\n")
            .arg(node.nId)
            .arg(node.pDetails->nTotalSectors)
            .arg(node.pDetails->szDrives.trimmed());
    const LogicalDetails &volume = *node.pLogical;
    return QString("volume %1 %2 %3 %4 on %5 from %6\n")
        .arg(node.nKind)
        .arg(volume.szRoot.left(2), volume.szLabel, volume.szFileSystem)
        .arg(volume.nParentId)
        .arg(volume.nStartSector);
}

/// The list of disks and volumes, a line each.
QByteArray listOfDisks()
{
    CCreateDiskDriveList list;
    list.BuildDriveList();
    QString lines;
    for (const DiskNode &node : g_App.m_diskList)
        lines += describe(node);
    g_App.m_diskList.clear();
    return lines.toUtf8();
}

/// Prints what a process of another user sees. Runs without an application, so without an event loop.
int probe(const QByteArray &user)
{
    const auto id = static_cast<uid_t>(user.toUInt());
    if (id != 0 && (setgroups(0, nullptr) != 0 || setresgid(id, id, id) != 0 || setresuid(id, id, id) != 0))
        return 3;
    Platform::install(makeNativePlatform());
    if (!Platform::current().deviceNotifier())
        return 4;
    return std::puts(listOfDisks().constData()) < 0 ? 5 : 0;
}

} // namespace

/// Real block devices, made by the test: how the platform shows them, and its notices when they change.
class tst_LinuxVolumes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (geteuid() != 0)
            QSKIP("only root can make loop devices");
        init();
        if (LoopDevice(makeImage("probe.img", 1)).node().isEmpty())
            QSKIP("no loop devices here");
        if (!qEnvironmentVariableIsSet("HALVANE_OWN_MOUNTS"))
            QSKIP("no mount table of one's own here");
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
        compareVolume("D:\\", second, path("a"));
        compareVolume("E:\\", first, path("b"));
        compareVolume("F:\\", m_whole->node(), path("c"));
        const QList<QByteArray> lines = listOfDisks().split('\n');
        QCOMPARE(lines.at(0), QByteArray("disk 128 16384 Drive: F:"));
        QCOMPARE(lines.at(1), QByteArray("disk 129 131072 Drive: D: E:"));
        QVERIFY(lines.contains("volume 1 D: Second ext2 on 129 from 43008"));
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
        const QByteArray seenByRoot = seenBy("0");
        QVERIFY2(seenByRoot.startsWith("disk 128 "), seenByRoot.constData());
        const QRegularExpression oneVolume("^volume 1 D: .* ext2 on 0 from 0$");
        const QString seen = seenBy("65534");
        QVERIFY2(oneVolume.match(seen).hasMatch() && seen.count("volume") == 1, qPrintable(seen));
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
        QVERIFY(!listOfDisks().isEmpty());
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

    /// Starts on these disks, and keeps the notices about volumes.
    Platform &startOn(const QStringList &nodes)
    {
        qputenv("HALVANE_DISKS", nodes.join(':').toUtf8());
        Platform::install(makeNativePlatform());
        connect(Platform::current().deviceNotifier(), &DeviceNotifier::deviceChange, this,
                [this](quint32 event, quint32 type) {
                    if (type == DeviceChange::Volume)
                        m_heard += event == DeviceChange::Arrival ? '+' : '-';
                });
        return Platform::current();
    }

    /// Compares with what the system's own tools say.
    void compareVolume(const QString &root, const QString &node, const QString &folder)
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
        QCOMPARE(extents.extents[0].startingOffset,
                 toldBy("lsblk", {"-dbno", "START", node}).toLongLong() * 512);
        QCOMPARE(extents.extents[0].extentLength, toldBy("lsblk", {"-dbno", "SIZE", node}).toLongLong());
    }

    QScopedPointer<QTemporaryDir> m_folder;
    std::unique_ptr<LoopDevice> m_parted; ///< two partitions with file systems, one without
    std::unique_ptr<LoopDevice> m_whole;  ///< one file system on the whole disk
    QString m_heard;                      ///< + arrival, - removal
};

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet(ProbeVariable))
        return probe(qgetenv(ProbeVariable));
    if (geteuid() == 0 && keepMountsToOurselves())
        qputenv("HALVANE_OWN_MOUNTS", "1");
    QCoreApplication application(argc, argv);
    tst_LinuxVolumes test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_LinuxVolumes.moc"
