// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/CloneMessages.h"
#include "clone/GaugeGeometry.h"
#include "clone/RescueMap.h"
#include "tests/clone/CloneFixture.h"
#include "tests/support/ArrowRows.h"

#include <QElapsedTimer>

/// Clones on a machine of three disks: what they copy, the ends of those that do not copy everything, what
/// the clone screen says, and the list of lost sectors for ddrescue.
class tst_ThreadDriveClone : public QObject, private CloneFixture
{
    Q_OBJECT

private slots:
    void copies()
    {
        // `tail`: whether the rest of the last block becomes zeros
        const auto row = [this](const char *name, int sourceSectors, int destinationSectors, Set bad = {},
                                Set unwritable = {}, const QString &endsHard = {}, bool tail = true) {
            openPc(sourceSectors, destinationSectors);
            FakePlatform::Disk &source = m_pc->disks[Source];
            FakePlatform::Disk &destination = m_pc->disks[Destination];
            source.badSectors = bad;
            destination.unwritable = unwritable;
            source.endsHard = endsHard.contains("source");
            destination.endsHard = endsHard.contains("destination");
            runClone();

            // A sector that is not written counts once, and not at all behind the source.
            bad -= unwritable;
            unwritable.intersect(range(0, sourceSectors));
            QVERIFY2(destination.bytes == expected(bad, unwritable, tail), name);
            QVERIFY2(source.bytes == noise(sourceSectors, 1), name);
            QVERIFY2(m_pc->disks[Bystander].bytes == noise(BystanderSectors, 3), name);
            QVERIFY2(m_disks->events == Finished, name);
            const auto found = [](const SectorRuns &lost) {
                Set sectors;
                for (const SectorRun &run : lost.runs())
                    sectors += range(run.first, run.count);
                return sectors;
            };
            QVERIFY2(found(m_outcome.lost.unread) == bad && found(m_outcome.lost.unwritten) == unwritable,
                     name);
            QVERIFY2(m_outcome.lost.unread.count() == bad.size(), name);
            QVERIFY2(m_outcome.end ==
                         (bad.isEmpty() && unwritable.isEmpty() ? End::Complete : End::WithErrors),
                     name);
        };
        row("a sector below a block", 32767, 32767);
        row("a block", 32768, 32768);
        row("a sector above a block", 32769, 32769);
        row("zeros behind the source, up to the block", 3000, 70000);
        row("zeros behind the source, up to the destination's end", 3000, 3500);
        row("a block on a larger disk", 32768, 32769);
        row("source refuses to read past its end", 40000, 90000, {}, {}, "source", false);
        row("destination refuses to be written past its end", 40000, 40000, {}, {}, "destination");
        row("such a refusal, with nothing past the end", 65536, 65536, {}, {}, "source, destination");
        row("unreadable first and last sector", 65537, 65537, {0, 65536});
        row("unreadable on both sides of a border", 66000, 66000, {32767, 32768});
        row("unreadable block", 99000, 99000, range(32768, 32768));
        row("unwritable sector, and zeros behind the third block", 66000, 70000, {}, {50000});
        row("unwritable behind the source, in its last block", 40000, 70000, {}, {65000}, "", false);
        row("both, one sector of each meets", 66000, 66000, {65899, 65900}, {40000, 65900});
    }

    void scripts()
    {
        qputenv("COMSPEC", "x /c diskpart /s evil.txt |"); // must not be used
        openPc(Sectors, Sectors);
        QVERIFY(writeFile(script(), QByteArray(500, 'x')));
        QStringList found;
        m_pc->onCommand = [&](const QString &) {
            found << QString(contentOf(script())).remove('\r').replace('\n', '|');
            return true;
        };
        runClone();

        QCOMPARE(found, (QStringList{"SELECT DISK 2|online disk|EXIT", "SELECT DISK 2|clean|EXIT",
                                     "SELECT DISK 2|convert MBR|create partition primary|EXIT",
                                     "SELECT DISK 2|ONLINE disk|RESCAN|EXIT", "SELECT DISK 2|RESCAN|EXIT"}));
        QVERIFY(!QFile::exists(script()));
        for (const QString &command : m_pc->commands())
            QCOMPARE(command, "C:\\Windows\\system32\\cmd.exe /c C:\\Windows\\system32\\diskpart.exe /s " +
                                  m_pc->GetTempPathW() + "\\TempFile.txt ");
    }

