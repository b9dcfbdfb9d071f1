// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LsblkInventory.h"

#include <QFile>
#include <QtTest>

namespace
{

using inventory::Disk;
using inventory::Extent;
using inventory::Partition;
using inventory::Volume;

lsblk::Inventory parseFile(const char *name, const QStringList &onlyNodes = {})
{
    QFile file(QStringLiteral(HALVANE_TEST_DATA "/platform/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? lsblk::parse(file.readAll(), onlyNodes) : lsblk::Inventory();
}

QString describe(const Disk &disk)
{
    return QStringLiteral("%1 %2 %3 [%4] %5 %6 %7 %8")
        .arg(disk.number)
        .arg(disk.media, disk.model, disk.interfaceType, disk.status)
        .arg(disk.bytesPerSector)
        .arg(disk.sectors)
        .arg(disk.node);
}

QString describe(const Volume &volume)
{
    QString extents;
    for (const Extent &extent : volume.extents)
        extents +=
            QStringLiteral(" %1@%2+%3").arg(extent.disk).arg(extent.offset / 512).arg(extent.length / 512);
    return QStringLiteral("%1 %2 %3 [%4] %5 %6%7")
        .arg(QString(volume.letter), volume.mountPoint, volume.type, volume.label, volume.fileSystem,
             volume.bitLocker, extents);
}

QString describe(const Partition &partition)
{
    return QStringLiteral("%1; %2; %3; %4")
        .arg(partition.name, partition.type)
        .arg(partition.size)
        .arg(partition.disk);
}

template<typename Record>
QStringList describeAll(const QVector<Record> &records)
{
    QStringList lines;
    for (const Record &record : records)
        lines.append(describe(record));
    return lines;
}

} // namespace

class tst_LsblkInventory : public QObject
{
    Q_OBJECT

private slots:
    void disksOfAWorkstation();
    void volumesOfAWorkstation();
    void partitionsOfAWorkstation();
    void virtualMachine();
    void onlyNamedNodes();
    void aPartitionAsADisk();
    void systemPartitionWithoutFirmwarePartition_data();
    void systemPartitionWithoutFirmwarePartition();
    void quotedNumbers();
    void numbersAndTextsThatLie();
    void lettersEnd();
    void keptNumbersAndLetters();
    void brokenText_data();
    void brokenText();
};

void tst_LsblkInventory::disksOfAWorkstation()
{
    QCOMPARE(describeAll(parseFile("lsblk-workstation.json").machine.disks),
             (QStringList{
                 QStringLiteral("0 fixed Marl NV 512 NVM Device [SCSI] OK 512 1000215216 /dev/nvme9n1"),
                 QStringLiteral("1 fixed Marl NV 2000 NVM Device [SCSI] OK 512 3907029168 /dev/nvme10n1"),
                 QStringLiteral("2 fixed Quill Data 2000 ATA Device [IDE] OK 512 3907029168 /dev/sda"),
                 QStringLiteral("3 removable Tarn Stick 3.0 USB Device [USB] OK 512 31129600 /dev/sdb"),
                 QStringLiteral("4 removable Tarn Card Reader USB Device [USB] OK 512 0 /dev/sdc"),
                 QStringLiteral("5 fixed Tarn Desk 4T USB Device [USB] Error 4096 7814037168 /dev/sdd"),
                 QStringLiteral("6 fixed QUILL SX1000 SAS Device [SCSI] OK 512 1953525168 /dev/sdaa"),
             }));
}

void tst_LsblkInventory::volumesOfAWorkstation()
{
    const lsblk::Inventory pc = parseFile("lsblk-workstation.json");
    QCOMPARE(describeAll(pc.machine.volumes),
             (QStringList{
                 QStringLiteral("C / fixed [root] ext4 None 0@1050624+209715200"),
                 QStringLiteral("D /boot/efi fixed [] FAT32 None 0@2048+1048576"),
                 QStringLiteral("E /home fixed [home] ext4 None 0@210765824+585937500"),
                 QStringLiteral("F /media/anna/BACKUP cdrom [BACKUP] udf None -1@0+0"),
                 QStringLiteral("G /media/anna/STICK removable [STICK] FAT None 3@2048+31127552"),
                 QStringLiteral("H /mnt/sealed fixed [Sealed] NTFS 2.0 0@796703324+195312500"),
                 QStringLiteral("I /mnt/share fixed [Share] exFAT None 1@2929692672+976562501"),
                 QStringLiteral("J /mnt/win fixed [Old Windows] NTFS None 2@2048+976773168"),
                 QStringLiteral("K /srv/pool fixed [pool] xfs None 1@2048+2929121095 2@976775168+2930253908"),
             }));
    QCOMPARE(pc.volumeNodes.value(QLatin1Char('E')), QStringLiteral("/dev/mapper/home"));
    QCOMPARE(pc.volumeNodes.value(QLatin1Char('J')), QStringLiteral("/dev/sda1"));
    QCOMPARE(pc.volumeNodes.size(), pc.machine.volumes.size());
}

void tst_LsblkInventory::partitionsOfAWorkstation()
{
    QCOMPARE(describeAll(parseFile("lsblk-workstation.json").machine.partitions),
             (QStringList{
                 // The same volumes as in the other test.
                 QStringLiteral("Disk #0, Partition #1; GPT: Unknown; 107374182400; 0"),
                 QStringLiteral("Disk #0, Partition #0; GPT: System; 536870912; 0"),
                 QStringLiteral("Disk #0, Partition #2; GPT: Unknown; 300000000000; 0"),
                 QStringLiteral("Disk #3, Partition #0; Unknown; 15937306624; 3"),
                 QStringLiteral("Disk #0, Partition #3; GPT: Basic Data; 100000000000; 0"),
                 QStringLiteral("Disk #1, Partition #1; GPT: Basic Data; 500000000512; 1"),
                 QStringLiteral("Disk #2, Partition #0; Unknown; 500107862016; 2"),
                 QStringLiteral("Disk #1, Partition #0; GPT: Unknown; 1499710000640; 1"),
                 QStringLiteral("Disk #2, Partition #1; Unknown; 1500290000896; 2"),
             }));
}

void tst_LsblkInventory::virtualMachine()
{
    const lsblk::Inventory pc = parseFile("lsblk-virtual-machine.json");
    QCOMPARE(describeAll(pc.machine.disks),
             QStringList{QStringLiteral("0 fixed Disk vda HDD Device [SCSI] OK 512 536870912 /dev/vda")});
    QCOMPARE(describeAll(pc.machine.volumes),
             QStringList{QStringLiteral("C / fixed []  None 0@0+536870912")});
    // A disk without a table is one partition, and "/" makes it the system's.
    QCOMPARE(describeAll(pc.machine.partitions),
             QStringList{QStringLiteral("Disk #0, Partition #0; Installable File System; 274877906944; 0")});
}

void tst_LsblkInventory::onlyNamedNodes()
{
    const lsblk::Inventory pc =
        parseFile("lsblk-workstation.json",
                  {QStringLiteral("/dev/sdb"), QStringLiteral("/dev/nowhere"), QStringLiteral("/dev/loop7")});
    QCOMPARE(
        describeAll(pc.machine.disks),
        (QStringList{QStringLiteral("0 removable Tarn Stick 3.0 USB Device [USB] OK 512 31129600 /dev/sdb"),
                     QStringLiteral("1 fixed Disk nowhere HDD Device [SCSI] OK 512 0 /dev/nowhere"),
                     QStringLiteral("2 fixed Disk loop7 HDD Device [SCSI] OK 512 113992 /dev/loop7")}));
    QCOMPARE(describeAll(pc.machine.volumes),
             (QStringList{QStringLiteral("D /media/anna/STICK removable [STICK] FAT None 0@2048+31127552"),
                          QStringLiteral("E /snap/core/1 fixed [] squashfs None 2@0+113992")}));
}

void tst_LsblkInventory::aPartitionAsADisk()
{
    const lsblk::Inventory pc = parseFile("lsblk-workstation.json", {QStringLiteral("/dev/sda1")});
    QCOMPARE(describeAll(pc.machine.volumes),
             QStringList{QStringLiteral("D /mnt/win fixed [Old Windows] NTFS None 0@0+976773168")});
}

void tst_LsblkInventory::systemPartitionWithoutFirmwarePartition_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<QString>("type");
    QTest::newRow("old table") << QByteArray("dos") << QStringLiteral("Installable File System");
    QTest::newRow("new table") << QByteArray("gpt") << QStringLiteral("GPT: System");
}

void tst_LsblkInventory::systemPartitionWithoutFirmwarePartition()
{
    QFETCH(QByteArray, table);
    QFETCH(QString, type);
    const QByteArray json =
        R"({"blockdevices":[{"kname":"sda","path":"/dev/sda","type":"disk","size":9000000,"pttype":"%1","children":[
            {"path":"/dev/sda1","type":"part","size":4096,"start":8,"mountpoints":[null]},
            {"path":"/dev/sda2","type":"part","size":8192,"start":16,"mountpoints":["/"]}]}]})";
    const QVector<Partition> partitions =
        lsblk::parse(QByteArray(json).replace("%1", table)).machine.partitions;
    QCOMPARE(partitions.size(), 2);
    QCOMPARE(partitions.at(0).type, type); // "/" is the first volume
    QVERIFY(!partitions.at(1).type.contains(QLatin1String("System")));
}

