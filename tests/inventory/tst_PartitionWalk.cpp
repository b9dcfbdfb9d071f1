// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/BootSector.h"
#include "inventory/PartitionWalk.h"
#include "inventory/RawAccess.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/DiskImage.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/HandMadeDisk.h"

using Found = QVector<QVector<quint64>>; ///< start, count and end of each partition

namespace
{

constexpr quint8 Ext = 5;
constexpr quint8 ExtLba = 15;
constexpr quint8 Linux = 131;
constexpr quint8 Gpt = 238;
constexpr qint64 MiB = 1024 * 1024;

/// The partitions of disk 3, once it has these bytes.
Found walk(const QByteArray &bytes, const QSet<qint64> &badSectors = {})
{
    FakePlatform *fake = FakePlatform::install();
    fake->disks[3].bytes = bytes;
    fake->disks[3].badSectors = badSectors;
    ResetPartitionWalk();
    ScanPartitionTable(131, 0);
    Found found;
    for (const LinuxPartitionEntry &entry : g_linuxPartitions) {
        found << QVector<quint64>{entry.nStartSector, entry.nSectorCount, entry.nEndSector};
        if (entry.nType != Linux || entry.nDrive != 131)
            qFatal("an entry does not say what it is");
    }
    const PartitionWalkState &state = g_partitionWalk;
    if (state.currentBase != 0 || state.walkDepth != 0 || int(state.partitionCount) != found.size())
        qFatal("the walk does not end where it began");
    return found;
}

/// The Linux partitions as sfdisk lists them, in the order of their numbers.
Found linuxPartitions(const DiskImage &image, const QVector<int> &extOnBasicData = {})
{
    const QJsonObject table = image.table();
    const bool gpt = table["label"].toString() == "gpt";
    Found found;
    int number = 0;
    for (const QJsonValue &value : table["partitions"].toArray()) {
        const QJsonObject partition = value.toObject();
        const QString type = partition["type"].toString();
        ++number;
        if (type != "83" && !type.startsWith("0FC63DAF") && !extOnBasicData.contains(number))
            continue;
        const auto start = quint64(partition["start"].toDouble());
        const auto count = quint64(partition["size"].toDouble());
        found << QVector<quint64>{start, count, start + count - (gpt ? 1 : 0)};
    }
    return found;
}

template<typename Bytes = bootsector::Sector>
Bytes taken(const QByteArray &volume, int sector = 0)
{
    Bytes bytes{};
    std::copy_n(volume.cbegin() + sector * 512, bytes.size(), bytes.begin());
    return bytes;
}

/// "file system bytes" of a volume with such content.
QString sniffed(int letter, const QByteArray &volume, bool removable, quint64 totalBytes)
{
    FakePlatform::install()->volumes[QChar('A' + letter)].raw.bytes = volume;
    const auto found = bootsector::sniffFileSystem(letter, removable, totalBytes);
    return found ? found->fileSystem + ' ' + QString::number(found->totalBytes) : "no volume";
}

} // namespace

