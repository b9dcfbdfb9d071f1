// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/BlockMap.h"
#include "scan/ScanClock.h"
#include "tests/scan/ScanRecorder.h"

#include <QtTest>

using Sectors = QVector<qint64>;

/// The list of bad sectors, the map that it colours, and the times beside that.
class tst_BlockMap : public QObject
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

    void cells()
    {
        // Count and letter: # read, . empty, w at work, b bad.
        const auto shown = [](qint64 total, qint64 position, const Sectors &bad = {}) {
            BadSectorList list;
            fill(&list, bad);
            const auto cells = blockmap::cells(blockmap::metrics(100), total, position, list);
            QString text;
            for (int first = 0; first < cells.size();) {
                int end = first;
                while (end < cells.size() && cells.at(end) == cells.at(first))
                    ++end;
                text += QString::number(end - first) + QLatin1Char(".#wb"[static_cast<int>(cells.at(first))]);
                first = end;
            }
            return text;
        };
        QCOMPARE(shown(-8, 50, {5}), QStringLiteral("400."));
        QCOMPARE(shown(4000, 9), QStringLiteral("400."));
        QCOMPARE(shown(4399, 39), QStringLiteral("2#1w397.")); // sectors per cell are rounded down
        QCOMPARE(shown(4399, 4390), QStringLiteral("400#"));
        QCOMPARE(shown(4000, qint64{1} << 60), QStringLiteral("400#"));
        // A small disk has a cell for each sector. At its end the last row is closed.
        QCOMPARE(shown(30, 27), QStringLiteral("26#1w373."));
        QCOMPARE(shown(30, 30), QStringLiteral("50#350."));
        QCOMPARE(shown(25, 25), QStringLiteral("25#375."));
        // A bad sector colours the cell before its own.
        QCOMPARE(shown(4000, 100, {9, 50, 53, 59}), QStringLiteral("4#1b4#1w390."));
        QCOMPARE(shown(4000, 50, {30, 50}), QStringLiteral("2#1b1#1w395."));
        QCOMPARE(shown(4000, 0, {50}), QStringLiteral("4.1b395."));
        // The newest is grey until passed, and nothing is grey at the end.
        QCOMPARE(shown(4000, 50, {40, 77}), QStringLiteral("3#1b1w1.1w393."));
        QCOMPARE(shown(4000, 3980, {4000, 9000}), QStringLiteral("397#1w1.1b"));
        QCOMPARE(shown(131072, 131072, {131071, 131072}), QStringLiteral("399#1b"));
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

    void toolTip()
    {
        const auto at = [](int x, int y, int scale = 100) {
            return blockmap::toolTip(blockmap::metrics(scale), {x, y}, 0, 100001, 251);
        };
        const auto block = [](const char *start, const char *end) {
            return QStringLiteral("Start Sector of current block: %1\nEnd Sector of current block: %2\n"
                                  "Current Block Size : 251 MB")
                .arg(start, end);
        };
        QCOMPARE(at(19, 19), block("0", "251"));
        QCOMPARE(at(20, 39), block("6526", "6777"));
        QCOMPARE(at(499, 319), block("100149", "100001"));
        QCOMPARE(at(0, 320), QStringLiteral("100400 to 100001"));
        QCOMPARE(at(20, 320), QString());
        QCOMPARE(at(-21, 0), QString());
        // 31 columns where 25 are painted.
        QCOMPARE(at(0, 25, 125), block("7781", "8032"));
        QCOMPARE(blockmap::metrics(125).columns(), 25);
        // At least one pixel for a cell, or there is none to divide by.
        QVERIFY(!blockmap::cells(blockmap::metrics(1), 1000000, 500000, BadSectorList()).isEmpty());
    }

    void times()
    {
        const auto told = [](qint64 firstChunk, qint64 end, qint64 now) {
            ScanClock clock;
            clock.takeFirstChunk(16384, end, firstChunk);
            return clock.remainingText(now).value_or("-") + ", " + ScanClock::elapsedText(now);
        };
        // 50 * 1000000000 / 16384 ms are 3051757 ms.
        QCOMPARE(told(50, 1000000000, 59999), QStringLiteral("49 minutes, 59 seconds"));
        QCOMPARE(told(50, 1000000000, 60000), QStringLiteral("49 minutes, 1 minutes"));
        QCOMPARE(told(50, 1000000000, 3599999), QStringLiteral("0 minutes, 59 minutes"));
        QCOMPARE(told(3600, 16384000, 0), QStringLiteral("1 hours, 0 seconds"));
        // A product, and a time, that do not fit.
        QCOMPARE(told(80000000, qint64{1} << 46, 80000000), QStringLiteral("95443717666 hours, 22 hours"));
        QCOMPARE(told(100, qint64{1} << 40, 2500000000), QStringLiteral("1169 hours, 694 hours"));

        ScanClock clock;
        QVERIFY(!clock.remainingText(4000));
        clock.takeFirstChunk(16384, 1000000000, 50);
        clock.forgetEstimate();
        QVERIFY(!clock.remainingText(4000));
    }

private:
    static void fill(BadSectorList *list, const Sectors &sectors)
    {
        for (const qint64 sector : sectors)
            list->append(sector);
    }
};

QTEST_APPLESS_MAIN(tst_BlockMap)
#include "tst_BlockMap.moc"
