// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/clone/CloneFixture.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/Files.h"

#include <QElapsedTimer>

class tst_ThreadDriveClone : public QObject, private CloneFixture
{
    Q_OBJECT

private slots:
    void copies_data()
    {
        QTest::addColumn<int>("sourceSectors");
        QTest::addColumn<int>("destinationSectors");
        QTest::addColumn<Set>("bad");
        QTest::addColumn<Set>("unwritable");
        QTest::addColumn<QString>("endsHard");
        QTest::addColumn<bool>("tail"); // whether the rest of the last block becomes zeros
        const auto row = [](const char *name, int from, int onto, const Set &bad = {},
                            const Set &unwritable = {}, const char *endsHard = "", bool tail = true) {
            QTest::newRow(name) << from << onto << bad << unwritable << QString::fromLatin1(endsHard) << tail;
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

    void copies()
    {
        QFETCH(int, sourceSectors);
        QFETCH(int, destinationSectors);
        QFETCH(Set, bad);
        QFETCH(Set, unwritable);
        QFETCH(QString, endsHard);
        QFETCH(bool, tail);
        openPc(sourceSectors, destinationSectors);
        FakePlatform::Disk &source = m_pc->disks[Source];
        FakePlatform::Disk &destination = m_pc->disks[Destination];
        source.badSectors = bad;
        destination.unwritable = unwritable;
        source.endsHard = endsHard.contains(QLatin1String("source"));
        destination.endsHard = endsHard.contains(QLatin1String("destination"));
        runClone();

        // A sector that is not written counts once, and not at all behind the source.
        bad -= unwritable;
        unwritable.intersect(range(0, sourceSectors));
        QVERIFY2(destination.bytes == expected(bad, unwritable, tail), "bytes differ");
        QVERIFY(source.bytes == noise(sourceSectors, 1));
        QVERIFY(m_pc->disks[Bystander].bytes == noise(BystanderSectors, 3));
        QCOMPARE(m_disks->events, Finished);
        const auto found = [](const SectorRuns &lost) {
            Set sectors;
            for (const SectorRun &run : lost.runs())
                sectors += range(run.first, run.count);
            return sectors;
        };
        QCOMPARE(found(m_outcome.lost.unread), bad);
        QCOMPARE(found(m_outcome.lost.unwritten), unwritable);
        QCOMPARE(m_outcome.lost.unread.count(), qint64(bad.size()));
        QCOMPARE(m_outcome.end, bad.isEmpty() && unwritable.isEmpty() ? End::Complete : End::WithErrors);
    }

    void scripts()
    {
        qputenv("COMSPEC", "x /c diskpart /s evil.txt |"); // must not be used
        openPc(Sectors, Sectors);
        QVERIFY(writeFile(script(), QByteArray(500, 'x')));
        QStringList found;
        m_pc->onCommand = [&](const QString &) {
            QFile file(script());
            found << (file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromLatin1(file.readAll())
                                                                       : QString());
            return true;
        };
        runClone();

        QCOMPARE(found,
                 (QStringList{"SELECT DISK 2\nonline disk\nEXIT", "SELECT DISK 2\nclean\nEXIT",
                              "SELECT DISK 2\nconvert MBR\ncreate partition primary\nEXIT",
                              "SELECT DISK 2\nONLINE disk\nRESCAN\nEXIT", "SELECT DISK 2\nRESCAN\nEXIT"}));
        QVERIFY(!QFile::exists(script()));
        const QString line =
            QStringLiteral("C:\\Windows\\system32\\cmd.exe /c C:\\Windows\\system32\\diskpart.exe /s ");
        for (const QString &command : m_pc->commands())
            QCOMPARE(command, line + m_pc->GetTempPathW() + "\\TempFile.txt ");
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
        struct Case {
            qint64 sectors;
            int badSector; // -1: none
            QVector<qlonglong> told;
        };
        // A skipped block does not count. Without the first one there is no estimate.
        for (const Case &row : {Case{13 * BlockSectors / 2, -1, {3 * BlockSectors, 6 * BlockSectors}},
                                Case{5 * BlockSectors, 40000, {4 * BlockSectors}},
                                Case{5 * BlockSectors, 5, {4 * BlockSectors}}}) {
            const qint64 sectors = row.sectors;
            openPc(sectors, sectors);
            m_pc->disks[Source].badSectors = Set{row.badSector};
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
            QCOMPARE(m_disks->positions.mid(0, row.told.size()), row.told);
            const auto remaining = m_disks->remainders.mid(0, row.told.size());
            if (row.badSector == 5) {
                QCOMPARE(remaining, QVector<qlonglong>{0});
            } else if (row.badSector < 0) {
                QVERIFY(remaining.first() >= FirstBlock * sectors / BlockSectors - ended);
                QVERIFY(remaining.first() <= longestFirst * sectors / BlockSectors);
                QVERIFY(remaining.last() <= remaining.first());
            }
            // The second pass then tells how much is copied, up to all sectors.
            const auto again = m_disks->positions.mid(row.told.size());
            QCOMPARE(again.isEmpty(), row.badSector < 0);
            QVERIFY(std::is_sorted(again.begin(), again.end()));
            QVERIFY(again.isEmpty() || (again.first() > sectors - BlockSectors && again.last() == sectors));
        }
    }

    void countsRetriedSectors()
    {
        openPc(2 * BlockSectors, 2 * BlockSectors);
        m_pc->disks[Destination].unwritable = Set{33000};
        runClone();
        // Each sector that was written singly counts like a block, at the begin of the failed block.
        QCOMPARE(m_disks->positions.count(BlockSectors), int(BlockSectors - 1) / 3);
    }

    void clonesADescribedPc()
    {
        const DescribedFolder folder;
        auto described = folder.open(R"({"pauses": false, "disks": [
            {"number": 1, "sectors": 40000, "pastEnd": "fail", "badSectors": [7]},
            {"number": 2, "sectors": 70000, "unwritable": [5000]}]})");
        SimulatedPlatform &pc = *described;
        Platform::install(std::move(described));
        QVERIFY(QDir().mkpath(QFileInfo(pc.imageFile(Source)).path()));
        QByteArray wanted = noise(Sectors, 1);
        const QByteArray old = noise(70000, 2);
        QVERIFY(writeFile(pc.imageFile(Source), wanted) && writeFile(pc.imageFile(Destination), old));
        CloneDisks disks(Source, Sectors, Destination);
        const CloneOutcome outcome = disks.clone();
        QCOMPARE(outcome.end, CloneOutcome::End::WithErrors);
        QCOMPARE(outcome.lost.unread.count(), 1);
        QCOMPARE(outcome.lost.unwritten.count(), 1);
        wanted.replace(7 * SectorSize, SectorSize, QByteArray(SectorSize, '\0'));
        wanted.replace(5000 * SectorSize, SectorSize, old.mid(5000 * SectorSize, SectorSize));
        // The last block was not read as a whole, so what lies behind it stays.
        wanted += old.mid(wanted.size(), 1000 * SectorSize);
        QVERIFY(contentOf(pc.imageFile(Destination)).startsWith(wanted));
        QCOMPARE(contentOf(pc.stateFolder() + QStringLiteral("/commands.log")).count('\n'), 5);
    }

private:
    QString script() const
    {
        return m_pc->NativePath(m_pc->GetTempPathW() + QStringLiteral("\\TempFile.txt"));
    }
};

QTEST_GUILESS_MAIN(tst_ThreadDriveClone)
#include "tst_ThreadDriveClone.moc"
