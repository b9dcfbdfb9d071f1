// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CCreateDiskDriveList.h"

#include "platform/IoControl.h"
#include "platform/NativePlatform.h"
#include "state/GlobalApp.h"
#include "tests/platform/LoopDevice.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <grp.h>
#include <sys/inotify.h>

namespace
{

constexpr qint64 Megabyte = 1024 * 1024;
constexpr quint32 ReadWrite = io::GenericRead | io::GenericWrite;
constexpr int Settled = 1500; ///< milliseconds after which no more notices come
const QString FirstDisk = QStringLiteral("\\\\.\\PHYSICALDRIVE0");
const char *const ProbeVariable = "HALVANE_TEST_PROBE";

using Changes = QVector<quint32>;

Changes changesOf(const QSignalSpy &spy)
{
    Changes changes;
    for (const QList<QVariant> &arguments : spy) {
        if (arguments.at(1).toUInt() == DeviceChange::Volume)
            changes.append(arguments.at(0).toUInt());
    }
    return changes;
}

QByteArray toldBy(const QString &program, const QStringList &arguments)
{
    QByteArray output;
    return runs(program, arguments, &output) ? output.simplified() : QByteArray("failed");
}

QByteArray describe(const DiskNode &node)
{
    if (node.pDetails)
        return "disk " + QByteArray::number(node.nId) + ' ' +
               QByteArray::number(qulonglong{node.pDetails->nTotalSectors}) + ' ' +
               node.pDetails->szDrives.trimmed().toUtf8();
    const LogicalDetails &volume = *node.pLogical;
    return "volume " + QByteArray::number(node.nKind) + ' ' + volume.szRoot.left(2).toUtf8() + ' ' +
           volume.szLabel.toUtf8() + ' ' + volume.szFileSystem.toUtf8() + " on " +
           QByteArray::number(volume.nParentId) + " from " +
           QByteArray::number(qulonglong{volume.nStartSector});
}

/// The list of disks and volumes, a line each.
QByteArray listOfDisks()
{
    CCreateDiskDriveList list;
    list.BuildDriveList();
    QByteArray lines;
    for (const DiskNode &node : g_App.m_diskList)
        lines += describe(node) + '\n';
    g_App.m_diskList.clear();
    return lines;
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
    const QByteArray lines = listOfDisks();
    return ::write(STDOUT_FILENO, lines.constData(), static_cast<size_t>(lines.size())) == lines.size() ? 0
                                                                                                        : 5;
}

} // namespace

/// Real block devices, made by the test: how the platform shows them, and its notices when they change.
class tst_LinuxVolumes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void disksAndVolumes();
    void listedDisks();
    void withoutRights();
    void mountingTells();
    void unlistedDisksTellNothing();
    void attachingTells();
    void lookingTellsNothing();
    void readOnlyDisk();

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    QString makeImage(const char *name, qint64 megabytes);
    bool makeVolumes();
    Platform &platformOn(const QStringList &nodes);
    void compareVolume(Platform &pc, const QString &root, const QString &node, const QString &folder);
    QByteArray probeAs(const char *user, QByteArray *errors);

    QScopedPointer<QTemporaryDir> m_folder;
    std::unique_ptr<LoopDevice> m_parted; ///< two partitions with file systems, one without
    std::unique_ptr<LoopDevice> m_whole;  ///< one file system on the whole disk
};

void tst_LinuxVolumes::initTestCase()
{
    QTemporaryDir folder;
    const QString image = folder.filePath(QStringLiteral("probe.img"));
    QFile file(image);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(Megabyte));
    if (geteuid() != 0)
        QSKIP("only root can make loop devices");
    if (LoopDevice(image).node().isEmpty())
        QSKIP("no loop devices here");
    if (!qEnvironmentVariableIsSet("HALVANE_OWN_MOUNTS"))
        QSKIP("no mount table of one's own here");
}

void tst_LinuxVolumes::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
    for (const char *name : {"a", "b", "c"})
        QVERIFY(QDir().mkpath(path(name)));
}

void tst_LinuxVolumes::cleanup()
{
    // The platform is deleted first, as it may have the devices open.
    Platform::install(nullptr);
    m_parted.reset();
    m_whole.reset();
}

QString tst_LinuxVolumes::makeImage(const char *name, qint64 megabytes)
{
    QFile file(path(name));
    return file.open(QIODevice::WriteOnly) && file.resize(megabytes * Megabyte) ? file.fileName() : QString();
}

