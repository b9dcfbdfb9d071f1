// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/NoisyPc.h"
#include "inventory/RawAccess.h"
#include "scan/QScanDriveThread.h"
#include "scan/ScanGlobals.h"
#include "state/Globals.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <memory>

namespace
{

using bench::MiB;
using bench::SectorSize;
constexpr qint64 SectorsPerChunk = 16384;
constexpr int Pairs = 9;
constexpr double WantedShare = 0.97; ///< of the speed of the same reads without a scan

/// The cost of a scan.
struct Times {
    double wall = 0;    ///< seconds
    double cpu = 0;     ///< seconds of all threads of this process
    double chunks = 0;  ///< seconds from the first chunk on
    qlonglong told = 0; ///< signals with a count of bad sectors, with the one at the end
};

/// A disk to scan.
class Pc : public bench::NoisyPc
{
public:
    Pc(qint64 bytes, const QByteArray &more) : NoisyPc(1, bytes, more) { g_App.m_pCurrentDisk = node(0); }

    using NoisyPc::image;
    using NoisyPc::node;
    QString image() const { return image(0); }

    /// Scans the disk. An event loop gets the signal of every bad sector, as that of the window does.
    Times scan() const
    {
        QScanDriveThread thread;
        QEventLoop loop;
        Times times;
        QElapsedTimer clock;
        QObject::connect(&thread, &QScanDriveThread::OnFinish, &loop, [&loop] { loop.quit(); });
        QObject::connect(&thread, &QScanDriveThread::ExactBadSectorCount, &loop,
                         [&times](qlonglong) { ++times.told; });
        QElapsedTimer chunks;
        QObject::connect(
            &thread, &QScanDriveThread::TotalBlockCount, &thread,
            [&chunks](qlonglong position) {
                if (position == 0)
                    chunks.start();
            },
            Qt::DirectConnection);
        QObject::connect(
            &thread, &QScanDriveThread::AllBlockProcessed, &thread,
            [&] { times.chunks = bench::seconds(chunks); }, Qt::DirectConnection);
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

/// Runs the two in turns, so that other work of the machine slows both. False if the median is below the
/// wanted share. The first pair fills the cache and does not count.
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

/// Reads all sectors one by one and nothing else, on a thread of its own, as a scan does.
double singleReads(const Pc &pc)
{
    const int drive = pc.node(0)->pDetails->nDevice;
    const quint64 sectors = pc.node(0)->pDetails->nTotalSectors;
    double seconds = 0;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        const Platform::RawHandle handle = OpenDisk(drive);
        alignas(4096) char sector[SectorSize];
        QElapsedTimer clock;
        clock.start();
        for (quint64 i = 0; i < sectors; ++i)
            ReadWriteSectors(drive, i, sector, SectorSize, handle);
        seconds = bench::seconds(clock);
        Platform::current().CloseHandle(handle);
    }));
    thread->start(QThread::LowPriority);
    thread->wait();
    return seconds;
}

bool benchNarrowing()
{
    constexpr qint64 Chunks = 16;
    const qint64 bytes = Chunks * SectorsPerChunk * SectorSize;
    const auto narrowing = [](const Pc &pc, qlonglong counts) {
        const Times times = pc.scan();
        if (times.told != counts + 1) // there is one more signal at the end
            qFatal("%lld counts told", static_cast<long long>(times.told));
        return times.chunks;
    };
    std::puts("Chunks of 16,384 sectors, read one by one; an event loop hears of each bad one");
    QByteArrayList inEach;
    for (qint64 chunk = 0; chunk < Chunks; ++chunk)
        inEach << QByteArray::number(chunk * SectorsPerChunk + 1);
    // The sector behind a failed chunk is read, too, even behind the end of the disk.
    bool fastEnough = true;
    {
        const Pc pc(bytes, ", \"badSectors\": [" + inEach.join(", ") + "]");
        fastEnough = compare(
            "  narrowing, one bad in each", "single reads", bytes, [&] { return singleReads(pc); },
            [&] { return narrowing(pc, Chunks + 1); });
    }
    const Pc pc(bytes, ", \"badSectors\": [[0, " + QByteArray::number(Chunks * SectorsPerChunk) + "]]");
    // On a described PC a refused read costs nothing, so a good one is measured.
    return compare(
               "  narrowing, all bad", "dd bs=512, all good", bytes,
               [&] { return ddTime(pc.image(), {QStringLiteral("bs=512")}); },
               [&] { return narrowing(pc, Chunks * SectorsPerChunk + Chunks); }) &&
           fastEnough;
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

/// bench_scan [MiB of the healthy disk, 4096 by default]
/// Ends with 1 if a scan, or the sector-by-sector reading, has less than 0.97 of the speed of the reads
/// alone.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const qint64 size = argc > 1 ? QByteArray(argv[1]).toLongLong() : 4096;
    const bool scans = benchThroughput(std::max<qint64>(size, 8) * MiB);
    const bool narrows = benchNarrowing();
    benchSlowDisk();
    return scans && narrows ? 0 : 1;
}
