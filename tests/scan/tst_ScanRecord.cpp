// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/BlockMap.h"
#include "scan/ScanClock.h"
#include "scan/ScanRecord.h"
#include "tests/scan/ScanRecorder.h"
#include "tests/support/ArrowRows.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

using Sectors = QVector<qint64>;

/// The list of bad sectors, the map that it colours and the times beside that; what a scan has found, as
/// people and ddrescue read it.
class tst_ScanRecord : public QObject
{
    Q_OBJECT

private slots:
    void list()
    {
        const qint64 far = qint64(1) << 32;
        const Sectors sectors{0, 7, 8, 9, 9, 10, far - 1, far};
        BadSectorList list;
        fill(&list, sectors);
        QCOMPARE(sectorsOf(list), sectors);
        QCOMPARE(list.count(), qint64(sectors.size()));
        Sectors runs;
        list.forEachRun([&runs](const SectorRun &run) { runs << run.first << run.count; });
        QCOMPARE(runs, (Sectors{0, 1, 7, 3, 9, 2, far - 1, 2}));
        list.clear();
        QVERIFY(list.isEmpty() && sectorsOf(list).isEmpty());
    }

    /// Of total, position and bad sectors: count and letter, # read, . empty, w at work, b bad.
    void cells()
    {
        compareRows("ScanRecord/cells", [](const QString &row) {
            const Sectors figures = numbersOf(row);
            BadSectorList list;
            fill(&list, figures.mid(2));
            const auto cells = blockmap::cells(blockmap::metrics(100), figures[0], figures[1], list);
            QString text;
            for (int first = 0, end = 0; first < cells.size(); first = end) {
                while (end < cells.size() && cells.at(end) == cells.at(first))
                    ++end;
                text += QString::number(end - first) + ".#wb"[int(cells.at(first))];
            }
            return text;
        });
    }

    /// A run of neighbours colours the same cells as its single sectors would, also with gaps between runs.
    void runsEqualSingleSectors()
    {
        const blockmap::Metrics sizes = blockmap::metrics(100);
        for (qint64 first = 0; first < 60; ++first) {
            BadSectorList runs;
            runs.append(first, 45);
            BadSectorList singles;
            for (qint64 sector = first + 44; sector >= first; --sector)
                singles.append(sector);
            singles.append(first + 44);
            QCOMPARE(blockmap::cells(sizes, 4000, 70, runs), blockmap::cells(sizes, 4000, 70, singles));
        }
    }

    /// Of x, y and the scale.
    void toolTip()
    {
        compareRows("ScanRecord/toolTip", [](const QString &row) {
            const Sectors at = numbersOf(row);
            const QPoint place{int(at[0]), int(at[1])};
            return blockmap::toolTip(blockmap::metrics(int(at[2])), place, 0, 100001, 251).replace('\n', '|');
        });
        QCOMPARE(blockmap::metrics(125).columns(), 25);
        // At least one pixel for a cell, or there is none to divide by.
        QVERIFY(!blockmap::cells(blockmap::metrics(1), 1000000, 500000, BadSectorList()).isEmpty());
    }

    /// Of the ms of the first chunk, the last sector and the ms until now.
    void times()
    {
        compareRows("ScanRecord/times", [](const QString &row) {
            const Sectors figures = numbersOf(row);
            ScanClock clock;
            clock.takeFirstChunk(16384, figures[1], figures[0]);
            return clock.remainingText(figures[2]).value_or("-") + ", " + ScanClock::elapsedText(figures[2]);
        });
        ScanClock clock;
        QVERIFY(!clock.remainingText(4000));
        clock.takeFirstChunk(16384, 1000000000, 50);
        clock.forgetEstimate();
        QVERIFY(!clock.remainingText(4000));
    }

