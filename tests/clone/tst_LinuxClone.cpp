// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/DestinationScripts.h"
#include "tests/clone/CloneDisks.h"
#include "tests/platform/LoopDevice.h"
#include "tests/support/DiskImage.h"
#include "tests/support/LinuxPlaces.h"
#include "tests/support/WatchedPlatform.h"

#include <QDir>
#include <QtTest>

#include <utility>

namespace
{

constexpr qint64 MiB = 1024 * 1024;
constexpr int FirstOffset = 1 << 20;
constexpr int SecondOffset = 13 << 20;
constexpr int PartitionBytes = 8 << 20;
const QByteArray Table = "label: gpt\nstart=1MiB, size=8MiB\nstart=13MiB, size=8MiB\n";

} // namespace

/// A clone between real block devices, made for the test.
class tst_LinuxClone : public QObject
{
    Q_OBJECT

private slots:
    void clonesPartitionsAndFileSystems_data();
    void clonesPartitionsAndFileSystems();
    void initTestCase() { m_ownMounts = keepMountsToOurselves(); }
    void diskInUse_data();
    void diskInUse();
    void swappedDiskIsLeftAlone_data();
    void swappedDiskIsLeftAlone();

private:
    QTemporaryDir m_home;
    bool m_ownMounts = false;
};

void tst_LinuxClone::clonesPartitionsAndFileSystems_data()
{
    QTest::addColumn<qint64>("sourceBytes");
    QTest::addColumn<qint64>("destinationBytes");
    QTest::newRow("equal, with a part of a block") << 22 * MiB << 22 * MiB;
    QTest::newRow("whole blocks") << 32 * MiB << 32 * MiB;
    QTest::newRow("odd size onto a larger one") << 22 * MiB + 512 << 41 * MiB + 1024;
}

void tst_LinuxClone::clonesPartitionsAndFileSystems()
{
    QFETCH(qint64, sourceBytes);
    QFETCH(qint64, destinationBytes);
    if (!DiskImage::missingTool().isEmpty())
        QSKIP("a tool for disk images is missing");
    const DiskImage source(sourceBytes);
    source.partition(Table);
    source.put(FirstOffset, madeBy(QStringLiteral("mke2fs -q -t ext4"), PartitionBytes));
    source.put(SecondOffset, madeBy(QStringLiteral("mkfs.vfat"), PartitionBytes));
    const DiskImage destination(destinationBytes);
    destination.put(0, noise(destinationBytes / SectorBytes, 2));
    const DiskImage bystander(sourceBytes);
    bystander.put(0, noise(sourceBytes / SectorBytes, 3));
    const LoopDevice loops[] = {LoopDevice(bystander.path()), LoopDevice(source.path()),
                                LoopDevice(destination.path())};
    QStringList nodes;
    for (const LoopDevice &loop : loops)
        nodes << loop.node();
    if (nodes.contains(QString()))
        QSKIP("no loop devices here");
    qputenv("HALVANE_DISKS", nodes.join(QLatin1Char(':')).toUtf8());
    auto watched = std::make_unique<WatchedPlatform>(linuxPcIn(m_home.path()));
    watched->pauses = false;
    Platform::install(std::move(watched));

    const QByteArray original = source.contents();
    CloneDisks disks(1, sourceBytes / SectorBytes, 2);
    ThreadDriveClone thread;
    disks.listen(thread);
    thread.start(QThread::InheritPriority);
    QVERIFY(thread.wait(60000));
    QCOMPARE(disks.events, QStringList{QStringLiteral("finish (running)")});

    QVERIFY(source.contents() == original);
    QVERIFY(bystander.contents() == noise(sourceBytes / SectorBytes, 3));
    const QByteArray copy = destination.contents();
    QVERIFY(copy.left(original.size()) == original);
    // Zeros up to the end of the last block; behind it the old content.
    const auto copied = static_cast<int>(
        qMin<qint64>((sourceBytes + BlockBytes - 1) / BlockBytes * BlockBytes, destinationBytes));
    QCOMPARE(copy.mid(original.size(), copied - original.size()).count('\0'), copied - original.size());

    // The kernel knows the copied partitions.
    QVERIFY(QFile::exists(loops[2].partition(1)));
    QVERIFY(QFile::exists(loops[2].partition(2)));
    QVERIFY(
        runs(QStringLiteral("e2fsck"), {QStringLiteral("-f"), QStringLiteral("-n"), loops[2].partition(1)}));
    QVERIFY(runs(QStringLiteral("fsck.vfat"), {QStringLiteral("-n"), loops[2].partition(2)}));
}

