// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/RawAccess.h"
#include "tests/support/FakePlatform.h"

#include <QTest>

class RawAccessTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        fake = FakePlatform::install();
        QByteArray &bytes = fake->disks[1].bytes;
        for (const char digit : {'0', '1', '2', '3'})
            bytes.append(QByteArray(512, digit));
        fake->volumes[QLatin1Char('D')].raw.bytes = bytes;
    }

    void opensTargets()
    {
        OpenDisk(128);
        OpenDisk(25);
        // For reading and writing; others may read, write and delete; a missing file is not made.
        QCOMPARE(fake->openings,
                 QStringList({R"(\\.\PHYSICALDRIVE0 c0000000 7 3)", R"(\\.\Z: c0000000 7 3)"}));
    }

    void readsAndCloses()
    {
        for (const int code : {129, 3}) {
            QByteArray buffer(1024, 'x');
            QVERIFY(ReadWriteSectors(code, 2, buffer.data(), 1024));
            QCOMPARE(buffer, QByteArray(512, '2') + QByteArray(512, '3'));

            // Cut at the end: one sector is read, the rest of the buffer stays.
            buffer.fill('x');
            quint32 moved = 0;
            QVERIFY(ReadWriteSectors(code, 3, buffer.data(), 1024, NoDiskHandle, false, &moved));
            QCOMPARE(buffer, QByteArray(512, '3') + QByteArray(512, 'x'));
            QCOMPARE(moved, 512u);
        }
        QCOMPARE(fake->openHandles(), 0);
    }

    void worksOnGivenHandle()
    {
        const Platform::RawHandle handle = OpenDisk(129);
        QByteArray buffer(512, 'w');
        QVERIFY(ReadWriteSectors(129, 1, buffer.data(), 512, handle, true));
        QCOMPARE(fake->disks[1].bytes.mid(511, 514), "0" + buffer + "2");
        QVERIFY(ReadWriteSectors(129, 0, buffer.data(), 512, handle));
        QCOMPARE(buffer, QByteArray(512, '0'));
        QCOMPARE(fake->openings.size(), 1);
        QCOMPARE(fake->openHandles(), 1);
    }

    void failsWithoutHarm()
    {
        fake->disks[1].badSectors << 1;
        QByteArray buffer(512, 'x');
        QVERIFY(!ReadWriteSectors(130, 0, buffer.data(), 512));
        QVERIFY(!ReadWriteSectors(129, 1, buffer.data(), 512));
        QVERIFY(!ReadWriteSectors(129, 4, buffer.data(), 512)); // at the end
        // An offset that would wrap to 0.
        QVERIFY(!ReadWriteSectors(129, quint64(1) << 55, buffer.data(), 512));
        QCOMPARE(buffer, QByteArray(512, 'x'));
        QCOMPARE(fake->openHandles(), 0);
    }

    void countsSectors()
    {
        const auto counted = [](int code) {
            quint64 sectors = 99;
            GetDiskSectorCount(code, &sectors);
            return int(sectors);
        };
        QCOMPARE(counted(129), 4);
        QCOMPARE(counted(128), 0);
        fake->disks[1].hasSize = false;
        QCOMPARE(counted(129), 0);
        QCOMPARE(fake->openHandles(), 0);
    }

private:
    FakePlatform *fake = nullptr;
};

QTEST_GUILESS_MAIN(RawAccessTest)
#include "tst_RawAccess.moc"
