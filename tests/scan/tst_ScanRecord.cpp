// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/BadSectorList.h"
#include "scan/ScanRecord.h"
#include "tests/support/Files.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

/// What a scan has found, as people and ddrescue read it.
class tst_ScanRecord : public QObject
{
    Q_OBJECT

private slots:
    void saved_data()
    {
        QTest::addColumn<int>("end");
        QTest::addColumn<int>("scanned");
        QTest::addColumn<QByteArray>("told");
        QTest::addColumn<QByteArray>("at");
        QTest::newRow("complete") << int(ScanRecord::End::Complete) << 3000
                                  << QByteArray("3000 of 3000 sectors\nResult: Scan Completed.\n")
                                  << QByteArray("\n0x00000000     +  ");
        QTest::newRow("stopped") << int(ScanRecord::End::Stopped) << 2002
                                 << QByteArray("2002 of 3000 sectors\nResult: Disk scan aborted by user.\n")
                                 << QByteArray("\n0x000FA400     ?  ");
    }
    void saved();
    void savable();
};

/// Sectors are found twice at the ends of chunks, and one behind the end of the disk.
void tst_ScanRecord::saved()
{
    QFETCH(int, end);
    QFETCH(int, scanned);
    QFETCH(QByteArray, told);
    QFETCH(QByteArray, at);
    BadSectorList bad;
    for (const int sector : {2000, 2000, 2001, 100, 2004, 2999, 3000})
        bad.append(sector);
    const QDateTime begun(QDate(2026, 11, 22), QTime(9, 5), Qt::OffsetFromUTC, -12600);
    const ScanRecord record = {"Disk %1", "S1", begun, 3000, scanned, ScanRecord::End(end)};
    QCOMPARE(scanrecord::suggestedName(record), QStringLiteral("Disk %1 2026-11-22"));
    const QTemporaryDir folder;
    const QString list = folder.filePath(QStringLiteral("a.txt"));
    const QString map = folder.filePath(QStringLiteral("a.MAP"));
    QVERIFY(scanrecord::save(list, record, bad) && scanrecord::save(map, record, bad));
    QByteArray expected = "Velmora Halvane: Disk Scan\n\nDisk: Disk %1\nSerial number: S1\n"
                          "Date: 2026-11-22 09:05:00 -03:30\nScanned: the first " +
                          told +
                          "Bad sectors: 5\n\nSector 100 (LBA), byte offset 51200\n"
                          "Sectors 2000 to 2001 (LBA), byte offset 1024000\n"
                          "Sector 2004 (LBA), byte offset 1026048\nSector 2999 (LBA), byte offset 1535488\n";
    if (QSysInfo::kernelType() == QLatin1String("winnt"))
        expected.replace("\n", "\r\n");
    QCOMPARE(contentOf(list), expected);
    QVERIFY(contentOf(map).contains(at));

    if (QStandardPaths::findExecutable(QStringLiteral("ddrescuelog")).isEmpty())
        QSKIP("ddrescuelog is not installed");
    const auto sectors = [&map](const char *status) {
        QProcess tool;
        tool.start(QStringLiteral("ddrescuelog"), {QLatin1String(status), map});
        tool.waitForFinished();
        QVector<int> found;
        for (const QByteArray &line : tool.readAllStandardOutput().split('\n')) {
            if (!line.isEmpty())
                found << line.toInt();
        }
        return found;
    };
    const QVector<int> known = {100, 2000, 2001, 2004, 2999};
    QVector<int> sound;
    QVector<int> untried;
    for (int sector = 0; sector < 3000; ++sector) {
        if (!known.contains(sector))
            (sector < scanned ? sound : untried) << sector;
    }
    QCOMPARE(sectors("-l-"), known);
    QCOMPARE(sectors("-l+"), sound);
    QCOMPARE(sectors("-l?"), untried);
    QCOMPARE(QProcess::execute(QStringLiteral("ddrescuelog"), {QStringLiteral("-t"), map}), 0);
}

void tst_ScanRecord::savable()
{
    BadSectorList bad;
    ScanRecord record;
    record.scanned = 8;
    QVERIFY(!record.canBeSaved(bad)); // runs still
    record.end = scanrecord::endOf(false, QStringLiteral("Failed"), true);
    QVERIFY(record.end == ScanRecord::End::DiskGone && record.canBeSaved(bad));
    QCOMPARE(scanrecord::jobEnd(record.end, 2).detail, QStringLiteral("The disk is no longer connected."));
    QCOMPARE(scanrecord::jobEnd(ScanRecord::End::Complete, 2).result, JobEnd::Result::WithFaults);
    QCOMPARE(scanrecord::jobEnd(ScanRecord::End::Complete, 0).result, JobEnd::Result::Well);
    QCOMPARE(scanrecord::jobEnd(ScanRecord::End::Stopped, 2).result, JobEnd::Result::Stopped);
    record.scanned = 0;
    QVERIFY(!record.canBeSaved(bad));
    bad.append(5);
    QVERIFY(record.canBeSaved(bad));
    record.end = scanrecord::endOf(false, QStringLiteral("Failed"), false); // the disk did not open
    QVERIFY(!record.canBeSaved(bad));
    QVERIFY(!scanrecord::save(QStringLiteral("/no/such/folder/list.txt"), record, bad));
}

QTEST_GUILESS_MAIN(tst_ScanRecord)
#include "tst_ScanRecord.moc"
