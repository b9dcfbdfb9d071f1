// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/clone/CloneFixture.h"

#include <atomic>

/// The ends of clones that do not copy everything.
class tst_CloneEnds : public QObject, private CloneFixture
{
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { Platform::install(nullptr); }

    void stops_data();
    void stops();
    void refuses_data();
    void refuses();
    void diesOnTheWay_data();
    void diesOnTheWay();
    void unconfirmed();
    void withoutDisks();
    void startsAndStopsManyTimes();
};

void tst_CloneEnds::stops_data()
{
    QTest::addColumn<QString>("phase");
    QTest::addColumn<int>("count"); // which of the transfers or commands of that phase the stop comes with
    QTest::addColumn<Runs>("kept");
    QTest::addColumn<int>("commands");
    constexpr int All = 3 * BlockSectors + 500;
    const QString command = QStringLiteral("command");
    const QString write = QStringLiteral("write");
    // Of the sectors that are written singly, the first is the check whether the disk is still there.
    const auto from = [](int sector) { return Runs{{sector, All - sector}}; };
    QTest::newRow("before") << QStringLiteral("start") << 1 << from(0) << 0;
    QTest::newRow("in the first script") << command << 1 << from(0) << 5;
    QTest::newRow("in the last script before") << command << 3 << from(0) << 5;
    QTest::newRow("in the pause") << QStringLiteral("pause") << 1 << from(0) << 5;
    QTest::newRow("reading the first block") << QStringLiteral("read") << 1 << from(0) << 5;
    QTest::newRow("reading the second block") << QStringLiteral("read") << 2 << from(32768) << 5;
    QTest::newRow("writing the first block") << write << 1 << from(32768) << 5;
    QTest::newRow("writing the failing block") << write << 2 << from(32768) << 5;
    QTest::newRow("writing it again") << QStringLiteral("sector") << 101 << from(32868) << 5;
    QTest::newRow("writing the last block") << write << 3 << Runs{{50000, 1}, {65536, 32768}} << 5;
    QTest::newRow("reading pieces") << QStringLiteral("piece") << 2 << Runs{{50000, 1}, {65664, 32640}} << 5;
    QTest::newRow("in the first script behind") << command << 4 << Runs{{50000, 1}} << 5;
    QTest::newRow("in the last script behind") << command << 5 << Runs{{50000, 1}} << 5;
}

void tst_CloneEnds::stops()
{
    QFETCH(QString, phase);
    QFETCH(int, count);
    QFETCH(Runs, kept);
    QFETCH(int, commands);
    constexpr qint64 sectors = 3 * BlockSectors + 500;
    openPc(sectors, sectors, ",\"badSectors\":[70000]", ",\"unwritable\":[50000]");
    fillImages(sectors, sectors);
    QMutex mutex; // a block is read while another one is written
    QMap<QString, int> seen;
    QSemaphore writing;
    const auto reach = [&](const QString &what) {
        const QMutexLocker lock(&mutex);
        if (++seen[what] == count && what == phase)
            g_bAbortJob = true;
        return seen[what];
    };
    m_watched->onCommand = [&](const QString &) { reach(QStringLiteral("command")); };
    const auto prepared = m_watched->onSleep;
    m_watched->onSleep = [&](quint32 milliseconds) {
        prepared(milliseconds);
        reach(QStringLiteral("pause"));
    };
    m_watched->onTransfer = [&](bool isWrite, qint64 sector, quint32 bytes) {
        if (m_prepared.isEmpty())
            return;
        if (isWrite && sector == 0)
            writing.release();
        if (!isWrite && sector == BlockSectors && bytes == BlockBytes)
            writing.acquire();
        if (isWrite)
            reach(bytes == BlockBytes ? QStringLiteral("write") : QStringLiteral("sector"));
        else if (bytes == BlockBytes || bytes > SectorBytes)
            reach(bytes == BlockBytes ? QStringLiteral("read") : QStringLiteral("piece"));
    };
    CloneDisks disks(Source, sectors, Destination);
    reach(QStringLiteral("start"));
    runClone(disks);

    QCOMPARE(seen[QStringLiteral("command")], commands);
    QCOMPARE(m_outcome.end, End::Stopped);
    if (phase == QLatin1String("start"))
        m_prepared = noise(sectors, 2);
    else
        QCOMPARE(disks.events.takeFirst(), QStringLiteral("abort"));
    QCOMPARE(disks.events, QStringList{QStringLiteral("finish")});
    QVERIFY2(readFile(m_pc->imageFile(Destination)) == expected(sectors, {{70000, 1}}, kept), "bytes differ");
}