bool tst_LinuxVolumes::makeVolumes()
{
    const QString table = makeImage("parted.img", 64);
    QProcess sfdisk;
    sfdisk.start(QStringLiteral("sfdisk"), {QStringLiteral("-q"), table});
    sfdisk.write("label: gpt\nstart=2048,size=20M\nsize=16M\nsize=8M\n");
    sfdisk.closeWriteChannel();
    if (!sfdisk.waitForFinished() || sfdisk.exitCode() != 0)
        return false;
    m_parted = std::make_unique<LoopDevice>(table, QStringList{QStringLiteral("-P")});
    m_whole = std::make_unique<LoopDevice>(makeImage("whole.img", 8));
    const auto format = [](const char *kind, const char *label, const QString &node) {
        return runs(QStringLiteral("mke2fs"),
                    {QStringLiteral("-q"), QStringLiteral("-t"), QLatin1String(kind), QStringLiteral("-L"),
                     QString::fromUtf8(label), node});
    };
    return m_parted->showPartitions() && format("ext4", "Größe 1", m_parted->partition(1)) &&
           format("ext2", "Second", m_parted->partition(2)) && format("ext4", "Whole", m_whole->node());
}

Platform &tst_LinuxVolumes::platformOn(const QStringList &nodes)
{
    qputenv("HALVANE_DISKS", nodes.join(QLatin1Char(':')).toUtf8());
    Platform::install(makeNativePlatform());
    return Platform::current();
}

/// Compares with what the system's own tools say.
void tst_LinuxVolumes::compareVolume(Platform &pc, const QString &root, const QString &node,
                                     const QString &folder)
{
    const auto told = [&node](const char *column) {
        return toldBy(QStringLiteral("lsblk"), {QStringLiteral("-dbno"), QLatin1String(column), node});
    };
    QString label;
    QString fileSystem;
    QVERIFY(pc.GetVolumeInformationW(root, &label, &fileSystem));
    QCOMPARE(label.toUtf8(), toldBy(QStringLiteral("e2label"), {node}));
    QCOMPARE(fileSystem.toUtf8(),
             toldBy(QStringLiteral("blkid"), {QStringLiteral("-po"), QStringLiteral("value"),
                                              QStringLiteral("-s"), QStringLiteral("TYPE"), node}));
    QCOMPARE(pc.GetDriveTypeW(root), quint32(io::DriveFixed));
    quint64 total = 0;
    quint64 free = 0;
    QVERIFY(pc.GetDiskFreeSpaceExW(root, &total, &free));
    const QList<QByteArray> df =
        toldBy(QStringLiteral("df"), {QStringLiteral("-B1"), QStringLiteral("--output=size,used"), folder})
            .split(' ');
    QCOMPARE(df.size(), 4);
    QCOMPARE(total, df.at(2).toULongLong());
    QCOMPARE(free, df.at(2).toULongLong() - df.at(3).toULongLong());
    QVERIFY(free > 0 && free < total);

    const auto handle = pc.CreateFileW(QStringLiteral("\\\\.\\") + root.left(2), io::GenericRead,
                                       io::ShareRead | io::ShareWrite, io::OpenExisting);
    io::VolumeDiskExtents extents{};
    QVERIFY(pc.DeviceIoControl(handle, io::VolumeGetVolumeDiskExtents, nullptr, 0, &extents, sizeof(extents),
                               nullptr));
    pc.CloseHandle(handle);
    QCOMPARE(extents.numberOfDiskExtents, 1u);
    QCOMPARE(extents.extents[0].startingOffset, told("START").toLongLong() * 512);
    QCOMPARE(extents.extents[0].extentLength, told("SIZE").toLongLong());
}

