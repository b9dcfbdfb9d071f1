// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/BlockMap.h"
#include "scan/ScanClock.h"
#include "scan/ScanRecord.h"
#include "tests/scan/ScanRecorder.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/FakePlatform.h"

#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <set>

using Sectors = QVector<qint64>;

namespace
{

constexpr qint64 Chunk = 16384;

QStringList words(const QString &lines)
{
    return lines.split(", ");
}

/// The signals and results that a scan must have, calculated from its bad sectors without reading.
struct Expectation {
    QStringList lines;
    Sectors found;

    Expectation(qint64 total, std::set<qint64> bad)
    {
        bad.insert(total); // the sector behind the end cannot be read
        const qint64 step = (total + 399) / 400;
        lines = words("begin, progress 2, progress 1");
        qint64 progress = 2;
        for (qint64 first = 0; first < total; first += Chunk) {
            const qint64 next = std::min(first + Chunk, total);
            lines << QString("chunk %1 %2 %3").arg(first).arg(total).arg(step);
            // A chunk with a bad sector is read sector by sector, up to the first sector of the next chunk.
            const auto own = bad.lower_bound(first);
            if (own != bad.end() && *own < next) {
                for (auto sector = own; sector != bad.end() && *sector <= next; ++sector) {
                    found.append(*sector);
                    lines << QString("bad %1").arg(found.size());
                }
            }
            if (first == 0)
                lines << QString("first %1 %2").arg(next).arg(total);
            progress = first < step ? 1 : first / step;
            lines << QString("progress %1").arg(progress);
        }
        lines << QString("all %1").arg(total) << QString("progress %1").arg(progress + 2) << "blocks 0"
              << QString("bad %1").arg(found.size()) << "finish Pass";
    }
};

/// A disk of any size that costs no time. Reads leave the buffer as it is; they fail if they include a bad
/// sector or one behind the end.
class QuickDisk : public FakePlatform
{
public:
    qint64 sectors = 0;
    std::set<qint64> bad;
    std::atomic<bool> refuses{false};
    std::atomic<bool> gone{false}; ///< the system has noticed that it was pulled out
    int looks = -1;                ///< the number of questions until the system notices; -1: never
    /// Called at each read, with sector and bytes.
    std::function<void(qint64 sector, quint32 bytes)> onRead;

    RawHandle CreateFileW(const QString &name, quint32, quint32, quint32) override
    {
        return gone || !name.endsWith("DRIVE3") ? InvalidHandle : 1;
    }
    bool SetFilePointer(RawHandle, qint64 byteOffset) override
    {
        m_sector = byteOffset / 512;
        return true;
    }
    bool ReadFile(RawHandle, void *, quint32 bytes, quint32 *transferred) override
    {
        const auto next = bad.lower_bound(m_sector);
        *transferred = bytes;
        if (onRead)
            onRead(m_sector, bytes);
        if (!refuses && !gone && m_sector < sectors && (next == bad.end() || *next >= m_sector + bytes / 512))
            return true;
        *transferred = 0;
        return false;
    }
    bool IsGone(RawHandle) override
    {
        gone = gone || (refuses && looks-- == 0);
        return gone;
    }

private:
    qint64 m_sector = 0;
};

QuickDisk *installQuickDisk(qint64 sectors, const std::set<qint64> &bad = {})
{
    auto *const disk = FakePlatform::install<QuickDisk>();
    disk->sectors = sectors;
    disk->bad = bad;
    return disk;
}

} // namespace

/// The scan's thread, the list of bad sectors, the map that it colours and the times beside that; what a scan
/// has found, as people and ddrescue read it.
class tst_QScanDriveThread : public QObject
{
    Q_OBJECT

private slots:
    void init() { forgetScans(); }

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
        const bool hasTool = !QStandardPaths::findExecutable("ddrescuelog").isEmpty();
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

            if (!hasTool)
                continue;
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
        if (!hasTool)
            QSKIP("ddrescuelog is not installed");
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

