// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CCreateDiskDriveList.h"
#include "state/GlobalApp.h"
#include "tests/support/FakePlatform.h"

#include <QTest>

namespace
{

constexpr qint64 MiB = 1024 * 1024;

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

    void writesCapacity()
    {
        const auto text = [](quint64 bytes) { return capacityText(bytes, QStringLiteral("KB")); };
        QCOMPARE(text(1000204886016), QStringLiteral("931.51 GB"));
        QCOMPARE(text(1024 * MiB), QStringLiteral("1.00 GB"));
        QCOMPARE(text(1024 * MiB - 1), QStringLiteral("1024.00 MB"));
        QCOMPARE(text(MiB), QStringLiteral("1.00 MB"));
        QCOMPARE(text(MiB - 1), QStringLiteral("1024.00 KB"));
        QCOMPARE(text(0), QStringLiteral("0.00 KB"));
        QCOMPARE(text(~quint64(0)), QStringLiteral("17179869184.00 GB"));
        // A tie is rounded to the even digit.
        QCOMPARE(text(1152 * MiB), QStringLiteral("1.12 GB"));
        QCOMPARE(text(1408 * MiB), QStringLiteral("1.38 GB"));
    }

    void listsDisksInOrder()
    {
        for (const int number : {0, 1, 5, 23, 24, 127, 128})
            add(number);
        add(2, io::MediaRemovable);
        QCOMPARE(build(), QVector<int>({128, 129, 133, 151, 130}));
        // One that is not listed counts, if its number is tried at all.
        QCOMPARE(int(g_App.m_nFixedDisks), 6);
        QCOMPARE(int(g_App.m_nRemovableDisks), 1);
        QCOMPARE(int(g_App.m_pDiskListHead->nKind), int(FixedDisk));
        QCOMPARE(int(g_App.m_pDiskListTail->nKind), int(RemovableDisk));
        QCOMPARE(fake->openHandles(), 0);
    }

    void leavesOutOtherDisks()
    {
        add(0, io::MediaUnknown);
        add(1).opens = false;
        add(2, io::MediaRemovable);
        QCOMPARE(build(), QVector<int>({130}));
        QVERIFY(!g_App.m_bAccessDenied);
        fake->disks.remove(2);
        QCOMPARE(build(), QVector<int>());
        QVERIFY(g_App.m_bAccessDenied);
        fake->disks.remove(1);
        build();
        QVERIFY(!g_App.m_bAccessDenied);
    }

    void fillsDetails_data()
    {
        QTest::addColumn<qint64>("size"); // -1: refused
        QTest::addColumn<quint32>("bytesPerSector");
        QTest::addColumn<quint64>("sectors");
        QTest::addColumn<QString>("capacity");
        QTest::newRow("beyond 2 TiB")
            << qint64(8001563222016) << 512u << quint64(15628053168) << "7452.04 GB";
        QTest::newRow("large sectors") << 8 * MiB << 4096u << quint64(16384) << "8.00 MB";
        QTest::newRow("size refused") << qint64(-1) << 512u << quint64(0) << "0.00 KB";
    }

    void fillsDetails()
    {
        QFETCH(qint64, size);
        QFETCH(quint32, bytesPerSector);
        for (const quint32 mediaType : {io::MediaFixed, io::MediaRemovable}) {
            FakePlatform::Disk &disk = add(7, mediaType);
            disk.size = size;
            disk.hasSize = size >= 0;
            disk.bytesPerSector = bytesPerSector;
            disk.serial = " SN-7";
            QCOMPARE(build(), QVector<int>({135}));
            const DiskDetails &details = *g_App.m_pDiskListHead->pDetails;
            QCOMPARE(int(details.nDevice), 135);
            QTEST(quint64(details.nTotalSectors), "sectors");
            QCOMPARE(details.nSectorFactor, bytesPerSector / 512);
            QTEST(details.szCapacity, "capacity");
            QCOMPARE(details.szSerial, QStringLiteral("SN-7"));
            QCOMPARE(details.szDrives, QStringLiteral("Drive: "));
            QVERIFY(!g_App.m_pDiskListHead->pLogical);
        }
    }

    void readsIdentityOfFixedDisksOnly()
    {
        QVector<int> asked;
        for (const int number : {0, 1}) {
            add(number, number == 0 ? io::MediaFixed : io::MediaRemovable).smart =
                [&asked, number](quint32, const QByteArray &, QByteArray *) {
                    asked << number;
                    return false;
                };
        }
        build();
        QVERIFY(g_App.m_pDiskListHead->pDetails->pIdentity);
        QVERIFY(!g_App.m_pDiskListTail->pDetails->pIdentity);
        QCOMPARE(asked, QVector<int>{0});
    }

    void listsLettersByFirstExtent()
    {
        add(0);
        add(1, io::MediaRemovable);
        fake->volumes = {{QLatin1Char('C'), volumeOn({0})}, {QLatin1Char('D'), volumeOn({1, 0})},
                         {QLatin1Char('E'), volumeOn({})},  {QLatin1Char('F'), volumeOn({0})},
                         {QLatin1Char('G'), volumeOn({0})}, {QLatin1Char('H'), volumeOn({0})}};
        fake->volumes[QLatin1Char('G')].raw.opens = false;
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

private:
    FakePlatform::Disk &add(int number, quint32 mediaType = io::MediaFixed)
    {
        FakePlatform::Disk &disk = fake->disks[number];
        disk.size = 8 * MiB;
        disk.mediaType = mediaType;
        return disk;
    }

    FakePlatform *fake = nullptr;
};

QTEST_GUILESS_MAIN(CCreateDiskDriveListTest)
#include "tst_CCreateDiskDriveList.moc"
