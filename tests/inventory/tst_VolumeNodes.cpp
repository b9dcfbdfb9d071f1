// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CCreateDiskDriveList.h"
#include "inventory/PartitionWalk.h"
#include "state/GlobalApp.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/HandMadeDisk.h"

#include <QTest>

namespace
{

constexpr quint64 KiB = 1024;
constexpr quint64 MiB = 1024 * KiB;
constexpr quint64 GiB = 1024 * MiB;
constexpr quint8 Linux = 131;

/// Builds the list, and returns the nodes of it that are no physical disks.
QVector<const DiskNode *> build()
{
    CCreateDiskDriveList list;
    list.BuildDriveList();
    QVector<const DiskNode *> nodes;
    for (const DiskNode &node : g_App.m_diskList) {
        if (node.pLogical)
            nodes << &node;
    }
    return nodes;
}

QByteArray bootSector(const QByteArray &name, quint16 signature, quint16 sectorsPerFat = 0)
{
    return HandMadeDisk(1).text(3, name).put(22, sectorsPerFat).put(510, signature).bytes;
}

/// A disk with one MBR partition for each name, which is the mount point in its superblock.
QByteArray linuxDisk(const QVector<QByteArray> &names)
{
    HandMadeDisk disk(64);
    for (int i = 0; i < names.size(); ++i) {
        const int start = 8 + 8 * i;
        disk.bytes[446 + 16 * i + 4] = char(Linux);
        disk.put(446 + 16 * i + 8, quint32(start)).put(446 + 16 * i + 12, quint32(8));
        disk.text((start + 2) * 512 + 136, names.at(i));
    }
    return disk.bytes;
}

} // namespace

class VolumeNodesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { fake = FakePlatform::install(); }

    void takesTypes_data()
    {
        QTest::addColumn<quint32>("type");
        QTest::addColumn<quint64>("total");
        QTest::addColumn<QString>("text"); ///< empty: no node
        QTest::newRow("network") << quint32(io::DriveRemote) << MiB << "";
        QTest::newRow("no root") << quint32(io::DriveNoRootDir) << MiB << "DRIVE_NO_ROOT_DIR";
        QTest::newRow("RAM disk") << quint32(io::DriveRamDisk) << MiB << "RAMDISK";
        QTest::newRow("RAM disk, no size") << quint32(io::DriveRamDisk) << quint64(0) << "";
        QTest::newRow("fixed, no size") << quint32(io::DriveFixed) << quint64(0) << "FIXED";
        QTest::newRow("removable, no size") << quint32(io::DriveRemovable) << quint64(0) << "REMOVABLE";
    }

    void takesTypes()
    {
        QFETCH(quint32, type);
        QFETCH(quint64, total);
        QFETCH(QString, text);
        add('E', "NTFS", total).type = type;
        const auto nodes = build();
        QCOMPARE(nodes.size(), text.isEmpty() ? 0 : 1);
        // A volume that is not listed is not asked for its label: a network share that is gone answers late.
        QCOMPARE(fake->labelsAsked.size(), nodes.size());
        if (nodes.isEmpty())
            return;
        QCOMPARE(nodes[0]->pLogical->szType, text);
        QCOMPARE(int(nodes[0]->pLogical->nParentId), type == io::DriveRemovable ? 4 : 0);
    }

    void codesFileSystems()
    {
        const auto coded = [this](const char *name, quint16 sectorsPerFat = 13) {
            add('D', name, MiB).raw.bytes = bootSector("MSDOS5.0", 0xAA55, sectorsPerFat);
            const DiskNode &node = *build().at(0);
            return QVector<int>{node.nKind, node.pLogical->nFsCode, node.pLogical->nFsClass};
        };
        QCOMPARE(coded("RAW"), QVector<int>({15, 4, 0}));
        QCOMPARE(coded("exFAT"), QVector<int>({1, 3, 3}));
        QCOMPARE(coded("NTFS"), QVector<int>({1, 7, 4}));
        QCOMPARE(coded("FAT32"), QVector<int>({1, 2, 2}));
        QCOMPARE(coded("FAT", 12), QVector<int>({1, 0, 2}));
        QCOMPARE(coded("FAT", 13), QVector<int>({1, 1, 2}));
        QCOMPARE(coded("ReFS"), QVector<int>({1, 0, 0}));
    }

    void fillsVolumes()
    {
        add('A', "", 0); // fixed and without a name: no node, and no id is used up
        add('C', "NTFS", 3 * GiB + 1, 7).label = QStringLiteral("Sys\u202Etem");
        add('E', "RAW", 512 * KiB);
        const auto nodes = build();
        QCOMPARE(nodes.size(), 2);
        QCOMPARE(int(nodes[0]->nId), 257);
        QCOMPARE(int(nodes[1]->nId), 258);
        QVERIFY(!nodes[0]->pDetails);
        const LogicalDetails &c = *nodes[0]->pLogical;
        QCOMPARE(int(c.nLetter), 2);
        QCOMPARE(c.szRoot, QStringLiteral("C:\\"));
        QCOMPARE(c.szLabel, QStringLiteral("Sys\uFFFDtem"));
        QCOMPARE(c.szFileSystem, QStringLiteral("NTFS"));
        QCOMPARE(quint64(c.nTotalBytes), 3 * GiB + 1);
        QCOMPARE(quint64(c.nFreeBytes), quint64(7));
        QCOMPARE(c.szCapacity, QStringLiteral("3.00 GB"));
        QCOMPARE(quint64(c.nSectorCount), 3 * GiB / 512);
        QCOMPARE(quint64(c.nEndSector), 3 * GiB / 512);
        QCOMPARE(nodes[1]->pLogical->szLabel, QStringLiteral("Local Disk"));
        QCOMPARE(nodes[1]->pLogical->szCapacity, QStringLiteral("512.00 MB"));
    }

    void lendsSizeOfStick_data()
    {
        QTest::addColumn<QVector<int>>("sticks");
        QTest::addColumn<quint32>("type");
        QTest::addColumn<qint64>("size");
        QTest::addColumn<quint64>("total");
        const quint32 removable = io::DriveRemovable;
        const quint64 none = 0;
        QTest::newRow("one stick") << QVector<int>{1} << removable << qint64(8 * MiB) << 8 * MiB - 1;
        QTest::newRow("two sticks") << QVector<int>{1, 2} << removable << qint64(8 * MiB) << none;
        QTest::newRow("one that is not listed") << QVector<int>{24} << removable << qint64(8 * MiB) << none;
        QTest::newRow("no medium") << QVector<int>{1} << removable << qint64(0) << none;
        QTest::newRow("fixed volume")
            << QVector<int>{1} << quint32(io::DriveFixed) << qint64(8 * MiB) << none;
    }

    void lendsSizeOfStick()
    {
        QFETCH(QVector<int>, sticks);
        QFETCH(quint32, type);
        QFETCH(qint64, size);
        fake->disks[0].size = 64 * qint64(MiB);
        for (const int number : sticks) {
            fake->disks[number].mediaType = io::MediaRemovable;
            fake->disks[number].size = size;
        }
        add('E', "", 0).type = type;
        const auto nodes = build();
        QCOMPARE(nodes.size(), 1);
        QTEST(quint64(nodes[0]->pLogical->nTotalBytes), "total");
        QCOMPARE(nodes[0]->pLogical->szFileSystem, QStringLiteral("FAT32"));
    }

    void tiesToDisks_data()
    {
        QTest::addColumn<quint32>("type");
        QTest::addColumn<QVector<int>>("disks");
        QTest::addColumn<QVector<quint64>>("place"); ///< start, count, end, parent, spanned
        const quint32 fixed = io::DriveFixed;
        const quint64 count = 10 * MiB / 512;
        QTest::newRow("one extent") << fixed << QVector<int>{3}
                                    << QVector<quint64>{2048, count, 2048 + 4095, 131, 0};
        QTest::newRow("as many as fit")
            << fixed << (QVector<int>(41, 1) << 3) << QVector<quint64>{0, count, count, 4, 1};
        QTest::newRow("more than fit")
            << fixed << QVector<int>(43, 1) << QVector<quint64>{0, count, count, 0, 0};
        QTest::newRow("removable") << quint32(io::DriveRemovable) << QVector<int>{3}
                                   << QVector<quint64>{0, count, count, 4, 0};
    }

    void tiesToDisks()
    {
        QFETCH(quint32, type);
        QFETCH(QVector<int>, disks);
        for (const char *fileSystem : {"NTFS", "RAW"}) {
            FakePlatform::Volume &volume = add('E', fileSystem, 10 * MiB);
            volume.type = type;
            volume.extents.clear();
            // The length is not a multiple of a sector.
            for (const int disk : disks)
                volume.extents << io::DiskExtent{quint32(disk), 0, qint64(MiB), 4095 * 512 + 511};
            const LogicalDetails &node = *build().at(0)->pLogical;
            const QVector<quint64> place{node.nStartSector, node.nSectorCount, node.nEndSector,
                                         node.nParentId, node.bSpanned};
            QTEST(place, "place");
            // Only fixed volumes are asked for extents, and the answer has room for 42.
            QCOMPARE(node.disks, type == io::DriveFixed && disks.size() <= 42 ? disks : QVector<int>());
        }
        QCOMPARE(fake->openHandles(), 0);
    }

    void takesSizeFromExtents_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("boot");
        QTest::addColumn<int>("extents");
        QTest::addColumn<QString>("fileSystem");
        QTest::addColumn<int>("code");
        const QByteArray ntfs = bootSector("NTFS", 0xAA55);
        QTest::newRow("NTFS behind RAW") << "RAW" << ntfs << 1 << "NTFS" << 7;
        QTest::newRow("no signature") << "RAW" << bootSector("NTFS", 0) << 1 << "RAW" << 4;
        QTest::newRow("not NTFS") << "RAW" << bootSector("MSDOS5.0", 0xAA55) << 1 << "RAW" << 4;
        QTest::newRow("name that is taken") << "FAT16" << ntfs << 1 << "FAT16" << 0;
        QTest::newRow("spanned") << "RAW" << ntfs << 2 << "NTFS" << 7;
    }

    void takesSizeFromExtents()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, boot);
        QFETCH(int, extents);
        FakePlatform::Volume &volume = add('E', qPrintable(name), 0);
        volume.raw.bytes = boot;
        volume.extents.fill(io::DiskExtent{0, 0, qint64(MiB), 512 * qint64(KiB)}, extents);
        const LogicalDetails &node = *build().at(0)->pLogical;
        QTEST(node.szFileSystem, "fileSystem");
        QTEST(int(node.nFsCode), "code");
        QCOMPARE(quint64(node.nTotalBytes), extents == 1 ? 512 * KiB : 0);
        QCOMPARE(node.szCapacity, extents == 1 ? QStringLiteral("512.00 MB") : QStringLiteral("0.00 MB"));
    }

    void listsLinuxPartitions()
    {
        fake->disks[1].bytes = linuxDisk({"/home", ""});
        fake->disks[0].bytes = linuxDisk({"stick", "/srv"});
        fake->disks[0].mediaType = io::MediaRemovable;
        add('C', "NTFS", MiB);
        QStringList told;
        for (const DiskNode *node : build().mid(1)) {
            QCOMPARE(int(node->nKind), 24);
            told << QStringLiteral("%1 %2 %3")
                        .arg(node->nId)
                        .arg(node->pLogical->nParentId)
                        .arg(node->pLogical->szRoot);
        }
        // Fixed disks come first. The number counts the partitions of all disks.
        QCOMPARE(told,
                 QStringList({"258 129 /home", "259 129 Volume 2", "260 128 Volume 3", "261 128 /srv"}));
        const LogicalDetails &last = *g_App.m_pDiskListTail->pLogical;
        QCOMPARE(quint64(last.nStartSector), quint64(16));
        QCOMPARE(quint64(last.nSectorCount), quint64(8));
        QCOMPARE(quint64(last.nEndSector), quint64(24));
        QCOMPARE(quint64(last.nTotalBytes), 4 * KiB);
        QCOMPARE(last.szCapacity, QStringLiteral("4.00 MB"));
        QCOMPARE(last.szFileSystem + last.szType + last.szLabel, QStringLiteral("EXTxFIXEDLinux Disk"));
        QCOMPARE(int(last.nFsCode), int(Linux));
        QVERIFY(!g_linuxPartitions.isEmpty());
        fake->disks.clear();
        QCOMPARE(build().size(), 1);
        QVERIFY(g_linuxPartitions.isEmpty());
    }

private:
    FakePlatform::Volume &add(char letter, const char *fileSystem, quint64 total, quint64 free = 0)
    {
        FakePlatform::Volume &volume = fake->volumes[QLatin1Char(letter)];
        volume.fileSystem = QString::fromLatin1(fileSystem);
        volume.total = total;
        volume.free = free;
        return volume;
    }

    FakePlatform *fake = nullptr;
};

QTEST_GUILESS_MAIN(VolumeNodesTest)
#include "tst_VolumeNodes.moc"