void tst_CloneEnds::refuses_data()
{
    QTest::addColumn<QByteArray>("sourceMore");
    QTest::addColumn<QByteArray>("destinationMore");
    QTest::addColumn<QString>("change");
    QTest::addColumn<bool>("inThePause");
    QTest::addColumn<int>("fault");
    const QByteArray opensNot = ",\"opens\":false";
    const QByteArray named = ",\"identity\":{\"model\":\"M\",\"serial\":\"S1\"}";
    const auto row = [](const char *name, const QByteArray &from, const QByteArray &onto, const char *change,
                        CloneFault fault, bool inThePause = false) {
        QTest::newRow(name) << from << onto << QString::fromLatin1(change) << inThePause << int(fault);
    };
    row("source does not open", opensNot, {}, "", CloneFault::SourceNotOpen);
    row("destination does not open", {}, opensNot, "", CloneFault::DestinationNotOpen);
    row("source of another length", {}, {}, "source length", CloneFault::SourceIsAnother);
    row("source of another serial", named, {}, "source serial", CloneFault::SourceIsAnother);
    row("destination of another length", {}, {}, "destination length", CloneFault::DestinationIsAnother);
    row("destination of another serial", {}, named, "destination serial", CloneFault::DestinationIsAnother);
    row("destination in use", {}, {}, "use", CloneFault::DestinationMounted);
    row("another source in the pause", named, {}, "source serial", CloneFault::SourceIsAnother, true);
    row("another destination in the pause", {}, named, "destination serial", CloneFault::DestinationIsAnother,
        true);
    row("destination in use in the pause", {}, {}, "use", CloneFault::DestinationMounted, true);
}

void tst_CloneEnds::refuses()
{
    QFETCH(QByteArray, sourceMore);
    QFETCH(QByteArray, destinationMore);
    QFETCH(QString, change);
    QFETCH(bool, inThePause);
    QFETCH(int, fault);
    openPc(Sectors, Sectors, sourceMore, destinationMore);
    fillImages(Sectors, Sectors);
    CloneDisks disks(Source, Sectors, Destination);
    const auto differ = [&](bool differs) {
        if (change == QLatin1String("use"))
            m_watched->onDismount = [differs]() -> DiskUse {
                return {differs ? DiskUse::Mounted : DiskUse::Free, QStringLiteral("/media/x")};
            };
        DiskDetails &side = change.startsWith(QLatin1String("source")) ? disks.source() : disks.destination();
        if (change.endsWith(QLatin1String("length")))
            side.nTotalSectors = differs ? Sectors + 1 : Sectors;
        if (change.endsWith(QLatin1String("serial")))
            side.szSerial = differs ? QStringLiteral("S2") : QStringLiteral("S1");
    };
    differ(!inThePause);
    if (inThePause)
        m_watched->onSleep = [&](quint32) { differ(true); };
    runClone(disks);
    QCOMPARE(disks.events, (QStringList{QStringLiteral("failed"), QStringLiteral("finish")}));
    QCOMPARE(int(m_outcome.fault), fault);
    QCOMPARE(m_outcome.end, inThePause ? End::Failed : End::Refused);
    QCOMPARE(m_commands, inThePause ? 3 : 0);
    if (inThePause || fault < int(CloneFault::SourceIsAnother))
        return;
    QVERIFY(readFile(m_pc->imageFile(Destination)) == noise(Sectors, 2));
    // The fault does not stay for the next clone.
    differ(false);
    disks.events.clear();
    runClone(disks);
    QCOMPARE(m_outcome.end, End::Complete);
}

