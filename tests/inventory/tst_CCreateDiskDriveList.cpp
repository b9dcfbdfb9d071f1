// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/AtaIdentity.h"
#include "inventory/CCreateDiskDriveList.h"
#include "inventory/PartitionWalk.h"
#include "state/GlobalApp.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/HandMadeDisk.h"

namespace
{

constexpr quint64 MiB = 1024 * 1024;
constexpr quint64 GiB = 1024 * MiB;
constexpr quint8 Linux = 131;

/// The node as tests/data/inventory/volumes.txt has it.
QString told(const DiskNode &node)
{
    const LogicalDetails &volume = *node.pLogical;
    QString disks;
    for (const int disk : volume.disks)
        disks += QString::number(disk);
    return joined(node.nId, node.nKind, volume.nLetter, volume.nParentId, volume.szRoot, volume.szLabel,
                  volume.szType, volume.szFileSystem, volume.nFsCode, volume.nFsClass, volume.szCapacity,
                  volume.nTotalBytes, volume.nFreeBytes, volume.nStartSector, volume.nSectorCount,
                  volume.nEndSector, volume.bSpanned, disks);
}

/// Builds the list, and tells the nodes of it that are no physical disks.
QStringList build()
{
    CCreateDiskDriveList().BuildDriveList();
    QStringList nodes;
    for (const DiskNode &node : g_App.m_diskList) {
        if (node.pLogical)
            nodes << told(node);
    }
    return nodes;
}

/// A disk with two MBR partitions, whose mount points are in their superblocks.
QByteArray linuxDisk(const char *first, const char *second)
{
    HandMadeDisk disk(64);
    disk.table(0, {{Linux, 8, 8}, {Linux, 16, 8}});
    return disk.text(10 * 512 + 136, first).text(18 * 512 + 136, second).bytes;
}

QByteArray swapped(QByteArray text)
{
    for (int i = 0; i + 1 < text.size(); i += 2)
        std::swap(text.data()[i], text.data()[i + 1]);
    return text;
}

QByteArray identifyData()
{
    HandMadeDisk data(1);
    data.put(2, quint16(16383)).put(6, quint16(16)).put(12, quint16(63)).put(120, 0x12345678);
    data.text(20, swapped(QByteArray("SN-0042").rightJustified(20)));
    data.text(46, swapped(QByteArray("FW1.7").leftJustified(8)));
    return data.text(54, swapped(QByteArray("NORDWIND NW500").leftJustified(40))).bytes;
}

/// Each entry is the id, flags of two bytes, value, worst and raw value. Slot 1 stays empty.
QByteArray smartData()
{
    return HandMadeDisk(1)
        .text(2, {"\x05\0\0\x64\x63\0", 6})
        .text(2 + 2 * 12, {"\xC2\0\0\x42\x32\x22", 6})
        .text(2 + 3 * 12, {"\xC2\0\0\x3C\x32\x4D", 6})
        .text(2 + 29 * 12, {"\xC7\0\0\0\0\1", 6})
        .bytes;
}

/// Names, geometry, sectors, SMART, temperature and its copy, and each attribute with its name, values and
/// state.
QString told(const DiskIdentity &identity)
{
    QString text = joined(identity.szModel.text(), identity.szSerial.text(), identity.szFirmware.text(),
                          identity.nCylinders, identity.nHeads, identity.nSectors, identity.nTotalLba,
                          identity.bSmartEnabled, identity.nTemperature, identity.nTemperatureCopy,
                          identity.nAttributeCount, identity.nThresholdState);
    for (const IdentityAttribute &attribute : identity.attributes)
        text += ", " + joined(attribute.nAttrId, attribute.szNameIndex, attribute.nCurrent, attribute.nWorst,
                              attribute.nState);
    return text;
}

} // namespace

