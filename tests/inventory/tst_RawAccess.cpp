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
        QByteArray bytes;
        for (int sector = 0; sector < 4; ++sector)
            bytes.append(QByteArray(512, char('0' + sector)));
        fake->disks[1].bytes = bytes;
        fake->volumes[QLatin1Char('D')].raw.bytes = bytes;
    }

    void namesTargets_data();
    void namesTargets();
    void readsAndCloses();
    void worksOnGivenHandle();
    void failsWithoutHarm_data();
    void failsWithoutHarm();
    void countsSectors();

private:
    FakePlatform *fake = nullptr;
};

void RawAccessTest::namesTargets_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("name");
    QTest::newRow("first disk") << 128 << QStringLiteral("\\\\.\\PHYSICALDRIVE0");
    QTest::newRow("last disk") << 255 << QStringLiteral("\\\\.\\PHYSICALDRIVE127");
    QTest::newRow("A") << 0 << QStringLiteral("\\\\.\\A:");
    QTest::newRow("Z") << 25 << QStringLiteral("\\\\.\\Z:");
}

void RawAccessTest::namesTargets()
{
    QFETCH(int, code);
    OpenDisk(code);
    QFETCH(QString, name);
    // For reading and writing; others may read, write and delete; a missing file is not made.
    QCOMPARE(fake->openings, QVector<FakePlatform::Opening>({{name, 0xC0000000u, 7, 3}}));
}

void RawAccessTest::readsAndCloses()
{
    for (const int code : {129, 3}) {
        QByteArray buffer(1024, '\0');
        QVERIFY(ReadWriteSectors(code, 2, buffer.data(), 1024));
        QCOMPARE(buffer, QByteArray(512, '2') + QByteArray(512, '3'));

        // Cut at the end: one sector is read, the rest of the buffer stays.
        buffer.fill('x');
        QVERIFY(ReadWriteSectors(code, 3, buffer.data(), 1024));
        QCOMPARE(buffer, QByteArray(512, '3') + QByteArray(512, 'x'));
    }
    QCOMPARE(fake->openHandles(), 0);
}

void RawAccessTest::worksOnGivenHandle()
{
    const Platform::RawHandle handle = OpenDisk(129);
    QByteArray buffer(512, 'w');
    QVERIFY(ReadWriteSectors(129, 1, buffer.data(), 512, handle, true));
    QCOMPARE(fake->disks[1].bytes.mid(512, 512), buffer);
    QCOMPARE(fake->disks[1].bytes.at(511), '0');
    QCOMPARE(fake->disks[1].bytes.at(1024), '2');
    QVERIFY(ReadWriteSectors(129, 0, buffer.data(), 512, handle));
    QCOMPARE(buffer, QByteArray(512, '0'));
    QCOMPARE(fake->openedNames.size(), 1);
    QCOMPARE(fake->openHandles(), 1);
}

void RawAccessTest::failsWithoutHarm_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<quint64>("sector");
    QTest::newRow("no such disk") << 130 << quint64(0);
    QTest::newRow("at the end") << 129 << quint64(4);
    QTest::newRow("bad sector") << 129 << quint64(1);
    QTest::newRow("offset that would wrap to 0") << 129 << (quint64(1) << 55);
}

void RawAccessTest::failsWithoutHarm()
{
    QFETCH(int, code);
    QFETCH(quint64, sector);
    fake->disks[1].badSectors << 1;
    QByteArray buffer(512, 'x');
    QVERIFY(!ReadWriteSectors(code, sector, buffer.data(), 512));
    QCOMPARE(buffer, QByteArray(512, 'x'));
    QCOMPARE(fake->openHandles(), 0);
}

void RawAccessTest::countsSectors()
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

QTEST_GUILESS_MAIN(RawAccessTest)
#include "tst_RawAccess.moc"
