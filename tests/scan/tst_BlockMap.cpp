// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/BadSectorList.h"
#include "scan/BlockMap.h"
#include "scan/ScanClock.h"

#include <QtTest>

using blockmap::Cell;
using Sectors = QVector<qint64>;

class tst_BlockMap : public QObject
{
    Q_OBJECT

private slots:
    void cells_data();
    void cells();
    void runsEqualSingleSectors();
    void sizes_data();
    void sizes();
    void toolTip_data();
    void toolTip();
    void times_data();
    void times();

private:
    static void fill(BadSectorList *list, const Sectors &sectors)
    {
        for (const qint64 sector : sectors)
            list->append(sector);
    }
};

void tst_BlockMap::cells_data()
{
    QTest::addColumn<qint64>("total");
    QTest::addColumn<qint64>("position");
    QTest::addColumn<Sectors>("bad");
    QTest::addColumn<QString>("shown"); // count and letter: # read, . empty, w at work, b bad
    QTest::newRow("no disk") << qint64{0} << qint64{0} << Sectors{5} << "400.";
    QTest::newRow("a total that is none") << qint64{-8} << qint64{50} << Sectors() << "400.";
    QTest::newRow("nothing yet") << qint64{4000} << qint64{9} << Sectors() << "400.";
    QTest::newRow("the newest cell is grey") << qint64{4000} << qint64{39} << Sectors() << "2#1w397.";
    QTest::newRow("sectors per cell are rounded down")
        << qint64{4399} << qint64{30} << Sectors() << "2#1w397.";
    QTest::newRow("done") << qint64{4000} << qint64{4000} << Sectors() << "400#";
    QTest::newRow("beyond the map") << qint64{4399} << qint64{4390} << Sectors() << "400#";
    QTest::newRow("far beyond the map") << qint64{4000} << (qint64{1} << 60) << Sectors() << "400#";
    QTest::newRow("one cell each of a small disk") << qint64{30} << qint64{27} << Sectors() << "26#1w373.";
    QTest::newRow("its last row is closed") << qint64{30} << qint64{30} << Sectors() << "50#350.";
    QTest::newRow("a full row needs no closing") << qint64{25} << qint64{25} << Sectors() << "25#375.";
    QTest::newRow("one cell before its own") << qint64{4000} << qint64{100} << Sectors{55} << "4#1b4#1w390.";
    QTest::newRow("the first cell is not seen") << qint64{4000} << qint64{100} << Sectors{9} << "9#1w390.";
    QTest::newRow("several of a block")
        << qint64{4000} << qint64{100} << Sectors{50, 53, 59} << "4#1b4#1w390.";
    QTest::newRow("over the cell in work") << qint64{4000} << qint64{50} << Sectors{30, 50} << "2#1b1#1w395.";
    QTest::newRow("before any progress") << qint64{4000} << qint64{0} << Sectors{50} << "4.1b395.";
    QTest::newRow("the newest is grey until passed")
        << qint64{4000} << qint64{50} << Sectors{40, 77} << "3#1b1w1.1w393.";
    QTest::newRow("a newest one that is not seen") << qint64{4000} << qint64{5} << Sectors{7} << "400.";
    QTest::newRow("the last sector of the disk")
        << qint64{4000} << qint64{3990} << Sectors{3999} << "398#1w1.";
    QTest::newRow("behind the disk") << qint64{4000} << qint64{3980} << Sectors{4000, 9000} << "397#1w1.1b";
    QTest::newRow("nothing is grey at the end")
        << qint64{131072} << qint64{131072} << Sectors{131071, 131072} << "399#1b";
}

void tst_BlockMap::cells()
{
    QFETCH(qint64, total);
    QFETCH(qint64, position);
    QFETCH(Sectors, bad);
    BadSectorList list;
    fill(&list, bad);
    const QVector<Cell> cells = blockmap::cells(blockmap::metrics(100), total, position, list);
    QString shown;
    for (int first = 0; first < cells.size();) {
        int end = first;
        while (end < cells.size() && cells.at(end) == cells.at(first))
            ++end;
        shown += QString::number(end - first) + QLatin1Char(".#wb"[static_cast<int>(cells.at(first))]);
        first = end;
    }
    QTEST(shown, "shown");
}

/// A run of neighbours colours the same cells as its single sectors would, also with gaps between runs.
void tst_BlockMap::runsEqualSingleSectors()
{
    const blockmap::Metrics sizes = blockmap::metrics(100);
    for (qint64 first = 0; first < 60; ++first) {
        BadSectorList runs;
        BadSectorList singles;
        for (qint64 sector = first; sector < first + 45; ++sector)
            runs.append(sector);
        for (qint64 sector = first + 44; sector >= first; --sector)
            singles.append(sector);
        singles.append(first + 44);
        QCOMPARE(blockmap::cells(sizes, 4000, 70, runs), blockmap::cells(sizes, 4000, 70, singles));
    }
}

