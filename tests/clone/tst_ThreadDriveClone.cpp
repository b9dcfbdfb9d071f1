#include "clone/DestinationScripts.h"
#include "tests/clone/CloneDisks.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/WatchedPlatform.h"

#include <QElapsedTimer>
#include <QTemporaryFile>
#include <QtTest>

#include <atomic>

namespace
{

constexpr int Source = 1;
constexpr int Destination = 2;
constexpr int Bystander = 3;
constexpr int Sectors = 40000; ///< of a disk whose size does not count: a block and a part of one
constexpr int BystanderSectors = 5000;
using Blocks = QVector<int>;
using Runs = QVector<QPair<int, int>>; ///< first sector and count
using End = CloneOutcome::End;

QByteArray describe(const QByteArray &more, qint64 sectors, int number)
{
    return "{\"number\":" + QByteArray::number(number) +
           ",\"media\":\"fixed\",\"sectors\":" + QByteArray::number(sectors) + more + "}";
}

/// With this machine's own line ends.
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

class tst_ThreadDriveClone : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void copies_data();
    void copies();
    void scripts();
    void scriptThatCannotBeWritten();
    void progress_data();
    void progress();
    void remainingTime();
    void countsRetriedSectors();
    void stops_data();
    void stops();
    void refuses_data();
    void refuses();
    void diesOnTheWay_data();
    void diesOnTheWay();
    void unconfirmed();
    void withoutDisks();
    void startsAndStopsManyTimes();

private:
    /// Installs a PC of three disks.
    void openPc(qint64 sourceSectors, qint64 destinationSectors, const QByteArray &sourceMore = {},
                const QByteArray &destinationMore = {});
    void fillImages(qint64 sourceSectors, qint64 destinationSectors);
    void runClone(CloneDisks &disks);
    /// What the destination has to hold: the source with zeros behind it up to the block's end, zeros where
    /// it could not be read, and the rest as the preparation left it.
    QByteArray expected(qint64 destinationSectors, const Runs &unread, const Runs &kept,
                        bool tail = true) const;

    QScopedPointer<DescribedFolder> m_folder;
    SimulatedPlatform *m_pc = nullptr;
    WatchedPlatform *m_watched = nullptr;
    QByteArray m_source;
    QByteArray m_prepared; ///< the destination at the pause
    CloneOutcome m_outcome;
    int m_commands = 0;
};

void tst_ThreadDriveClone::init()
{
    qunsetenv("COMSPEC");
    g_bAbortJob = false;
    g_bJobRunning = false;
    g_bCloneFailed = false;
    m_commands = 0;
    m_source.clear();
    m_prepared.clear();
    m_folder.reset(new DescribedFolder);
}

void tst_ThreadDriveClone::cleanup()
{
    Platform::install(nullptr);
}

void tst_ThreadDriveClone::openPc(qint64 sourceSectors, qint64 destinationSectors,
                                  const QByteArray &sourceMore, const QByteArray &destinationMore)
{
    auto pc = m_folder->open("{\"name\":\"PC\",\"pauses\":false,\"disks\":[" +
                             describe(sourceMore, sourceSectors, Source) + "," +
                             describe(destinationMore, destinationSectors, Destination) + "," +
                             describe({}, BystanderSectors, Bystander) + "]}");
    m_pc = pc.get();
    auto watched = std::make_unique<WatchedPlatform>(std::move(pc));
    m_watched = watched.get();
    m_watched->onCommand = [this](const QString &) { ++m_commands; };
    m_watched->onSleep = [this](quint32 milliseconds) {
        QCOMPARE(milliseconds, 4000u);
        m_prepared = readFile(m_pc->imageFile(Destination));
    };
    Platform::install(std::move(watched));
}

void tst_ThreadDriveClone::fillImages(qint64 sourceSectors, qint64 destinationSectors)
{
    m_source = noise(sourceSectors, 1);
    QDir().mkpath(QFileInfo(m_pc->imageFile(Source)).path());
    writeFile(m_pc->imageFile(Source), m_source);
    writeFile(m_pc->imageFile(Destination), noise(destinationSectors, 2));
    writeFile(m_pc->imageFile(Bystander), noise(BystanderSectors, 3));
}

void tst_ThreadDriveClone::runClone(CloneDisks &disks)
{
    ThreadDriveClone thread;
    disks.listen(thread);
    thread.start(QThread::InheritPriority);
    QVERIFY(thread.wait(60000));
    m_outcome = thread.outcome();
    QVERIFY(!g_bJobRunning);
    QCOMPARE(g_bCloneFailed.load(), m_outcome.end == End::Refused || m_outcome.end == End::Failed);
    QCOMPARE(m_watched->openHandles(), 0);
    QVERIFY(!disks.holdsHandles());
}