void tst_LsblkInventory::quotedNumbers()
{
    const lsblk::Inventory pc = lsblk::parse(
        R"({"blockdevices":[{"kname":"sdb","path":"/dev/sdb","type":"disk","size":"1048576","rm":"1","log-sec":"4096"}]})");
    QCOMPARE(describeAll(pc.machine.disks),
             QStringList{QStringLiteral("0 removable Disk sdb HDD Device [SCSI] OK 4096 2048 /dev/sdb")});
}

void tst_LsblkInventory::numbersAndTextsThatLie()
{
    const lsblk::Inventory pc = lsblk::parse(
        R"({"blockdevices":[{"kname":"sdb","path":"/dev/sdb","type":"disk","size":1e300,"log-sec":1e12,
            "model":"A\u202e\u001bB","serial":"S\u2066","children":[{"type":"part","path":"/dev/sdb1",
            "start":"18446744073709551615","size":-1e300,"mountpoints":["/x"],"label":"L\u000bM\u007f"}]}]})");
    QCOMPARE(describeAll(pc.machine.disks) + describeAll(pc.machine.volumes),
             QStringList({QStringLiteral(
                              "0 fixed A\uFFFD\uFFFDB HDD Device [SCSI] OK 512 18014398509481983 /dev/sdb"),
                          QStringLiteral("D /x fixed [L M\uFFFD]  None 0@18014398509481983+0")}));
    QCOMPARE(pc.machine.disks.first().serial, QStringLiteral("S\uFFFD"));
}

