// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/DestinationScripts.h"
#include "tests/clone/CloneFixture.h"
#include "tests/platform/LoopDevice.h"
#include "tests/support/DiskImage.h"
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
        source.put(FirstOffset, madeBy("mke2fs -q -t ext4", PartitionBytes));
        source.put(SecondOffset, madeBy("mkfs.vfat", PartitionBytes));
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
        QVERIFY(runs("e2fsck", {"-f", "-n", loop.partition(1)}));
        QVERIFY(runs("fsck.vfat", {"-n", loop.partition(2)}));
    }

    void diskInUse_data()
    {
        QTest::addColumn<CloneFault>("fault");
        QTest::newRow("open") << CloneFault::DestinationMounted; // a file on a volume
        QTest::newRow("mapped") << CloneFault::DestinationHeld;
        QTest::newRow("held") << CloneFault::DestinationHeld; // by what it is a member of
        QTest::newRow("idle") << CloneFault::None;
        QTest::newRow("old") << CloneFault::None; // its old volume cannot be mounted any more
        QTest::newRow("pause") << CloneFault::DestinationMounted;
        QTest::newRow("late") << CloneFault::DestinationTakesNothing; // mounted behind the last look
    }

    /// A clone onto a disk that is used is refused or fails; else the copy is equal.
    void diskInUse()
    {
        const QString use = QTest::currentDataTag();
        QFETCH(CloneFault, fault);
        if (!DiskImage::missingTool().isEmpty())
            QSKIP("a tool for disk images is missing");
        constexpr qint64 bytes = 12 * MiB;
        const DiskImage images[] = {DiskImage(bytes), DiskImage(bytes)};
        images[0].put(0, noise(bytes / SectorSize, 5));
        images[1].partition("label: dos\nstart=1MiB\n");
        images[1].put(FirstOffset, madeBy("mke2fs -q -t ext4", PartitionBytes));
        if (!openPc({images[0].path(), images[1].path()}) || !m_ownMounts)
            QSKIP("no loop devices or mounts here");
        const QString partition = m_loops[1]->partition(1);
        const QTemporaryDir folder;
        QFile file(folder.filePath("busy"));
        std::unique_ptr<Mount> mount;
        const auto mountIt = [&] {
            mount = std::make_unique<Mount>(partition, folder.path());
            QCOMPARE(mount->isMounted(), use != "old");
            QVERIFY(use == "idle" || use == "old" || file.open(QIODevice::WriteOnly));
        };
        const auto mountNew = [&] {
            QVERIFY(runs("mke2fs", {"-q", "-F", partition}));
            mountIt();
        };
        QVERIFY(m_loops[1]->showPartitions());
        const QString mapped = QString("halvane-%1").arg(QCoreApplication::applicationPid());
        if (use == "mapped" &&
            !runs("dmsetup", {"create", mapped, "--table", QString("0 2048 linear %1 0").arg(partition)}))
            QSKIP("no mapped devices here");
        int held = -1;
        if (use == "held") { // the kernel opens the members of arrays and pools like this
            held = ::open(QFile::encodeName(partition).constData(), O_RDONLY | O_EXCL | O_CLOEXEC);
            QVERIFY(held >= 0);
        }
        if (use == "open" || use == "idle")
            mountIt();
        bool slept = false;
        m_pc->onSleep = [&](quint32) {
            slept = true;
            if (use == "old")
                mountIt();
            else if (use == "pause")
                mountNew();
        };
        bool late = use == "late";
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
        runs("dmsetup", {"remove", mapped});
        QCOMPARE(outcome.fault, fault);
        QCOMPARE(slept, outcome.end != End::Refused);
        if (!slept) // a mount writes to the disk, but not there
            QVERIFY(images[1].contents().left(SectorSize) == before.left(SectorSize));
        else if (fault == CloneFault::None)
            QVERIFY(images[1].contents() == noise(bytes / SectorSize, 5));
    }

    /// Another disk has taken the node of one that the list shows.
    void swappedDiskIsLeftAlone()
    {
        const auto row = [this](std::size_t swapped, bool inThePause) {
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
        };
        row(1, false);
        row(1, true); // once it is empty
        row(0, true);
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
        qputenv("HALVANE_DISKS", nodes.join(':').toUtf8());
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
