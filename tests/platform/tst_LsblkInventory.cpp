// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LsblkInventory.h"
#include "tests/support/Files.h"

#include <QtTest>

namespace
{

/// A system without a partition for the firmware.
const QByteArray SystemAlone =
    R"({"blockdevices":[{"kname":"sda","path":"/dev/sda","type":"disk","size":9000000,"pttype":"%1",
    "children":[
    {"path":"/dev/sda1","type":"part","size":4096,"start":8,"mountpoints":[null]},
    {"path":"/dev/sda2","type":"part","size":8192,"start":16,"mountpoints":["/"]}]}]})";

/// Older versions of the tool quote numbers. Others lie.
const QByteArray Strange = R"({"blockdevices":[
    {"kname":"sda","path":"/dev/sda","type":"disk","size":"1048576","rm":"1","log-sec":"4096"},
    {"kname":"sdb","path":"/dev/sdb","type":"disk","size":1e300,"log-sec":1e12,
     "model":"A\u202e\u001bB","serial":"S\u2066","children":[{"type":"part","path":"/dev/sdb1",
     "start":"18446744073709551615","size":-1e300,"mountpoints":["/x"],"label":"L\u000bM\u007f"}]}]})";

const char *const Broken[] = {"", R"({"blockdevices":[{"kname":"sda","path":"/dev/sda","type":"di)",
                              "[1,2,3]", R"({"blockdevices":[1,"sda",null,[]]})"};

const QString Samples = HALVANE_TEST_DATA "/platform/";

lsblk::Inventory parseFile(const char *name, const QStringList &onlyNodes = {})
{
    return lsblk::parse(contentOf(Samples + name), onlyNodes);
}

QString expected(const char *name)
{
    return QString::fromUtf8(contentOf(Samples + name));
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

/// The same without what these disks have in common.
QString placesOf(const lsblk::Inventory &pc)
{
    static const QRegularExpression same(
        " fixed Disk \\w+ HDD Device.* 2048|fixed \\[\\]  None |\\+2048|Disk #.*\n");
    return told(pc).remove(same).replace('\n', ' ');
}

} // namespace

class tst_LsblkInventory : public QObject
{
    Q_OBJECT

private slots:
    void realMachines()
    {
        const lsblk::Inventory pc = parseFile("lsblk-workstation.json");
        QCOMPARE(told(pc), expected("lsblk-workstation.txt"));
        QCOMPARE(pc.volumeNodes.value('E'), "/dev/mapper/home");
        QCOMPARE(pc.volumeNodes.value('J'), "/dev/sda1");
        QCOMPARE(pc.volumeNodes.size(), pc.machine.volumes.size());
        QCOMPARE(told(parseFile("lsblk-workstation.json",
                                {"/dev/sdb", "/dev/nowhere", "/dev/loop7", "/dev/sda1"})),
                 expected("lsblk-named-nodes.txt"));
        // A disk without a table is one partition, and "/" makes it the system's.
        QCOMPARE(told(parseFile("lsblk-virtual-machine.json")), expected("lsblk-virtual-machine.txt"));
    }

    void systemPartitionWithoutFirmwarePartition()
    {
        for (const auto &[table, types] : {std::pair("dos", "Installable File System,Unknown"),
                                           std::pair("gpt", "GPT: System,GPT: Unknown")}) {
            const auto partitions =
                lsblk::parse(QByteArray(SystemAlone).replace("%1", table)).machine.partitions;
            QCOMPARE(partitions.size(), 2);
            QCOMPARE(partitions.at(0).type + ',' + partitions.at(1).type, types); // "/" is the first volume
        }
    }

    void strangeNumbersAndTexts()
    {
        const lsblk::Inventory pc = lsblk::parse(Strange);
        QCOMPARE(told(pc),
                 QString("0 removable Disk sda HDD Device [SCSI] OK 4096 2048 /dev/sda\n"
                         "1 fixed A\uFFFD\uFFFDB HDD Device [SCSI] OK 512 18014398509481983 /dev/sdb\n"
                         "D /x fixed [L M\uFFFD]  None 1@18014398509481983+0\n"
                         "Disk #1, Partition #0; Unknown; 0; 1\n"));
        QCOMPARE(pc.machine.disks.last().serial, "S\uFFFD");
    }

    void lettersEnd()
    {
        QByteArrayList disks;
        for (int i = 10; i < 40; ++i)
            disks << "sd:/m" + QByteArray::number(i);
        const auto volumes = wholeDisks(disks).machine.volumes;
        QCOMPARE(volumes.size(), 23);
        QCOMPARE(volumes.last().letter, QChar('Z'));
    }

    void keptNumbersAndLetters()
    {
        const auto before = wholeDisks({"sda:/", "sdb:/b", "sdc:/c"});
        QCOMPARE(placesOf(before), "0 /dev/sda 1 /dev/sdb 2 /dev/sdc C / 0@0 D /b 1@0 E /c 2@0 ");
        const auto without = wholeDisks({"sda:/", "sdc:/c"}, before);
        QCOMPARE(placesOf(without), "0 /dev/sda 2 /dev/sdc C / 0@0 E /c 2@0 ");
        const auto after = wholeDisks({"nvme0n1:/a", "sda:/", "sdc:/c", "sdd:/d"}, without);
        QCOMPARE(placesOf(after), "0 /dev/sda 1 /dev/nvme0n1 2 /dev/sdc 3 /dev/sdd "
                                  "C / 0@0 D /a 1@0 E /c 2@0 F /d 3@0 ");
        QVERIFY(placesOf(wholeDisks({"sdb:/b", "sdb:/b"}, before)).startsWith("0 /dev/sdb 1 /dev/sdb "));
    }

    void brokenText()
    {
        for (const char *json : Broken) {
            QCOMPARE(told(lsblk::parse(json)), QString());
            QCOMPARE(lsblk::parse(json, {"/dev/loop1"}).machine.disks.size(), 1);
        }
    }
};

QTEST_GUILESS_MAIN(tst_LsblkInventory)
#include "tst_LsblkInventory.moc"
