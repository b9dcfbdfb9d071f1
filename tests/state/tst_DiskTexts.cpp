// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/CloneTexts.h"
#include "state/DiskIdentityTexts.h"
#include "state/DriveTexts.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/PartitionTexts.h"
#include "state/StartArgument.h"
#include "tests/support/ArrowRows.h"

using namespace partitiontexts;

namespace
{

/// Disk 2; an identity that is empty is none.
DiskNode makeNode(DiskKind kind, const QString &identityModel = {}, const QString &identitySerial = {})
{
    DiskNode node;
    node.nId = 130;
    node.nKind = kind;
    node.pDetails = std::make_unique<DiskDetails>();
    node.pDetails->nTotalSectors = 7814037168ULL;
    node.pDetails->szCapacity = "3726.02 GB";
    node.pDetails->pIdentity = std::make_unique<DiskIdentity>();
    node.pDetails->pIdentity->szModel.assign(identityModel);
    node.pDetails->pIdentity->szSerial.assign(identitySerial);
    return node;
}

WmicDiskRecord makeRecord(const QString &model, const QString &smartModel, const QString &smartSerial)
{
    WmicDiskRecord record;
    record.szModel.assign(model);
    record.szInterface.assign("IDE");
    record.szSmartModel.assign(smartModel);
    record.szSmartSerial.assign(smartSerial);
    record.szSmartFirmware.assign("FW1");
    return record;
}

/// The fields, one behind the other; "-" for one that stays as it was.
QString joined(const DiskIdentityTexts &texts)
{
    QStringList fields{texts.diskNumber};
    for (const auto &field : {texts.model, texts.serial, texts.firmware, texts.sectors, texts.summary})
        fields << field.value_or("-");
    return fields.join('|');
}

} // namespace