void tst_LinuxClone::diskInUse_data()
{
    QTest::addColumn<QString>("use");
    QTest::addColumn<int>("fault");
    QTest::newRow("open file on a volume") << "open" << int(CloneFault::DestinationMounted);
    QTest::newRow("mapped device") << "mapped" << int(CloneFault::DestinationHeld);
    QTest::newRow("member of something that holds it") << "held" << int(CloneFault::DestinationHeld);
    QTest::newRow("idle volume") << "idle" << int(CloneFault::None);
    QTest::newRow("mounted where an old one appears") << "old" << int(CloneFault::None);
    QTest::newRow("mounted in the pause") << "pause" << int(CloneFault::DestinationMounted);
    QTest::newRow("mounted behind the last look") << "late" << int(CloneFault::DestinationTakesNothing);
}

/// Whatever uses the destination, the clone is refused or the copy is equal.
void tst_LinuxClone::diskInUse()
{
    QFETCH(QString, use);
    QFETCH(int, fault);
    constexpr qint64 bytes = 12 * MiB;
    const DiskImage images[] = {DiskImage(bytes), DiskImage(bytes)};
    images[0].put(0, noise(bytes / SectorBytes, 5));
    images[1].partition("label: dos\nstart=1MiB\n");
    images[1].put(FirstOffset, madeBy(QStringLiteral("mke2fs -q -t ext4"), PartitionBytes));
    const LoopDevice loops[] = {LoopDevice(images[0].path()), LoopDevice(images[1].path())};
    if (!m_ownMounts || loops[0].node().isEmpty() || loops[1].node().isEmpty())
        QSKIP("no loop devices or mounts here");
    qputenv("HALVANE_DISKS", (loops[0].node() + QLatin1Char(':') + loops[1].node()).toUtf8());
    auto watched = std::make_unique<WatchedPlatform>(linuxPcIn(m_home.path()));
    watched->pauses = false;
    const QString partition = loops[1].partition(1);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("busy")));
    std::unique_ptr<Mount> mount;
    const auto mountIt = [&](bool busy) {
        mount = std::make_unique<Mount>(partition, folder.path());
        if (busy && mount->isMounted())
            QVERIFY(file.open(QIODevice::WriteOnly));
    };
    const auto mountNew = [&] {
        QVERIFY(runs(QStringLiteral("mke2fs"), {QStringLiteral("-q"), QStringLiteral("-F"), partition}));
        mountIt(true);
        QVERIFY(file.isOpen());
    };
    QVERIFY(loops[1].showPartitions());
    const QString mapped = QStringLiteral("halvane-%1").arg(QCoreApplication::applicationPid());
    if (use == QLatin1String("mapped") &&
        !runs(QStringLiteral("dmsetup"), {QStringLiteral("create"), mapped, QStringLiteral("--table"),
                                          QStringLiteral("0 2048 linear %1 0").arg(partition)}))
        QSKIP("no mapped devices here");
    // The kernel opens the members of arrays and pools like this.
    const int held = use == QLatin1String("held")
                         ? ::open(QFile::encodeName(partition).constData(), O_RDONLY | O_EXCL | O_CLOEXEC)
                         : -1;
    QCOMPARE(held >= 0, use == QLatin1String("held"));
    if (use == QLatin1String("open") || use == QLatin1String("idle")) {
        mountIt(use == QLatin1String("open"));
        QVERIFY(mount->isMounted());
    }
    bool slept = false;
    watched->onSleep = [&](quint32) {
        slept = true;
        if (use == QLatin1String("old"))
            mountIt(true);
        else if (use == QLatin1String("pause"))
            mountNew();
    };
    bool late = use == QLatin1String("late");
    watched->onTransfer = [&](bool isWrite, qint64, quint32) {
        if (slept && !isWrite && std::exchange(late, false))
            mountNew();
    };
    Platform::install(std::move(watched));

    CloneDisks disks(0, bytes / SectorBytes, 1);
    const QByteArray before = images[1].contents();
    ThreadDriveClone thread;
    thread.start(QThread::InheritPriority);
    QVERIFY(thread.wait(60000));
    file.close();
    mount.reset();
    ::close(held);
    runs(QStringLiteral("dmsetup"), {QStringLiteral("remove"), mapped});
    QCOMPARE(int(thread.outcome().fault), fault);
    const bool refused = thread.outcome().end == CloneOutcome::End::Refused;
    QCOMPARE(slept, !refused);
    if (refused) // a mount writes to the disk, but not there
        QVERIFY(images[1].contents().left(SectorBytes) == before.left(SectorBytes));
    else if (fault == int(CloneFault::None))
        QVERIFY(images[1].contents() == noise(bytes / SectorBytes, 5));
}

