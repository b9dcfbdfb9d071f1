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

FakePlatform::Volume volumeOn(const QVector<quint32> &disks)
{
    FakePlatform::Volume volume;
    volume.fileSystem = QStringLiteral("NTFS");
    for (const quint32 disk : disks)
        volume.extents << io::DiskExtent{disk, 0, 1048576, 1048576};
    return volume;
}

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

/// "id letter parent, root label, type and file system, sizes, sectors".
QString told(const DiskNode &node)
{
    const LogicalDetails &volume = *node.pLogical;
    return QStringLiteral("%1 %2 %3, %4 %5, %6 %7, %8 ")
               .arg(node.nId)
               .arg(volume.nLetter)
               .arg(volume.nParentId)
               .arg(volume.szRoot, volume.szLabel, volume.szType, volume.szFileSystem, volume.szCapacity) +
           QStringLiteral("%1 %2, %3 %4 %5")
               .arg(volume.nTotalBytes)
               .arg(volume.nFreeBytes)
               .arg(volume.nStartSector)
               .arg(volume.nSectorCount)
               .arg(volume.nEndSector);
}

QByteArray bootSector(const QByteArray &name, quint16 signature, quint16 sectorsPerFat = 0)
{
    return HandMadeDisk(1).text(3, name).put(22, sectorsPerFat).put(510, signature).bytes;
}

/// A disk with two MBR partitions, whose mount points are in their superblocks.
QByteArray linuxDisk(const char *first, const char *second)
{
    HandMadeDisk disk(64);
    disk.table(0, {{Linux, 8, 8}, {Linux, 16, 8}});
    return disk.text(10 * 512 + 136, first).text(18 * 512 + 136, second).bytes;
}

} // namespace

class CCreateDiskDriveListTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { fake = FakePlatform::install(); }

    void writesCapacity()
    {
        QStringList told;
        // A tie is rounded to the even digit.
        for (const quint64 bytes : {1152 * MiB, GiB, GiB - 1, MiB, MiB - 1})
            told << capacityText(bytes, QStringLiteral("KB"));
        QCOMPARE(told, QStringList({"1.12 GB", "1.00 GB", "1024.00 MB", "1.00 MB", "1024.00 KB"}));
    }

    void listsDisksInOrder()
    {
        const auto ids = [] {
            build();
            QVector<int> found;
            for (const DiskNode &node : g_App.m_diskList)
                found << node.nId * 10 + node.nKind;
            return found;
        };
        for (const int number : {0, 23, 24, 127, 128})
            add(number);
        add(1).opens = false;
        add(2, io::MediaRemovable);
        add(3, io::MediaUnknown);
        QCOMPARE(ids(), QVector<int>({128 * 10 + FixedDisk, 151 * 10 + FixedDisk, 130 * 10 + RemovableDisk}));
        // One that is not listed counts, if its number is tried at all.
        QCOMPARE(int(g_App.m_nFixedDisks), 4);
        QCOMPARE(int(g_App.m_nRemovableDisks), 1);
        QCOMPARE(fake->openHandles(), 0);
        // Rights are missing only if no disk is listed.
        QVERIFY(!g_App.m_bAccessDenied);
        fake->disks = {{1, fake->disks[1]}};
        QCOMPARE(ids(), QVector<int>());
        QVERIFY(g_App.m_bAccessDenied);
        fake->disks.clear();
        build();
        QVERIFY(!g_App.m_bAccessDenied);
    }

    void fillsDetails()
    {
        const auto told = [] {
            build();
            const DiskDetails &details = *g_App.m_pDiskListHead->pDetails;
            return QStringLiteral("%1 %2 %3 %4 %5 %6")
                .arg(details.nDevice)
                .arg(details.nTotalSectors)
                .arg(details.nSectorFactor)
                .arg(details.szCapacity, details.szSerial, details.pIdentity ? "identity" : "");
        };
        FakePlatform::Disk &disk = add(7, io::MediaRemovable);
        disk.size = 8001563222016;
        disk.bytesPerSector = 4096;
        disk.serial = " SN-7";
        bool asked = false;
        disk.smart = [&asked](quint32, const QByteArray &, QByteArray *) { return asked = true; };
        QCOMPARE(told(), QStringLiteral("135 15628053168 8 7452.04 GB SN-7 "));
        QVERIFY(!asked);
        disk.mediaType = io::MediaFixed;
        disk.hasSize = false;
        QCOMPARE(told(), QStringLiteral("135 0 8 0.00 KB SN-7 identity"));
        QVERIFY(asked);
    }

    void listsLettersByFirstExtent()
    {
        add(0);
        add(1, io::MediaRemovable);
        fake->volumes = {{QLatin1Char('C'), volumeOn({0})}, {QLatin1Char('D'), volumeOn({1, 0})},
                         {QLatin1Char('E'), volumeOn({})},  {QLatin1Char('F'), volumeOn({0})},
                         {QLatin1Char('G'), volumeOn({0})}, {QLatin1Char('H'), volumeOn({0})}};
        fake->volumes[QLatin1Char('G')].raw.opens = false;
        fake->volumes[QLatin1Char('H')].type = io::DriveRemote;
        build();
        QCOMPARE(g_App.m_pDiskListHead->pDetails->szDrives, QStringLiteral("Drive: C: F: "));
        QCOMPARE(g_App.m_pDiskListHead->pNext->pDetails->szDrives, QStringLiteral("Drive: D: "));
        // Each volume is opened once, for disks and volumes together; the network share is not opened.
        QStringList opened;
        for (const char letter : QByteArray("CDEFG"))
            opened << QStringLiteral(R"(\\.\%1: 80000000 3 3)").arg(letter);
        QCOMPARE(fake->openings.filter(QStringLiteral(":")), opened);
        QCOMPARE(fake->openHandles(), 0);
    }

    void takesTypes()
    {
        const auto type = [this](quint32 driveType, quint64 total) {
            addVolume('E', "NTFS", total).type = driveType;
            fake->labelsAsked.clear();
            const auto nodes = build();
            // A volume that is not listed is not asked for its label: a network share that is gone answers
            // late.
            if (nodes.isEmpty())
                return "none" + fake->labelsAsked.join(' ');
            return nodes[0]->pLogical->szType + QString::number(nodes[0]->pLogical->nParentId);
        };
        QCOMPARE(type(io::DriveRemote, MiB), QStringLiteral("none"));
        QCOMPARE(type(io::DriveNoRootDir, MiB), QStringLiteral("DRIVE_NO_ROOT_DIR0"));
        QCOMPARE(type(io::DriveRamDisk, MiB), QStringLiteral("RAMDISK0"));
        QCOMPARE(type(io::DriveRamDisk, 0), QStringLiteral("none"));
        QCOMPARE(type(io::DriveFixed, 0), QStringLiteral("FIXED0"));
        QCOMPARE(type(io::DriveRemovable, 0), QStringLiteral("REMOVABLE4"));
    }

    void codesFileSystems()
    {
        QStringList told;
        for (const char *name : {"RAW", "exFAT", "NTFS", "FAT32", "FAT", "ReFS"}) {
            addVolume('D', name, MiB).raw.bytes = bootSector("MSDOS5.0", 0xAA55, 13);
            const DiskNode &node = *build().at(0);
            told << QStringLiteral("%1 %2 %3 %4")
                        .arg(name)
                        .arg(node.nKind)
                        .arg(node.pLogical->nFsCode)
                        .arg(node.pLogical->nFsClass);
        }
        QCOMPARE(told, QStringList({"RAW 15 4 0", "exFAT 1 3 3", "NTFS 1 7 4", "FAT32 1 2 2", "FAT 1 1 2",
                                    "ReFS 1 0 0"}));
        addVolume('D', "FAT", MiB).raw.bytes = bootSector("MSDOS5.0", 0xAA55, 12);
        QCOMPARE(int(build().at(0)->pLogical->nFsCode), 0);
    }

    void fillsVolumes()
    {
        addVolume('A', "", 0); // fixed and without a name: no node, and no id is used up
        addVolume('C', "NTFS", 3 * GiB + 1, 7).label = QStringLiteral("Sys\u202Etem");
        addVolume('E', "RAW", 512 * KiB);
        const auto nodes = build();
        QCOMPARE(nodes.size(), 2);
        QCOMPARE(told(*nodes[0]),
                 QStringLiteral("257 2 0, C:\\ Sys\uFFFDtem, FIXED NTFS, 3.00 GB 3221225473 7, "
                                "0 6291456 6291456"));
        QCOMPARE(told(*nodes[1]),
                 QStringLiteral("258 4 0, E:\\ Local Disk, FIXED RAW, 512.00 MB 524288 0, 0 1024 1024"));
    }

    void lendsSizeOfStick()
    {
        const auto lent = [this](const QVector<int> &sticks, qint64 size, quint32 type = io::DriveRemovable) {
            fake->disks.clear();
            fake->disks[0].size = 64 * qint64(MiB);
            for (const int number : sticks) {
                fake->disks[number].mediaType = io::MediaRemovable;
                fake->disks[number].size = size;
            }
            addVolume('E', "", 0).type = type;
            return quint64(build().at(0)->pLogical->nTotalBytes);
        };
        QCOMPARE(lent({1}, 8 * MiB), 8 * MiB - 1);
        QCOMPARE(lent({1, 2}, 8 * MiB), quint64(0));
        QCOMPARE(lent({24}, 8 * MiB), quint64(0)); // one that is not listed
        QCOMPARE(lent({1}, 0), quint64(0));        // no medium
        QCOMPARE(lent({1}, 8 * MiB, io::DriveFixed), quint64(0));
    }

    void tiesToDisks()
    {
        // Start, count, end, parent, spanned, and the disks behind them.
        const auto place = [this](quint32 type, const QVector<int> &disks, const char *fileSystem) {
            FakePlatform::Volume &volume = addVolume('E', fileSystem, 10 * MiB);
            volume.type = type;
            volume.extents.clear();
            // The length is not a multiple of a sector.
            for (const int disk : disks)
                volume.extents << io::DiskExtent{quint32(disk), 0, qint64(MiB), 4095 * 512 + 511};
            const LogicalDetails &node = *build().at(0)->pLogical;
            return QVector<int>{int(node.nStartSector), int(node.nSectorCount), int(node.nEndSector),
                                node.nParentId, node.bSpanned} +
                   node.disks;
        };
        const int count = 10 * MiB / 512;
        const QVector<int> many = QVector<int>(41, 1) << 3;
        const QVector<int> nowhere{0, count, count, 0, 0};
        for (const char *name : {"NTFS", "RAW"}) {
            QCOMPARE(place(io::DriveFixed, {3}, name), QVector<int>({2048, count, 2048 + 4095, 131, 0, 3}));
            QCOMPARE(place(io::DriveFixed, many, name), QVector<int>({0, count, count, 4, 1}) + many);
            // The answer has room for 42, and only fixed volumes are asked.
            QCOMPARE(place(io::DriveFixed, QVector<int>(43, 1), name), nowhere);
            QCOMPARE(place(io::DriveRamDisk, {3}, name), nowhere);
        }
        QCOMPARE(fake->openHandles(), 0);
    }

    void takesSizeFromExtents()
    {
        const auto told = [this](const char *name, const QByteArray &boot, int extents) {
            FakePlatform::Volume &volume = addVolume('E', name, 0);
            volume.raw.bytes = boot;
            volume.extents.fill(io::DiskExtent{0, 0, qint64(MiB), 512 * qint64(KiB)}, extents);
            const LogicalDetails &node = *build().at(0)->pLogical;
            return QStringLiteral("%1, code %2, %3 bytes, %4")
                .arg(node.szFileSystem)
                .arg(node.nFsCode)
                .arg(node.nTotalBytes)
                .arg(node.szCapacity);
        };
        const QByteArray ntfs = bootSector("NTFS", 0xAA55);
        const QString size = QStringLiteral(", 524288 bytes, 512.00 MB");
        QCOMPARE(told("RAW", ntfs, 1), "NTFS, code 7" + size);
        QCOMPARE(told("RAW", bootSector("NTFS", 0), 1), "RAW, code 4" + size);
        QCOMPARE(told("RAW", bootSector("MSDOS5.0", 0xAA55), 1), "RAW, code 4" + size);
        QCOMPARE(told("FAT16", ntfs, 1), "FAT16, code 0" + size);
        QCOMPARE(told("EXFAT", ntfs, 1), "NTFS, code 7" + size);
        QCOMPARE(told("RAW", ntfs, 2), QStringLiteral("NTFS, code 7, 0 bytes, 0.00 MB"));
    }

    void listsLinuxPartitions()
    {
        fake->disks[1].bytes = linuxDisk("/home", "");
        fake->disks[0].bytes = linuxDisk("stick", "/srv");
        fake->disks[0].mediaType = io::MediaRemovable;
        addVolume('C', "NTFS", MiB);
        // Fixed disks come first. The number counts the partitions of all disks.
        const auto nodes = build();
        QCOMPARE(nodes.size(), 5);
        const QString end = QStringLiteral(" Linux Disk, FIXED EXTx, 4.00 MB 4096 0, ");
        QCOMPARE(told(*nodes[1]), "258 0 129, /home" + end + "8 8 16");
        QCOMPARE(told(*nodes[2]), "259 0 129, Volume 2" + end + "16 8 24");
        QCOMPARE(told(*nodes[3]), "260 0 128, Volume 3" + end + "8 8 16");
        QCOMPARE(told(*nodes[4]), "261 0 128, /srv" + end + "16 8 24");
        QCOMPARE(int(nodes[4]->nKind), 24);
        QCOMPARE(int(nodes[4]->pLogical->nFsCode), int(Linux));
        QVERIFY(!g_linuxPartitions.isEmpty()); // of the last disk
        fake->disks.clear();
        QCOMPARE(build().size(), 1);
        QVERIFY(g_linuxPartitions.isEmpty());
    }

private:
    FakePlatform::Disk &add(int number, quint32 mediaType = io::MediaFixed)
    {
        FakePlatform::Disk &disk = fake->disks[number];
        disk.size = 8 * MiB;
        disk.mediaType = mediaType;
        return disk;
    }

    FakePlatform::Volume &addVolume(char letter, const char *fileSystem, quint64 total, quint64 free = 0)
    {
        FakePlatform::Volume &volume = fake->volumes[QLatin1Char(letter)];
        volume.fileSystem = QString::fromLatin1(fileSystem);
        volume.total = total;
        volume.free = free;
        return volume;
    }

    FakePlatform *fake = nullptr;
};

QTEST_GUILESS_MAIN(CCreateDiskDriveListTest)
#include "tst_CCreateDiskDriveList.moc"
