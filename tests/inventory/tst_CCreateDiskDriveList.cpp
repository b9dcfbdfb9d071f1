// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CCreateDiskDriveList.h"
#include "inventory/VolumeNodes.h"
#include "state/GlobalApp.h"
#include "tests/support/FakePlatform.h"

#include <QTest>

namespace
{

constexpr qint64 MiB = 1024 * 1024;

FakePlatform::Disk diskOf(qint64 size, quint32 mediaType = io::MediaFixed, quint32 bytesPerSector = 512)
{
    FakePlatform::Disk disk;
    disk.size = size;
    disk.mediaType = mediaType;
    disk.bytesPerSector = bytesPerSector;
    return disk;
}

FakePlatform::Volume volumeOn(const QVector<quint32> &disks)
{
    FakePlatform::Volume volume;
    volume.fileSystem = QStringLiteral("NTFS");
    for (const quint32 disk : disks)
        volume.extents << io::DiskExtent{disk, 0, 1048576, 1048576};
    return volume;
}

QVector<int> build()
{
    CCreateDiskDriveList list;
    list.BuildDriveList();
    QVector<int> ids;
    for (const DiskNode &node : g_App.m_diskList)
        ids << node.nId;
    return ids;
}

} // namespace

class CCreateDiskDriveListTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { fake = FakePlatform::install(); }

    void writesCapacity_data();
    void writesCapacity();
    void listsDisksInOrder();
    void leavesOutOtherDisks();
    void listsNumbersBelow24();
    void fillsDetails_data();
    void fillsDetails();
    void readsIdentityOfFixedDisksOnly();
    void listsLettersByFirstExtent();
    void freesPreviousList();

private:
    FakePlatform *fake = nullptr;
};

void CCreateDiskDriveListTest::writesCapacity_data()
{
    QTest::addColumn<quint64>("bytes");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("text");
    const QString kb = QStringLiteral("KB");
    const QString mb = QStringLiteral("MB");
    QTest::newRow("1 TB") << quint64(1000204886016) << kb << QStringLiteral("931.51 GB");
    QTest::newRow("1 GiB") << (quint64(1) << 30) << kb << QStringLiteral("1.00 GB");
    QTest::newRow("below 1 GiB") << (quint64(1) << 30) - 1 << kb << QStringLiteral("1024.00 MB");
    QTest::newRow("1 MiB") << quint64(MiB) << kb << QStringLiteral("1.00 MB");
    QTest::newRow("small disk") << quint64(512 * 1024) << kb << QStringLiteral("512.00 KB");
    QTest::newRow("small volume") << quint64(512 * 1024) << mb << QStringLiteral("512.00 MB");
    // A tie is rounded to the even digit.
    const struct {
        const char *name;
        quint64 eighths; // of a GiB
        const char *text;
    } ties[] = {{"1.125 GiB", 9, "1.12 GB"},
                {"1.375 GiB", 11, "1.38 GB"},
                {"1.625 GiB", 13, "1.62 GB"},
                {"500.125 GiB", 4001, "500.12 GB"}};
    for (const auto &tie : ties)
        QTest::newRow(tie.name) << tie.eighths * 128 * MiB << kb << QString::fromLatin1(tie.text);
    QTest::newRow("nothing") << quint64(0) << kb << QStringLiteral("0.00 KB");
    QTest::newRow("all bits") << ~quint64(0) << kb << QStringLiteral("17179869184.00 GB");
}

void CCreateDiskDriveListTest::writesCapacity()
{
    QFETCH(quint64, bytes);
    QFETCH(QString, unit);
    QTEST(capacityText(bytes, unit), "text");
}

void CCreateDiskDriveListTest::listsDisksInOrder()
{
    fake->disks[1] = diskOf(8 * MiB, io::MediaRemovable);
    fake->disks[2] = diskOf(8 * MiB);
    fake->disks[5] = diskOf(8 * MiB);
    fake->disks[0] = diskOf(8 * MiB);
    QCOMPARE(build(), QVector<int>({128, 130, 133, 129}));
    QCOMPARE(int(g_App.m_nFixedDisks), 3);
    QCOMPARE(int(g_App.m_nRemovableDisks), 1);
    QCOMPARE(int(g_App.m_pDiskListHead->nKind), int(FixedDisk));
    QCOMPARE(int(g_App.m_pDiskListTail->nKind), int(RemovableDisk));
    QCOMPARE(int(g_App.m_pDiskListTail->nId), 129);
    QCOMPARE(fake->openHandles(), 0);
}

void CCreateDiskDriveListTest::leavesOutOtherDisks()
{
    fake->disks[0] = diskOf(8 * MiB, io::MediaUnknown);
    fake->disks[1] = diskOf(8 * MiB);
    fake->disks[1].opens = false;
    fake->disks[2] = diskOf(8 * MiB, io::MediaRemovable);
    QCOMPARE(build(), QVector<int>({130}));
    QCOMPARE(int(g_App.m_nFixedDisks), 0);
    QCOMPARE(int(g_App.m_nRemovableDisks), 1);
    QVERIFY(!g_App.m_bAccessDenied);
    fake->disks.remove(2);
    QCOMPARE(build(), QVector<int>());
    QVERIFY(g_App.m_bAccessDenied);
    fake->disks.remove(1);
    build();
    QVERIFY(!g_App.m_bAccessDenied);
}