void tst_LinuxClone::swappedDiskIsLeftAlone_data()
{
    QTest::addColumn<int>("swapped"); // the number of the disk
    QTest::addColumn<bool>("inThePause");
    QTest::newRow("destination, before the clone") << 1 << false;
    QTest::newRow("destination, once it is empty") << 1 << true;
    QTest::newRow("source") << 0 << true;
}

/// Another disk has taken the node of one that the list shows.
void tst_LinuxClone::swappedDiskIsLeftAlone()
{
    QFETCH(int, swapped);
    QFETCH(bool, inThePause);
    constexpr qint64 bytes = 2 * MiB;
    const DiskImage images[] = {DiskImage(bytes), DiskImage(bytes)};
    const DiskImage other(bytes);
    other.put(0, noise(bytes / SectorBytes, 4));
    std::unique_ptr<LoopDevice> loops[] = {std::make_unique<LoopDevice>(images[0].path()),
                                           std::make_unique<LoopDevice>(images[1].path())};
    const QString node = loops[swapped]->node();
    if (loops[0]->node().isEmpty() || loops[1]->node().isEmpty())
        QSKIP("no loop devices here");
    qputenv("HALVANE_DISKS", (loops[0]->node() + QLatin1Char(':') + loops[1]->node()).toUtf8());
    auto watched = std::make_unique<WatchedPlatform>(linuxPcIn(m_home.path()));
    watched->pauses = false;
    const auto swap = [&] {
        loops[swapped].reset();
        loops[swapped] = std::make_unique<LoopDevice>(other.path());
    };
    if (inThePause)
        watched->onSleep = [&swap](quint32) { swap(); };
    Platform::install(std::move(watched));
    Platform::current().BeginListing();
    if (!inThePause)
        swap();
    // This reads the disks without a new list, so the numbers keep their media.
    destination::runScripts(destination::finishScripts(1 - swapped));

    g_bCloneFailed = false;
    CloneDisks disks(0, bytes / SectorBytes, 1);
    ThreadDriveClone thread;
    disks.listen(thread);
    thread.start(QThread::InheritPriority);
    QVERIFY(thread.wait(60000));
    g_bCloneFailed = false;
    if (loops[swapped]->node() != node)
        QSKIP("another program took the device");
    QCOMPARE(disks.events, (QStringList{QStringLiteral("failed"), QStringLiteral("finish")}));
    QVERIFY(other.contents() == noise(bytes / SectorBytes, 4));
}

QTEST_GUILESS_MAIN(tst_LinuxClone)
#include "tst_LinuxClone.moc"