void tst_LsblkInventory::lettersEnd()
{
    QByteArray json =
        R"({"blockdevices":[{"kname":"sda","path":"/dev/sda","type":"disk","size":4096,"children":[)";
    for (int i = 0; i < 30; ++i) {
        json += i == 0 ? "" : ",";
        json += QStringLiteral(
                    R"({"path":"/dev/sda%1","type":"part","size":512,"start":%1,"mountpoints":["/m%1"]})")
                    .arg(i, 2, 10, QLatin1Char('0'))
                    .replace(QLatin1String(":0"), QLatin1String(":"))
                    .toUtf8();
    }
    const QVector<Volume> volumes = lsblk::parse(json + "]}]}").machine.volumes;
    QCOMPARE(volumes.size(), 23);
    QCOMPARE(volumes.last().letter, QChar(QLatin1Char('Z')));
}

/// A machine of disks that are mounted as a whole: "name:folder".
static QByteArray wholeDisks(const QByteArrayList &disks)
{
    QByteArray json;
    for (const QByteArray &disk : disks) {
        const QByteArray name = disk.left(disk.indexOf(':'));
        json += (json.isEmpty() ? "" : ",") + QByteArray(R"({"kname":")") + name + R"(","path":"/dev/)" +
                name + R"(","type":"disk","size":1048576,"mountpoints":[")" +
                disk.mid(disk.indexOf(':') + 1) + "\"]}";
    }
    return R"({"blockdevices":[)" + json + "]}";
}

static QStringList placesOf(const lsblk::Inventory &pc)
{
    QStringList places;
    for (const Disk &disk : pc.machine.disks)
        places.append(QStringLiteral("%1=%2").arg(disk.number).arg(disk.node));
    for (const Volume &volume : pc.machine.volumes)
        places.append(QStringLiteral("%1=%2 on %3")
                          .arg(volume.letter)
                          .arg(volume.mountPoint)
                          .arg(volume.extents.first().disk));
    return places;
}

void tst_LsblkInventory::keptNumbersAndLetters()
{
    const auto before = lsblk::parse(wholeDisks({"sda:/", "sdb:/b", "sdc:/c"}));
    QCOMPARE(placesOf(before),
             QStringList({"0=/dev/sda", "1=/dev/sdb", "2=/dev/sdc", "C=/ on 0", "D=/b on 1", "E=/c on 2"}));
    const auto without = lsblk::parse(wholeDisks({"sda:/", "sdc:/c"}), {}, before);
    QCOMPARE(placesOf(without), QStringList({"0=/dev/sda", "2=/dev/sdc", "C=/ on 0", "E=/c on 2"}));
    const auto after = lsblk::parse(wholeDisks({"nvme0n1:/a", "sda:/", "sdc:/c", "sdd:/d"}), {}, without);
    QCOMPARE(placesOf(after), QStringList({"0=/dev/sda", "1=/dev/nvme0n1", "2=/dev/sdc", "3=/dev/sdd",
                                           "C=/ on 0", "D=/a on 1", "E=/c on 2", "F=/d on 3"}));
    const auto twice = lsblk::parse(wholeDisks({"sdb:/b", "sdb:/b"}), {}, before);
    QCOMPARE(placesOf(twice).mid(0, 2), QStringList({"0=/dev/sdb", "1=/dev/sdb"}));
}

void tst_LsblkInventory::brokenText_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut") << QByteArray(R"({"blockdevices":[{"kname":"sda","path":"/dev/sda","type":"di)");
    QTest::newRow("other form") << QByteArray(R"([1,2,3])");
    QTest::newRow("devices of the wrong kind") << QByteArray(R"({"blockdevices":[1,"sda",null,[]]})");
}

void tst_LsblkInventory::brokenText()
{
    QFETCH(QByteArray, json);
    const lsblk::Inventory pc = lsblk::parse(json);
    QVERIFY(pc.machine.disks.isEmpty());
    QVERIFY(pc.machine.volumes.isEmpty());
    QVERIFY(pc.machine.partitions.isEmpty());
    QCOMPARE(lsblk::parse(json, {QStringLiteral("/dev/loop1")}).machine.disks.size(), 1);
}

QTEST_GUILESS_MAIN(tst_LsblkInventory)
#include "tst_LsblkInventory.moc"