/// The texts of a disk in the combos, in the identity fields and on Clone Disk; those of volumes as far as
/// the test of their screen does not have them.
class tst_DiskTexts : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        g_App.m_diskList.clear();
        g_wmicDisks.clear();
    }

    void comboTexts()
    {
        const auto shown = [](const DiskNode &node, const WmicDiskRecord *record) {
            const auto texts = drivetexts::comboTexts(node, record, "1.82 TB");
            return texts.drive == texts.source ? texts.drive : texts.drive + " / " + texts.source;
        };
        const WmicDiskRecord full = makeRecord("Stick ", "M 1", "S1");
        const WmicDiskRecord withoutModel = makeRecord("", "M 1", "S1");
        const WmicDiskRecord empty;
        QCOMPARE(shown(makeNode(FixedDisk, "Id", "IdS"), &full), QString("M 1 | S1 | 1.82 TB / M 1"));
        QCOMPARE(shown(makeNode(FixedDisk, "Id", "IdS"), &empty), QString("Id"));
        QCOMPARE(shown(makeNode(FixedDisk, "", "IdS"), nullptr), QString("IdS"));
        QCOMPARE(shown(makeNode(FixedDisk), &empty), QString("Disk Drive 2"));
        QCOMPARE(shown(makeNode(RemovableDisk), &full), QString("Stick  S1"));
        QCOMPARE(shown(makeNode(RemovableDisk), &withoutModel), QString("M 1 S1"));
        for (const WmicDiskRecord *record : {&empty, static_cast<const WmicDiskRecord *>(nullptr)})
            QCOMPARE(shown(makeNode(RemovableDisk), record), QString("Disk Drive 2"));
    }

    void identity()
    {
        const WmicDiskRecord record = makeRecord("Table Model ", "Report Model", "SER1");
        const ReportIdentity told{" Live ", "LS ", " LF", true};
        const auto read = [](DiskKind kind, const WmicDiskRecord *known, const ReportIdentity &report) {
            DiskNode node = makeNode(kind, "Id", "IdS");
            drivetexts::fillDisplayFields(node);
            return node.szDisplay + ' ' + joined(identityTextsAfterRead(&node, known, 2, report));
        };
        const QString sectors = QStringLiteral("|7814037168|");
        const QString summary = sectors + "SER1 ( IDE  3726.02 GB )";
        QCOMPARE(read(FixedDisk, &record, told), "Id (IdS) 2|Live|LS|LF" + summary);
        QCOMPARE(read(FixedDisk, &record, {}), "Id (IdS) 2|Report Model|SER1|" + summary);
        QCOMPARE(read(FixedDisk, nullptr, told), "Id (IdS) 2|Live|LS|LF" + sectors + "-");
        const QString removable = "Removable Drive 2|";
        QCOMPARE(read(RemovableDisk, &record, told), removable + "Report Model|Table Model |-" + summary);
        QCOMPARE(read(RemovableDisk, &record, {}),
                 removable + "Report Model|Table Model |Not Available" + summary);
        QCOMPARE(read(RemovableDisk, nullptr, {}),
                 removable + "Not Available|-|Not Available" + sectors + "-");
        QCOMPARE(joined(identityTextsAfterRead(nullptr, &record, -128, {})), QString("-128|-|-|-|-|-"));

        const auto translated = [&record](DiskKind kind) {
            const DiskNode node = makeNode(kind);
            return joined(identityTextsAfterLanguageChange(&node, &record, 2));
        };
        QCOMPARE(translated(FixedDisk), QString("2|Report Model|SER1|FW1|7814037168|-"));
        QCOMPARE(translated(RemovableDisk), QString("2|Report Model|Table Model ||7814037168|-"));
    }

    void cloneDetails()
    {
        const auto shown = [](const DiskNode &node, const WmicDiskRecord *record) {
            const clonetexts::Details t = clonetexts::details(node, record);
            return QStringList{t.diskNumber,    t.model,    t.serial, t.firmware,
                               t.interfaceType, t.capacity, t.sectors};
        };
        DiskNode node = makeNode(FixedDisk);
        drivetexts::fillDisplayFields(node);
        const WmicDiskRecord record = makeRecord("bus name", "Norvik NX500", "  NK2041X773");
        QCOMPARE(shown(node, &record),
                 (QStringList{"Disk Number \t: 2", "Model Number\t: Norvik NX500", "Serial: NK2041X773",
                              "Firmware Revision : FW1", "Interface Type\t   : IDE", "Capacity\t: 3726.02 GB",
                              "Total Sector\t   : 7814037168"}));
        const QStringList unknown = shown(DiskNode(), nullptr);
        QCOMPARE(unknown.filter(": Not Available").size(), 5);
        QCOMPARE(unknown[4], QString("Interface Type\t   : ATA Disk"));
    }

    void cloneNeverOffersTheSource()
    {
        for (const auto &[id, kind] : {std::pair(128, FixedDisk),
                                       {131, FixedDisk},
                                       {129, RemovableDisk},
                                       {2, VolumeNode},
                                       {300, LinuxPartition}})
            addNode(id, kind);
        const auto offered = [](int source) {
            QList<int> found;
            for (const clonetexts::Destination &disk : clonetexts::destinations(g_App.m_diskList, source))
                found.append(disk.diskId);
            return found;
        };
        QCOMPARE(offered(128), (QList<int>{131, 129}));
        QCOMPARE(offered(129), (QList<int>{128, 131}));
        QCOMPARE(offered(0), (QList<int>{128, 131, 129}));
    }

    void tellsTwinsApart()
    {
        for (int id : {128, 129, 130, 131})
            addNode(id, FixedDisk);
        for (quint32 id : {129, 130, 131})
            g_wmicDisks.append(makeRecord("", "Twin", id == 130 ? "S2" : "S1")).nDiskId = id;
        const auto disks = clonetexts::destinations(g_App.m_diskList, 131);
        QCOMPARE(disks.size(), std::size_t{3});
        // The number stays even if the other disk of that model is the source and not in the list.
        QCOMPARE(disks[1].text, QString("Twin | S1 | 1.82 TB | Disk Drive 1"));
        QCOMPARE(disks[2].text, QString("Twin | S2 | 1.82 TB"));
        const auto entries = drivetexts::entries(g_App.m_diskList);
        QCOMPARE(entries[2].texts.source, disks[2].text);
        QCOMPARE(entries[0].texts.source, QString("Disk Drive 0"));
    }

    void cloneArgument()
    {
        using namespace startargument;
        QVERIFY(!asksForClone("Schedular") && asksForClone("CloneDisk"));
        QVERIFY(!cloneDiskText("CloneDisk") && !cloneDiskText("x####y"));
        // Empty parts are skipped.
        QCOMPARE(cloneDiskText("####CloneDisk########M1|S1|3726.02GB"), QStringLiteral("M1|S1|3726.02GB"));
        QVERIFY(matchesDisk("M1 | S1 | 3726.02 GB", "m1|s1|3726.02gb"));
    }

    void sizesGoByLetter()
    {
        RecordList<LogicalDiskRecord> list;
        for (const auto &[caption, size] : {std::pair("", 7), {"D:", 20}, {"C:", 10}, {"D:", 21}}) {
            LogicalDiskRecord &volume = list.append();
            volume.szCaption.assign(caption);
            volume.nSizeBytes = size;
        }
        QCOMPARE(driveLetters("Drive: "), QStringList());
        QCOMPARE(volumeSizes(driveLetters("Drive: C: X: D: "), list), (QList<qint64>{10, 20}));
    }

    void disksOfVolumes()
    {
        RecordList<DiskNode> nodes;
        DiskNode &disk = nodes.append();
        disk.nId = 131;
        disk.pDetails = std::make_unique<DiskDetails>();
        disk.pDetails->szDrives = "Drive: C: D: ";
        DiskNode &d = nodes.append();
        d.nKind = RawVolume;
        d.pLogical = std::make_unique<LogicalDetails>();
        d.pLogical->nLetter = 3;
        QCOMPARE(disksOfVolume("D:", nodes), QVector<int>{3});
        d.pLogical->disks = {1, 2};
        QCOMPARE(disksOfVolume("D:", nodes), (QVector<int>{1, 2}));
        QCOMPARE(disksOfVolume("C:", nodes), QVector<int>{3});
        QCOMPARE(disksOfVolume("E:", nodes), QVector<int>());
    }

    void ring()
    {
        constexpr qint64 Giga = 1 << 30;
        QCOMPARE(partitiontexts::ringText({6 * Giga, 2 * Giga}),
                 QString("2 volumes: 6 GB (75 %), 2 GB (25 %)"));
        QCOMPARE(partitiontexts::ringText({}), QString("No Partition Found"));
    }

    void healthOfVolumes()
    {
        RecordList<WmicDiskRecord> list;
        for (const auto &[index, status] :
             {std::pair(0u, "OK"), {1u, "Error"}, {1u, "OK"}, {4u, "OK"}, {0u, ""}}) {
            WmicDiskRecord &record = list.append();
            record.nIndex = index;
            record.szStatus.assign(status);
        }
        QCOMPARE(healthWord({1, 4}, list), QString("Healthy"));
        QCOMPARE(healthWord({1, 0}, list), QString("Not Healthy")); // the last line counts
        for (const QVector<int> &unknown : {QVector<int>{3}, QVector<int>{}})
            QCOMPARE(healthWord(unknown, list), QString("Not Healthy"));
    }

    void spaceOfVolumes()
    {
        // Of free bytes and size.
        compareRows({"2 3 -> 66% Free", "5 0 -> 0% Free", "1099511627776 1099511627776 -> 100% Free",
                     "4611686018427387903 9223372036854775807 -> 50% Free",
                     "9223372036854775807 1 -> 9223372036854775807% Free"},
                    [](const QString &row) {
                        LogicalDiskRecord volume;
                        volume.nFreeBytes = row.section(' ', 0, 0).toLongLong();
                        volume.nSizeBytes = row.section(' ', 1).toLongLong();
                        return percentText(volume);
                    });
        // A tie goes to the even digit, each unit rounds what the last one left, and the last unit stays.
        compareRows({"1024 ->  of ", "1025 -> 1 KB of 1 KB", "1048576 -> 1024 KB of 1024 KB",
                     "1049600 -> 1 MB of 1 MB", "1310720 -> 1.2 MB of 1.2 MB", "1835008 -> 1.8 MB of 1.8 MB",
                     "1074266112 -> 1 GB of 1 GB", "2000398934016 -> 1.8 TB of 1863 GB",
                     "2199023255552000 -> 2000 TB of 2.048e+06 GB"},
                    [](const QString &bytes) {
                        return sizeText(bytes.toLongLong(), UnitsOfFree) + " of " +
                               sizeText(bytes.toLongLong(), UnitsOfTotal);
                    });
    }

private:
    static void addNode(int id, DiskKind kind)
    {
        DiskNode &node = g_App.m_diskList.append();
        node.nId = static_cast<quint16>(id);
        node.nKind = kind;
        node.szSize.assign("1.82 TB");
    }
};

QTEST_GUILESS_MAIN(tst_DiskTexts)
#include "tst_DiskTexts.moc"
