// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/NoisyPc.h"
#include "clone/ThreadDriveClone.h"
#include "state/Globals.h"
#include "tests/platform/LoopDevice.h"
#include "tests/support/WatchedPlatform.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cstdio>

namespace
{

using bench::MiB;
constexpr int Rounds = 11;                 ///< the first one fills the cache
constexpr double WantedShare = 0.97;       ///< of the speed of dd, on images
constexpr double WantedOnLoops = 1.0;      ///< of the speed of each other tool
constexpr qint64 WantedMemory = 40 * 1024; ///< kB above idle

/// Seconds of a whole clone, with its preparation and end.
double clone()
{
    ThreadDriveClone thread;
    QElapsedTimer clock;
    clock.start();
    thread.start(QThread::InheritPriority);
    thread.wait();
    if (thread.outcome().end != CloneOutcome::End::Complete)
        qFatal("the clone ended with fault %d", static_cast<int>(thread.outcome().fault));
    return bench::seconds(clock);
}

/// Two loop devices on images full of noise, as the disks of this machine.
class LoopPc
{
public:
    explicit LoopPc(qint64 bytes)
    {
        for (int number = 0; number < 2; ++number) {
            const QString image = m_folder.filePath(QString::number(number));
            bench::fill(image, bytes, static_cast<quint32>(number) + 1);
            m_loops.push_back(std::make_unique<LoopDevice>(image));
            m_nodes.push_back(bench::makeNode(number, bytes));
        }
        if (!areThere())
            return;
        qputenv("XDG_RUNTIME_DIR", m_folder.path().toUtf8());
        qputenv("HALVANE_DISKS", (node(0) + QLatin1Char(':') + node(1)).toUtf8());
        auto watched = std::make_unique<WatchedPlatform>();
        // The copy alone, with its flush: the tools before and after it have times of their own.
        watched->onSleep = [this](quint32) { m_clock.start(); };
        watched->onFlush = [this] {
            m_seconds = bench::seconds(m_clock);
            return true;
        };
        Platform::install(std::move(watched));
        g_App.m_strSystemFolder = Platform::current().GetSystemDirectoryW();
        g_App.m_pCurrentDisk = m_nodes[0].get();
        g_App.m_pCloneDisk = m_nodes[1].get();
    }
    ~LoopPc()
    {
        g_App.m_pCurrentDisk = g_App.m_pCloneDisk = nullptr;
        Platform::install(nullptr);
    }
    LoopPc(const LoopPc &) = delete;
    LoopPc &operator=(const LoopPc &) = delete;

    bool areThere() const { return !node(0).isEmpty() && !node(1).isEmpty(); }
    QString node(int number) const { return m_loops[static_cast<std::size_t>(number)]->node(); }
    double copy()
    {
        clone();
        return m_seconds;
    }

private:
    QTemporaryDir m_folder;
    std::vector<std::unique_ptr<LoopDevice>> m_loops;
    std::vector<std::unique_ptr<DiskNode>> m_nodes;
    QElapsedTimer m_clock;
    double m_seconds = 0;
};

/// Writes the cached data of a block device to it, and empties the cache. Returns the seconds; 0 for an
/// image.
double flush(const QString &node)
{
    return node.startsWith(QLatin1String("/dev/"))
               ? bench::toolTime(QStringLiteral("blockdev"), {QStringLiteral("--flushbufs"), node})
               : 0;
}

/// Seconds until the copy of a tool is on the other disk, as that of a clone is at its end; negative if the
/// tool is not installed. Nothing of the source is in the cache before.
double copyTime(const QString &tool, const QStringList &arguments, const QString &from, const QString &onto)
{
    flush(from);
    const double seconds = bench::toolTime(tool, arguments);
    return seconds < 0 ? seconds : seconds + flush(onto);
}

double ddTime(const QString &from, const QString &onto)
{
    return copyTime(QStringLiteral("dd"),
                    {QStringLiteral("if=") + from, QStringLiteral("of=") + onto, QStringLiteral("bs=16M"),
                     QStringLiteral("conv=notrunc")},
                    from, onto);
}

double ddrescueTime(const QString &from, const QString &onto)
{
    return copyTime(QStringLiteral("ddrescue"), {QStringLiteral("--force"), from, onto}, from, onto);
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? -1 : values[values.size() / 2];
}

/// Compares the clone with dd and ddrescue; above 1 the clone is faster. They run in turns and are compared
/// within a turn, so that other work of the machine slows all of them.
template<typename Copy>
bool compare(const char *what, qint64 bytes, const QString &from, const QString &onto, Copy copy,
             double wantedOfDd, double wantedOfRescue)
{
    std::vector<double> speeds;
    std::vector<double> ofDd;
    std::vector<double> ofRescue;
    for (int round = 0; round < Rounds; ++round) {
        const double dd = ddTime(from, onto);
        const double own = copy();
        const double rescue = ddrescueTime(from, onto);
        if (dd < 0)
            qFatal("dd does not copy");
        if (round == 0)
            continue;
        speeds.push_back(static_cast<double>(bytes / MiB) / own);
        ofDd.push_back(dd / own);
        if (rescue > 0)
            ofRescue.push_back(rescue / own);
    }
    std::printf("%s, %lld MiB, medians of %d turns; above 1 the clone is the faster one\n", what,
                static_cast<long long>(bytes / MiB), Rounds - 1);
    std::printf("  clone %44.0f MiB/s\n  times dd bs=16M conv=notrunc %21.2f\n", median(speeds),
                median(ofDd));
    if (ofRescue.empty())
        std::puts("  ddrescue is not installed");
    else
        std::printf("  times ddrescue %35.2f\n", median(ofRescue));
    return median(ofDd) >= wantedOfDd && (ofRescue.empty() || median(ofRescue) >= wantedOfRescue);
}

/// A line of this process's status, in kB; -1 if the system has none.
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
    clone();
    const qint64 above = memory("VmHWM:") - idle;
    std::printf("%-52s %8lld kB above idle\n", "  clone, peak memory", static_cast<long long>(above));
    return above < WantedMemory;
}

bool benchImages(qint64 bytes)
{
    const bench::NoisyPc pc(2, bytes);
    g_App.m_pCurrentDisk = pc.node(0);
    g_App.m_pCloneDisk = pc.node(1);
    const bool lean = benchMemory();
    return compare("Images in the cache", bytes, pc.image(0), pc.image(1), clone, WantedShare, 0) && lean;
}

bool benchLoops(qint64 bytes)
{
    LoopPc pc(bytes);
    if (!pc.areThere()) {
        std::puts("Loop devices: none here, or no rights for them");
        return true;
    }
    return compare(
        "Loop devices", bytes, pc.node(0), pc.node(1), [&pc] { return pc.copy(); }, WantedOnLoops,
        WantedOnLoops);
}

} // namespace

/// bench_clone [MiB of a disk, 1024 by default]
/// Ends with 1 if the clone has less than 0.97 of dd's speed, on loop devices less than that of dd or
/// ddrescue, or if it takes more than 40 MiB.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const qint64 bytes = std::max<qint64>(argc > 1 ? QByteArray(argv[1]).toLongLong() : 1024, 8) * MiB;
    const bool images = benchImages(bytes);
    const bool loops = benchLoops(bytes);
    return images && loops ? 0 : 1;
}
