// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LsblkInventory.h"
#include "tests/support/Files.h"

#include <QtTest>

namespace
{

const char *const Broken[] = {"", R"({"blockdevices":[{"kname":"sda","path":"/dev/sda","type":"di)",
                              "[1,2,3]", R"({"blockdevices":[1,"sda",null,[]]})"};

const QString Samples = HALVANE_TEST_DATA "/platform/";

lsblk::Inventory parseFile(const QString &name, const QStringList &onlyNodes = {})
{
    return lsblk::parse(contentOf(Samples + name + ".json"), onlyNodes);
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
    /// In the virtual machine a disk without a table is one partition, and "/" makes it the system's. "dos"
    /// and "gpt" are systems without a partition for the firmware. In "strange" numbers are quoted, as older
    /// versions of the tool do it, or lies.
    void machines()
    {
        for (const QString name : {"workstation", "virtual-machine", "dos", "gpt", "strange"})
            QCOMPARE(told(parseFile("lsblk-" + name)), contentOf(Samples + "lsblk-" + name + ".txt"));
        QCOMPARE(
            told(parseFile("lsblk-workstation", {"/dev/sdb", "/dev/nowhere", "/dev/loop7", "/dev/sda1"})),
            contentOf(Samples + "lsblk-named-nodes.txt"));
        QCOMPARE(parseFile("lsblk-strange").machine.disks.last().serial, "S\uFFFD");
        const lsblk::Inventory pc = parseFile("lsblk-workstation");
        QCOMPARE(pc.volumeNodes.value('E') + pc.volumeNodes.value('J'), "/dev/mapper/home/dev/sda1");
        QCOMPARE(pc.volumeNodes.size(), pc.machine.volumes.size());
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
