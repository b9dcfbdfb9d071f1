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

QVector<const DiskNode *> logicalNodes()
{
    QVector<const DiskNode *> nodes;
    for (const DiskNode &node : g_App.m_diskList) {
        if (node.pLogical)
            nodes << &node;
    }
    return nodes;
}

QVector<const DiskNode *> build()
{
    CCreateDiskDriveList list;
    list.BuildDriveList();
    return logicalNodes();
}

QByteArray bootSector(const QByteArray &name, quint16 sectorsPerFat, bool isSigned)
{
    HandMadeDisk disk(1);
    disk.text(3, name).put(22, sectorsPerFat);
    if (isSigned)
        disk.put(510, quint16(0xAA55));
    return disk.bytes;
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

    void takesTypes_data();
    void takesTypes();
    void codesFileSystems_data();
    void codesFileSystems();
    void fillsVolumes();
    void writesSmallCapacity();
    void lendsSizeOfStick_data();
    void lendsSizeOfStick();
    void tiesToDisks_data();
    void tiesToDisks();
    void takesSizeFromExtents_data();
    void takesSizeFromExtents();
    void listsLinuxPartitions();
    void keepsVolumesWithoutRights();

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

void VolumeNodesTest::takesTypes_data()
{
    QTest::addColumn<quint32>("type");
    QTest::addColumn<quint64>("total");
    QTest::addColumn<QString>("text"); ///< empty: no node
    QTest::newRow("unknown") << quint32(io::DriveUnknown) << MiB << QString();
    QTest::newRow("network") << quint32(io::DriveRemote) << MiB << QString();
    QTest::newRow("CD") << quint32(io::DriveCdrom) << MiB << QString();
    QTest::newRow("no root") << quint32(io::DriveNoRootDir) << MiB << QStringLiteral("DRIVE_NO_ROOT_DIR");
    QTest::newRow("no root, no size") << quint32(io::DriveNoRootDir) << quint64(0) << QString();
    QTest::newRow("RAM disk") << quint32(io::DriveRamDisk) << MiB << QStringLiteral("RAMDISK");
    QTest::newRow("RAM disk, no size") << quint32(io::DriveRamDisk) << quint64(0) << QString();
    QTest::newRow("fixed") << quint32(io::DriveFixed) << MiB << QStringLiteral("FIXED");
    QTest::newRow("fixed, no size") << quint32(io::DriveFixed) << quint64(0) << QStringLiteral("FIXED");
    QTest::newRow("removable, no size")
        << quint32(io::DriveRemovable) << quint64(0) << QStringLiteral("REMOVABLE");
}

void VolumeNodesTest::takesTypes()
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

void VolumeNodesTest::codesFileSystems_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("sectorsPerFat");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("fileSystemClass");
    QTest::newRow("RAW") << QStringLiteral("RAW") << 0 << 15 << 4 << 0;
    QTest::newRow("exFAT") << QStringLiteral("exFAT") << 0 << 1 << 3 << 3;
    QTest::newRow("EXFAT") << QStringLiteral("EXFAT") << 0 << 1 << 0 << 0;
    QTest::newRow("NTFS") << QStringLiteral("NTFS") << 0 << 1 << 7 << 4;
    QTest::newRow("FAT32") << QStringLiteral("FAT32") << 0 << 1 << 2 << 2;
    QTest::newRow("FAT, 12 bits") << QStringLiteral("FAT") << 12 << 1 << 0 << 2;
    QTest::newRow("FAT, 16 bits") << QStringLiteral("FAT") << 13 << 1 << 1 << 2;
    QTest::newRow("other") << QStringLiteral("ReFS") << 13 << 1 << 0 << 0;
    QTest::newRow("sniffed") << QString() << 13 << 1 << 2 << 2;
}

void VolumeNodesTest::codesFileSystems()
{
    QFETCH(QString, name);
    QFETCH(int, sectorsPerFat);
    add('D', "", MiB).raw.bytes = bootSector("MSDOS5.0", quint16(sectorsPerFat), true);
    fake->volumes[QLatin1Char('D')].fileSystem = name;
    const auto nodes = build();
    QCOMPARE(nodes.size(), 1);
    QTEST(int(nodes[0]->nKind), "kind");
    QTEST(int(nodes[0]->pLogical->nFsCode), "code");
    QTEST(int(nodes[0]->pLogical->nFsClass), "fileSystemClass");
}

void VolumeNodesTest::fillsVolumes()
{
    add('A', "", 0); // fixed and without a name: no node, and no id is used up
    add('C', "NTFS", 3 * GiB + 1, 7).label = QStringLiteral("Sys\u202Etem");
    add('E', "RAW", 5 * MiB);
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
    QCOMPARE(quint64(c.nStartSector), quint64(0));
    QCOMPARE(quint64(c.nSectorCount), 3 * GiB / 512);
    QCOMPARE(quint64(c.nEndSector), 3 * GiB / 512);
    QCOMPARE(nodes[1]->pLogical->szLabel, QStringLiteral("Local Disk"));
    QCOMPARE(nodes[1]->pLogical->szCapacity, QStringLiteral("5.00 MB"));
}

