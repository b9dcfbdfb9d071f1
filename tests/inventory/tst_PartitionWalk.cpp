// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/PartitionWalk.h"
#include "tests/support/DiskImage.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/HandMadeDisk.h"

#include <QTest>

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
    const bool gpt = table[QStringLiteral("label")].toString() == QLatin1String("gpt");
    Found found;
    int number = 0;
    for (const QJsonValue &value : table[QStringLiteral("partitions")].toArray()) {
        const QJsonObject partition = value.toObject();
        const QString type = partition[QStringLiteral("type")].toString();
        ++number;
        if (type != QLatin1String("83") && type != QLatin1String("0FC63DAF-8483-4772-8E79-3D69D8477DE4") &&
            !extOnBasicData.contains(number))
            continue;
        const auto start = quint64(partition[QStringLiteral("start")].toDouble());
        const auto count = quint64(partition[QStringLiteral("size")].toDouble());
        found << QVector<quint64>{start, count, start + count - (gpt ? 1 : 0)};
    }
    return found;
}

} // namespace

class PartitionWalkTest : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithTools()
    {
        const QString missing = DiskImage::missingTool();
        if (!missing.isEmpty())
            QSKIP(qPrintable(missing + QLatin1String(" is not installed")));
        const auto agree = [](const QByteArray &script, int count) {
            const DiskImage image(64 * MiB);
            image.partition(script);
            const Found found = walk(image.contents());
            QCOMPARE(found, linuxPartitions(image).mid(0, count));
            QCOMPARE(found.size(), count);
        };
        agree("label: dos\nsize=2M,type=83\ntype=5\n\n\nsize=4M,type=7\nsize=5M,type=83\n"
              "size=3M,type=b\nsize=2M,type=83\n",
              3);
        // The array is not looked at beyond sector 62.
        agree("label: gpt\ntable-length: 260\ngrain: 64K\nsize=64K,type=U\nsize=64K,type=S\n" +
                  QByteArray("size=64K,type=L\n").repeated(248),
              242);
    }

    void looksIntoBasicData()
    {
        const QString missing = DiskImage::missingTool();
        if (!missing.isEmpty())
            QSKIP(qPrintable(missing + QLatin1String(" is not installed")));
        const QByteArray basic("size=8M,type=EBD0A0A2-B9E5-4433-87C0-68B6B72699C7\n");
        const DiskImage image(80 * MiB);
        image.partition("label: gpt\n" + basic.repeated(6) + "size=1M,type=L\n");
        const QStringList commands{QStringLiteral("mke2fs -q -F -t ext4"),
                                   QStringLiteral("mkfs.ntfs -q -F -f"),
                                   QStringLiteral("mke2fs -q -F -t ext2"), QStringLiteral("mkfs.exfat"),
                                   QStringLiteral("mkfs.vfat -s 1 -F 16")};
        // The partitions lie one behind the other, from the first MiB on.
        for (int i = 0; i < commands.size(); ++i)
            image.put((1 + 8 * i) * MiB, madeBy(commands.at(i), 8 * MiB));
        const Found found = walk(image.contents());
        QCOMPARE(found, linuxPartitions(image, {1, 3}));
        QCOMPARE(found.size(), 3);
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
};

QTEST_GUILESS_MAIN(PartitionWalkTest)
#include "tst_PartitionWalk.moc"