    /// A folder of its name can be neither removed nor opened, and a file that was swapped names another
    /// disk.
    void scriptThatCannotBeWritten()
    {
        for (const bool swapped : {false, true}) {
            openPc(Sectors, Sectors);
            if (swapped)
                m_pc->onHold = [](const QString &path) {
                    QVERIFY(writeFile(path, "SELECT DISK 3\nclean\nEXIT"));
                };
            else
                QVERIFY(QDir().mkpath(script()));
            runClone();
            QCOMPARE(m_pc->commands(), QStringList());
            QCOMPARE(m_disks->events, Finished);
        }
    }

    void progress()
    {
        const auto row = [this](qint64 sectors, int badSector, const QVector<qlonglong> &told) {
            openPc(sectors, sectors);
            m_pc->disks[Source].badSectors = Set{badSector};
            QElapsedTimer clock;
            qint64 firstRead = 0;
            qint64 shortestFirst = 0;
            qint64 longestFirst = 0;
            qint64 firstTold = 0; // or soon after
            m_pc->onTransfer = [&](bool isWrite, qint64 sector, quint32 bytes) {
                const bool first = sector == 0 && bytes == BlockSectors * SectorSize;
                if (first && !isWrite)
                    firstRead = clock.elapsed();
                if (first && isWrite) {
                    // So long that the estimate is not over before the last block.
                    QThread::msleep(200);
                    shortestFirst = clock.elapsed() - firstRead - 2; // parts of a ms
                }
                if (isWrite && sector == BlockSectors)
                    longestFirst = clock.elapsed();
                if (isWrite && firstTold == 0 && !m_disks->positions.isEmpty())
                    firstTold = clock.elapsed();
                return true;
            };
            clock.start();
            runClone();
            QCOMPARE(m_disks->positions.mid(0, told.size()), told);
            const auto remaining = m_disks->remainders.mid(0, told.size());
            if (badSector == 5) {
                QCOMPARE(remaining, QVector<qlonglong>{0});
            } else if (badSector < 0) {
                QVERIFY(remaining.first() >= shortestFirst * sectors / BlockSectors - firstTold);
                QVERIFY(remaining.first() <= longestFirst * sectors / BlockSectors);
                QVERIFY(remaining.last() <= remaining.first());
            }
            // The second pass then tells how much is copied, up to all sectors.
            const auto again = m_disks->positions.mid(told.size());
            QCOMPARE(again.isEmpty(), badSector < 0);
            QVERIFY(std::is_sorted(again.begin(), again.end()));
            QVERIFY(again.isEmpty() || (again.first() > sectors - BlockSectors && again.last() == sectors));
        };
        // A skipped block does not count. Without the first one there is no estimate.
        row(13 * BlockSectors / 2, -1, {3 * BlockSectors, 6 * BlockSectors});
        row(5 * BlockSectors, 40000, {4 * BlockSectors});
        row(5 * BlockSectors, 5, {4 * BlockSectors});
    }

    void countsRetriedSectors()
    {
        openPc(2 * BlockSectors, 2 * BlockSectors);
        m_pc->disks[Destination].unwritable = Set{33000};
        runClone();
        // Each sector that was written singly counts like a block, at the begin of the failed block.
        QCOMPARE(m_disks->positions.count(BlockSectors), int(BlockSectors - 1) / 3);
    }

