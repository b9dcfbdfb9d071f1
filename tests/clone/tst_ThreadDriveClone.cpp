// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/DestinationScripts.h"
#include "tests/clone/CloneFixture.h"

#include <QElapsedTimer>
#include <QTemporaryFile>
#include <QtTest>

namespace
{

using Blocks = QVector<int>;

/// The text with the line ends of this system.
QByteArray asText(const char *lines)
{
    QTemporaryFile file;
    if (!file.open())
        qFatal("a test file cannot be made");
    file.setTextModeEnabled(true);
    file.write(lines);
    file.close();
    return readFile(file.fileName());
}

} // namespace

class tst_ThreadDriveClone : public QObject, private CloneFixture
{
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { Platform::install(nullptr); }

    void copies_data();
    void copies();
    void scripts();
    void scriptThatCannotBeWritten();
    void progress_data();
    void progress();
    void remainingTime();
    void countsRetriedSectors();
};

void tst_ThreadDriveClone::copies_data()
{
    QTest::addColumn<qint64>("sourceSectors");
    QTest::addColumn<qint64>("destinationSectors");
    QTest::addColumn<QByteArray>("sourceMore");
    QTest::addColumn<QByteArray>("destinationMore");
    QTest::addColumn<Runs>("unread");
    QTest::addColumn<Runs>("unwritten");
    QTest::addColumn<bool>("tail"); // whether the rest of the last block becomes zeros
    const auto row = [](const char *name, qint64 from, qint64 onto, const QByteArray &fromMore = {},
                        const QByteArray &ontoMore = {}, bool tail = true, const Runs &unread = {},
                        const Runs &unwritten = {}) {
        QTest::newRow(name) << from << onto << fromMore << ontoMore << unread << unwritten << tail;
    };
    row("a part of a block", 3000, 3000);
    row("a sector below a block", 32767, 32767);
    row("a block", 32768, 32768);
    row("a sector above a block", 32769, 32769);
    row("two blocks", 65536, 65536);
    row("zeros behind the source, up to the block", 3000, 70000);
    row("zeros behind the source, up to the destination's end", 3000, 3500);
    row("a block on a larger disk", 32768, 32769);
    const QByteArray failsAtEnd = ",\"pastEnd\":\"fail\"";
    row("source refuses to read past its end", 40000, 90000, failsAtEnd, {}, false);
    row("destination refuses to be written past its end", 40000, 40000, {}, failsAtEnd);
    row("such a refusal, with nothing past the end", 65536, 65536, failsAtEnd, failsAtEnd);
    const auto bad = [](const char *sectors) { return QByteArray(",\"badSectors\":[") + sectors + "]"; };
    const auto unwritable = [](const char *sectors) {
        return QByteArray(",\"unwritable\":[") + sectors + "]";
    };
    row("unreadable first and last sector", 65537, 65537, bad("0,65536"), {}, true, {{0, 1}, {65536, 1}});
    row("unreadable on both sides of a border", 66000, 66000, bad("[32767,2]"), {}, true, {{32767, 2}});
    row("unreadable block", 99000, 99000, bad("[32768,32768]"), {}, true, {{32768, 32768}});
    QByteArray every;
    Runs thousands;
    for (int sector = 0; sector < 70000; sector += 1000) {
        every += (sector > 0 ? "," : "") + QByteArray::number(sector);
        thousands.append({sector, 1});
    }
    row("every 1000th", 70000, 70000, bad(every), {}, true, thousands);
    row("unwritable sector", 66000, 66000, {}, unwritable("50000"), true, {}, {{50000, 1}});
    row("unwritable behind the source, in its last block", 40000, 70000, {}, unwritable("65000"), false);
    row("both, one sector of each meets", 66000, 66000, bad("[65899,2]"), unwritable("40000,65900"), true,
        {{65899, 1}}, {{40000, 1}, {65900, 1}});
}

void tst_ThreadDriveClone::copies()
{
    QFETCH(qint64, sourceSectors);
    QFETCH(qint64, destinationSectors);
    QFETCH(QByteArray, sourceMore);
    QFETCH(QByteArray, destinationMore);
    QFETCH(Runs, unread);
    QFETCH(Runs, unwritten);
    QFETCH(bool, tail);
    openPc(sourceSectors, destinationSectors, sourceMore, destinationMore);
    fillImages(sourceSectors, destinationSectors);
    CloneDisks disks(Source, sourceSectors, Destination);
    runClone(disks);

    QVERIFY(m_prepared != noise(destinationSectors, 2));
    QVERIFY2(readFile(m_pc->imageFile(Destination)) == expected(destinationSectors, unread, unwritten, tail),
             "bytes differ");
    QVERIFY(readFile(m_pc->imageFile(Source)) == m_source);
    QVERIFY(readFile(m_pc->imageFile(Bystander)) == noise(BystanderSectors, 3));
    QCOMPARE(disks.events, QStringList{QStringLiteral("finish (running)")});
    const auto found = [](const SectorRuns &lost) {
        Runs runs;
        for (const SectorRun &run : lost.runs())
            runs.append({static_cast<int>(run.first), static_cast<int>(run.count)});
        return runs;
    };
    QCOMPARE(found(m_outcome.lost.unread), unread);
    QCOMPARE(found(m_outcome.lost.unwritten), unwritten);
    QCOMPARE(m_outcome.end, unread.isEmpty() && unwritten.isEmpty() ? End::Complete : End::WithErrors);
}

