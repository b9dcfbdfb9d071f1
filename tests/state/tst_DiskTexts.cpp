// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/CloneTexts.h"
#include "state/DiskIdentityTexts.h"
#include "state/DriveTexts.h"
#include "state/FixedText.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/StartArgument.h"

#include <QtTest>

namespace
{

DiskNode makeNode(DiskKind kind)
{
    DiskNode node;
    node.nId = 130;
    node.nKind = kind;
    node.pDetails = std::make_unique<DiskDetails>();
    node.pDetails->nTotalSectors = 7814037168ULL;
    node.pDetails->szCapacity = "3726.02 GB";
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

void addNode(int id, DiskKind kind)
{
    DiskNode &node = g_App.m_diskList.append();
    node.nId = static_cast<quint16>(id);
    node.nKind = kind;
    node.szSize.assign("1.82 TB");
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

/// The texts of a disk in the combos, in the identity fields and on Clone Disk.
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
        const auto shown = [](DiskKind kind, const WmicDiskRecord *record, const QString &identityModel = {},
                              const QString &identitySerial = {}) {
            DiskNode node = makeNode(kind);
            node.pDetails->pIdentity = std::make_unique<DiskIdentity>();
            node.pDetails->pIdentity->szModel.assign(identityModel);
            node.pDetails->pIdentity->szSerial.assign(identitySerial);
            const auto texts = drivetexts::comboTexts(node, record, "1.82 TB");
            return texts.drive == texts.source ? texts.drive : texts.drive + " / " + texts.source;
        };
        const WmicDiskRecord full = makeRecord("Stick ", "M 1", "S1");
        const WmicDiskRecord empty;
        QCOMPARE(shown(FixedDisk, &full, "Id", "IdS"), QStringLiteral("M 1 | S1 | 1.82 TB / M 1"));
        QCOMPARE(shown(FixedDisk, &empty, "Id", "IdS"), QStringLiteral("Id"));
        QCOMPARE(shown(FixedDisk, nullptr, "", "IdS"), QStringLiteral("IdS"));
        QCOMPARE(shown(FixedDisk, &empty), QStringLiteral("Disk Drive 2"));
        QCOMPARE(shown(RemovableDisk, &full), QStringLiteral("Stick  S1"));
        const WmicDiskRecord withoutModel = makeRecord("", "M 1", "S1");
        QCOMPARE(shown(RemovableDisk, &withoutModel), QStringLiteral("M 1 S1"));
        QCOMPARE(shown(RemovableDisk, &empty), QStringLiteral("Disk Drive 2"));
        QCOMPARE(shown(RemovableDisk, nullptr), QStringLiteral("Disk Drive 2"));
    }

    void displayFields()
    {
        DiskNode node = makeNode(FixedDisk);
        node.pDetails->pIdentity = std::make_unique<DiskIdentity>();
        node.pDetails->pIdentity->szModel.assign("Id");
        node.pDetails->pIdentity->szSerial.assign("IdS");
        drivetexts::fillDisplayFields(node);
        QCOMPARE(node.szDisplay, QStringLiteral("Id (IdS)"));
        QCOMPARE(node.nDisplayBytes, 16u);
        QCOMPARE(node.szSize.text(), QStringLiteral("3726.02 GB"));
        node.nKind = RemovableDisk;
        drivetexts::fillDisplayFields(node);
        QCOMPARE(node.szDisplay, QStringLiteral("Removable Drive"));
    }

    void identityAfterRead()
    {
        const WmicDiskRecord record = makeRecord("Table Model ", "Report Model", "SER1");
        const ReportIdentity told{" Live ", "LS ", " LF", true};
        const auto read = [](DiskKind kind, const WmicDiskRecord *known, const ReportIdentity &report) {
            DiskNode node = makeNode(kind);
            drivetexts::fillDisplayFields(node);
            return joined(identityTextsAfterRead(&node, known, 2, report));
        };
        const QString sectors = QStringLiteral("|7814037168|");
        const QString summary = sectors + "SER1 ( IDE  3726.02 GB )";
        QCOMPARE(read(FixedDisk, &record, told), "2|Live|LS|LF" + summary);
        QCOMPARE(read(FixedDisk, &record, {}), "2|Report Model|SER1|" + summary);
        QCOMPARE(read(FixedDisk, nullptr, told), "2|Live|LS|LF" + sectors + "-");
        QCOMPARE(read(RemovableDisk, &record, told), "2|Report Model|Table Model |-" + summary);
        QCOMPARE(read(RemovableDisk, &record, {}), "2|Report Model|Table Model |Not Available" + summary);
        QCOMPARE(read(RemovableDisk, nullptr, {}), "2|Not Available|-|Not Available" + sectors + "-");
        QCOMPARE(joined(identityTextsAfterRead(nullptr, &record, -128, {})),
                 QStringLiteral("-128|-|-|-|-|-"));
    }

    void identityAfterLanguageChange()
    {
        const WmicDiskRecord record = makeRecord("Table Model ", "Report Model", "SER1");
        const DiskNode fixed = makeNode(FixedDisk);
        QCOMPARE(joined(identityTextsAfterLanguageChange(&fixed, &record, 2)),
                 QStringLiteral("2|Report Model|SER1|FW1|7814037168|-"));
        const DiskNode removable = makeNode(RemovableDisk);
        QCOMPARE(joined(identityTextsAfterLanguageChange(&removable, &record, 2)),
                 QStringLiteral("2|Report Model|Table Model ||7814037168|-"));
    }

    void cloneDetails()
    {
        DiskNode node = makeNode(FixedDisk);
        drivetexts::fillDisplayFields(node);
        const WmicDiskRecord record = makeRecord("bus name", "Norvik NX500", "  NK2041X773");

        const clonetexts::Details texts = clonetexts::details(node, &record);
        QCOMPARE(texts.diskNumber, QStringLiteral("Disk Number \t: 2"));
        QCOMPARE(texts.model, QStringLiteral("Model Number\t: Norvik NX500"));
        QCOMPARE(texts.serial, QStringLiteral("Serial: NK2041X773"));
        QCOMPARE(texts.firmware, QStringLiteral("Firmware Revision : FW1"));
        QCOMPARE(texts.interfaceType, QStringLiteral("Interface Type\t   : IDE"));
        QCOMPARE(texts.capacity, QStringLiteral("Capacity\t: 3726.02 GB"));
        QCOMPARE(texts.sectors, QStringLiteral("Total Sector\t   : 7814037168"));
    }

    void cloneDetailsOfAnUnknownDisk()
    {
        const clonetexts::Details texts = clonetexts::details(DiskNode(), nullptr);
        QCOMPARE(texts.interfaceType, QStringLiteral("Interface Type\t   : ATA Disk"));
        for (const QString &text : {texts.model, texts.serial, texts.firmware, texts.capacity, texts.sectors})
            QVERIFY2(text.endsWith(QStringLiteral(": Not Available")), qPrintable(text));
    }

    void cloneNeverOffersTheSource()
    {
        addNode(128, FixedDisk);
        addNode(131, FixedDisk);
        addNode(129, RemovableDisk);
        addNode(2, VolumeNode);
        addNode(300, LinuxPartition);
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
        QCOMPARE(disks[1].text, QStringLiteral("Twin | S1 | 1.82 TB | Disk Drive 1"));
        QCOMPARE(disks[2].text, QStringLiteral("Twin | S2 | 1.82 TB"));
        const auto entries = drivetexts::entries(g_App.m_diskList);
        QCOMPARE(entries[2].texts.source, disks[2].text);
        QCOMPARE(entries[0].texts.source, QStringLiteral("Disk Drive 0"));
    }

    void fieldsAreCutAtCharacters()
    {
        FixedText<5> field;
        field.assign("abcdef");
        QCOMPARE(field.text(), QStringLiteral("abcd"));
        field.assign(QStringLiteral("abc\u2019d")); // the apostrophe takes three bytes and does not fit
        QCOMPARE(field.text(), QStringLiteral("abc"));
        field.assign(QString());
        QVERIFY(field.isEmpty());
    }

    void cloneArgument()
    {
        using namespace startargument;
        QVERIFY(!asksForClone("Schedular"));
        QVERIFY(asksForClone("CloneDisk"));
        QVERIFY(!cloneDiskText("CloneDisk"));
        QVERIFY(!cloneDiskText("x####y"));
        // Empty parts are skipped.
        QCOMPARE(cloneDiskText("####CloneDisk########M1|S1|3726.02GB"), QStringLiteral("M1|S1|3726.02GB"));
        QVERIFY(matchesDisk("M1 | S1 | 3726.02 GB", "m1|s1|3726.02gb"));
    }
};

QTEST_GUILESS_MAIN(tst_DiskTexts)
#include "tst_DiskTexts.moc"
