// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LsblkInventory.h"
#include "tests/support/Files.h"

#include <QtTest>

namespace
{

lsblk::Inventory parseFile(const char *name, const QStringList &onlyNodes = {})
{
    return lsblk::parse(contentOf(QString(HALVANE_TEST_DATA "/platform/") + name), onlyNodes);
}

/// Disks, volumes and partitions, a line each. Places and lengths of volumes are in sectors.
QString told(const lsblk::Inventory &pc)
{
    QString text;
    QTextStream out(&text);
    for (const inventory::Disk &disk : pc.machine.disks)
        out << disk.number << ' ' << disk.media << ' ' << disk.model << " [" << disk.interfaceType << "] "
            << disk.status << ' ' << disk.bytesPerSector << ' ' << disk.sectors << ' ' << disk.node << '\n';
    for (const inventory::Volume &volume : pc.machine.volumes) {
        out << volume.letter << ' ' << volume.mountPoint << ' ' << volume.type << " [" << volume.label << "] "
            << volume.fileSystem << ' ' << volume.bitLocker;
        for (const inventory::Extent &extent : volume.extents)
            out << ' ' << extent.disk << '@' << extent.offset / 512 << '+' << extent.length / 512;
        out << '\n';
    }
    for (const inventory::Partition &partition : pc.machine.partitions)
        out << partition.name << "; " << partition.type << "; " << partition.size << "; " << partition.disk
            << '\n';
    return text;
}

/// A machine of disks that are mounted as a whole: "name:folder".
lsblk::Inventory wholeDisks(const QByteArrayList &disks, const lsblk::Inventory &previous = {})
{
    QByteArrayList json;
    for (const QByteArray &disk : disks) {
        const QByteArrayList parts = disk.split(':');
        json += R"({"kname":")" + parts.at(0) + R"(","path":"/dev/)" + parts.at(0) +
                R"(","type":"disk","size":1048576,"mountpoints":[")" + parts.at(1) + "\"]}";
    }
    return lsblk::parse(R"({"blockdevices":[)" + json.join(',') + "]}", {}, previous);
}

QString placesOf(const lsblk::Inventory &pc)
{
    QString places;
    for (const inventory::Disk &disk : pc.machine.disks)
        places += QString("%1=%2 ").arg(disk.number).arg(disk.node);
    for (const inventory::Volume &volume : pc.machine.volumes)
        places += QString("%1=%2 on %3 ")
                      .arg(volume.letter)
                      .arg(volume.mountPoint)
                      .arg(volume.extents.first().disk);
    return places;
}

} // namespace

class tst_LsblkInventory : public QObject
{
    Q_OBJECT

private slots:
    void workstation();
    void virtualMachine();
    void onlyNamedNodes();
    void systemPartitionWithoutFirmwarePartition();
    void strangeNumbersAndTexts();
    void lettersEnd();
    void keptNumbersAndLetters();
    void brokenText();
};

void tst_LsblkInventory::workstation()
{
    const lsblk::Inventory pc = parseFile("lsblk-workstation.json");
    QCOMPARE(told(pc), R"(0 fixed Marl NV 512 NVM Device [SCSI] OK 512 1000215216 /dev/nvme9n1
1 fixed Marl NV 2000 NVM Device [SCSI] OK 512 3907029168 /dev/nvme10n1
2 fixed Quill Data 2000 ATA Device [IDE] OK 512 3907029168 /dev/sda
3 removable Tarn Stick 3.0 USB Device [USB] OK 512 31129600 /dev/sdb
4 removable Tarn Card Reader USB Device [USB] OK 512 0 /dev/sdc
5 fixed Tarn Desk 4T USB Device [USB] Error 4096 7814037168 /dev/sdd
6 fixed QUILL SX1000 SAS Device [SCSI] OK 512 1953525168 /dev/sdaa
C / fixed [root] ext4 None 0@1050624+209715200
D /boot/efi fixed [] FAT32 None 0@2048+1048576
E /home fixed [home] ext4 None 0@210765824+585937500
F /media/anna/BACKUP cdrom [BACKUP] udf None -1@0+0
G /media/anna/STICK removable [STICK] FAT None 3@2048+31127552
H /mnt/sealed fixed [Sealed] NTFS 2.0 0@796703324+195312500
I /mnt/share fixed [Share] exFAT None 1@2929692672+976562501
J /mnt/win fixed [Old Windows] NTFS None 2@2048+976773168
K /srv/pool fixed [pool] xfs None 1@2048+2929121095 2@976775168+2930253908
Disk #0, Partition #1; GPT: Unknown; 107374182400; 0
Disk #0, Partition #0; GPT: System; 536870912; 0
Disk #0, Partition #2; GPT: Unknown; 300000000000; 0
Disk #3, Partition #0; Unknown; 15937306624; 3
Disk #0, Partition #3; GPT: Basic Data; 100000000000; 0
Disk #1, Partition #1; GPT: Basic Data; 500000000512; 1
Disk #2, Partition #0; Unknown; 500107862016; 2
Disk #1, Partition #0; GPT: Unknown; 1499710000640; 1
Disk #2, Partition #1; Unknown; 1500290000896; 2
)");
    QCOMPARE(pc.volumeNodes.value('E'), "/dev/mapper/home");
    QCOMPARE(pc.volumeNodes.value('J'), "/dev/sda1");
    QCOMPARE(pc.volumeNodes.size(), pc.machine.volumes.size());
}

