// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/NoisyPc.h"

#include <QCoreApplication>
#include <QThread>

#include <cstdio>
#include <map>
#include <sys/resource.h>
#include <unistd.h>

namespace
{

constexpr int Disks = 4;
constexpr double RoundMs = 60000;
constexpr double MostMB = 60;
constexpr double MostOfACore = 0.002;
constexpr double MostGrowthMB = 2; ///< from 1,000 rounds to 10,000

/// A PC on which a minute takes 2 ms. Its disks are in use all the time, so each is asked in each round.
void describe(const QString &folder)
{
    QDir().mkpath(folder);
    QByteArrayList disks;
    for (const char *name : {"ata-seagate-st3000dm001", "ata-micron-m550", "nvme-win-samsung-980pro-1tb",
                             "ata-wdc-wd10ezex-readfail"}) {
        const QString file = QLatin1String(name) + QStringLiteral(".txt");
        QFile::copy(QStringLiteral(HALVANE_SOURCE_DIR "/tests/data/smart/") + file,
                    folder + QLatin1Char('/') + file);
        disks << "{\"number\": " + QByteArray::number(disks.size()) + ", \"report\": \"" + file.toUtf8() +
                     "\"}";
    }
    QFile pc(folder + QStringLiteral("/pc.json"));
    if (!pc.open(QIODevice::WriteOnly))
        qFatal("no description");
    pc.write(R"({"pauses": false, "clockSpeed": 30000, "disks": [)" + disks.join(", ") + "]}");
}

QList<QByteArray> wordsOf(qint64 process, const char *file)
{
    QFile told(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(file)));
    return told.open(QIODevice::ReadOnly) ? told.readAll().simplified().split(' ') : QList<QByteArray>();
}

/// ms of the processor that the process has taken so far.
double processorMs(qint64 process)
{
    const QList<QByteArray> words = wordsOf(process, "stat");
    return (words.value(13).toDouble() + words.value(14).toDouble()) * 1000 /
           static_cast<double>(::sysconf(_SC_CLK_TCK));
}

/// ms of the processor that all ended children have taken.
double childrenMs()
{
    rusage used = {};
    ::getrusage(RUSAGE_CHILDREN, &used);
    return static_cast<double>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) * 1000 +
           static_cast<double>(used.ru_utime.tv_usec + used.ru_stime.tv_usec) / 1000;
}

double residentMB(qint64 process)
{
    return wordsOf(process, "statm").value(1).toDouble() * static_cast<double>(::sysconf(_SC_PAGESIZE)) / 1e6;
}

/// Waits for so many further lines of the log of commands that ask the first disk.
void awaitRounds(QFile *commands, int rounds, const QProcess &companion)
{
    while (rounds > 0) {
        const QByteArray line = commands->readLine();
        if (line.contains("/dev/sda"))
            --rounds;
        if (line.isEmpty())
            QThread::msleep(2);
        if (line.isEmpty() && wordsOf(companion.processId(), "stat").size() < 15)
            qFatal("the companion has ended");
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    describe(folder.filePath(QStringLiteral("pc")));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HALVANE_PC"), folder.filePath(QStringLiteral("pc")));
    environment.insert(QStringLiteral("HALVANE_PC_STATE"), folder.filePath(QStringLiteral("state")));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    QProcess companion;
    companion.setProcessEnvironment(environment);
    companion.setStandardErrorFile(QProcess::nullDevice());
    companion.start(QStringLiteral(HALVANE_BIN "/VelmoraSMART"), QStringList());
    QFile commands(folder.filePath(QStringLiteral("state/commands.log")));
    while (companion.waitForStarted() && !commands.open(QIODevice::ReadOnly))
        QThread::msleep(10);
    int done = 10; // the first ones start much that stays
    awaitRounds(&commands, done, companion);
    const double before = processorMs(companion.processId());
    double perRound = 0;
    std::map<int, double> resident;
    bool isLight = true;
    for (const int rounds : {100, 1000, 10000}) {
        awaitRounds(&commands, rounds - done, companion);
        perRound = (processorMs(companion.processId()) - before) / (rounds - 10);
        resident[rounds] = residentMB(companion.processId());
        std::printf("%5d rounds with %d disks: %6.1f MB resident, %5.2f ms of the processor a round, %.3f %% "
                    "of a core\n",
                    rounds, Disks, resident[rounds], perRound, perRound / RoundMs * 100);
        isLight = isLight && resident[rounds] <= MostMB && perRound <= MostOfACore * RoundMs;
        done = rounds;
    }
    isLight = isLight && resident[10000] - resident[1000] <= MostGrowthMB;
    companion.kill();
    companion.waitForFinished();
    const double others = childrenMs();
    if (bench::toolTime(QStringLiteral("smartctl"), {QStringLiteral("--version")}) > 0) {
        const double tool = childrenMs() - others;
        std::printf("beside it: a start of smartctl %.1f ms; with one for each disk %.3f %% of a core\n",
                    tool, (perRound + Disks * tool) / RoundMs * 100);
    }
    if (!isLight)
        std::printf("too much: more than %.0f MB, than %.1f %% of a core, or than %.0f MB of growth\n",
                    MostMB, MostOfACore * 100, MostGrowthMB);
    return isLight ? 0 : 1;
}
