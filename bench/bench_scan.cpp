#include "app/state/Globals.h"
#include "bench/NoisyPc.h"
#include "inventory/RawAccess.h"
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
constexpr int Pairs = 9;
constexpr double WantedShare = 0.97; ///< of what the same reads take by themselves

/// What a scan took.
struct Times {
    double wall = 0;       ///< seconds
    double cpu = 0;        ///< seconds of all threads of this process
    double firstChunk = 0; ///< seconds
    qlonglong told = 0;    ///< counts of bad sectors, the one at the end among them
};

/// A disk to scan.
class Pc : public bench::NoisyPc
{
public:
    Pc(qint64 bytes, const QByteArray &more) : NoisyPc(1, bytes, more) { g_App.m_pCurrentDisk = node(0); }

    using NoisyPc::image;
    using NoisyPc::node;
    QString image() const { return image(0); }

    /// Scans the disk. An event loop hears of every bad sector, as the window's does.
    Times scan() const
    {
        QScanDriveThread thread;
        QEventLoop loop;
        Times times;
        QElapsedTimer clock;
        QObject::connect(&thread, &QScanDriveThread::OnFinish, &loop, [&loop] { loop.quit(); });
        QObject::connect(&thread, &QScanDriveThread::ExactBadSectorCount, &loop,
                         [&times](qlonglong) { ++times.told; });
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

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

/// Compares by pairs taken in turn, so that what else the machine does meets both. False where the median is
/// below the wanted share. The first pair, which fills the cache, does not count.
bool compare(const char *what, const char *reference, qint64 bytes,
             const std::function<double()> &referenceTime, const std::function<double()> &time)
{
    QVector<double> times;
    QVector<double> shares;
    for (int pair = 0; pair <= Pairs; ++pair) {
        const double before = pair % 2 == 0 ? referenceTime() : 0;
        const double own = time();
        const double by = pair % 2 == 0 ? before : referenceTime();
        if (by < 0)
            qFatal("%s does not run", reference);
        if (pair == 0)
            continue;
        times.append(own);
        shares.append(by / own);
    }
    std::printf("%-52s %8.0f MiB/s   %.3f of %s (median of %d pairs)\n", what,
                static_cast<double>(bytes) / MiB / median(times), median(shares), reference, Pairs);
    return median(shares) >= WantedShare;
}

bool benchThroughput(qint64 bytes)
{
    const Pc pc(bytes, QByteArray());
    std::printf("A healthy disk of %lld MiB, its image in the cache\n", static_cast<long long>(bytes / MiB));
    return compare(
        "  scan", "dd bs=8M", bytes, [&] { return ddTime(pc.image(), {QStringLiteral("bs=8M")}); },
        [&] { return pc.scan().wall; });
}

/// Reads the sectors of the first chunk one by one and does nothing else.
double singleReads(const Pc &pc)
{
    const int drive = pc.node(0)->pDetails->nDevice;
    const Platform::RawHandle handle = OpenDisk(drive);
    alignas(4096) char sector[SectorSize];
    QElapsedTimer clock;
    clock.start();
    for (quint64 i = 0; i <= SectorsPerChunk; ++i)
        ReadWriteSectors(drive, i, sector, SectorSize, handle);
    const double seconds = bench::seconds(clock);
    Platform::current().CloseHandle(handle);
    return seconds;
}

bool benchNarrowing()
{
    const qint64 bytes = SectorsPerChunk * SectorSize;
    bool fastEnough = true;
    const struct {
        const char *title;
        const char *bad;
        qlonglong count;
    } disks[] = {{"A chunk of 16,384 sectors, all bad", "[0, 16384]", SectorsPerChunk},
                 {"A chunk of 16,384 sectors, its first is bad", "0", 1}};
    for (const auto &disk : disks) {
        const Pc pc(2 * bytes, QByteArray(", \"badSectors\": [") + disk.bad + "]");
        std::puts(disk.title);
        const auto narrowing = [&] {
            const Times times = pc.scan();
            if (g_BadSectors.count() != disk.count || times.told != disk.count + 1)
                qFatal("%lld counts told", static_cast<long long>(times.told));
            return times.firstChunk;
        };
        fastEnough = compare(
                         "  narrowing, with an event loop that hears", "single reads", bytes,
                         [&] { return singleReads(pc); }, narrowing) &&
                     fastEnough;
    }
    return fastEnough;
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
/// Ends with 1 where a scan or the narrowing reaches less than 0.97 of the reads themselves.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const qint64 size = argc > 1 ? QByteArray(argv[1]).toLongLong() : 4096;
    const bool scans = benchThroughput(std::max<qint64>(size, 8) * MiB);
    const bool narrows = benchNarrowing();
    benchSlowDisk();
    return scans && narrows ? 0 : 1;
}