    void findsEveryBadSector()
    {
        Sectors scattered{5 * Chunk};
        for (qint64 sector = 3; sector < 5 * Chunk; sector += 97)
            scattered << sector << 1 + sector % 3;
        const qint64 far = qint64(1) << 32;
        // The total, and pairs of first and count. At the last sectors a byte offset, a signed and an
        // unsigned sector number do not fit 32 bits any more.
        for (const Sectors &row : {Sectors{0},
                                   {2 * Chunk},
                                   {400 * 125, 7, 1},
                                   {400 * 125 + 1, 7, 1},
                                   {1, 0, 1},
                                   {40000, 5, 1, Chunk, 1, 39999, 1}, // the first of a chunk behind a bad one
                                   {4 * Chunk, Chunk - 1, Chunk + 2}, // across two boundaries
                                   {2 * Chunk + 100, 0, 2 * Chunk + 100},
                                   scattered,
                                   {far + Chunk + 7, 1 << 23, 1, far / 2, 1, far, 1, far + Chunk + 6, 1}}) {
            const qint64 total = row[0];
            std::set<qint64> bad;
            for (int i = 1; i < row.size(); i += 2) {
                for (qint64 sector = row[i]; sector < row[i] + row[i + 1]; ++sector)
                    bad.insert(sector);
            }
            installQuickDisk(total, bad);
            SelectedDisk disk(3, total);
            const Expectation expected(total, bad);
            g_BadSectors.append(99); // of the last scan
            QVERIFY2(scanned(total) == expected.lines, qPrintable(QString::number(total)));
            QCOMPARE(sectorsOf(g_BadSectors), expected.found);
            QCOMPARE(g_nBlockStep.load(), (total + 399) / 400);
            QCOMPARE(disk.node.pDetails->hDisk, qint64(0));
        }
    }

    void stops()
    {
        const SelectedDisk disk(3, 40000);
        const auto stoppedAt = [](qint64 at, quint32 bytes, const std::set<qint64> &bad) {
            installQuickDisk(40000, bad)->onRead = [=](qint64 sector, quint32 length) {
                if (sector == at && length == bytes)
                    g_bAbortJob = true;
            };
            return scanned(40000).mid(3);
        };
        QCOMPARE(
            stoppedAt(16384, 0x800000, {}),
            words("chunk 0 40000 100, first 16384 40000, progress 1, chunk 16384 40000 100, progress 163, "
                  "progress 163, blocks 0, bad 0, finish Pass"));
        // A bad sector at which it stops is listed but not counted.
        QCOMPARE(
            stoppedAt(20, 512, {10, 20, 30}),
            words("chunk 0 40000 100, bad 1, first 16384 40000, progress 1, progress 1, blocks 0, bad 1, "
                  "finish Pass"));
        QCOMPARE(sectorsOf(g_BadSectors), (Sectors{10, 20}));
    }

    void failsOnce()
    {
        QuickDisk *const quick = installQuickDisk(40000);
        const QStringList nothing = words("blocks 0, bad 0, finish Failed");
        QCOMPARE(scanned(40000), words("begin, progress 2, all 0") << nothing); // no disk is selected
        const SelectedDisk disk(3, 40000);
        quick->gone = true;
        QCOMPARE(scanned(40000), words("begin, progress 2, all 40000") << nothing);
        QVERIFY(g_bScanFailed && !g_bScanDiskGone);
        // The next scan is not affected.
        quick->gone = false;
        QCOMPARE(scanned(40000), Expectation(40000, {}).lines);
    }

    void endsWithItsDisk()
    {
        const qint64 total = 1000000 * Chunk;
        const SelectedDisk disk(3, total);
        // Pulled out during the read of these bytes at this sector; the system notices when asked once more.
        const auto ended = [&](qint64 at, quint32 bytes, int looks, const Sectors &found) {
            QuickDisk *const quick = installQuickDisk(total, {7, 8, Chunk + 600});
            quick->looks = looks;
            quick->onRead = [=](qint64 sector, quint32 length) {
                if (sector == at && length == bytes)
                    quick->refuses = true;
            };
            const QStringList lines = scanned(total);
            // What was found before stays.
            QCOMPARE(sectorsOf(g_BadSectors), found);
            QCOMPARE(lines.mid(lines.size() - 4),
                     words(QString("progress 1, blocks 0, bad %1, finish Failed").arg(found.size())));
            QVERIFY(g_bScanDiskGone && lines.filter("all ").isEmpty());
        };
        ended(2 * Chunk, 0x800000, 0, {7, 8, Chunk + 600});
        // In a chunk, and among the sectors of one, noticed late.
        ended(2 * Chunk, 0x800000, 9, {7, 8, Chunk + 600});
        ended(Chunk + 700, 512, 9, {7, 8});
    }

    /// A disk that refuses everything and is still plugged in has failed: all its sectors are bad.
    void readsOnWhereAllIsRefused()
    {
        const qint64 total = 3 * Chunk + 5;
        QuickDisk *const quick = installQuickDisk(total);
        const SelectedDisk disk(3, total);
        const QStringList lines = scanned(total, [quick](const QString &line) {
            quick->refuses = quick->refuses || line.startsWith("chunk 16384 ");
        });
        std::set<qint64> lost;
        for (qint64 sector = Chunk; sector < total; ++sector)
            lost.insert(sector);
        QCOMPARE(lines, Expectation(total, lost).lines);
        QCOMPARE(sectorsOf(g_BadSectors), Expectation(total, lost).found);
    }

