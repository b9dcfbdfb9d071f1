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
    void probesToTheNextBlock_data();
    void probesToTheNextBlock();
    void stops_data();
    void stops();
    void opensNot_data();
    void opensNot();
    void withoutDisks();
    void startsAndStopsManyTimes();

private:
    /// Installs a PC of three disks.
    void openPc(qint64 sourceSectors, qint64 destinationSectors, const QByteArray &sourceMore = {},
                const QByteArray &destinationMore = {});
    void fillImages(qint64 sourceSectors, qint64 destinationSectors);
    void runClone(CloneDisks &disks);
    /// What the destination has to hold: the source's blocks with zeros behind them, the rest as the
    /// preparation left it.
    QByteArray expected(qint64 destinationSectors, const Blocks &kept) const;

    QScopedPointer<DescribedFolder> m_folder;
    SimulatedPlatform *m_pc = nullptr;
    WatchedPlatform *m_watched = nullptr;
    QByteArray m_source;
    QByteArray m_prepared; ///< the destination at the pause
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
    QVERIFY(!g_bJobRunning);
    QCOMPARE(m_watched->openHandles(), 0);
    QVERIFY(!disks.holdsHandles());
}

QByteArray tst_ThreadDriveClone::expected(qint64 destinationSectors, const Blocks &kept) const
{
    QByteArray bytes = m_source;
    const int whole = static_cast<int>((m_source.size() + BlockBytes - 1) / BlockBytes * BlockBytes);
    bytes.append(whole - bytes.size(), '\0');
    bytes.truncate(static_cast<int>(destinationSectors * SectorBytes));
    bytes += m_prepared.mid(bytes.size());
    for (const int block : kept) {
        const auto at = static_cast<int>(block * BlockBytes);
        const QByteArray old = m_prepared.mid(at, static_cast<int>(BlockBytes));
        bytes.replace(at, old.size(), old);
    }
    return bytes;
}

