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
        QStringList names;
        for (const int code : {128, 127 + 128, 0, 25}) {
            OpenDisk(code);
            names << fake->openings.last().name;
            // For reading and writing; others may read, write and delete; a missing file is not made.
            QCOMPARE(fake->openings.last(), (FakePlatform::Opening{names.last(), 0xC0000000u, 7, 3}));
        }
        QCOMPARE(names, QStringList({QStringLiteral("\\\\.\\PHYSICALDRIVE0"),
                                     QStringLiteral("\\\\.\\PHYSICALDRIVE127"), QStringLiteral("\\\\.\\A:"),
                                     QStringLiteral("\\\\.\\Z:")}));
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
        QCOMPARE(fake->openedNames.size(), 1);
        QCOMPARE(fake->openHandles(), 1);
    }

    void failsWithoutHarm()
    {
        fake->disks[1].badSectors << 1;
        QByteArray buffer(512, 'x');
        QVERIFY(!ReadWriteSectors(130, 0, buffer.data(), 512));
        QVERIFY(!ReadWriteSectors(129, 1, buffer.data(), 512));
        QVERIFY(!ReadWriteSectors(129, 4, buffer.data(), 512)); // at the end
        QVERIFY(
            !ReadWriteSectors(129, quint64(1) << 55, buffer.data(), 512)); // an offset that would wrap to 0
        QCOMPARE(buffer, QByteArray(512, 'x'));
        QCOMPARE(fake->openHandles(), 0);
    }

    void countsSectors()
    {
        quint64 sectors = 99;
        GetDiskSectorCount(129, &sectors);
        QCOMPARE(sectors, quint64(4));
        fake->disks[1].hasSize = false;
        GetDiskSectorCount(129, &sectors);
        QCOMPARE(sectors, quint64(0));
        sectors = 99;
        GetDiskSectorCount(128, &sectors);
        QCOMPARE(sectors, quint64(0));
        QCOMPARE(fake->openHandles(), 0);
    }

private:
    FakePlatform *fake = nullptr;
};

QTEST_GUILESS_MAIN(RawAccessTest)
#include "tst_RawAccess.moc"