    /// Sectors are found twice at the ends of chunks, and one behind the end of the disk.
    void saved()
    {
        for (const auto &[end, scanned, told, at] :
             {std::tuple(ScanRecord::End::Complete, 3000, "3000 of 3000 sectors\nResult: Scan Completed.\n",
                         "\n0x00000000     +  "),
              {ScanRecord::End::Stopped, 2002, "2002 of 3000 sectors\nResult: Disk scan aborted by user.\n",
               "\n0x000FA400     ?  "}}) {
            BadSectorList bad;
            fill(&bad, {2000, 2000, 2001, 100, 2004, 2999, 3000});
            const QDateTime begun(QDate(2026, 11, 22), QTime(9, 5), Qt::OffsetFromUTC, -12600);
            const ScanRecord record = {"Disk %1", "S1", begun, 3000, scanned, end};
            QCOMPARE(scanrecord::suggestedName(record), QString("Disk %1 2026-11-22"));
            const QTemporaryDir folder;
            const QString list = folder.filePath("a.txt");
            const QString map = folder.filePath("a.MAP");
            QVERIFY(scanrecord::save(list, record, bad) && scanrecord::save(map, record, bad));
            QByteArray expected =
                QByteArray("Velmora Halvane: Disk Scan\n\nDisk: Disk %1\nSerial number: S1\n"
                           "Date: 2026-11-22 09:05:00 -03:30\nScanned: the first ") +
                told +
                "Bad sectors: 5\n\nSector 100 (LBA), byte offset 51200\n"
                "Sectors 2000 to 2001 (LBA), byte offset 1024000\n"
                "Sector 2004 (LBA), byte offset 1026048\nSector 2999 (LBA), byte offset 1535488\n";
            if (QSysInfo::kernelType() == "winnt")
                expected.replace("\n", "\r\n");
            QCOMPARE(contentOf(list), expected);
            QVERIFY(contentOf(map).contains(at));

            if (QStandardPaths::findExecutable("ddrescuelog").isEmpty())
                QSKIP("ddrescuelog is not installed");
            const auto tool = [&map](const char *option) {
                QProcess process;
                process.start("ddrescuelog", {option, map});
                process.waitForFinished();
                return process.readAllStandardOutput().simplified();
            };
            QByteArray sound;
            QByteArray untried;
            for (int sector = 0; sector < 3000; ++sector) {
                if (!QVector<int>{100, 2000, 2001, 2004, 2999}.contains(sector))
                    (sector < scanned ? sound : untried) += QByteArray::number(sector) + ' ';
            }
            QCOMPARE(tool("-l-"), QByteArray("100 2000 2001 2004 2999"));
            QCOMPARE(tool("-l+"), sound.trimmed());
            QCOMPARE(tool("-l?"), untried.trimmed());
            QCOMPARE(QProcess::execute("ddrescuelog", {"-t", map}), 0);
        }
    }

    void savable()
    {
        BadSectorList bad;
        ScanRecord record;
        record.scanned = 8;
        QVERIFY(!record.canBeSaved(bad)); // runs still
        record.end = scanrecord::endOf(false, QString("Failed"), true);
        QVERIFY(record.end == ScanRecord::End::DiskGone && record.canBeSaved(bad));
        QCOMPARE(scanrecord::jobEnd(record.end, 2).detail, QString("The disk is no longer connected."));
        QCOMPARE(scanrecord::jobEnd(ScanRecord::End::Complete, 2).result, JobEnd::Result::WithFaults);
        QCOMPARE(scanrecord::jobEnd(ScanRecord::End::Complete, 0).result, JobEnd::Result::Well);
        QCOMPARE(scanrecord::jobEnd(ScanRecord::End::Stopped, 2).result, JobEnd::Result::Stopped);
        record.scanned = 0;
        QVERIFY(!record.canBeSaved(bad));
        bad.append(5);
        QVERIFY(record.canBeSaved(bad));
        record.end = scanrecord::endOf(false, QString("Failed"), false); // the disk did not open
        QVERIFY(!record.canBeSaved(bad));
        QVERIFY(!scanrecord::save(QString("/no/such/folder/list.txt"), record, bad));
    }

private:
    static void fill(BadSectorList *list, const Sectors &sectors)
    {
        for (const qint64 sector : sectors)
            list->append(sector);
    }
};

QTEST_GUILESS_MAIN(tst_ScanRecord)
#include "tst_ScanRecord.moc"