void VolumeNodesTest::writesSmallCapacity()
{
    add('E', "FAT32", 512 * KiB);
    QCOMPARE(build().at(0)->pLogical->szCapacity, QStringLiteral("512.00 MB"));
}

void VolumeNodesTest::lendsSizeOfStick_data()
{
    QTest::addColumn<QVector<int>>("removableDisks");
    QTest::addColumn<quint32>("type");
    QTest::addColumn<quint64>("size");
    QTest::addColumn<quint64>("total");
    const quint32 removable = io::DriveRemovable;
    QTest::newRow("one stick") << QVector<int>{1} << removable << 8 * MiB << 8 * MiB - 1;
    QTest::newRow("two sticks") << QVector<int>{1, 2} << removable << 8 * MiB << quint64(0);
    QTest::newRow("one stick that is not listed") << QVector<int>{24} << removable << 8 * MiB << quint64(0);
    QTest::newRow("a second one that is not listed")
        << QVector<int>{1, 24} << removable << 8 * MiB << quint64(0);
    QTest::newRow("reader without a medium") << QVector<int>{1} << removable << quint64(0) << quint64(0);
    QTest::newRow("fixed volume") << QVector<int>{1} << quint32(io::DriveFixed) << 8 * MiB << quint64(0);
    QTest::newRow("no stick") << QVector<int>() << removable << 8 * MiB << quint64(0);
}

void VolumeNodesTest::lendsSizeOfStick()
{
    QFETCH(QVector<int>, removableDisks);
    QFETCH(quint32, type);
    QFETCH(quint64, size);
    QFETCH(quint64, total);
    fake->disks[0].size = 64 * qint64(MiB);
    for (const int number : removableDisks) {
        fake->disks[number].mediaType = io::MediaRemovable;
        fake->disks[number].size = qint64(size);
    }
    add('E', "", 0).type = type;
    const auto nodes = build();
    QCOMPARE(nodes.size(), 1);
    QCOMPARE(quint64(nodes[0]->pLogical->nTotalBytes), total);
    QCOMPARE(quint64(nodes[0]->pLogical->nEndSector), total / 512);
    QCOMPARE(nodes[0]->pLogical->szFileSystem, QStringLiteral("FAT32"));
}

void VolumeNodesTest::tiesToDisks_data()
{
    QTest::addColumn<quint32>("type");
    QTest::addColumn<QVector<quint32>>("disks");
    QTest::addColumn<QVector<quint64>>("place"); ///< start, count, end, parent, spanned
    const quint32 fixed = io::DriveFixed;
    const quint64 count = 10 * MiB / 512;
    QTest::newRow("one extent") << fixed << QVector<quint32>{3}
                                << QVector<quint64>{2048, count, 2048 + 4095, 131, 0};
    QTest::newRow("two extents") << fixed << QVector<quint32>{3, 1}
                                 << QVector<quint64>{0, count, count, 4, 1};
    QTest::newRow("as many as fit") << fixed << QVector<quint32>(42, 1)
                                    << QVector<quint64>{0, count, count, 4, 1};
    QTest::newRow("more than fit") << fixed << QVector<quint32>(43, 1)
                                   << QVector<quint64>{0, count, count, 0, 0};
    QTest::newRow("none") << fixed << QVector<quint32>() << QVector<quint64>{0, count, count, 0, 0};
    QTest::newRow("removable") << quint32(io::DriveRemovable) << QVector<quint32>{3}
                               << QVector<quint64>{0, count, count, 4, 0};
    QTest::newRow("RAM disk") << quint32(io::DriveRamDisk) << QVector<quint32>{3}
                              << QVector<quint64>{0, count, count, 0, 0};
}

void VolumeNodesTest::tiesToDisks()
{
    QFETCH(quint32, type);
    QFETCH(QVector<quint32>, disks);
    for (const char *fileSystem : {"NTFS", "RAW"}) {
        FakePlatform::Volume &volume = add('E', fileSystem, 10 * MiB);
        volume.type = type;
        volume.extents.clear();
        // The length is not a multiple of a sector.
        for (const quint32 disk : disks)
            volume.extents << io::DiskExtent{disk, 0, qint64(MiB), 4095 * 512 + 511};
        const LogicalDetails &node = *build().at(0)->pLogical;
        const QVector<quint64> place{node.nStartSector, node.nSectorCount, node.nEndSector, node.nParentId,
                                     node.bSpanned};
        QTEST(place, "place");
        // Only fixed volumes are asked for extents, and the answer has room for 42.
        const bool answered = type == io::DriveFixed && disks.size() <= 42;
        QCOMPARE(node.disks, answered ? QVector<int>(disks.cbegin(), disks.cend()) : QVector<int>());
    }
    QCOMPARE(fake->openHandles(), 0);
}

