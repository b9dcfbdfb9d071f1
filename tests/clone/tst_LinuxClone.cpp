// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/DestinationScripts.h"
#include "tests/clone/CloneFixture.h"
#include "tests/platform/LoopDevice.h"
#include "tests/support/DiskImage.h"
#include "tests/support/LinuxPlaces.h"
#include "tests/support/WatchedPlatform.h"

#include <utility>

Q_DECLARE_METATYPE(CloneFault)

namespace
{

constexpr qint64 MiB = 1024 * 1024;
constexpr int FirstOffset = 1 << 20;
constexpr int SecondOffset = 13 << 20;
constexpr int PartitionBytes = 8 << 20;

} // namespace

/// A clone between real block devices, made for the test.
class tst_LinuxClone : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_ownMounts = keepMountsToOurselves(); }
    /// An odd size onto a larger one.
    void clonesPartitionsAndFileSystems()
    {
        if (!DiskImage::missingTool().isEmpty())
            QSKIP("a tool for disk images is missing");
        constexpr qint64 sourceBytes = 22 * MiB + 512;
        constexpr qint64 destinationBytes = 41 * MiB + 1024;
        const DiskImage bystander(sourceBytes);
        const DiskImage source(sourceBytes);
        const DiskImage destination(destinationBytes);
        source.partition("label: gpt\nstart=1MiB, size=8MiB\nstart=13MiB, size=8MiB\n");
        source.put(FirstOffset, madeBy(QStringLiteral("mke2fs -q -t ext4"), PartitionBytes));
        source.put(SecondOffset, madeBy(QStringLiteral("mkfs.vfat"), PartitionBytes));
        destination.put(0, noise(destinationBytes / SectorSize, 2));
        bystander.put(0, noise(sourceBytes / SectorSize, 3));
        if (!openPc({bystander.path(), source.path(), destination.path()}))
            QSKIP("no loop devices here");
        const QByteArray original = source.contents();
        CloneDisks disks(1, sourceBytes / SectorSize, 2);
        disks.clone();
        QCOMPARE(disks.events, Finished);

        QVERIFY(source.contents() == original);
        QVERIFY(bystander.contents() == noise(sourceBytes / SectorSize, 3));
        const QByteArray copy = destination.contents();
        QVERIFY(copy.left(original.size()) == original);
        // Zeros up to the end of the last block; behind it the old content.
        constexpr int block = BlockSectors * SectorSize;
        QCOMPARE(copy.mid(original.size(), 2 * block - original.size()).count('\0'),
                 2 * block - original.size());
        QVERIFY(copy.mid(2 * block, MiB) == noise(destinationBytes / SectorSize, 2).mid(2 * block, MiB));

        // The kernel knows the copied partitions.
        const LoopDevice &loop = *m_loops[2];
        QVERIFY(
            runs(QStringLiteral("e2fsck"), {QStringLiteral("-f"), QStringLiteral("-n"), loop.partition(1)}));
        QVERIFY(runs(QStringLiteral("fsck.vfat"), {QStringLiteral("-n"), loop.partition(2)}));
    }

    void diskInUse_data()
    {
        QTest::addColumn<QString>("use");
        QTest::addColumn<CloneFault>("fault");
        QTest::newRow("open file on a volume") << "open" << CloneFault::DestinationMounted;
        QTest::newRow("mapped device") << "mapped" << CloneFault::DestinationHeld;
        QTest::newRow("member of something that holds it") << "held" << CloneFault::DestinationHeld;
        QTest::newRow("idle volume") << "idle" << CloneFault::None;
        QTest::newRow("mounted where an old one appears") << "old" << CloneFault::None;
        QTest::newRow("mounted in the pause") << "pause" << CloneFault::DestinationMounted;
        QTest::newRow("mounted behind the last look") << "late" << CloneFault::DestinationTakesNothing;
    }

    /// Whatever uses the destination, the clone is refused or the copy is equal.
    void diskInUse()
    {
        QFETCH(QString, use);
        QFETCH(CloneFault, fault);
        if (!DiskImage::missingTool().isEmpty())
            QSKIP("a tool for disk images is missing");
        constexpr qint64 bytes = 12 * MiB;
        const DiskImage images[] = {DiskImage(bytes), DiskImage(bytes)};
        images[0].put(0, noise(bytes / SectorSize, 5));
        images[1].partition("label: dos\nstart=1MiB\n");
        images[1].put(FirstOffset, madeBy(QStringLiteral("mke2fs -q -t ext4"), PartitionBytes));
        if (!openPc({images[0].path(), images[1].path()}) || !m_ownMounts)
            QSKIP("no loop devices or mounts here");
        const QString partition = m_loops[1]->partition(1);
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("busy")));
        std::unique_ptr<Mount> mount;
        const auto mountIt = [&](bool busy) {
            mount = std::make_unique<Mount>(partition, folder.path());
            QVERIFY(!busy || !mount->isMounted() || file.open(QIODevice::WriteOnly));
        };
        const auto mountNew = [&] {
            QVERIFY(runs(QStringLiteral("mke2fs"), {QStringLiteral("-q"), QStringLiteral("-F"), partition}));
            mountIt(true);
            QVERIFY(file.isOpen());
        };
        QVERIFY(m_loops[1]->showPartitions());
        const QString mapped = QStringLiteral("halvane-%1").arg(QCoreApplication::applicationPid());
        if (use == QLatin1String("mapped") &&
            !runs(QStringLiteral("dmsetup"), {QStringLiteral("create"), mapped, QStringLiteral("--table"),
                                              QStringLiteral("0 2048 linear %1 0").arg(partition)}))
            QSKIP("no mapped devices here");
        int held = -1;
        if (use == QLatin1String("held")) { // the kernel opens the members of arrays and pools like this
            held = ::open(QFile::encodeName(partition).constData(), O_RDONLY | O_EXCL | O_CLOEXEC);
            QVERIFY(held >= 0);
        }
        if (use == QLatin1String("open") || use == QLatin1String("idle")) {
            mountIt(use == QLatin1String("open"));
            QVERIFY(mount->isMounted());
        }
        bool slept = false;
        m_pc->onSleep = [&](quint32) {
            slept = true;
            if (use == QLatin1String("old"))
                mountIt(true);
            else if (use == QLatin1String("pause"))
                mountNew();
        };
        bool late = use == QLatin1String("late");
        m_pc->onRead = [&] {
            if (slept && std::exchange(late, false))
                mountNew();
        };
        CloneDisks disks(0, bytes / SectorSize, 1);
        const QByteArray before = images[1].contents();
        const CloneOutcome outcome = disks.clone();
        file.close();
        mount.reset();
        ::close(held);
        runs(QStringLiteral("dmsetup"), {QStringLiteral("remove"), mapped});
        QCOMPARE(outcome.fault, fault);
        QCOMPARE(slept, outcome.end != End::Refused);
        if (!slept) // a mount writes to the disk, but not there
            QVERIFY(images[1].contents().left(SectorSize) == before.left(SectorSize));
        else if (fault == CloneFault::None)
            QVERIFY(images[1].contents() == noise(bytes / SectorSize, 5));
    }

    void swappedDiskIsLeftAlone_data()
    {
        QTest::addColumn<std::size_t>("swapped"); // the number of the disk
        QTest::addColumn<bool>("inThePause");
        QTest::newRow("destination, before the clone") << std::size_t(1) << false;
        QTest::newRow("destination, once it is empty") << std::size_t(1) << true;
        QTest::newRow("source") << std::size_t(0) << true;
    }

    /// Another disk has taken the node of one that the list shows.
    void swappedDiskIsLeftAlone()
    {
        QFETCH(std::size_t, swapped);
        QFETCH(bool, inThePause);
        constexpr qint64 bytes = 2 * MiB;
        const DiskImage images[] = {DiskImage(bytes), DiskImage(bytes)};
        const DiskImage other(bytes);
        other.put(0, noise(bytes / SectorSize, 4));
        if (!openPc({images[0].path(), images[1].path()}))
            QSKIP("no loop devices here");
        const QString node = m_loops[swapped]->node();
        const auto swap = [&] {
            m_loops[swapped].reset();
            m_loops[swapped] = std::make_unique<LoopDevice>(other.path());
        };
        if (inThePause)
            m_pc->onSleep = [&swap](quint32) { swap(); };
        m_pc->BeginListing();
        if (!inThePause)
            swap();
        // This reads the disks without a new list, so the numbers keep their media.
        destination::runScripts(destination::finishScripts(1 - int(swapped)));

        CloneDisks disks(0, bytes / SectorSize, 1);
        disks.clone();
        if (m_loops[swapped]->node() != node)
            QSKIP("another program took the device");
        QCOMPARE(disks.events, Failed);
        QVERIFY(other.contents() == noise(bytes / SectorSize, 4));
    }

private:
    /// Installs this PC with loop devices on the images as its only disks. False where there are none.
    bool openPc(const QStringList &images)
    {
        m_loops.clear();
        QStringList nodes;
        for (const QString &image : images) {
            m_loops.push_back(std::make_unique<LoopDevice>(image));
            nodes << m_loops.back()->node();
        }
        qputenv("HALVANE_DISKS", nodes.join(QLatin1Char(':')).toUtf8());
        auto pc = std::make_unique<WatchedPlatform>(placesIn(m_home.path()));
        m_pc = pc.get();
        Platform::install(std::move(pc));
        return !nodes.contains(QString());
    }

    QTemporaryDir m_home;
    bool m_ownMounts = false;
    std::vector<std::unique_ptr<LoopDevice>> m_loops;
    WatchedPlatform *m_pc = nullptr;
};

QTEST_GUILESS_MAIN(tst_LinuxClone)
#include "tst_LinuxClone.moc"