    void keepsItsFlags()
    {
        installQuickDisk(40000, {3});
        const SelectedDisk disk(3, 40000);
        g_bAbortJob = true;
        {
            QScanDriveThread thread;
            QVERIFY(!g_bAbortJob);
            QString flags;
            const ScanRecorder recorder(thread, [&flags](const QString &) {
                flags = QString("%1 %2").arg(g_bJobRunning).arg(QThread::currentThread()->priority());
            });
            thread.SetRange(0, 40000);
            thread.StartScan(nullptr, 3);
            QVERIFY(thread.wait(30000));
            QCOMPARE(flags, QString("1 %1").arg(QThread::LowPriority));
            QVERIFY(!g_bJobRunning);

            // If it is stopped before it begins, the picture of the last scan stays.
            g_bAbortJob = true;
            thread.StartScan(nullptr, 3);
            QVERIFY(thread.wait(30000));
            QCoreApplication::processEvents();
            QCOMPARE(recorder.lines.filter("begin").size(), 1);
            QCOMPARE(recorder.lines.filter("finish Pass").size(), 2);
            QCOMPARE(sectorsOf(g_BadSectors), (Sectors{3}));
            g_bAbortJob = false;
        }
        QVERIFY(g_bAbortJob);
    }

    void waitsForWhoListens()
    {
        const qint64 total = 6 * Chunk;
        QuickDisk *const quick = installQuickDisk(total);
        const SelectedDisk disk(3, total);
        QScanDriveThread thread;
        qlonglong signalled = 0; // the last count comes twice
        qlonglong furthest = 0;
        QEventLoop loop;
        connect(
            &thread, &QScanDriveThread::TotalBlockCount, &thread, [quick] { quick->refuses = true; },
            Qt::DirectConnection);
        connect(&thread, &QScanDriveThread::ExactBadSectorCount, &loop, [&](qlonglong count) {
            QCOMPARE(count, std::min(++signalled, total + 6));
            furthest = std::max(furthest, g_BadSectors.count() - count);
            if (count % 64 == 0)
                QThread::usleep(100);
        });
        connect(&thread, &QScanDriveThread::OnFinish, &loop, [&loop] { loop.quit(); });
        thread.SetRange(0, total);
        thread.StartScan(nullptr, 3);
        loop.exec();
        QVERIFY(thread.wait(30000));
        // Each chunk finds its own sectors and the one behind it. At most three chunks are ahead of the
        // count: one told, one on its way, one just found.
        QCOMPARE(signalled, total + 7);
        QVERIFY2(furthest <= 3 * (Chunk + 1), qPrintable(QString::number(furthest)));
    }

    void startsAndStopsUnderAReader()
    {
        const qint64 total = 64 * Chunk;
        std::set<qint64> bad;
        for (qint64 sector = 0; sector < total; sector += 3)
            bad.insert(sector);
        installQuickDisk(total, bad);
        const SelectedDisk disk(3, total);
        std::atomic<bool> done{false};
        std::atomic<int> wrong{0};
        std::atomic<qint64> longest{0};
        const std::unique_ptr<QThread> reader(QThread::create([&] {
            while (!done) {
                qint64 last = -1;
                qint64 length = 0;
                g_BadSectors.forEachRun([&](const SectorRun &run) {
                    wrong += run.count != 1 || run.first % 3 != 0 || run.first < last;
                    last = run.first;
                    ++length;
                });
                longest = std::max(longest.load(), length);
            }
        }));
        reader->start();
        QScanDriveThread thread;
        thread.SetRange(0, total);
        for (int run = 0; run < 100; ++run) {
            g_bAbortJob = false;
            thread.StartScan(nullptr, 3);
            while (thread.isRunning() && (longest == 0 || g_BadSectors.count() < run * 20))
                QThread::yieldCurrentThread();
            g_bAbortJob = true;
            QVERIFY(thread.wait(30000));
            if (run % 2 == 0)
                g_BadSectors.clear();
        }
        done = true;
        QVERIFY(reader->wait(30000));
        QCOMPARE(wrong.load(), 0);
        QVERIFY(longest > 0);
    }

private:
    static void fill(BadSectorList *list, const Sectors &sectors)
    {
        for (const qint64 sector : sectors)
            list->append(sector);
    }
};

QTEST_GUILESS_MAIN(tst_QScanDriveThread)
#include "tst_QScanDriveThread.moc"