/// What is read from raw sectors: partition tables and boot sectors, by real tools and by hand.
class PartitionWalkTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        fake = FakePlatform::install();
        QByteArray &bytes = fake->disks[1].bytes;
        for (const char digit : {'0', '1', '2', '3'})
            bytes.append(QByteArray(512, digit));
        fake->volumes['D'].raw.bytes = bytes;
    }

    void opensTargets()
    {
        OpenDisk(128);
        OpenDisk(25);
        // For reading and writing; others may read, write and delete; a missing file is not made.
        QCOMPARE(fake->openings,
                 QStringList({R"(\\.\PHYSICALDRIVE0 c0000000 7 3)", R"(\\.\Z: c0000000 7 3)"}));
    }

    /// Two sectors each: whether they were read, how many bytes, what the buffer then holds, open handles.
    void readsAndCloses()
    {
        fake->disks[1].badSectors << 1;
        compareRows("PartitionWalk/reads", [this](const QString &row) {
            QByteArray buffer(1024, 'x');
            quint32 moved = 0;
            const bool done =
                ReadWriteSectors(row.section(' ', 0, 0).toInt(), row.section(' ', 1).toULongLong(),
                                 buffer.data(), 1024, NoDiskHandle, false, &moved);
            const auto end = std::unique(buffer.begin(), buffer.end());
            return joined(done, moved, QByteArray(buffer.data(), int(end - buffer.begin())),
                          fake->openHandles());
        });
    }

    void worksOnGivenHandle()
    {
        const Platform::RawHandle handle = OpenDisk(129);
        QByteArray buffer(512, 'w');
        QVERIFY(ReadWriteSectors(129, 1, buffer.data(), 512, handle, true));
        QCOMPARE(fake->disks[1].bytes.mid(511, 514), "0" + buffer + "2");
        QVERIFY(ReadWriteSectors(129, 0, buffer.data(), 512, handle));
        QCOMPARE(buffer, QByteArray(512, '0'));
        QCOMPARE(fake->openings.size(), 1);
        QCOMPARE(fake->openHandles(), 1);
    }

    void countsSectors()
    {
        const auto counted = [](int code) {
            quint64 sectors = 99;
            GetDiskSectorCount(code, &sectors);
            return int(sectors);
        };
        QCOMPARE(counted(129), 4);
        QCOMPARE(counted(128), 0);
        fake->disks[1].hasSize = false;
        QCOMPARE(counted(129), 0);
        QCOMPARE(fake->openHandles(), 0);
    }

    void agreesWithTools()
    {
        const QString missing = DiskImage::missingTool();
        if (!missing.isEmpty())
            QSKIP(qPrintable(missing + " is not installed"));
        const DiskImage mbr(64 * MiB);
        mbr.partition("label: dos\nsize=2M,type=83\ntype=5\n\n\nsize=4M,type=7\nsize=5M,type=83\n"
                      "size=3M,type=b\nsize=2M,type=83\n");
        Found found = walk(mbr.contents());
        QCOMPARE(found, linuxPartitions(mbr));
        QCOMPARE(found.size(), 3);

        const DiskImage gpt(80 * MiB);
        const QByteArray basic("size=8M,type=EBD0A0A2-B9E5-4433-87C0-68B6B72699C7\n");
        gpt.partition("label: gpt\ntable-length: 260\ngrain: 64K\n" + basic.repeated(6) +
                      "size=64K,type=U\nsize=64K,type=S\n" + QByteArray("size=64K,type=L\n").repeated(248));
        const QStringList commands{"mke2fs -q -F -t ext4", "mkfs.ntfs -q -F -f", "mke2fs -q -F -t ext2",
                                   "mkfs.exfat", "mkfs.vfat -s 1 -F 16"};
        // The partitions lie one behind the other, from the first MiB on.
        for (int i = 0; i < commands.size(); ++i)
            gpt.put((1 + 8 * i) * MiB, madeBy(commands.at(i), 8 * MiB));
        // The array is not looked at beyond sector 62, where its 244th entry ends.
        found = walk(gpt.contents());
        QCOMPARE(found, linuxPartitions(gpt, {1, 3}).mid(0, found.size()));
        QCOMPARE(found.size(), 2 + 244 - 8);
    }

    void takesTables()
    {
        HandMadeDisk disk(200);
        // Kinds 5 and 15 in order; the base comes back within the chain.
        disk.table(0, {{ExtLba, 20, 9}, {Linux, 10, 5}, {}, {Ext, 10, 9}});
        disk.table(20, {{Ext, 30, 9}, {Linux, 1, 1}}).table(30, {{Linux, 4, 6}});
        disk.table(50, {{ExtLba, 60, 9}, {Linux, 2, 1}}).table(80, {{Linux, 3, 1}});
        QCOMPARE(walk(disk.bytes), (Found{{83, 1, 84}, {52, 1, 53}, {21, 1, 22}, {10, 5, 15}, {34, 6, 40}}));
        // Sums beyond 32 bits.
        disk = HandMadeDisk(200).table(0, {{Ext, 20, 9}}).table(10, {{Linux, 1, 1}});
        disk.table(20, {{Linux, 0xFFFFFFFF, 0xFFFFFFFF}, {Ext, 0xFFFFFFF6, 9}});
        QCOMPARE(walk(disk.bytes), (Found{{0x100000013, 0xFFFFFFFF, 0x200000012}, {11, 1, 12}}));
        // A cycle of two tables, and one behind the disk's end.
        disk = HandMadeDisk(200).table(0, {{Ext, 20, 9}, {Linux, 10, 5}});
        disk.table(20, {{Linux, 1, 2}, {Ext, 5, 9}}).table(25, {{Ext, 0, 9}, {Ext, 5000, 9}, {Linux, 1, 2}});
        QCOMPARE(walk(disk.bytes), (Found{{21, 2, 23}, {26, 2, 28}, {10, 5, 15}}));

        const QByteArray linuxData = HandMadeDisk::linuxData();
        // Slots behind the GPT come from its header.
        disk = HandMadeDisk(200).table(0, {{Linux, 10, 5}, {Gpt, 1, 9}, {Linux, 11, 5}, {Linux, 12, 5}});
        disk.header()
            .table(1, {{Linux, 13, 5}, {Linux, 14, 5}, {}, {Linux, 15, 5}})
            .entry(0, linuxData, 100, 109);
        QCOMPARE(walk(disk.bytes), (Found{{10, 5, 15}, {100, 10, 109}, {15, 5, 20}}));
        // No header behind the GPT entry.
        disk = HandMadeDisk(200).table(0, {{Gpt, 1, 9}, {Linux, 10, 5}}).entry(0, linuxData, 100, 109);
        QCOMPARE(walk(disk.bytes), Found());
        // A GPT entry in a chained table.
        disk = HandMadeDisk(200).table(0, {{Ext, 20, 9}}).table(20, {{Gpt, 1, 9}});
        QCOMPARE(walk(disk.header().entry(0, linuxData, 100, 109).bytes), Found());
        // A sector of zeros ends the array.
        disk = HandMadeDisk(200).table(0, {{Gpt, 1, 9}}).header();
        disk.entry(3, linuxData, 110, 119).entry(8, linuxData, 120, 129);
        QCOMPARE(walk(disk.bytes), Found({{110, 10, 119}}));
    }

    void endsLongChains()
    {
        constexpr int Tables = MaxPartitionTables + 100;
        HandMadeDisk disk(Tables + 2);
        disk.table(0, {{Ext, 1, 9}});
        for (int i = 0; i < Tables; ++i)
            disk.table(1 + i, {{Linux, 1, 1}, {Ext, quint32(i + 1), 9}});
        const Found found = walk(disk.bytes);
        QCOMPARE(found.size(), MaxPartitionTables - 1);
        QCOMPARE(found.last().first(), quint64(MaxPartitionTables));
    }

    void keepsWhatItFound()
    {
        HandMadeDisk disk(200);
        disk.table(0, {{Gpt, 1, 9}}).header().table(1, {{}, {Linux, 10, 5}});
        const QByteArray basicData = HandMadeDisk::basicData();
        disk.entry(0, HandMadeDisk::linuxData(), 100, 109)
            .entry(1, basicData, 110, 119)
            .entry(2, basicData, 120, 129);
        disk.entry(3, basicData, 5000, 5009).entry(4, HandMadeDisk::linuxData(), 130, 139);
        for (const int start : {110, 120})
            disk.put(start * 512 + 1080, quint16(0xEF53));
        const Found beforeArrayFails{{100, 10, 109}, {120, 10, 129}};
        QCOMPARE(walk(disk.bytes, {112}), beforeArrayFails + Found({{130, 10, 139}, {10, 5, 15}}));
        // If the array cannot be read any further, the walk leaves its table, slots behind it included.
        QCOMPARE(walk(disk.bytes, {112, 3}), beforeArrayFails);
        QCOMPARE(walk(disk.bytes, {1}), Found());
    }

    void readsToolsVolumes()
    {
        const QString missing = DiskImage::missingTool();
        if (!missing.isEmpty())
            QSKIP(qPrintable(missing + " is not installed"));
        const auto told = [](QByteArray volume, bool removable, quint64 totalBytes, bool firstIsLost) {
            if (firstIsLost)
                volume.replace(0, 512, QByteArray(512, '\0'));
            return sniffed(4, volume, removable, totalBytes);
        };
        const quint64 all = 40 * MiB;
        const QByteArray exfat = madeBy("mkfs.exfat", all);
        QCOMPARE(told(exfat, true, 0, false), "exFAT 41943040");
        QCOMPARE(told(exfat, false, 1234, false), "exFAT 1234");
        QCOMPARE(told(exfat, true, 0, true), "EXFAT 0");
        const QByteArray ntfs = madeBy("mkfs.ntfs -q -F -f", all);
        QCOMPARE(told(ntfs, false, all - 1, false), "FAT32 41943039");
        QCOMPARE(told(ntfs, true, all - 1, true), "NTFS 41943039");

        QVERIFY(!bootsector::isFat16(taken(madeBy("mkfs.vfat -a -F 12 -s 8", 15 * MiB))));
        QVERIFY(bootsector::isFat16(taken(madeBy("mkfs.vfat -F 16 -s 1", 8 * MiB))));
        const QByteArray ext = madeBy("mke2fs -q -F -t ext4 -L /data -M /home", MiB);
        QCOMPARE(bootsector::extName(taken(ext, 2)), "/home");
    }

    void sniffsBytes()
    {
        const auto told = [](int letter, bool removable, const QMap<int, const char *> &names) {
            HandMadeDisk volume(21);
            for (auto name = names.cbegin(); name != names.cend(); ++name)
                volume.text(name.key() * 512 + 3, name.value());
            return sniffed(letter, volume.bytes, removable, 20 * 512).section(' ', 0, 0);
        };
        QCOMPARE(told(0, false, {{0, "NTFS"}}), "no");
        QCOMPARE(told(0, false, {{0, "EXFAT"}}), "exFAT");
        QCOMPARE(told(0, true, {{0, "NTFS"}, {12, "exFAT"}}), "FAT32");
        QCOMPARE(told(4, true, {{20, "NTFS"}, {6, "MSDOS"}}), "NTFS");
        QCOMPARE(told(4, true, {{6, "MSDOS5.0"}, {12, "EXFAT"}}), "FAT32");
        QVERIFY(bootsector::isFat16(taken(HandMadeDisk(1).put(22, quint16(256)).bytes)));
    }

    void tellsExtFromOthers()
    {
        const auto isExt = [](quint16 magic, const char *name) {
            return bootsector::isExt(
                taken<bootsector::ExtProbe>(HandMadeDisk(3).put(1080, magic).text(3, name).bytes));
        };
        QVERIFY(isExt(0xEF53, "") && !isExt(0, ""));
        for (const char *other : {"NTFS", "MSWIN4.1", "EXFAT"})
            QVERIFY(!isExt(0xEF53, other));
        const auto nameIn = [](const QByteArray &volumeName, const QByteArray &mountPoint) {
            return bootsector::extName(
                taken(HandMadeDisk(1).text(120, volumeName).text(136, mountPoint).bytes));
        };
        QCOMPARE(nameIn("/sixteen-letters", "a/b"), "/sixteen-letters");
        QCOMPARE(nameIn("", QByteArray("/a\0b", 4)), "/a");
    }

private:
    FakePlatform *fake = nullptr;
};

QTEST_GUILESS_MAIN(PartitionWalkTest)
#include "tst_PartitionWalk.moc"