    void stops()
    {
        constexpr int All = 3 * BlockSectors + 500;
        // The stop comes with that one of the transfers or commands of a phase; these sectors are kept.
        const auto row = [this](const char *name, const QString &phase, int count, const Set &kept) {
            openPc(All, All);
            m_pc->disks[Source].badSectors = Set{70000};
            m_pc->disks[Destination].unwritable = Set{50000};
            QMutex mutex; // a block is read while another one is written
            QMap<QString, int> seen;
            QSemaphore writing;
            const auto reach = [&](const char *what) {
                const QMutexLocker lock(&mutex);
                if (++seen[what] == count && phase == what)
                    g_bAbortJob = true;
                return true;
            };
            m_pc->onCommand = [&](const QString &) { return reach("command"); };
            const auto prepared = m_pc->onSleep;
            m_pc->onSleep = [&](quint32 milliseconds) {
                prepared(milliseconds);
                reach("pause");
            };
            m_pc->onTransfer = [&](bool isWrite, qint64 sector, quint32 bytes) {
                const bool block = bytes == BlockSectors * SectorSize;
                if (isWrite && sector == 0)
                    writing.release();
                if (!isWrite && sector == BlockSectors && block)
                    writing.acquire();
                if (isWrite)
                    return reach(block ? "write" : "sector");
                return block || bytes > SectorSize ? reach(block ? "read" : "piece") : true;
            };
            reach("start");
            runClone();

            QVERIFY2(m_outcome.end == End::Stopped, name);
            const bool before = phase == "start";
            QVERIFY2(m_pc->commands().size() == (before ? 0 : 5), name);
            if (before)
                m_prepared = noise(All, 2);
            QVERIFY2(m_disks->events.join(' ') == (before ? "finish" : "abort finish"), name);
            QVERIFY2(m_pc->disks[Destination].bytes == expected({70000}, kept), name);
        };
        const auto from = [](int sector) { return range(sector, All - sector); };
        // Of the sectors that are written singly, the first is the check whether the disk is still there.
        row("before", "start", 1, from(0));
        row("in a script before", "command", 1, from(0));
        row("in the pause", "pause", 1, from(0));
        row("reading the first block", "read", 1, from(0));
        row("reading the second block", "read", 2, from(32768));
        row("writing the first block", "write", 1, from(32768));
        row("writing the failing block", "write", 2, from(32768));
        row("writing it again", "sector", 101, from(32868));
        row("writing the last block", "write", 3, range(65536, 32768) << 50000);
        row("reading pieces", "piece", 2, range(65664, 32640) << 50000);
        row("in the last script behind", "command", 5, {50000});
    }

    /// The disks are others than the list shows, or in use, before the clone or at its second look.
    void refuses()
    {
        using DiskOf = std::function<void(FakePlatform::Disk &, DiskDetails &, int differs)>;
        const DiskOf opens = [](auto &disk, auto &, int differs) { disk.opens = differs == 0; };
        const DiskOf length = [](auto &, auto &listed, int differs) {
            listed.nTotalSectors = Sectors + differs;
        };
        const DiskOf serial = [](auto &disk, auto &, int differs) { disk.serial = differs ? "S2" : ""; };
        const DiskOf smaller = [](auto &disk, auto &listed, int differs) {
            listed.nTotalSectors = Sectors - differs;
            disk.size = (Sectors - differs) * SectorSize;
        };
        const DiskOf empty = [](auto &disk, auto &listed, int differs) {
            disk.hasSize = differs == 0;
            listed.nTotalSectors = differs ? 0 : Sectors;
        };
        struct Case {
            int disk;
            DiskOf change;
            CloneFault fault;
            DiskUse::Kind use = DiskUse::Free;
        };
        const QVector<Case> cases{{Source, opens, CloneFault::SourceNotOpen},
                                  {Destination, opens, CloneFault::DestinationNotOpen},
                                  {Source, length, CloneFault::SourceIsAnother},
                                  {Source, serial, CloneFault::SourceIsAnother},
                                  {Destination, length, CloneFault::DestinationIsAnother},
                                  {Destination, serial, CloneFault::DestinationIsAnother},
                                  {Destination, smaller, CloneFault::DestinationSmaller},
                                  {Source, empty, CloneFault::SourceEmpty},
                                  {0, {}, CloneFault::DestinationOfSystem, DiskUse::System},
                                  {0, {}, CloneFault::DestinationMounted, DiskUse::Mounted},
                                  {0, {}, CloneFault::DestinationHeld, DiskUse::Held},
                                  {0, {}, CloneFault::DestinationUnknown, DiskUse::Unknown}};
        for (int i = 0; i < 2 * cases.size(); ++i) {
            const Case &wrong = cases[i / 2];
            const bool inThePause = i % 2 == 1;
            openPc(Sectors, Sectors);
            const QByteArray before = m_pc->disks[Destination].bytes;
            const auto differ = [&](int differs) {
                if (wrong.change)
                    wrong.change(m_pc->disks[wrong.disk],
                                 wrong.disk == Source ? m_disks->source() : m_disks->destination(), differs);
                m_pc->onDismount = [&wrong, differs]() -> DiskUse {
                    return {differs ? wrong.use : DiskUse::Free, "/media/x"};
                };
            };
            m_pc->onSleep = [&](quint32) { differ(1); };
            if (!inThePause)
                differ(1);
            runClone();
            QCOMPARE(int(m_outcome.fault), int(wrong.fault));
            QCOMPARE(m_outcome.detail, QString(wrong.change ? "" : "/media/x"));
            QCOMPARE(m_outcome.end, inThePause ? End::Failed : End::Refused);
            QCOMPARE(m_disks->events, Failed);
            QCOMPARE(m_pc->commands().size(), inThePause ? 3 : 0);
            QVERIFY(m_pc->disks[Destination].bytes == before);
            // The fault does not stay for the next clone.
            differ(0);
            m_pc->onSleep = nullptr;
            runClone();
            QCOMPARE(m_outcome.end, End::Complete);
        }
    }