void tst_CloneEnds::diesOnTheWay_data()
{
    QTest::addColumn<bool>("destination");
    QTest::addColumn<int>("from"); // the transfer of this sector is the first that fails
    QTest::newRow("source, at once") << false << 0;
    QTest::newRow("source, in the third block") << false << 65536;
    QTest::newRow("source, in a bad block again") << false << 128;
    QTest::newRow("destination, at once") << true << 0;
    QTest::newRow("destination, in the third block") << true << 65536;
}

/// The disk gives no special error: all its transfers fail.
void tst_CloneEnds::diesOnTheWay()
{
    QFETCH(bool, destination);
    QFETCH(int, from);
    const bool again = from == 128;
    openPc(9 * BlockSectors, 9 * BlockSectors, again ? ",\"badSectors\":[100]" : "");
    std::atomic<bool> dead{false};
    std::atomic<int> refused{0};
    m_watched->refuses = [&](bool isWrite, qint64 sector) {
        if (m_prepared.isEmpty() || isWrite != destination)
            return false;
        dead = dead || (again ? sector == from : sector >= from);
        refused += dead ? 1 : 0;
        return dead.load();
    };
    CloneDisks disks(Source, 9 * BlockSectors, Destination);
    runClone(disks);
    QCOMPARE(m_outcome.end, End::Failed);
    QCOMPARE(m_outcome.fault, !destination ? CloneFault::SourceGone
                              : from == 0  ? CloneFault::DestinationTakesNothing
                                           : CloneFault::DestinationGone);
    QVERIFY2(refused < 2100, qPrintable(QString::number(refused)));
    QCOMPARE(disks.events, (QStringList{QStringLiteral("failed"), QStringLiteral("finish")}));
    QCOMPARE(m_commands, destination ? 3 : 5);
}

void tst_CloneEnds::unconfirmed()
{
    openPc(Sectors, Sectors);
    m_watched->onFlush = [] { return false; };
    CloneDisks disks(Source, Sectors, Destination);
    runClone(disks);
    QCOMPARE(m_outcome.end, End::WithErrors);
    QVERIFY(m_outcome.lost.unconfirmed);
}

void tst_CloneEnds::withoutDisks()
{
    openPc(Sectors, Sectors);
    CloneDisks disks(Source, Sectors, Destination);
    g_App.m_pCurrentDisk = nullptr;
    runClone(disks);
    QCOMPARE(m_commands, 0);
    QCOMPARE(disks.events, (QStringList{QStringLiteral("failed"), QStringLiteral("finish")}));
}

void tst_CloneEnds::startsAndStopsManyTimes()
{
    constexpr int fewest = 60;
    constexpr int most = 20 * fewest;
    openPc(4 * BlockSectors, 4 * BlockSectors, {}, ",\"unwritable\":[70000]");
    m_watched->onSleep = nullptr;
    int finished = 0;
    int aborted = 0;
    int ofAll = 0;
    int runs = 0;
    {
        CloneDisks disks(Source, 4 * BlockSectors, Destination);
        ThreadDriveClone thread;
        disks.listen(thread);
        // Each stop comes later, until one has met a clone that was copying.
        for (; runs < fewest || (aborted == 0 && runs < most); ++runs) {
            g_bAbortJob = false;
            thread.start(QThread::InheritPriority);
            QThread::usleep(static_cast<unsigned long>(runs) * 500);
            g_bAbortJob = true;
            g_bJobRunning = false;
            QVERIFY(thread.wait(60000));
            finished += disks.events.count(QStringLiteral("finish"));
            finished += disks.events.count(QStringLiteral("finish (running)"));
            aborted += disks.events.count(QStringLiteral("abort"));
            ofAll += disks.events.size();
            disks.events.clear();
        }
    }
    QCOMPARE(finished, runs);
    QCOMPARE(finished + aborted, ofAll);
    QVERIFY(aborted > 0);
    QCOMPARE(m_watched->openHandles(), 0);
}

QTEST_GUILESS_MAIN(tst_CloneEnds)
#include "tst_CloneEnds.moc"
