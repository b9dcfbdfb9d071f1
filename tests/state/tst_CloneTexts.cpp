// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/CloneTexts.h"

#include "state/DriveTexts.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

#include <QTest>

namespace
{

DiskNode *addNode(int id, DiskKind kind, const QString &size = QString())
{
    DiskNode &node = g_App.m_diskList.append();
    node.nId = static_cast<quint16>(id);
    node.nKind = kind;
    node.szSize.assign(size);
    return &node;
}

WmicDiskRecord *addRecord(int id, const QString &model, const QString &smartModel, const QString &serial)
{
    WmicDiskRecord &record = g_wmicDisks.append();
    record.nDiskId = static_cast<quint32>(id);
    record.szModel.assign(model);
    record.szSmartModel.assign(smartModel);
    record.szSmartSerial.assign(serial);
    return &record;
}

} // namespace

class CloneTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        g_App.m_diskList.clear();
        g_wmicDisks.clear();
    }

    void tellsAKnownDisk()
    {
        DiskNode *node = addNode(130, FixedDisk, QStringLiteral("931.51 GB"));
        node->pDetails = std::make_unique<DiskDetails>();
        node->pDetails->nTotalSectors = 7814037168;
        WmicDiskRecord *record = addRecord(130, QStringLiteral("bus name"), QStringLiteral("Norvik NX500"),
                                           QStringLiteral("  NK2041X773"));
        record->szSmartFirmware.assign(QStringLiteral("EXF1.2"));
        record->szInterface.assign(QStringLiteral("SCSI"));

        const clonetexts::Details texts = clonetexts::details(*node, record);
        QCOMPARE(texts.diskNumber, QStringLiteral("Disk Number \t: 2"));
        QCOMPARE(texts.model, QStringLiteral("Model Number\t: Norvik NX500"));
        QCOMPARE(texts.serial, QStringLiteral("Serial: NK2041X773"));
        QCOMPARE(texts.firmware, QStringLiteral("Firmware Revision : EXF1.2"));
        QCOMPARE(texts.interfaceType, QStringLiteral("Interface Type\t   : SCSI"));
        QCOMPARE(texts.capacity, QStringLiteral("Capacity\t: 931.51 GB"));
        QCOMPARE(texts.sectors, QStringLiteral("Total Sector\t   : 7814037168"));
    }

    void tellsAnUnknownDisk_data()
    {
        QTest::addColumn<bool>("withRecord");
        QTest::newRow("empty record") << true;
        QTest::newRow("no record") << false;
    }

    void tellsAnUnknownDisk()
    {
        QFETCH(bool, withRecord);
        const DiskNode *node = addNode(128, FixedDisk);
        const WmicDiskRecord empty;
        const clonetexts::Details texts = clonetexts::details(*node, withRecord ? &empty : nullptr);
        QCOMPARE(texts.diskNumber, QStringLiteral("Disk Number \t: 0"));
        QCOMPARE(texts.interfaceType, QStringLiteral("Interface Type\t   : ATA Disk"));
        for (const QString &text : {texts.model, texts.serial, texts.firmware, texts.capacity, texts.sectors})
            QVERIFY2(text.endsWith(QStringLiteral(": Not Available")), qPrintable(text));
    }

    void neverOffersTheSource_data()
    {
        QTest::addColumn<int>("source");
        QTest::addColumn<QList<int>>("offered");
        QTest::newRow("first is the source") << 128 << QList<int>{131, 129};
        QTest::newRow("removable is the source") << 129 << QList<int>{128, 131};
        QTest::newRow("no source") << 0 << QList<int>{128, 131, 129};
    }

    void neverOffersTheSource()
    {
        QFETCH(int, source);
        QFETCH(QList<int>, offered);
        addNode(128, FixedDisk);
        addNode(131, FixedDisk);
        addNode(129, RemovableDisk);
        addNode(2, VolumeNode);
        addNode(300, LinuxPartition);
        QList<int> found;
        for (const clonetexts::Destination &disk : clonetexts::destinations(g_App.m_diskList, source))
            found.append(disk.diskId);
        QCOMPARE(found, offered);
    }

    void tellsTwinsApart()
    {
        for (int id : {128, 129, 130, 131})
            addNode(id, FixedDisk, QStringLiteral("1.82 TB"));
        for (int id : {129, 131})
            addRecord(id, QString(), QStringLiteral("Twin"), QStringLiteral("S1"));
        addRecord(130, QString(), QStringLiteral("Twin"), QStringLiteral("S2"));
        const auto disks = clonetexts::destinations(g_App.m_diskList, 131);
        QCOMPARE(disks.size(), std::size_t{3});
        // The number stays even if the other disk of that model is the source and not in the list.
        QCOMPARE(disks[1].text, QStringLiteral("Twin | S1 | 1.82 TB | Disk Drive 1"));
        QCOMPARE(disks[2].text, QStringLiteral("Twin | S2 | 1.82 TB"));
        const auto entries = drivetexts::entries(g_App.m_diskList);
        QCOMPARE(entries[2].texts.source, disks[2].text);
        QCOMPARE(entries[0].texts.source, QStringLiteral("Disk Drive 0"));
    }
};

QTEST_GUILESS_MAIN(CloneTextsTest)
#include "tst_CloneTexts.moc"
