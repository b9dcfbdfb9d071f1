// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/scan/ScanRecorder.h"

#include <QThread>
#include <QtTest>

#include <atomic>
#include <memory>

using Sectors = QVector<qint64>;

class tst_BadSectorList : public QObject
{
    Q_OBJECT

private slots:
    void keepsWhatWasFound_data();
    void keepsWhatWasFound();
    void staysSmallWhenADiskHasGone();
    void isWalkedWhileItGrows();

private:
    static int runsOf(const BadSectorList &list)
    {
        int runs = 0;
        list.forEachRun([&runs](const SectorRun &) { ++runs; });
        return runs;
    }
};

void tst_BadSectorList::keepsWhatWasFound_data()
{
    QTest::addColumn<Sectors>("sectors");
    QTest::addColumn<int>("runs");
    QTest::newRow("nothing") << Sectors() << 0;
    QTest::newRow("sector 0") << Sectors{0} << 1;
    QTest::newRow("neighbours") << Sectors{7, 8, 9} << 1;
    QTest::newRow("found twice") << Sectors{16383, 16384, 16384, 16385} << 2;
    QTest::newRow("beyond 32 bits") << Sectors{(qint64(1) << 32) - 1, qint64(1) << 32} << 1;
    QTest::newRow("apart") << Sectors{0, 2, 4, 6} << 4;
}

void tst_BadSectorList::keepsWhatWasFound()
{
    QFETCH(Sectors, sectors);
    BadSectorList list;
    // An emptied list is like a new one.
    for (int round = 0; round < 2; ++round) {
        for (const qint64 sector : qAsConst(sectors))
            list.append(sector);
        QCOMPARE(sectorsOf(list), sectors);
        QCOMPARE(list.count(), qint64(sectors.size()));
        QTEST(runsOf(list), "runs");
        list.clear();
        QVERIFY(list.isEmpty());
        QVERIFY(sectorsOf(list).isEmpty());
    }
}

void tst_BadSectorList::staysSmallWhenADiskHasGone()
{
    BadSectorList list;
    for (qint64 sector = 0; sector < 3000000; ++sector)
        list.append(sector);
    QCOMPARE(runsOf(list), 1);
    QCOMPARE(list.count(), 3000000);
}

void tst_BadSectorList::isWalkedWhileItGrows()
{
    BadSectorList list;
    constexpr qint64 Pairs = 100000;
    std::atomic<bool> walked{false};
    std::atomic<bool> done{false};
    const std::unique_ptr<QThread> writer(QThread::create([&list, &walked, &done] {
        while (!walked)
            QThread::yieldCurrentThread();
        for (qint64 pair = 0; pair < Pairs; ++pair) {
            list.append(pair * 10);
            list.append(pair * 10 + 1);
        }
        done = true;
    }));
    writer->start();
    for (bool last = false; !last; walked = true) {
        last = done;
        // Each walk sees the runs from the beginning. All but the last one are complete.
        qint64 next = 0;
        qint64 length = 2;
        bool right = true;
        list.forEachRun([&](const SectorRun &run) {
            right = right && run.first == next * 10 && length == 2 && run.count >= 1 && run.count <= 2;
            length = run.count;
            ++next;
        });
        QVERIFY(right);
    }
    QVERIFY(writer->wait(30000));
    QCOMPARE(list.count(), 2 * Pairs);
    QCOMPARE(runsOf(list), int(Pairs));
}

QTEST_GUILESS_MAIN(tst_BadSectorList)
#include "tst_BadSectorList.moc"