void CCreateDiskDriveListTest::listsNumbersBelow24()
{
    for (const int number : {23, 24, 127, 128})
        fake->disks[number] = diskOf(8 * MiB);
    QCOMPARE(build(), QVector<int>({151}));
    QCOMPARE(int(g_App.m_nFixedDisks), 3);
}

void CCreateDiskDriveListTest::fillsDetails_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<quint32>("bytesPerSector");
    QTest::addColumn<bool>("hasSize");
    QTest::addColumn<quint64>("sectors");
    QTest::addColumn<quint32>("factor");
    QTest::addColumn<QString>("capacity");
    QTest::newRow("usual") << qint64(64023257088) << 512u << true << quint64(125045424) << 1u
                           << QStringLiteral("59.63 GB");
    QTest::newRow("beyond 2 TiB") << qint64(8001563222016) << 512u << true << quint64(15628053168) << 1u
                                  << QStringLiteral("7452.04 GB");
    QTest::newRow("large sectors") << qint64(8 * MiB) << 4096u << true << quint64(16384) << 8u
                                   << QStringLiteral("8.00 MB");
    QTest::newRow("size refused") << qint64(8 * MiB) << 512u << false << quint64(0) << 1u
                                  << QStringLiteral("0.00 KB");
    QTest::newRow("no medium") << qint64(0) << 512u << true << quint64(0) << 1u << QStringLiteral("0.00 KB");
}

void CCreateDiskDriveListTest::fillsDetails()
{
    QFETCH(qint64, size);
    QFETCH(quint32, bytesPerSector);
    QFETCH(bool, hasSize);
    for (const quint32 mediaType : {io::MediaFixed, io::MediaRemovable}) {
        fake->disks[7] = diskOf(size, mediaType, bytesPerSector);
        fake->disks[7].hasSize = hasSize;
        QCOMPARE(build(), QVector<int>({135}));
        const DiskNode *node = g_App.m_pDiskListHead;
        QCOMPARE(int(node->pDetails->nDevice), 135);
        QTEST(quint64(node->pDetails->nTotalSectors), "sectors");
        QTEST(quint32(node->pDetails->nSectorFactor), "factor");
        QTEST(node->pDetails->szCapacity, "capacity");
        QCOMPARE(node->pDetails->szDrives, QStringLiteral("Drive: "));
        QVERIFY(node->szSize.isEmpty());
        QVERIFY(!node->pLogical);
    }
}

void CCreateDiskDriveListTest::readsIdentityOfFixedDisksOnly()
{
    QStringList asked;
    for (const int number : {0, 1}) {
        fake->disks[number] = diskOf(8 * MiB, number == 0 ? io::MediaFixed : io::MediaRemovable);
        fake->disks[number].smart = [&asked, number](quint32, const QByteArray &, QByteArray *) {
            asked << QString::number(number);
            return false;
        };
    }
    build();
    QVERIFY(g_App.m_pDiskListHead->pDetails->pIdentity);
    QVERIFY(!g_App.m_pDiskListTail->pDetails->pIdentity);
    QCOMPARE(asked, QStringList(QStringLiteral("0")));
}

void CCreateDiskDriveListTest::listsLettersByFirstExtent()
{
    fake->disks[0] = diskOf(8 * MiB);
    fake->disks[1] = diskOf(8 * MiB, io::MediaRemovable);
    fake->volumes[QLatin1Char('C')] = volumeOn({0});
    fake->volumes[QLatin1Char('D')] = volumeOn({1, 0});
    fake->volumes[QLatin1Char('E')] = volumeOn({});
    fake->volumes[QLatin1Char('F')] = volumeOn({0});
    fake->volumes[QLatin1Char('G')] = volumeOn({0});
    fake->volumes[QLatin1Char('G')].raw.opens = false;
    fake->volumes[QLatin1Char('H')] = volumeOn({0});
    fake->volumes[QLatin1Char('H')].type = io::DriveRemote;
    build();
    QCOMPARE(g_App.m_pDiskListHead->pDetails->szDrives, QStringLiteral("Drive: C: F: "));
    QCOMPARE(g_App.m_pDiskListHead->pNext->pDetails->szDrives, QStringLiteral("Drive: D: "));
    QString opened;
    for (const FakePlatform::Opening &opening : qAsConst(fake->openings)) {
        if (opening.name.size() != 6)
            continue;
        opened += opening.name.at(4);
        QCOMPARE(opening, (FakePlatform::Opening{opening.name, 0x80000000u, 3, 3}));
    }
    // Each volume is opened once, for disks and volumes together; the network share is not opened.
    QCOMPARE(opened, QStringLiteral("CDEFG"));
    QCOMPARE(fake->openHandles(), 0);
}

void CCreateDiskDriveListTest::freesPreviousList()
{
    fake->disks[0] = diskOf(8 * MiB);
    fake->disks[1] = diskOf(8 * MiB, io::MediaRemovable);
    build();
    g_App.m_nNextLogicalId = 300;
    fake->disks.clear();
    {
        const CCreateDiskDriveList list;
        QVERIFY(!g_App.m_pDiskListHead);
        QVERIFY(!g_App.m_pDiskListTail);
        QCOMPARE(int(g_App.m_nNextLogicalId), 257);
    }
    QCOMPARE(build(), QVector<int>());
    QCOMPARE(int(g_App.m_nFixedDisks), 0);
    QCOMPARE(int(g_App.m_nRemovableDisks), 0);
}

QTEST_GUILESS_MAIN(CCreateDiskDriveListTest)
#include "tst_CCreateDiskDriveList.moc"
