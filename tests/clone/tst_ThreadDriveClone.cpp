// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/clone/CloneFixture.h"
#include "tests/support/Files.h"

#include <QElapsedTimer>

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
            // The first block takes so long that the estimate is not over before the last one.
            constexpr qint64 FirstBlock = 200; // ms
            QElapsedTimer clock;
            qint64 longestFirst = 0;
            m_pc->onTransfer = [&](bool isWrite, qint64 sector, quint32 bytes) {
                if (isWrite && sector == 0 && bytes == BlockSectors * SectorSize)
                    QThread::msleep(FirstBlock);
                if (isWrite && sector == BlockSectors)
                    longestFirst = clock.elapsed();
                return true;
            };
            clock.start();
            runClone();
            const qint64 ended = clock.elapsed();
            QCOMPARE(m_disks->positions.mid(0, told.size()), told);
            const auto remaining = m_disks->remainders.mid(0, told.size());
            if (badSector == 5) {
                QCOMPARE(remaining, QVector<qlonglong>{0});
            } else if (badSector < 0) {
                QVERIFY(remaining.first() >= FirstBlock * sectors / BlockSectors - ended);
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

private:
    QString script() const { return m_pc->NativePath(m_pc->GetTempPathW() + "\\TempFile.txt"); }
};

QTEST_GUILESS_MAIN(tst_ThreadDriveClone)
#include "tst_ThreadDriveClone.moc"