    /// The disk gives no special error: all its transfers fail, from the one of that sector on.
    void diesOnTheWay()
    {
        const auto row = [this](bool destination, int from, CloneFault fault) {
            openPc(4 * BlockSectors, 4 * BlockSectors);
            const bool again = from == 128;
            if (again)
                m_pc->disks[Source].badSectors = Set{100};
            std::atomic<bool> dead{false};
            std::atomic<int> refused{0};
            m_pc->onTransfer = [&](bool isWrite, qint64 sector, quint32) {
                if (isWrite != destination)
                    return true;
                dead = dead || (again ? sector == from : sector >= from);
                refused += dead ? 1 : 0;
                return !dead;
            };
            runClone();
            QCOMPARE(m_outcome.end, End::Failed);
            QCOMPARE(int(m_outcome.fault), int(fault));
            QVERIFY2(refused < 2100, qPrintable(QString::number(refused)));
            QCOMPARE(m_disks->events, Failed);
            QCOMPARE(m_pc->commands().size(), destination ? 3 : 5);
        };
        row(false, 0, CloneFault::SourceGone);
        row(false, 65536, CloneFault::SourceGone); // in the third block
        row(false, 128, CloneFault::SourceGone);   // in a bad block again
        row(true, 0, CloneFault::DestinationTakesNothing);
        row(true, 65536, CloneFault::DestinationGone);
    }

    /// The destination is pulled out at once, or does not confirm what it stores; and there are no disks.
    void endsOtherwise()
    {
        openPc(2 * BlockSectors, 2 * BlockSectors);
        m_pc->onTransfer = [this](bool isWrite, qint64, quint32) {
            if (isWrite) // blocks are read by another thread
                m_pc->disks[Destination].gone = true;
            return true;
        };
        runClone();
        QCOMPARE(m_outcome.fault, CloneFault::DestinationGone);
        openPc(Sectors, Sectors);
        m_pc->flushes = false;
        runClone();
        QCOMPARE(m_outcome.end, End::WithErrors);
        QVERIFY(m_outcome.lost.unconfirmed);
        for (DiskNode **disk : {&g_App.m_pCurrentDisk, &g_App.m_pCloneDisk}) {
            openPc(Sectors, Sectors);
            *disk = nullptr;
            runClone();
            QCOMPARE(m_pc->commands(), QStringList());
            QCOMPARE(m_disks->events, Failed);
        }
    }

    /// Each stop comes one transfer later: while blocks or single sectors are copied.
    void startsAndStopsManyTimes()
    {
        constexpr int rounds = 60;
        openPc(2 * BlockSectors, 2 * BlockSectors);
        m_pc->disks[Destination].unwritable = Set{40000};
        QSemaphore transfers;
        m_pc->onTransfer = [&transfers](bool, qint64, quint32) {
            transfers.release();
            return true;
        };
        m_pc->onSleep = nullptr;
        ThreadDriveClone thread;
        m_disks->listen(thread);
        int aborted = 0;
        for (int round = 0; round < rounds; ++round) {
            g_bAbortJob = false;
            transfers.acquire(transfers.available());
            thread.start(QThread::InheritPriority);
            transfers.acquire(round);
            g_bAbortJob = true;
            g_bJobRunning = false;
            QVERIFY(thread.wait(60000));
            QVERIFY(m_disks->events.takeLast().startsWith("finish"));
            aborted += m_disks->events.removeAll("abort");
            QCOMPARE(m_disks->events, QStringList());
            QCOMPARE(m_pc->openHandles(), 0);
        }
        QVERIFY(aborted > 0);
    }