void VolumeNodesTest::takesSizeFromExtents_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("boot");
    QTest::addColumn<int>("extents");
    QTest::addColumn<QString>("fileSystem");
    QTest::addColumn<int>("code");
    QTest::addColumn<quint64>("total");
    const QByteArray ntfs = bootSector("NTFS    ", 0, true);
    const QString raw = QStringLiteral("RAW");
    const QString exfatCapitals = QStringLiteral("EXFAT");
    QTest::newRow("NTFS behind RAW") << raw << ntfs << 1 << QStringLiteral("NTFS") << 7 << 512 * KiB;
    QTest::newRow("no signature") << raw << bootSector("NTFS", 0, false) << 1 << raw << 4 << 512 * KiB;
    QTest::newRow("not NTFS") << raw << bootSector("MSDOS5.0", 0, true) << 1 << raw << 4 << 512 * KiB;
    QTest::newRow("another name") << exfatCapitals << ntfs << 1 << QStringLiteral("NTFS") << 7 << 512 * KiB;
    QTest::newRow("name that is taken")
        << QStringLiteral("FAT16") << ntfs << 1 << QStringLiteral("FAT16") << 0 << 512 * KiB;
    QTest::newRow("sniffed") << QString() << ntfs << 1 << QStringLiteral("FAT32") << 2 << 512 * KiB;
    QTest::newRow("spanned") << raw << ntfs << 2 << QStringLiteral("NTFS") << 7 << quint64(0);
}

void VolumeNodesTest::takesSizeFromExtents()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, boot);
    QFETCH(int, extents);
    QFETCH(quint64, total);
    FakePlatform::Volume &volume = add('E', "", 0);
    volume.fileSystem = name;
    volume.raw.bytes = boot;
    volume.extents.fill(io::DiskExtent{0, 0, qint64(MiB), 512 * qint64(KiB)}, extents);
    const DiskNode &node = *build().at(0);
    QTEST(node.pLogical->szFileSystem, "fileSystem");
    QTEST(int(node.pLogical->nFsCode), "code");
    QCOMPARE(int(node.nKind), name == QLatin1String("RAW") ? 15 : 1);
    QCOMPARE(quint64(node.pLogical->nTotalBytes), total);
    QCOMPARE(quint64(node.pLogical->nSectorCount), total / 512);
    QCOMPARE(node.pLogical->szCapacity, total == 0 ? QStringLiteral("0.00 MB") : QStringLiteral("512.00 MB"));
}

void VolumeNodesTest::listsLinuxPartitions()
{
    fake->disks[1].bytes = linuxDisk({"/home", ""});
    fake->disks[0].bytes = linuxDisk({"stick", "/a-path-longer-than-sixteen"});
    fake->disks[0].mediaType = io::MediaRemovable;
    fake->disks[2].bytes = linuxDisk({""});
    add('C', "NTFS", MiB);
    auto nodes = build();
    QCOMPARE(nodes.size(), 6);
    // Fixed disks come first. The number counts the partitions of all disks.
    const QStringList names{QStringLiteral("/home"), QStringLiteral("Volume 2"), QStringLiteral("Volume 3"),
                            QStringLiteral("Volume 4"), QStringLiteral("/a-path-longer-t")};
    const QVector<int> parents{129, 129, 130, 128, 128};
    for (int i = 0; i < names.size(); ++i) {
        const DiskNode &node = *nodes.at(i + 1);
        QCOMPARE(int(node.nKind), 24);
        QCOMPARE(int(node.nId), 258 + i);
        QCOMPARE(node.pLogical->szRoot, names.at(i));
        QCOMPARE(int(node.pLogical->nParentId), parents.at(i));
    }
    const LogicalDetails &second = *nodes.at(2)->pLogical;
    QCOMPARE(quint64(second.nStartSector), quint64(16));
    QCOMPARE(quint64(second.nSectorCount), quint64(8));
    QCOMPARE(quint64(second.nEndSector), quint64(24));
    QCOMPARE(quint64(second.nTotalBytes), 4 * KiB);
    QCOMPARE(second.szCapacity, QStringLiteral("4.00 MB"));
    QCOMPARE(second.szFileSystem + second.szType + second.szLabel, QStringLiteral("EXTxFIXEDLinux Disk"));
    QCOMPARE(int(second.nFsCode), int(Linux));
    QCOMPARE(int(second.nLetter), 0);
    QVERIFY(!g_linuxPartitions.isEmpty());
    fake->disks.clear();
    nodes = build();
    QCOMPARE(nodes.size(), 1);
    QVERIFY(g_linuxPartitions.isEmpty());
}

void VolumeNodesTest::keepsVolumesWithoutRights()
{
    fake->disks[0].bytes = linuxDisk({"/home"});
    fake->disks[0].opens = false;
    FakePlatform::Volume &volume = add('C', "NTFS", MiB);
    volume.raw.opens = false;
    volume.extents << io::DiskExtent{0, 0, qint64(MiB), qint64(MiB)};
    const auto nodes = build();
    QCOMPARE(nodes.size(), 1);
    QCOMPARE(g_App.m_pDiskListHead, g_App.m_pDiskListTail);
    QCOMPARE(quint64(nodes[0]->pLogical->nStartSector), quint64(0));
}

QTEST_GUILESS_MAIN(VolumeNodesTest)
#include "tst_VolumeNodes.moc"
