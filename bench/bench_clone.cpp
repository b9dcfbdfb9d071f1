#include "app/state/Globals.h"
#include "bench/NoisyPc.h"
#include "clone/ThreadDriveClone.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cstdio>

namespace
{

using bench::MiB;
constexpr int Rounds = 9;
constexpr double WantedShare = 0.9;        ///< of what dd does
constexpr qint64 WantedMemory = 40 * 1024; ///< kB above idle

/// A source and a destination.
class Pc : public bench::NoisyPc
{
public:
    explicit Pc(qint64 bytes) : NoisyPc(2, bytes)
    {
        g_App.m_pCurrentDisk = node(0);
        g_App.m_pCloneDisk = node(1);
    }

    /// Seconds of a whole clone, preparation and end included.
    static double clone()
    {
        ThreadDriveClone thread;
        QElapsedTimer clock;
        clock.start();
        thread.start(QThread::InheritPriority);
        thread.wait();
        if (g_bCloneFailed)
            qFatal("a disk did not open");
        return bench::seconds(clock);
    }
};

double ddTime(const Pc &pc)
{
    return bench::toolTime(QStringLiteral("dd"),
                           {QStringLiteral("if=") + pc.image(0), QStringLiteral("of=") + pc.image(1),
                            QStringLiteral("bs=16M"), QStringLiteral("conv=notrunc")});
}

double ddrescueTime(const Pc &pc)
{
    return bench::toolTime(QStringLiteral("ddrescue"), {QStringLiteral("--force"), pc.image(0), pc.image(1)});
}

void printSpeed(const char *what, qint64 bytes, double seconds, double reference)
{
    if (seconds < 0)
        std::printf("%-52s not installed\n", what);
    else
        std::printf("%-52s %8.0f MiB/s   %.2f of dd\n", what, static_cast<double>(bytes / MiB) / seconds,
                    reference / seconds);
}

bool benchThroughput(const Pc &pc, qint64 bytes)
{
    // Taken in turn, so that what else the machine does meets all; the first round fills the cache.
    double dd = 1e9;
    double clone = 1e9;
    double rescue = 1e9;
    for (int round = 0; round <= Rounds; ++round) {
        const double times[] = {ddTime(pc), Pc::clone(), ddrescueTime(pc)};
        if (round == 0)
            continue;
        dd = std::min(dd, times[0]);
        clone = std::min(clone, times[1]);
        rescue = std::min(rescue, times[2]);
    }
    if (dd < 0)
        qFatal("dd does not copy the image");
    std::printf("Disks of %lld MiB, their images in the cache\n", static_cast<long long>(bytes / MiB));
    printSpeed("  dd bs=16M conv=notrunc", bytes, dd, dd);
    printSpeed("  clone", bytes, clone, dd);
    printSpeed("  ddrescue", bytes, rescue, dd);
    return dd >= WantedShare * clone;
}

/// A line of this process's status, in kB; -1 where the system has none.
qint64 memory(const char *name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toLongLong();
    }
    return -1;
}

bool benchMemory()
{
    QFile peak(QStringLiteral("/proc/self/clear_refs"));
    if (!peak.open(QIODevice::WriteOnly) || peak.write("5") != 1) {
        std::puts("  peak memory: not told by this system");
        return true;
    }
    peak.close();
    const qint64 idle = memory("VmRSS:");
    Pc::clone();
    const qint64 above = memory("VmHWM:") - idle;
    std::printf("%-52s %8lld kB above idle\n", "  clone, peak memory", static_cast<long long>(above));
    return above < WantedMemory;
}

} // namespace

/// bench_clone [MiB of a disk, 1024 where nothing is said]
/// Ends with 1 where the clone is slower than 0.9 of dd or takes more than 40 MiB.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const qint64 bytes = std::max<qint64>(argc > 1 ? QByteArray(argv[1]).toLongLong() : 1024, 8) * MiB;
    const Pc pc(bytes);
    const bool lean = benchMemory();
    const bool quick = benchThroughput(pc, bytes);
    return lean && quick ? 0 : 1;
}