void tst_ThreadDriveClone::scripts()
{
    openPc(Sectors, Sectors);
    const QString file = m_pc->NativePath(m_pc->GetTempPathW() + QStringLiteral("\\TempFile.txt"));
    writeFile(file, QByteArray(500, 'x'));
    QVector<QByteArray> found;
    m_watched->onCommand = [&](const QString &) { found << readFile(file); };
    CloneDisks disks(Source, Sectors, Destination);
    runClone(disks);

    QVector<QByteArray> wanted;
    for (const char *script : {"SELECT DISK 2\nonline disk\nEXIT", "SELECT DISK 2\nclean\nEXIT",
                               "SELECT DISK 2\nconvert MBR\ncreate partition primary\nEXIT",
                               "SELECT DISK 2\nONLINE disk\nRESCAN\nEXIT", "SELECT DISK 2\nRESCAN\nEXIT"})
        wanted << asText(script);
    QCOMPARE(found, wanted);
    QVERIFY(!QFile::exists(file));
    const QByteArray line = "C:\\Windows\\system32\\cmd.exe /c C:\\Windows\\system32\\diskpart.exe /s " +
                            m_pc->GetTempPathW().toUtf8() + "\\TempFile.txt \n";
    QCOMPARE(readFile(m_pc->stateFolder() + QStringLiteral("/commands.log")), line.repeated(5));
}

void tst_ThreadDriveClone::scriptThatCannotBeWritten()
{
    openPc(Sectors, Sectors);
    // A folder of that name can be neither removed nor opened.
    const QString file = m_pc->NativePath(m_pc->GetTempPathW() + QStringLiteral("\\TempFile.txt"));
    QVERIFY(QDir().mkpath(file));
    CloneDisks disks(Source, Sectors, Destination);
    runClone(disks);
    QCOMPARE(m_commands, 0);
    QCOMPARE(disks.events, QStringList{QStringLiteral("finish (running)")});
}

void tst_ThreadDriveClone::progress_data()
{
    QTest::addColumn<qint64>("blocks");
    QTest::addColumn<QByteArray>("sourceMore");
    QTest::addColumn<QByteArray>("destinationMore");
    QTest::addColumn<Blocks>("told");
    QTest::addColumn<bool>("estimated");
    QTest::newRow("three blocks") << qint64(3) << QByteArray() << QByteArray() << Blocks{} << true;
    QTest::newRow("four blocks") << qint64(4) << QByteArray() << QByteArray() << Blocks{3} << true;
    QTest::newRow("eleven blocks") << qint64(11) << QByteArray() << QByteArray() << Blocks{3, 6, 9} << true;
    QTest::newRow("skipped blocks do not count")
        << qint64(9) << QByteArray(",\"badSectors\":[40000]") << QByteArray() << Blocks{4, 7} << true;
    QTest::newRow("no estimate without the first block")
        << qint64(9) << QByteArray(",\"badSectors\":[5]") << QByteArray() << Blocks{4, 7} << false;
}

void tst_ThreadDriveClone::progress()
{
    QFETCH(qint64, blocks);
    QFETCH(QByteArray, sourceMore);
    QFETCH(QByteArray, destinationMore);
    QFETCH(Blocks, told);
    QFETCH(bool, estimated);
    const qint64 sectors = blocks * BlockSectors;
    openPc(sectors, sectors, sourceMore, destinationMore);
    // So long that the estimate is not over before the last block.
    m_watched->onTransfer = [](bool isWrite, qint64 sector, quint32 bytes) {
        if (isWrite && sector == 0 && bytes == BlockBytes)
            QThread::msleep(200);
    };
    CloneDisks disks(Source, sectors, Destination);
    runClone(disks);
    QVector<qlonglong> wanted;
    for (const int block : told)
        wanted << block * BlockSectors;
    QCOMPARE(disks.positions.mid(0, wanted.size()), wanted);
    for (const qlonglong remaining : disks.remainders.mid(0, wanted.size()))
        QCOMPARE(remaining != 0, estimated);
    // The second pass then tells how much is copied, up to all sectors.
    const auto again = disks.positions.mid(wanted.size());
    QCOMPARE(again.isEmpty(), sourceMore.isEmpty());
    QVERIFY(std::is_sorted(again.begin(), again.end()));
    QVERIFY(again.isEmpty() || (again.first() > sectors - BlockSectors && again.last() == sectors));
}

void tst_ThreadDriveClone::remainingTime()
{
    // The last block is only half full, so the estimate has to count sectors.
    const qint64 sectors = 19 * BlockSectors / 2;
    openPc(sectors, sectors);
    QElapsedTimer clock;
    clock.start();
    qint64 longestFirst = 0;
    m_watched->onTransfer = [&](bool isWrite, qint64 sector, quint32 bytes) {
        if (isWrite && sector == 0 && bytes == BlockBytes)
            QThread::msleep(100);
        if (isWrite && sector == BlockSectors)
            longestFirst = clock.elapsed();
    };
    CloneDisks disks(Source, sectors, Destination);
    runClone(disks);
    const qint64 ended = clock.elapsed();
    QCOMPARE(disks.remainders.size(), 3);
    QVERIFY(disks.remainders.first() >= 100 * 19 / 2 - ended);
    QVERIFY(disks.remainders.first() <= longestFirst * 19 / 2);
    QVERIFY(disks.remainders.last() <= disks.remainders.first());
}

void tst_ThreadDriveClone::countsRetriedSectors()
{
    openPc(2 * BlockSectors, 2 * BlockSectors, {}, ",\"unwritable\":[33000]");
    CloneDisks disks(Source, 2 * BlockSectors, Destination);
    runClone(disks);
    // Each sector that was written singly counts like a block, at the begin of the failed block.
    QCOMPARE(disks.positions.count(BlockSectors), int(BlockSectors - 1) / 3);
}

QTEST_GUILESS_MAIN(tst_ThreadDriveClone)
#include "tst_ThreadDriveClone.moc"