QByteArray tst_ThreadDriveClone::expected(qint64 destinationSectors, const Runs &unread, const Runs &kept,
                                          bool tail) const
{
    QByteArray bytes = m_source;
    const auto put = [&bytes](const Runs &runs, const QByteArray &from) {
        for (const auto &run : runs) {
            const auto count = static_cast<int>(run.second * SectorBytes);
            bytes.replace(static_cast<int>(run.first * SectorBytes), count,
                          from.mid(static_cast<int>(run.first * SectorBytes), count));
        }
    };
    put(unread, QByteArray(m_source.size(), '\0'));
    put(kept, m_prepared);
    const int whole = static_cast<int>((m_source.size() + BlockBytes - 1) / BlockBytes * BlockBytes);
    if (tail)
        bytes.append(whole - bytes.size(), '\0');
    bytes.truncate(static_cast<int>(destinationSectors * SectorBytes));
    return bytes + m_prepared.mid(bytes.size());
}

void tst_ThreadDriveClone::copies_data()
{
    QTest::addColumn<qint64>("sourceSectors");
    QTest::addColumn<qint64>("destinationSectors");
    QTest::addColumn<QByteArray>("sourceMore");
    QTest::addColumn<QByteArray>("destinationMore");
    QTest::addColumn<Runs>("unread");
    QTest::addColumn<Runs>("unwritten");
    QTest::addColumn<bool>("tail"); // becomes zeros
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
    const QByteArray line = "CMD.EXE /c C:\\Windows\\system32\\diskpart.exe /s " +
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
    // Long enough for an estimate that no later block uses up.
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
    // Behind that how much is copied, up to all.
    const auto again = disks.positions.mid(wanted.size());
    QCOMPARE(again.isEmpty(), sourceMore.isEmpty());
    QVERIFY(std::is_sorted(again.begin(), again.end()));
    QVERIFY(again.isEmpty() || (again.first() > sectors - BlockSectors && again.last() == sectors));
}

void tst_ThreadDriveClone::remainingTime()
{
    // The last block is half a one: the estimate goes by sectors.
    const qint64 sectors = 19 * BlockSectors / 2;
    openPc(sectors, sectors);
    QElapsedTimer clock;
    clock.start();
    qint64 longestFirst = 0;
    m_watched->onTransfer = [&](bool isWrite, qint64 sector, quint32 bytes) {
        if (isWrite && sector == 0 && bytes == BlockBytes)
            QThread::msleep(100);
        if (!isWrite && sector == BlockSectors)
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
    // Every sector that went counts like a block, all at the begin of the failed one.
    QCOMPARE(disks.positions.count(BlockSectors), int(BlockSectors - 1) / 3);
}

void tst_ThreadDriveClone::stops_data()
{
    QTest::addColumn<QString>("phase");
    QTest::addColumn<int>("count"); // of what that phase does
    QTest::addColumn<Runs>("kept");
    QTest::addColumn<int>("commands");
    constexpr int All = 3 * BlockSectors + 500;
    const QString command = QStringLiteral("command");
    const QString write = QStringLiteral("write");
    // The first sector that is written by itself asks whether the disk is still there.
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

void tst_ThreadDriveClone::stops()
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

void tst_ThreadDriveClone::refuses_data()
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

void tst_ThreadDriveClone::refuses()
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
    // The next one starts anew.
    differ(false);
    disks.events.clear();
    runClone(disks);
    QCOMPARE(m_outcome.end, End::Complete);
}

void tst_ThreadDriveClone::diesOnTheWay_data()
{
    QTest::addColumn<bool>("destination");
    QTest::addColumn<int>("from"); // the first sector that it refuses, and all from then on
    QTest::newRow("source, at once") << false << 0;
    QTest::newRow("source, in the third block") << false << 65536;
    QTest::newRow("source, in a bad block again") << false << 128;
    QTest::newRow("destination, at once") << true << 0;
    QTest::newRow("destination, in the third block") << true << 65536;
}

/// No error tells of it: every transfer is refused from then on.
void tst_ThreadDriveClone::diesOnTheWay()
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

void tst_ThreadDriveClone::unconfirmed()
{
    openPc(Sectors, Sectors);
    m_watched->onFlush = [] { return false; };
    CloneDisks disks(Source, Sectors, Destination);
    runClone(disks);
    QCOMPARE(m_outcome.end, End::WithErrors);
    QVERIFY(m_outcome.lost.unconfirmed);
}

void tst_ThreadDriveClone::withoutDisks()
{
    openPc(Sectors, Sectors);
    CloneDisks disks(Source, Sectors, Destination);
    g_App.m_pCurrentDisk = nullptr;
    runClone(disks);
    QCOMPARE(m_commands, 0);
    QCOMPARE(disks.events, (QStringList{QStringLiteral("failed"), QStringLiteral("finish")}));
}

void tst_ThreadDriveClone::startsAndStopsManyTimes()
{
    constexpr int runs = 60;
    openPc(4 * BlockSectors, 4 * BlockSectors, {}, ",\"unwritable\":[70000]");
    m_watched->onSleep = nullptr;
    int finished = 0;
    int aborted = 0;
    int ofAll = 0;
    {
        CloneDisks disks(Source, 4 * BlockSectors, Destination);
        ThreadDriveClone thread;
        disks.listen(thread);
        for (int run = 0; run < runs; ++run) {
            g_bAbortJob = false;
            thread.start(QThread::InheritPriority);
            QThread::usleep(static_cast<unsigned long>(run) * 500);
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

QTEST_GUILESS_MAIN(tst_ThreadDriveClone)
#include "tst_ThreadDriveClone.moc"
