#include "app/state/GlobalApp.h"
#include "app/state/Globals.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "scan/QScanDriveThread.h"
#include "scan/ScanGlobals.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

namespace
{

constexpr qint64 MiB = 1 << 20;
constexpr int SectorSize = 512;
constexpr qint64 SectorsPerChunk = 16384;
constexpr int Rounds = 5;

/// What a scan took.
struct Times {
    double wall = 0;       ///< seconds
    double cpu = 0;        ///< seconds of all threads of this process
    double firstChunk = 0; ///< seconds
    qlonglong badSectors = 0;
};

/// A simulated PC with one disk, whose image is full of noise, so that nothing is saved on holes.
class Pc
{
public:
    Pc(qint64 bytes, const QByteArray &more)
    {
        QFile description(m_folder.filePath(QStringLiteral("pc.json")));
        if (!description.open(QIODevice::WriteOnly))
            qFatal("no description");
        description.write("{\"disks\": [{\"number\": 0, \"sectors\": " +
                          QByteArray::number(bytes / SectorSize) + more + "}]}");
        description.close();
        QString error;
        auto pc =
            SimulatedPlatform::open(m_folder.path(), m_folder.filePath(QStringLiteral("state")), &error);
        if (!pc)
            qFatal("%s", qPrintable(error));
        m_image = pc->imageFile(0);
        fill(bytes);
        Platform::install(std::move(pc));

        m_node.nId = PhysicalDriveBase;
        m_node.pDetails = std::make_unique<DiskDetails>();
        m_node.pDetails->nDevice = PhysicalDriveBase;
        m_node.pDetails->nTotalSectors = static_cast<quint64>(bytes / SectorSize);
        g_App.m_pCurrentDisk = &m_node;
    }
    ~Pc() { g_App.m_pCurrentDisk = nullptr; }
    Pc(const Pc &) = delete;
    Pc &operator=(const Pc &) = delete;

    QString image() const { return m_image; }

    /// Scans the disk. `heard`: an event loop hears of every bad sector, as the window's does.
    Times scan(bool heard = true) const
    {
        QScanDriveThread thread;
        QEventLoop loop;
        Times times;
        QElapsedTimer clock;
        QObject::connect(&thread, &QScanDriveThread::OnFinish, &loop, [&loop] { loop.quit(); });
        QObject::connect(
            &thread, &QScanDriveThread::ExactBadSectorCount, &loop,
            [&times](qlonglong count) { times.badSectors = count; },
            heard ? Qt::AutoConnection : Qt::DirectConnection);
        QObject::connect(
            &thread, &QScanDriveThread::setRemainingTime, &thread,
            [&] { times.firstChunk = static_cast<double>(clock.nsecsElapsed()) / 1e9; },
            Qt::DirectConnection);
        thread.SetRange(0, static_cast<qint64>(m_node.pDetails->nTotalSectors));
        const std::clock_t cpu = std::clock();
        clock.start();
        thread.StartScan(nullptr, 3);
        loop.exec();
        times.wall = static_cast<double>(clock.nsecsElapsed()) / 1e9;
        times.cpu = static_cast<double>(std::clock() - cpu) / CLOCKS_PER_SEC;
        return times;
    }

private:
    void fill(qint64 bytes) const
    {
        QDir().mkpath(QFileInfo(m_image).absolutePath());
        QFile file(m_image);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            qFatal("no image");
        QByteArray noise(static_cast<int>(8 * MiB), Qt::Uninitialized);
        QRandomGenerator(1).fillRange(reinterpret_cast<quint32 *>(noise.data()), noise.size() / 4);
        for (qint64 done = 0; done < bytes; done += noise.size()) {
            const qint64 count = std::min<qint64>(noise.size(), bytes - done);
            if (file.write(noise.constData(), count) != count)
                qFatal("no room for the image");
        }
    }