/// The list of disks and volumes, and what a disk of the old interface tells of itself.
class CCreateDiskDriveListTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { fake = FakePlatform::install(); }

    /// A tie is rounded to the even digit.
    void writesCapacity()
    {
        compareRows("DiskList/capacity",
                    [](const QString &bytes) { return capacityText(bytes.toULongLong(), "KB"); });
    }

    void listsDisksInOrder()
    {
        // Id and kind of each disk, fixed and removable ones, whether rights are missing.
        const auto listed = [this] {
            build();
            QString disks;
            for (const DiskNode &node : g_App.m_diskList)
                disks += QStringLiteral("%1/%2 ").arg(node.nId).arg(node.nKind);
            return joined(disks, g_App.m_nFixedDisks, g_App.m_nRemovableDisks, g_App.m_bAccessDenied,
                          fake->openHandles());
        };
        for (const int number : {0, 23, 24, 127, 128})
            add(number);
        add(1).opens = false;
        add(2, io::MediaRemovable);
        add(3, io::MediaUnknown);
        // One that is not listed counts, if its number is tried at all.
        QCOMPARE(listed(), "128/0 151/0 130/4 |4|1|0|0");
        // Rights are missing only if no disk is listed.
        fake->disks = {{1, fake->disks[1]}};
        QCOMPARE(listed(), "|0|0|1|0");
        fake->disks.clear();
        QCOMPARE(listed(), "|0|0|0|0");
    }

    void fillsDetails()
    {
        const auto told = [] {
            build();
            const DiskDetails &details = *g_App.m_pDiskListHead->pDetails;
            return joined(details.nDevice, details.nTotalSectors, details.nSectorFactor, details.szCapacity,
                          details.szSerial, details.pIdentity ? "identity" : "");
        };
        FakePlatform::Disk &disk = add(7, io::MediaRemovable);
        disk.size = 8001563222016;
        disk.bytesPerSector = 4096;
        disk.serial = " SN-7";
        bool wasAsked = false;
        disk.smart = [&wasAsked](quint32, const QByteArray &, QByteArray *) { return wasAsked = true; };
        QCOMPARE(told(), "135|15628053168|8|7452.04 GB|SN-7|");
        QVERIFY(!wasAsked);
        disk.mediaType = io::MediaFixed;
        disk.hasSize = false;
        QCOMPARE(told(), "135|0|8|0.00 KB|SN-7|identity");
        QVERIFY(wasAsked);
    }

    void listsLettersByFirstExtent()
    {
        add(0);
        add(1, io::MediaRemovable);
        for (const QByteArray on : {"C0", "D10", "E", "F0", "G0", "H0"}) {
            FakePlatform::Volume &volume = addVolume(on[0], "NTFS", 0);
            for (const char disk : on.mid(1))
                volume.extents << io::DiskExtent{quint32(disk - '0'), 0, 512, 512};
        }
        fake->volumes['G'].raw.opens = false;
        fake->volumes['H'].type = io::DriveRemote;
        build();
        QCOMPARE(g_App.m_pDiskListHead->pDetails->szDrives, "Drive: C: F: ");
        QCOMPARE(g_App.m_pDiskListHead->pNext->pDetails->szDrives, "Drive: D: ");
        // Each volume is opened once, for disks and volumes together; the network share is not opened.
        QStringList opened;
        for (const char letter : QByteArray("CDEFG"))
            opened << QStringLiteral(R"(\\.\%1: 80000000 3 3)").arg(letter);
        QCOMPARE(fake->openings.filter(":"), opened);
        QCOMPARE(fake->openHandles(), 0);
    }

    void numbersVolumes()
    {
        addVolume('A', "", 0); // fixed and without a name: no node, and no id is used up
        addVolume('C', "NTFS", 3 * GiB + 1).label = "Sys\u202Etem";
        fake->volumes['C'].free = 7;
        addVolume('E', "RAW", MiB / 2);
        QCOMPARE(build(), QStringList({"257|1|2|0|C:\\|Sys\uFFFDtem|FIXED|NTFS|7|4|3.00 GB|"
                                       "3221225473|7|0|6291456|6291456|0|",
                                       "258|15|4|0|E:\\|Local Disk|FIXED|RAW|4|0|512.00 MB|"
                                       "524288|0|0|1024|1024|0|"}));
    }

    /// A lone volume, and the node that it gets.
    void volumes()
    {
        compareRows(linesOf(QStringLiteral(HALVANE_TEST_DATA "/inventory/volumes.txt")),
                    [this](const QString &row) { return nodeOf(row); });
    }

    void listsLinuxPartitions()
    {
        fake->disks[1].bytes = linuxDisk("/home", "");
        fake->disks[0].bytes = linuxDisk("stick", "/srv");
        fake->disks[0].mediaType = io::MediaRemovable;
        addVolume('C', "NTFS", MiB);
        // Fixed disks come first. The number counts the partitions of all disks.
        const QString end = "|Linux Disk|FIXED|EXTx|131|0|4.00 MB|4096|0|";
        QCOMPARE(build().mid(1), QStringList({"258|24|0|129|/home" + end + "8|8|16|0|",
                                              "259|24|0|129|Volume 2" + end + "16|8|24|0|",
                                              "260|24|0|128|Volume 3" + end + "8|8|16|0|",
                                              "261|24|0|128|/srv" + end + "16|8|24|0|"}));
        QVERIFY(!g_linuxPartitions.isEmpty()); // of the last disk
        fake->disks.clear();
        QCOMPARE(build().size(), 1);
        QVERIFY(g_linuxPartitions.isEmpty());
    }

    void cutsText()
    {
        const auto cut = [](const char *shown) { return ata::identifyText(swapped(shown)); };
        QCOMPARE(cut("NORDWIND NW500  "), QByteArray("NORDWIND"));
        QCOMPARE(cut("    SN 42X"), QByteArray("42X"));
        // With one leading blank, the first byte of the data is the second character.
        QCOMPARE(cut(" SN4"), QByteArray());
        QCOMPARE(ata::identifyText(QByteArray("WN05\0\0XX", 8)), QByteArray("NW50"));
    }

    void namesAttributes()
    {
        compareRows("DiskList/names", [](const QString &id) { return ata::nameIndex(id.toInt()); });
    }

    void takesShortData()
    {
        DiskIdentity identity;
        ata::decodeIdentify(identifyData().left(30), false, &identity);
        ata::decodeAttributes(smartData().left(7), &identity);
        QCOMPARE(told(identity), "|||16383|16|63|0|0|0|0|1|1, 5|160|100|99|1");
    }

    void readsDisk()
    {
        const QString names = "NORDWIND|SN-0042|FW1.7|";
        QCOMPARE(read(0x01), names + "16383|16|63|305419896|1|34|34|4|2, 5|160|100|99|1, 194|171|66|50|1, "
                                     "194|171|60|50|1, 199|176|0|0|2");
        QCOMPARE(asked, QStringList({"00000000|d801014fc2a0b000|00", "00020000|0001010000a0ec00|00",
                                     "00020000|d001014fc2a0b000|00"}));
        QCOMPARE(fake->openings, QStringList(R"(\\.\PHYSICALDRIVE3 c0000000 3 3)"));
        read(0x08);
        QCOMPARE(asked.size(), 3);
        QCOMPARE(asked.first(), "00000000|d801014fc2b0b000|03");
        // A packet device.
        QCOMPARE(read(0x11), names + "0|0|0|305419896|0|0|0|0|0");
        QCOMPARE(asked, QStringList("00020000|0001010000a0a100|00"));
        refusesEnable = true;
        QCOMPARE(read(0x01), names + "16383|16|63|305419896|0|0|0|0|0");
        QCOMPARE(asked.size(), 2);
    }

    void leavesRecordEmpty()
    {
        const QString empty = "|||0|0|0|0|0|0|0|0|0";
        QCOMPARE(read(0), empty);
        fake->disks[3].smart = {}; // as USB disks refuse
        QCOMPARE(read(0x01), empty);
        fake->disks[3].opens = false;
        QCOMPARE(read(0x01), "closed" + empty);
        QCOMPARE(asked.size(), 0);
    }

