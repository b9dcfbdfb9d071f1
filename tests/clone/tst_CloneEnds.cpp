// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/clone/CloneFixture.h"

Q_DECLARE_METATYPE(CloneFault)

/// The ends of clones that do not copy everything.
class tst_CloneEnds : public QObject, private CloneFixture
{
    Q_OBJECT

private slots:
    void stops_data()
    {
        QTest::addColumn<QString>("phase");
        // Which of the transfers or commands of that phase the stop comes with.
        QTest::addColumn<int>("count");
        QTest::addColumn<Set>("kept");
        const auto row = [](const char *name, const char *phase, int count, const Set &kept) {
            QTest::newRow(name) << QString::fromLatin1(phase) << count << kept;
        };
        constexpr int All = 3 * BlockSectors + 500;
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

    void stops()
    {
        QFETCH(QString, phase);
        QFETCH(int, count);
        QFETCH(Set, kept);
        constexpr qint64 sectors = 3 * BlockSectors + 500;
        openPc(sectors, sectors);
        m_pc->disks[Source].badSectors = Set{70000};
        m_pc->disks[Destination].unwritable = Set{50000};
        QMutex mutex; // a block is read while another one is written
        QMap<QString, int> seen;
        QSemaphore writing;
        const auto reach = [&](const char *what) {
            const QMutexLocker lock(&mutex);
            if (++seen[QLatin1String(what)] == count && phase == QLatin1String(what))
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

        QCOMPARE(m_outcome.end, End::Stopped);
        QCOMPARE(m_pc->commands().size(), phase == QLatin1String("start") ? 0 : 5);
        if (phase == QLatin1String("start"))
            m_prepared = noise(sectors, 2);
        else
            QCOMPARE(m_disks->events.takeFirst(), QStringLiteral("abort"));
        QCOMPARE(m_disks->events, QStringList{QStringLiteral("finish")});
        QVERIFY2(m_pc->disks[Destination].bytes == expected({70000}, kept), "bytes differ");
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
                    return {differs ? wrong.use : DiskUse::Free, QStringLiteral("/media/x")};
                };
            };
            m_pc->onSleep = [&](quint32) { differ(1); };
            if (!inThePause)
                differ(1);
            runClone();
            QCOMPARE(int(m_outcome.fault), int(wrong.fault));
            QCOMPARE(m_outcome.detail, QLatin1String(wrong.change ? "" : "/media/x"));
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

    void diesOnTheWay_data()
    {
        QTest::addColumn<bool>("destination");
        QTest::addColumn<int>("from"); // the transfer of this sector is the first that fails
        QTest::addColumn<CloneFault>("fault");
        QTest::newRow("source, at once") << false << 0 << CloneFault::SourceGone;
        QTest::newRow("source, in the third block") << false << 65536 << CloneFault::SourceGone;
        QTest::newRow("source, in a bad block again") << false << 128 << CloneFault::SourceGone;
        QTest::newRow("destination, at once") << true << 0 << CloneFault::DestinationTakesNothing;
        QTest::newRow("destination, in the third block") << true << 65536 << CloneFault::DestinationGone;
    }

    /// The disk gives no special error: all its transfers fail.
    void diesOnTheWay()
    {
        QFETCH(bool, destination);
        QFETCH(int, from);
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
        QTEST(m_outcome.fault, "fault");
        QVERIFY2(refused < 2100, qPrintable(QString::number(refused)));
        QCOMPARE(m_disks->events, Failed);
        QCOMPARE(m_pc->commands().size(), destination ? 3 : 5);
    }

    /// The destination is pulled out at once, or does not confirm what it stores; and there are no disks.
    void endsOtherwise()
    {
        openPc(2 * BlockSectors, 2 * BlockSectors);
        m_pc->onTransfer = [this](bool isWrite, qint64, quint32) {
            m_pc->disks[Destination].gone = m_pc->disks[Destination].gone || isWrite;
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
            QVERIFY(m_disks->events.takeLast().startsWith(QLatin1String("finish")));
            aborted += m_disks->events.removeAll(QStringLiteral("abort"));
            QCOMPARE(m_disks->events, QStringList());
            QCOMPARE(m_pc->openHandles(), 0);
        }
        QVERIFY(aborted > 0);
    }
};

QTEST_GUILESS_MAIN(tst_CloneEnds)
#include "tst_CloneEnds.moc"