    QTemporaryDir m_folder;
    QString m_image;
    DiskNode m_node;
};

/// Seconds that a tool takes; negative where it is not installed or fails.
double toolTime(const QString &tool, const QStringList &arguments)
{
    QString program = QStandardPaths::findExecutable(tool);
    if (program.isEmpty())
        program =
            QStandardPaths::findExecutable(tool, {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")});
    if (program.isEmpty())
        return -1;
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer clock;
    clock.start();
    process.start(program, arguments);
    const bool done = process.waitForFinished(-1) && process.exitCode() == 0;
    return done ? static_cast<double>(clock.nsecsElapsed()) / 1e9 : -1;
}

double ddTime(const QString &image, const QStringList &arguments)
{
    return toolTime(QStringLiteral("dd"),
                    QStringList{QStringLiteral("if=") + image, QStringLiteral("of=/dev/null")} + arguments);
}

/// The best of several rounds of each, taken in turn, so that what else the machine does meets all.
QVector<double> bestInTurn(const QVector<std::function<double()>> &measured)
{
    QVector<double> best(measured.size(), 1e9);
    for (int round = 0; round < Rounds; ++round) {
        for (int i = 0; i < measured.size(); ++i)
            best[i] = std::min(best[i], measured[i]());
    }
    return best;
}

void printSpeed(const char *what, qint64 bytes, double seconds, double reference)
{
    if (seconds < 0)
        std::printf("%-52s not installed\n", what);
    else
        std::printf("%-52s %8.0f MiB/s   %.2f of dd\n", what, static_cast<double>(bytes / MiB) / seconds,
                    reference / seconds);
}

void benchThroughput(qint64 bytes)
{
    const Pc pc(bytes, QByteArray());
    const QStringList bySizeOfChunk{QStringLiteral("bs=8M")};
    ddTime(pc.image(), bySizeOfChunk); // into the cache
    const QVector<double> best =
        bestInTurn({[&] { return ddTime(pc.image(), bySizeOfChunk); }, [&] { return pc.scan().wall; }});
    std::printf("A healthy disk of %lld MiB, its image in the cache\n", static_cast<long long>(bytes / MiB));
    printSpeed("  dd bs=8M", bytes, best[0], best[0]);
    printSpeed("  scan", bytes, best[1], best[0]);
    printSpeed(
        "  badblocks, chunks of 8 MiB (past the cache)", bytes,
        toolTime(QStringLiteral("badblocks"), {QStringLiteral("-b"), QStringLiteral("4096"),
                                               QStringLiteral("-c"), QStringLiteral("2048"), pc.image()}),
        best[0]);
}

void benchNarrowing()
{
    const qint64 bytes = SectorsPerChunk * SectorSize;
    const Pc pc(2 * bytes, ", \"badSectors\": [[0, 16384]]");
    const auto narrowing = [&pc](bool heard) {
        const Times times = pc.scan(heard);
        if (times.badSectors != SectorsPerChunk)
            qFatal("%lld bad sectors instead of 16384", static_cast<long long>(times.badSectors));
        return times.firstChunk;
    };
    const QVector<double> best =
        bestInTurn({[&] {
                        return ddTime(pc.image(), {QStringLiteral("bs=512"), QStringLiteral("count=16384")});
                    },
                    [&] { return narrowing(false); }, [&] { return narrowing(true); }});
    std::printf("A chunk of 16,384 sectors, one by one\n");
    printSpeed("  dd bs=512, all good", bytes, best[0], best[0]);
    printSpeed("  narrowing, all bad", bytes, best[1], best[0]);
    printSpeed("  narrowing, all bad, with an event loop that hears", bytes, best[2], best[0]);
}

void benchSlowDisk()
{
    const qint64 bytes = 1024 * MiB;
    const Pc pc(bytes, ", \"bytesPerSecond\": 209715200");
    const Times times = pc.scan();
    std::printf("A disk of 200 MiB/s\n");
    std::printf("%-52s %8.0f MiB/s   %.1f %% of one core\n", "  scan",
                static_cast<double>(bytes / MiB) / times.wall, 100 * times.cpu / times.wall);
}

} // namespace

/// bench_scan [MiB of the healthy disk, 4096 where nothing is said]
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const qint64 size = argc > 1 ? QByteArray(argv[1]).toLongLong() : 4096;
    benchThroughput(std::max<qint64>(size, 8) * MiB);
    benchNarrowing();
    benchSlowDisk();
    return 0;
}