private:
    FakePlatform::Disk &add(int number, quint32 mediaType = io::MediaFixed)
    {
        FakePlatform::Disk &disk = fake->disks[number];
        disk.size = 8 * MiB;
        disk.mediaType = mediaType;
        return disk;
    }

    FakePlatform::Volume &addVolume(char letter, const QString &fileSystem, quint64 total)
    {
        FakePlatform::Volume &volume = fake->volumes[QLatin1Char(letter)];
        volume.fileSystem = fileSystem;
        volume.total = total;
        return volume;
    }

    /// The node of a volume that a row of the table describes.
    QString nodeOf(const QString &row)
    {
        init();
        QMap<QString, QString> given;
        for (const QString &word : row.split(' '))
            given[word.section('=', 0, 0)] = word.section('=', 1);
        add(0).size = 64 * MiB;
        for (const QString &stick : given["sticks"].split(',', Qt::SkipEmptyParts))
            add(stick.toInt(), io::MediaRemovable).size = given["stickBytes"].toLongLong();
        FakePlatform::Volume &volume =
            addVolume('E', given["fs"], given.value("bytes", "1048576").toULongLong());
        const QStringList types{"", "none", "removable", "fixed", "remote", "", "ramdisk"};
        volume.type = quint32(types.indexOf(given.value("type", "fixed")));
        HandMadeDisk boot(1);
        boot.text(3, given["boot"].toLatin1()).put(22, quint16(given["fat"].toUInt()));
        volume.raw.bytes = boot.put(510, quint16(given["end"].toUInt(nullptr, 16))).bytes;
        // The length is not a multiple of a sector.
        for (const QChar disk : given["on"])
            volume.extents << io::DiskExtent{quint32(disk.digitValue()), 0, qint64(MiB), 4095 * 512 + 511};
        const QStringList nodes = build();
        if (fake->openHandles() != 0)
            return "handle left";
        // A volume that is not listed is not asked for its label: a network share that is gone answers late.
        return nodes.isEmpty() ? "none" + fake->labelsAsked.join(' ') : nodes.join(' ');
    }

    /// Reads the disk 3, whose drive interface has such devices.
    QString read(quint8 devices)
    {
        if (!fake->disks.contains(3)) {
            fake->disks[3].smart = [this](quint32 code, const QByteArray &in, QByteArray *out) {
                return answer(code, in, out);
            };
        }
        map = devices;
        asked.clear();
        DiskIdentity identity;
        const QString opened = ReadAtaIdentity(131, &identity) ? "" : "closed";
        return fake->openHandles() == 0 ? opened + told(identity) : "handle left";
    }

    /// The drive interface of the disk.
    bool answer(quint32 code, const QByteArray &in, QByteArray *out)
    {
        if (code == io::SmartGetVersion) {
            io::GetVersionInParams version{};
            version.ideDeviceMap = map;
            *out = QByteArray(reinterpret_cast<const char *>(&version), sizeof version);
            return true;
        }
        asked << joined(in.left(4).toHex(), in.mid(4, 8).toHex(), in.mid(12, 1).toHex());
        *out = QByteArray(16, '\0');
        if (code == io::SmartSendDriveCommand)
            return !refusesEnable;
        out->append(in.at(10) == '\xB0' ? smartData() : identifyData());
        return true;
    }

    quint8 map = 0; ///< of the devices that the interface has
    bool refusesEnable = false;
    QStringList asked; ///< bytes wanted, registers and device of each command
    FakePlatform *fake = nullptr;
};

QTEST_GUILESS_MAIN(CCreateDiskDriveListTest)
#include "tst_CCreateDiskDriveList.moc"
