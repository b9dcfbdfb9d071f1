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

QVector<int> build()
{
    CCreateDiskDriveList list;
    list.BuildDriveList();
    QVector<int> ids;
    for (const DiskNode &node : g_App.m_diskList)
        ids << node.nId;
    return ids;
}

/// Builds the list, and returns the nodes of it that are no physical disks.
QVector<const DiskNode *> volumeNodes()
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

class CCreateDiskDriveListTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { fake = FakePlatform::install(); }

    void writesCapacity()
    {
        const auto text = [](quint64 bytes) { return capacityText(bytes, QStringLiteral("KB")); };
        QCOMPARE(text(1000204886016), QStringLiteral("931.51 GB"));
        QCOMPARE(text(1024 * MiB), QStringLiteral("1.00 GB"));
        QCOMPARE(text(1024 * MiB - 1), QStringLiteral("1024.00 MB"));
        QCOMPARE(text(MiB), QStringLiteral("1.00 MB"));
        QCOMPARE(text(MiB - 1), QStringLiteral("1024.00 KB"));
        QCOMPARE(text(0), QStringLiteral("0.00 KB"));
        QCOMPARE(text(~quint64(0)), QStringLiteral("17179869184.00 GB"));
        // A tie is rounded to the even digit.
        QCOMPARE(text(1152 * MiB), QStringLiteral("1.12 GB"));
        QCOMPARE(text(1408 * MiB), QStringLiteral("1.38 GB"));
    }

    void listsDisksInOrder()
    {
        for (const int number : {0, 1, 5, 23, 24, 127, 128})
            add(number);
        add(2, io::MediaRemovable);
        QCOMPARE(build(), QVector<int>({128, 129, 133, 151, 130}));
        // One that is not listed counts, if its number is tried at all.
        QCOMPARE(int(g_App.m_nFixedDisks), 6);
        QCOMPARE(int(g_App.m_nRemovableDisks), 1);
        QCOMPARE(int(g_App.m_pDiskListHead->nKind), int(FixedDisk));
        QCOMPARE(int(g_App.m_pDiskListTail->nKind), int(RemovableDisk));
        QCOMPARE(fake->openHandles(), 0);
    }

    void leavesOutOtherDisks()
    {
        add(0, io::MediaUnknown);
        add(1).opens = false;
        add(2, io::MediaRemovable);
        QCOMPARE(build(), QVector<int>({130}));
        QVERIFY(!g_App.m_bAccessDenied);
        fake->disks.remove(2);
        QCOMPARE(build(), QVector<int>());
        QVERIFY(g_App.m_bAccessDenied);
        fake->disks.remove(1);
        build();
        QVERIFY(!g_App.m_bAccessDenied);
    }

    void fillsDetails()
    {
        // "sectors, sector factor, capacity"
        const auto told = [this](qint64 size, quint32 bytesPerSector, quint32 mediaType) {
            FakePlatform::Disk &disk = add(7, mediaType);
            disk.size = size;
            disk.hasSize = size > 0;
            disk.bytesPerSector = bytesPerSector;
            disk.serial = " SN-7";
            build();
            const DiskDetails &details = *g_App.m_pDiskListHead->pDetails;
            return QStringLiteral("%1 %2 ").arg(details.nTotalSectors).arg(details.nSectorFactor) +
                   details.szCapacity;
        };
        for (const quint32 mediaType : {io::MediaFixed, io::MediaRemovable}) {
            QCOMPARE(told(8001563222016, 512, mediaType), QStringLiteral("15628053168 1 7452.04 GB"));
            QCOMPARE(told(8 * MiB, 4096, mediaType), QStringLiteral("16384 8 8.00 MB"));
            QCOMPARE(told(0, 512, mediaType), QStringLiteral("0 1 0.00 KB"));
            const DiskDetails &details = *g_App.m_pDiskListHead->pDetails;
            QCOMPARE(int(details.nDevice), 135);
            QCOMPARE(details.szSerial, QStringLiteral("SN-7"));
            QCOMPARE(details.szDrives, QStringLiteral("Drive: "));
        }
    }

    void readsIdentityOfFixedDisksOnly()
    {
        QVector<int> asked;
        for (const int number : {0, 1}) {
            add(number, number == 0 ? io::MediaFixed : io::MediaRemovable).smart =
                [&asked, number](quint32, const QByteArray &, QByteArray *) {
                    asked << number;
                    return false;
                };
        }
        build();
        QVERIFY(g_App.m_pDiskListHead->pDetails->pIdentity);
        QVERIFY(!g_App.m_pDiskListTail->pDetails->pIdentity);
        QCOMPARE(asked, QVector<int>{0});
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
        QString opened;
        for (const FakePlatform::Opening &opening : qAsConst(fake->openings)) {
            if (opening.name.size() != 6)
                continue;
            opened += opening.name.at(4);
            QCOMPARE(opening, (FakePlatform::Opening{opening.name, 0x80000000u, 3, 3}));
        }
        // Each volume is opened once, for disks and volumes together; the network share is not opened.
        QCOMPARE(opened, QStringLiteral("CDEFG"));
        QCOMPARE(fake->openHandles(), 0);
    }

    void takesTypes()
    {
        const auto type = [this](quint32 driveType, quint64 total) {
            addVolume('E', "NTFS", total).type = driveType;
            fake->labelsAsked.clear();
            const auto nodes = volumeNodes();
            // A volume that is not listed is not asked for its label: a network share that is gone answers
            // late.
            if (nodes.isEmpty())
                return fake->labelsAsked.isEmpty() ? QStringLiteral("none") : fake->labelsAsked.join(' ');
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
        const auto coded = [this](const char *name, quint16 sectorsPerFat = 13) {
            addVolume('D', name, MiB).raw.bytes = bootSector("MSDOS5.0", 0xAA55, sectorsPerFat);
            const DiskNode &node = *volumeNodes().at(0);
            return QVector<int>{node.nKind, node.pLogical->nFsCode, node.pLogical->nFsClass};
        };
        QCOMPARE(coded("RAW"), QVector<int>({15, 4, 0}));
        QCOMPARE(coded("exFAT"), QVector<int>({1, 3, 3}));
        QCOMPARE(coded("NTFS"), QVector<int>({1, 7, 4}));
        QCOMPARE(coded("FAT32"), QVector<int>({1, 2, 2}));
        QCOMPARE(coded("FAT", 12), QVector<int>({1, 0, 2}));
        QCOMPARE(coded("FAT", 13), QVector<int>({1, 1, 2}));
        QCOMPARE(coded("ReFS"), QVector<int>({1, 0, 0}));
        QCOMPARE(coded(""), QVector<int>({1, 2, 2})); // sniffed
    }

    void fillsVolumes()
    {
        addVolume('A', "", 0); // fixed and without a name: no node, and no id is used up
        addVolume('C', "NTFS", 3 * GiB + 1, 7).label = QStringLiteral("Sys\u202Etem");
        addVolume('E', "RAW", 512 * KiB);
        const auto nodes = volumeNodes();
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
            return quint64(volumeNodes().at(0)->pLogical->nTotalBytes);
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
            const LogicalDetails &node = *volumeNodes().at(0)->pLogical;
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
            const LogicalDetails &node = *volumeNodes().at(0)->pLogical;
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
        QCOMPARE(told("", ntfs, 1), "FAT32, code 2" + size); // sniffed
        QCOMPARE(told("RAW", ntfs, 2), QStringLiteral("NTFS, code 7, 0 bytes, 0.00 MB"));
    }

    void listsLinuxPartitions()
    {
        fake->disks[1].bytes = linuxDisk({"/home", ""});
        fake->disks[0].bytes = linuxDisk({"stick", "/srv"});
        fake->disks[0].mediaType = io::MediaRemovable;
        addVolume('C', "NTFS", MiB);
        QStringList told;
        for (const DiskNode *node : volumeNodes().mid(1)) {
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
        QCOMPARE(volumeNodes().size(), 1);
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