    void messages()
    {
        LostSectors lost;
        for (const int sector : {0, 1, 2000, 2999})
            lost.unread.add(sector, 1);
        lost.unwritten.add(2001, 3);
        lost.unwritten.add(100, 1);
        const QByteArray map = "      pos        size  status\n"
                               "0x00000000  0x00000400  -\n"
                               "0x00000400  0x0000C400  +\n"
                               "0x0000C800  0x00000200  -\n"
                               "0x0000CA00  0x000ED600  +\n"
                               "0x000FA000  0x00000800  -\n"
                               "0x000FA800  0x0007C600  +\n"
                               "0x00176E00  0x00000200  -\n";
        QCOMPARE(rescuemap::text(lost, 3000).split('#').last(), map);
        QVERIFY(!rescuemap::save("/no/such/folder/map", lost, 3000));
        CloneOutcome outcome;
        outcome.end = CloneOutcome::End::WithErrors;
        outcome.lost = lost;
        QCOMPARE(clonemessages::finished(outcome).second,
                 QString("4 sectors could not be read and were filled with zeros. "
                         "4 sectors could not be written."));
        QCOMPARE(clonemessages::jobEnd(outcome).result, JobEnd::Result::WithFaults);
        outcome.end = CloneOutcome::End::Failed;
        outcome.fault = CloneFault::DestinationGone;
        const clonemessages::Message failed = clonemessages::finished(outcome);
        QCOMPARE(failed.text + '|' + failed.second, QString("The destination disk does not answer any more.|"
                                                            "The destination disk holds no complete copy."));
        QCOMPARE(clonemessages::jobEnd(outcome).detail, failed.text);
        lost.unconfirmed = true;
        QVERIFY(rescuemap::text(lost, 3000).endsWith("\n0x00000000  0x00177000  ?\n"));
    }

    void tellsTimeAndPercent()
    {
        // The last is more than 32 bits of ms.
        compareRows("Clone/remaining",
                    [](const QString &ms) { return clonemessages::remainingText(ms.toLongLong()); });
        QCOMPARE(clonemessages::gaugeText(42), QString("42 % of the disk copied"));
        QCOMPARE(clonemessages::percentDone(999999, 1000000), 99); // cut, not rounded
        QCOMPARE(clonemessages::percentDone(40000000000, 80000000000), 50);
        QCOMPARE(clonemessages::percentDone(32768, 0), 0); // the size is not known
    }

    void refusals()
    {
        const auto refusal = [](const clonemessages::Side &destination) {
            const auto message = clonemessages::refusal({1, 1000}, destination);
            return message ? message->text : QString();
        };
        QCOMPARE(refusal({1, 1}), QString("Source and destination disks are same.")); // smaller by now
        QCOMPARE(refusal({2, 999}), QString("Destination disk size is smaller than source disk."));
        QCOMPARE(refusal({2, 1000}), QString());
        QCOMPARE(refusal({0, 5000000000}), QString());
    }

    void paintsTheGauge()
    {
        const QRectF base = gauge::baseRect(gauge::DesignSide);
        QCOMPARE(base, QRectF(1, 1, 208, 208));
        QCOMPARE(gauge::baseArc(base).rect, QRect(9, 9, 192, 193));
        QCOMPARE(gauge::innerRect(210, 190), QRectF(10, 10, 190, 190));
        QCOMPARE(gauge::sweep(50, 100, 75), 405.0); // the minimum stays in
        QCOMPARE(gauge::sweep(5, 5, 5), 0.0);
        const auto filled = [](const QString &format, int decimals) {
            return gauge::text(format, gauge::placeholders(format), {20, 70, 35, decimals});
        };
        QCOMPARE(filled("%p%", 0), QString("30%"));
        QCOMPARE(filled("%v of %m: %x", 1), QString("35.0 of 51.0: %x"));
        QCOMPARE(gauge::percent(5, 5, 5), 0.0);
    }

private:
    QString script() const { return m_pc->NativePath(m_pc->GetTempPathW() + "\\TempFile.txt"); }
};

QTEST_GUILESS_MAIN(tst_ThreadDriveClone)
#include "tst_ThreadDriveClone.moc"
