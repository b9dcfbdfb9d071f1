#include "app/state/Globals.h"
#include "bench/NoisyPc.h"
#include "scan/QScanDriveThread.h"
#include "scan/ScanGlobals.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

namespace
{

using bench::MiB;
using bench::SectorSize;
constexpr qint64 SectorsPerChunk = 16384;
constexpr int Rounds = 5;

/// What a scan took.
struct Times {
    double wall = 0;       ///< seconds
    double cpu = 0;        ///< seconds of all threads of this process
    double firstChunk = 0; ///< seconds
    qlonglong badSectors = 0;
};

/// A disk to scan.
class Pc : public bench::NoisyPc
{
public:
    Pc(qint64 bytes, const QByteArray &more) : NoisyPc(1, bytes, more) { g_App.m_pCurrentDisk = node(0); }

    using NoisyPc::image;
    QString image() const { return image(0); }

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
            [&] { times.firstChunk = bench::seconds(clock); }, Qt::DirectConnection);
        thread.SetRange(0, static_cast<qint64>(node(0)->pDetails->nTotalSectors));
        const std::clock_t cpu = std::clock();
        clock.start();
        thread.StartScan(nullptr, 3);
        loop.exec();
        times.wall = bench::seconds(clock);
        times.cpu = static_cast<double>(std::clock() - cpu) / CLOCKS_PER_SEC;
        return times;
    }
};

double ddTime(const QString &image, const QStringList &arguments)
{
    return bench::toolTime(QStringLiteral("dd"),
                           QStringList{QStringLiteral("if=") + image, QStringLiteral("of=/dev/null")} +
                               arguments);
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
    printSpeed("  badblocks, chunks of 8 MiB (past the cache)", bytes,
               bench::toolTime(QStringLiteral("badblocks"),
                               {QStringLiteral("-b"), QStringLiteral("4096"), QStringLiteral("-c"),
                                QStringLiteral("2048"), pc.image()}),
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