void tst_ThreadDriveClone::copies_data()
{
    QTest::addColumn<qint64>("sourceSectors");
    QTest::addColumn<qint64>("destinationSectors");
    QTest::addColumn<QByteArray>("sourceMore");
    QTest::addColumn<QByteArray>("destinationMore");
    QTest::addColumn<Blocks>("kept");
    const auto row = [](const char *name, qint64 from, qint64 onto, const QByteArray &fromMore = {},
                        const QByteArray &ontoMore = {}, const Blocks &kept = {}) {
        QTest::newRow(name) << from << onto << fromMore << ontoMore << kept;
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
    row("source refuses to read past its end", 40000, 90000, failsAtEnd, {}, {1});
    row("destination refuses to be written past its end", 40000, 40000, {}, failsAtEnd, {1});
    row("such a refusal, with nothing past the end", 65536, 65536, failsAtEnd, failsAtEnd);
    row("unreadable first block", 70000, 70000, ",\"badSectors\":[0]", {}, {0});
    row("unreadable sectors on both sides of a border", 66000, 66000, ",\"badSectors\":[[32767,2]]", {},
        {0, 1});
    row("unreadable last sector", 65537, 65537, ",\"badSectors\":[65536]", {}, {2});
    row("unwritable sector", 66000, 66000, {}, ",\"unwritable\":[50000]", {1});
    row("unwritable behind the source, in its last block", 40000, 70000, {}, ",\"unwritable\":[65000]", {1});
    row("both", 66000, 66000, ",\"badSectors\":[65900]", ",\"unwritable\":[40000]", {1, 2});
}

void tst_ThreadDriveClone::copies()
{
    QFETCH(qint64, sourceSectors);
    QFETCH(qint64, destinationSectors);
    QFETCH(QByteArray, sourceMore);
    QFETCH(QByteArray, destinationMore);
    QFETCH(Blocks, kept);
    openPc(sourceSectors, destinationSectors, sourceMore, destinationMore);
    fillImages(sourceSectors, destinationSectors);
    bool fullSize = true;
    m_watched->onTransfer = [this, &fullSize](bool isWrite, qint64, quint32 bytes) {
        const bool isProbe = !isWrite && bytes == SectorBytes;
        fullSize = fullSize && (m_prepared.isEmpty() || isProbe || bytes == BlockBytes);
    };
    CloneDisks disks(Source, sourceSectors, Destination);
    runClone(disks);

    QVERIFY(m_prepared != noise(destinationSectors, 2));
    QVERIFY2(readFile(m_pc->imageFile(Destination)) == expected(destinationSectors, kept), "bytes differ");
    QVERIFY(readFile(m_pc->imageFile(Source)) == m_source);
    QVERIFY(readFile(m_pc->imageFile(Bystander)) == noise(BystanderSectors, 3));
    QVERIFY(fullSize);
    QCOMPARE(disks.events, QStringList{QStringLiteral("finish (running)")});
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
    QTest::newRow("unreadable blocks do not count")
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
    QCOMPARE(disks.positions, wanted);
    for (const qlonglong remaining : disks.remainders)
        QCOMPARE(remaining != 0, estimated);
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

void tst_ThreadDriveClone::probesToTheNextBlock_data()
{
    QTest::addColumn<qint64>("block");
    QTest::addColumn<int>("before"); // blocks counted before the probing
    QTest::newRow("first block") << qint64(0) << 0;
    QTest::newRow("second block") << qint64(1) << 1;
}

void tst_ThreadDriveClone::probesToTheNextBlock()
{
    QFETCH(qint64, block);
    QFETCH(int, before);
    const qint64 begin = block * BlockSectors;
    const QByteArray at = QByteArray::number(begin + 1000);
    openPc(2 * BlockSectors, 3 * BlockSectors, {},
           ",\"unwritable\":[" + at + "],\"badSectors\":[[" + at + ",3]]");
    QVector<qint64> probed;
    m_watched->onTransfer = [&](bool isWrite, qint64 sector, quint32 bytes) {
        if (!isWrite && bytes == SectorBytes && !m_prepared.isEmpty())
            probed << sector;
    };
    CloneDisks disks(Source, 2 * BlockSectors, Destination);
    runClone(disks);
    QCOMPARE(probed.size(), int(BlockSectors) + 1);
    QCOMPARE(probed.first(), begin);
    QCOMPARE(probed.last(), begin + BlockSectors);
    // Every readable sector counts like a block, all at the begin of the failed one.
    const int counted = before + int(BlockSectors) + 1 - 3;
    QCOMPARE(disks.positions.count(begin), (counted - 1) / 3);
}

void tst_ThreadDriveClone::stops_data()
{
    QTest::addColumn<QString>("phase");
    QTest::addColumn<int>("count"); // of what that phase does
    QTest::addColumn<Blocks>("kept");
    QTest::addColumn<int>("commands");
    const QString command = QStringLiteral("command");
    const QString write = QStringLiteral("write");
    QTest::newRow("before") << QStringLiteral("start") << 1 << Blocks{0, 1, 2} << 0;
    QTest::newRow("in the first script") << command << 1 << Blocks{0, 1, 2} << 5;
    QTest::newRow("in the last script before") << command << 3 << Blocks{0, 1, 2} << 5;
    QTest::newRow("in the pause") << QStringLiteral("pause") << 1 << Blocks{0, 1, 2} << 5;
    QTest::newRow("reading the first block") << QStringLiteral("read") << 1 << Blocks{0, 1, 2} << 5;
    QTest::newRow("reading the second block") << QStringLiteral("read") << 2 << Blocks{1, 2} << 5;
    QTest::newRow("writing the first block") << write << 1 << Blocks{1, 2} << 5;
    QTest::newRow("writing the failing block") << write << 2 << Blocks{1, 2} << 5;
    QTest::newRow("probing") << QStringLiteral("probe") << 100 << Blocks{1, 2} << 5;
    QTest::newRow("writing the last block") << write << 3 << Blocks{1} << 5;
    QTest::newRow("in the first script behind") << command << 4 << Blocks{1} << 5;
    QTest::newRow("in the last script behind") << command << 5 << Blocks{1} << 5;
}

void tst_ThreadDriveClone::stops()
{
    QFETCH(QString, phase);
    QFETCH(int, count);
    QFETCH(Blocks, kept);
    QFETCH(int, commands);
    constexpr qint64 sectors = 2 * BlockSectors + 500;
    openPc(sectors, sectors, {}, ",\"unwritable\":[50000]");
    fillImages(sectors, sectors);
    QMap<QString, int> seen;
    const auto reach = [&](const QString &what) {
        if (++seen[what] == count && what == phase)
            g_bAbortJob = true;
    };
    m_watched->onCommand = [&](const QString &) { reach(QStringLiteral("command")); };
    const auto prepared = m_watched->onSleep;
    m_watched->onSleep = [&](quint32 milliseconds) {
        prepared(milliseconds);
        reach(QStringLiteral("pause"));
    };
    m_watched->onTransfer = [&](bool isWrite, qint64, quint32 bytes) {
        if (!m_prepared.isEmpty())
            reach(isWrite               ? QStringLiteral("write")
                  : bytes == BlockBytes ? QStringLiteral("read")
                                        : QStringLiteral("probe"));
    };
    CloneDisks disks(Source, sectors, Destination);
    reach(QStringLiteral("start"));
    runClone(disks);

    QCOMPARE(seen[QStringLiteral("command")], commands);
    if (phase == QLatin1String("probe"))
        QCOMPARE(seen[phase], count);
    if (phase == QLatin1String("start"))
        m_prepared = noise(sectors, 2);
    else
        QCOMPARE(disks.events.takeFirst(), QStringLiteral("abort"));
    QCOMPARE(disks.events, QStringList{QStringLiteral("finish")});
    QVERIFY2(readFile(m_pc->imageFile(Destination)) == expected(sectors, kept), "bytes differ");
}

void tst_ThreadDriveClone::opensNot_data()
{
    QTest::addColumn<QByteArray>("sourceMore");
    QTest::addColumn<QByteArray>("destinationMore");
    QTest::newRow("source") << QByteArray(",\"opens\":false") << QByteArray();
    QTest::newRow("destination") << QByteArray() << QByteArray(",\"opens\":false");
}

void tst_ThreadDriveClone::opensNot()
{
    QFETCH(QByteArray, sourceMore);
    QFETCH(QByteArray, destinationMore);
    openPc(Sectors, Sectors, sourceMore, destinationMore);
    fillImages(Sectors, Sectors);
    const QStringList failure{QStringLiteral("failed"), QStringLiteral("finish")};
    {
        CloneDisks disks(Source, Sectors, Destination);
        runClone(disks);
        QCOMPARE(disks.events, failure);
        QCOMPARE(m_commands, 3);
        QVERIFY(g_bCloneFailed);
    }
    // The next clone copies, and yet ends as failed.
    Platform::install(nullptr);
    m_folder.reset(new DescribedFolder);
    m_commands = 0;
    openPc(Sectors, Sectors);
    fillImages(Sectors, Sectors);
    CloneDisks disks(Source, Sectors, Destination);
    runClone(disks);
    QCOMPARE(disks.events, failure);
    QCOMPARE(m_commands, 3);
    QVERIFY2(readFile(m_pc->imageFile(Destination)) == expected(Sectors, {}), "bytes differ");
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