void tst_LsblkInventory::virtualMachine()
{
    // A disk without a table is one partition, and "/" makes it the system's.
    QCOMPARE(told(parseFile("lsblk-virtual-machine.json")),
             R"(0 fixed Disk vda HDD Device [SCSI] OK 512 536870912 /dev/vda
C / fixed []  None 0@0+536870912
Disk #0, Partition #0; Installable File System; 274877906944; 0
)");
}

void tst_LsblkInventory::onlyNamedNodes()
{
    QCOMPARE(
        told(parseFile("lsblk-workstation.json", {"/dev/sdb", "/dev/nowhere", "/dev/loop7", "/dev/sda1"})),
        R"(0 removable Tarn Stick 3.0 USB Device [USB] OK 512 31129600 /dev/sdb
1 fixed Disk nowhere HDD Device [SCSI] OK 512 0 /dev/nowhere
2 fixed Disk loop7 HDD Device [SCSI] OK 512 113992 /dev/loop7
3 fixed Disk sda1 HDD Device [SCSI] OK 512 976773168 /dev/sda1
D /media/anna/STICK removable [STICK] FAT None 0@2048+31127552
E /mnt/win fixed [Old Windows] NTFS None 3@0+976773168
F /snap/core/1 fixed [] squashfs None 2@0+113992
Disk #0, Partition #0; Unknown; 15937306624; 0
Disk #3, Partition #0; Unknown; 500107862016; 3
Disk #2, Partition #0; Unknown; 58363904; 2
)");
}

void tst_LsblkInventory::systemPartitionWithoutFirmwarePartition()
{
    for (const auto &[table, types] : {std::pair("dos", "Installable File System,Unknown"),
                                       std::pair("gpt", "GPT: System,GPT: Unknown")}) {
        const QByteArray json =
            R"({"blockdevices":[{"kname":"sda","path":"/dev/sda","type":"disk","size":9000000,"pttype":"%1","children":[
            {"path":"/dev/sda1","type":"part","size":4096,"start":8,"mountpoints":[null]},
            {"path":"/dev/sda2","type":"part","size":8192,"start":16,"mountpoints":["/"]}]}]})";
        const auto partitions = lsblk::parse(QByteArray(json).replace("%1", table)).machine.partitions;
        QCOMPARE(partitions.size(), 2);
        QCOMPARE(partitions.at(0).type + ',' + partitions.at(1).type, types); // "/" is the first volume
    }
}

void tst_LsblkInventory::strangeNumbersAndTexts()
{
    // Older versions of the tool quote numbers. Others lie.
    const lsblk::Inventory pc = lsblk::parse(R"({"blockdevices":[
        {"kname":"sda","path":"/dev/sda","type":"disk","size":"1048576","rm":"1","log-sec":"4096"},
        {"kname":"sdb","path":"/dev/sdb","type":"disk","size":1e300,"log-sec":1e12,
         "model":"A\u202e\u001bB","serial":"S\u2066","children":[{"type":"part","path":"/dev/sdb1",
         "start":"18446744073709551615","size":-1e300,"mountpoints":["/x"],"label":"L\u000bM\u007f"}]}]})");
    QCOMPARE(told(pc), QString("0 removable Disk sda HDD Device [SCSI] OK 4096 2048 /dev/sda\n"
                               "1 fixed A\uFFFD\uFFFDB HDD Device [SCSI] OK 512 18014398509481983 /dev/sdb\n"
                               "D /x fixed [L M\uFFFD]  None 1@18014398509481983+0\n"
                               "Disk #1, Partition #0; Unknown; 0; 1\n"));
    QCOMPARE(pc.machine.disks.last().serial, "S\uFFFD");
}

void tst_LsblkInventory::lettersEnd()
{
    QByteArrayList disks;
    for (int i = 10; i < 40; ++i)
        disks << "sd:/m" + QByteArray::number(i);
    const auto volumes = wholeDisks(disks).machine.volumes;
    QCOMPARE(volumes.size(), 23);
    QCOMPARE(volumes.last().letter, QChar('Z'));
}

void tst_LsblkInventory::keptNumbersAndLetters()
{
    const auto before = wholeDisks({"sda:/", "sdb:/b", "sdc:/c"});
    QCOMPARE(placesOf(before), "0=/dev/sda 1=/dev/sdb 2=/dev/sdc C=/ on 0 D=/b on 1 E=/c on 2 ");
    const auto without = wholeDisks({"sda:/", "sdc:/c"}, before);
    QCOMPARE(placesOf(without), "0=/dev/sda 2=/dev/sdc C=/ on 0 E=/c on 2 ");
    const auto after = wholeDisks({"nvme0n1:/a", "sda:/", "sdc:/c", "sdd:/d"}, without);
    QCOMPARE(placesOf(after), "0=/dev/sda 1=/dev/nvme0n1 2=/dev/sdc 3=/dev/sdd "
                              "C=/ on 0 D=/a on 1 E=/c on 2 F=/d on 3 ");
    QVERIFY(placesOf(wholeDisks({"sdb:/b", "sdb:/b"}, before)).startsWith("0=/dev/sdb 1=/dev/sdb "));
}

void tst_LsblkInventory::brokenText()
{
    for (const char *json : {"", R"({"blockdevices":[{"kname":"sda","path":"/dev/sda","type":"di)", "[1,2,3]",
                             R"({"blockdevices":[1,"sda",null,[]]})"}) {
        QCOMPARE(told(lsblk::parse(json)), QString());
        QCOMPARE(lsblk::parse(json, {"/dev/loop1"}).machine.disks.size(), 1);
    }
}

QTEST_GUILESS_MAIN(tst_LsblkInventory)
#include "tst_LsblkInventory.moc"