void tst_BlockMap::sizes_data()
{
    QTest::addColumn<int>("scale");
    QTest::addColumn<QVector<int>>("sizes"); // cell, width, height, tool tip's columns
    QTest::newRow("1") << 100 << QVector<int>{20, 500, 320, 25};
    QTest::newRow("1.25") << 125 << QVector<int>{25, 625, 400, 31};
    QTest::newRow("1.5") << 150 << QVector<int>{30, 750, 480, 37};
    QTest::newRow("next to no dots") << 1 << QVector<int>{1, 5, 3, 1};
}

void tst_BlockMap::sizes()
{
    QFETCH(int, scale);
    const blockmap::Metrics found = blockmap::metrics(scale);
    QTEST((QVector<int>{found.cell, found.width, found.height, found.toolTipColumns}), "sizes");
    if (scale >= 100) {
        QCOMPARE(found.columns(), 25);
        QCOMPARE(blockmap::cellCount(found, 1000000), qint64{400});
    }
    QVERIFY(!blockmap::cells(found, 1000000, 500000, BadSectorList()).isEmpty());
}

void tst_BlockMap::toolTip_data()
{
    QTest::addColumn<int>("scale");
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<QString>("text"); // start, end; or the text itself
    QTest::newRow("first") << 100 << QPoint(19, 19) << "0 251";
    QTest::newRow("second row") << 100 << QPoint(20, 39) << "6526 6777";
    QTest::newRow("last ends with the disk") << 100 << QPoint(499, 319) << "100149 100001";
    QTest::newRow("below the last row") << 100 << QPoint(0, 320) << "100400 to 100001";
    QTest::newRow("beside that") << 100 << QPoint(20, 320) << "";
    QTest::newRow("left of the map") << 100 << QPoint(-21, 0) << "";
    // 31 columns where 25 are painted.
    QTest::newRow("second row at 1.25") << 125 << QPoint(0, 25) << "7781 8032";
}

void tst_BlockMap::toolTip()
{
    QFETCH(int, scale);
    QFETCH(QPoint, place);
    QFETCH(QString, text);
    const QStringList range = text.split(QLatin1Char(' '));
    if (range.size() == 2)
        text = QStringLiteral("Start Sector of current block: %1\nEnd Sector of current block: %2\n"
                              "Current Block Size : 251 MB")
                   .arg(range.at(0), range.at(1));
    QCOMPARE(blockmap::toolTip(blockmap::metrics(scale), place, 0, 100001, 251), text);
}

void tst_BlockMap::times_data()
{
    QTest::addColumn<qint64>("chunk"); // ms of the first chunk; -1: not read yet
    QTest::addColumn<qint64>("end");
    QTest::addColumn<qint64>("now"); // ms since the start
    QTest::addColumn<QString>("remaining");
    QTest::addColumn<QString>("elapsed");
    // 50 * 1000000000 / 16384 ms are 3051757 ms.
    QTest::newRow("no chunk yet") << qint64{-1} << qint64{1000000000} << qint64{4000} << "-"
                                  << "4 seconds";
    QTest::newRow("50 minutes") << qint64{50} << qint64{1000000000} << qint64{2000} << "50 minutes"
                                << "2 seconds";
    QTest::newRow("the last minute") << qint64{50} << qint64{1000000000} << qint64{3000000} << "0 minutes"
                                     << "50 minutes";
    QTest::newRow("outrun") << qint64{50} << qint64{1000000000} << qint64{3599999} << "0 minutes"
                            << "59 minutes";
    QTest::newRow("hours") << qint64{100} << qint64{1953525168} << qint64{3600000} << "2 hours"
                           << "1 hours";
    QTest::newRow("a product that does not fit")
        << qint64{80000000} << (qint64{1} << 46) << qint64{80000000} << "95443717666 hours"
        << "22 hours";
    QTest::newRow("beyond a day and 32 bits")
        << qint64{100} << (qint64{1} << 40) << qint64{2500000000} << "1169 hours"
        << "694 hours";
}

void tst_BlockMap::times()
{
    QFETCH(qint64, chunk);
    QFETCH(qint64, end);
    QFETCH(qint64, now);
    ScanClock clock;
    if (chunk >= 0)
        clock.takeFirstChunk(16384, end, chunk);
    QTEST(clock.remainingText(now).value_or(QStringLiteral("-")), "remaining");
    QTEST(ScanClock::elapsedText(now), "elapsed");
    clock.forgetEstimate();
    QVERIFY(!clock.remainingText(now));
}

QTEST_APPLESS_MAIN(tst_BlockMap)
#include "tst_BlockMap.moc"