void tst_LinuxVolumes::disksAndVolumes()
{
    QVERIFY(makeVolumes());
    const QString first = m_parted->partition(1);
    const QString second = m_parted->partition(2);
    const Mount mountB(first, path("b"));
    const Mount mountA(second, path("a"));
    const Mount mountC(m_whole->node(), path("c"));
    QVERIFY(mountA.isMounted() && mountB.isMounted() && mountC.isMounted());

    const QStringList nodes{m_whole->node(), m_parted->node()};
    Platform &pc = platformOn(nodes);
    QCOMPARE(pc.GetLogicalDriveStringsW(), QStringList({"D:\\", "E:\\", "F:\\"}));
    compareVolume(pc, QStringLiteral("D:\\"), second, path("a"));
    compareVolume(pc, QStringLiteral("E:\\"), first, path("b"));
    compareVolume(pc, QStringLiteral("F:\\"), m_whole->node(), path("c"));
    for (int i = 0; i < nodes.size(); ++i) {
        const auto handle = pc.CreateFileW(QStringLiteral("\\\\.\\PHYSICALDRIVE%1").arg(i), ReadWrite,
                                           io::ShareRead | io::ShareWrite, io::OpenExisting);
        io::DiskGeometryEx geometry{};
        QVERIFY(pc.DeviceIoControl(handle, io::DiskGetDriveGeometryEx, nullptr, 0, &geometry,
                                   sizeof(geometry), nullptr));
        pc.CloseHandle(handle);
        QCOMPARE(
            QByteArray::number(qlonglong{geometry.diskSize}),
            toldBy(QStringLiteral("lsblk"), {QStringLiteral("-dbno"), QStringLiteral("SIZE"), nodes.at(i)}));
        QCOMPARE(QByteArray::number(geometry.geometry.bytesPerSector),
                 toldBy(QStringLiteral("blockdev"), {QStringLiteral("--getss"), nodes.at(i)}));
    }
}

void tst_LinuxVolumes::listedDisks()
{
    QVERIFY(makeVolumes());
    const Mount mounted(m_parted->partition(2), path("a"));
    QVERIFY(mounted.isMounted());
    platformOn({m_whole->node(), m_parted->node()});
    const QList<QByteArray> lines = listOfDisks().split('\n');
    QVERIFY(lines.size() > 3);
    QCOMPARE(lines.at(0), QByteArray("disk 128 16384 Drive:"));
    QCOMPARE(lines.at(1), QByteArray("disk 129 131072 Drive: D:"));
    QCOMPARE(lines.at(2), QByteArray("volume 1 D: Second ext2 on 129 from 43008"));
    for (const QByteArray &line : lines.mid(3))
        QVERIFY2(line.isEmpty() || line.startsWith("volume 24 "), line.constData());
}

QByteArray tst_LinuxVolumes::probeAs(const char *user, QByteArray *errors)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(ProbeVariable), QLatin1String(user));
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), QStringList());
    const bool ended = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    *errors = process.readAllStandardError();
    return ended && process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray("failed");
}

void tst_LinuxVolumes::withoutRights()
{
    QVERIFY(makeVolumes());
    // Others may not enter the folder of the images, and would not see a volume mounted in it.
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
    const Mount mounted(m_parted->partition(2), path("a"));
    QVERIFY(mounted.isMounted());
    qputenv("HALVANE_DISKS", (m_parted->node() + QLatin1Char(':') + m_whole->node()).toUtf8());
    QByteArray errors;
    const QByteArray seenByRoot = probeAs("0", &errors);
    QVERIFY2(seenByRoot.startsWith("disk 128 "), seenByRoot.constData());
    QCOMPARE(errors, QByteArray());
    const QByteArray seen = probeAs("65534", &errors);
    QVERIFY2(seen.startsWith("volume 1 D: "), seen.constData());
    QCOMPARE(seen.count('\n'), 1);
    QVERIFY2(seen.contains(" ext2 on 0 from 0"), seen.constData());
    QCOMPARE(errors, QByteArray());
}

void tst_LinuxVolumes::mountingTells()
{
    QVERIFY(makeVolumes());
    Platform &pc = platformOn({m_parted->node(), m_whole->node()});
    QSignalSpy spy(pc.deviceNotifier(), &DeviceNotifier::deviceChange);
    QCOMPARE(pc.deviceNotifier(), pc.deviceNotifier());

    Mount first(m_parted->partition(1), path("a"));
    QVERIFY(first.isMounted());
    QTest::qWait(Settled);
    QCOMPARE(changesOf(spy), Changes{DeviceChange::Arrival});
    QCOMPARE(pc.GetLogicalDriveStringsW(), QStringList{"D:\\"});

    // A second mount of a volume is no new volume.
    QVERIFY(runs(QStringLiteral("mount"), {QStringLiteral("--bind"), path("a"), path("b")}));
    QVERIFY(runs(QStringLiteral("umount"), {path("b")}));
    QTest::qWait(Settled);
    QCOMPARE(spy.size(), 1);

    spy.clear();
    QVERIFY(first.unmount());
    QTest::qWait(Settled);
    QCOMPARE(changesOf(spy), Changes{DeviceChange::RemoveComplete});
    // A question alone changes nothing that a list shows.
    QCOMPARE(pc.GetLogicalDriveStringsW(), QStringList{"D:\\"});
    pc.BeginListing();
    QVERIFY(pc.GetLogicalDriveStringsW().isEmpty());

    // Two volumes at the same time give one notice.
    spy.clear();
    const Mount second(m_parted->partition(2), path("b"));
    const Mount third(m_whole->node(), path("c"));
    QTest::qWait(Settled);
    QCOMPARE(changesOf(spy), Changes{DeviceChange::Arrival});
}

void tst_LinuxVolumes::unlistedDisksTellNothing()
{
    QVERIFY(makeVolumes());
    QSignalSpy listed(platformOn({m_parted->node()}).deviceNotifier(), &DeviceNotifier::deviceChange);
    Mount mounted(m_whole->node(), path("a"));
    QVERIFY(mounted.isMounted() && mounted.unmount());
    QTest::qWait(Settled);
    QCOMPARE(listed.size(), 0);
}

void tst_LinuxVolumes::attachingTells()
{
    const QString image = makeImage("stick.img", 4);
    auto stick = std::make_unique<LoopDevice>(image);
    const QString node = stick->node();
    QSignalSpy spy(platformOn({node}).deviceNotifier(), &DeviceNotifier::deviceChange);
    stick.reset();
    QTest::qWait(Settled);
    QCOMPARE(changesOf(spy), Changes{DeviceChange::RemoveComplete});
    spy.clear();
    stick = std::make_unique<LoopDevice>(image);
    if (stick->node() != node)
        QSKIP("another program took the device");
    QTest::qWait(Settled);
    QCOMPARE(changesOf(spy), Changes{DeviceChange::Arrival});

    // Another medium on the same node at once.
    spy.clear();
    stick.reset();
    stick = std::make_unique<LoopDevice>(image);
    if (stick->node() != node)
        QSKIP("another program took the device");
    QTest::qWait(Settled);
    QCOMPARE(changesOf(spy), (Changes{DeviceChange::RemoveComplete, DeviceChange::Arrival}));
}

void tst_LinuxVolumes::lookingTellsNothing()
{
    QVERIFY(makeVolumes());
    const QStringList nodes{m_parted->node(), m_whole->node()};
    Platform &pc = platformOn(nodes);
    QSignalSpy spy(pc.deviceNotifier(), &DeviceNotifier::deviceChange);
    // The system reads a disk anew when a descriptor for writing is closed. It watches the nodes as this
    // does.
    const int watch = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    for (const QString &node : nodes)
        QVERIFY(inotify_add_watch(watch, QFile::encodeName(node).constData(), IN_CLOSE_WRITE) >= 0);
    char events[1024];

    QVERIFY(!listOfDisks().isEmpty());
    const auto handle = pc.CreateFileW(FirstDisk, ReadWrite, io::ShareRead, io::OpenExisting);
    QByteArray sector(512, '\0');
    quint32 moved = 0;
    QVERIFY(pc.ReadFile(handle, sector.data(), 512, &moved));
    pc.CloseHandle(handle);
    QTest::qWait(Settled);
    QCOMPARE(spy.size(), 0);
    QVERIFY(::read(watch, events, sizeof(events)) < 0);

    const auto writer = pc.CreateFileW(FirstDisk, ReadWrite, io::ShareRead, io::OpenExisting);
    QVERIFY(pc.WriteFile(writer, sector.constData(), 512, &moved));
    pc.CloseHandle(writer);
    QVERIFY(::read(watch, events, sizeof(events)) > 0);
    ::close(watch);
    QTest::qWait(Settled);
    QCOMPARE(spy.size(), 0);
}

void tst_LinuxVolumes::readOnlyDisk()
{
    const LoopDevice device(makeImage("locked.img", 1), {QStringLiteral("-r")});
    Platform &pc = platformOn({device.node()});
    QCOMPARE(pc.CreateFileW(FirstDisk, ReadWrite, io::ShareRead, io::OpenExisting), Platform::InvalidHandle);
    const auto handle = pc.CreateFileW(FirstDisk, io::GenericRead, io::ShareRead, io::OpenExisting);
    QVERIFY(handle != Platform::InvalidHandle);
    pc.CloseHandle(handle);
}

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
