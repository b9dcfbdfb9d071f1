// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CommandRunner.h"
#include "smart/DiskFigures.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace
{

constexpr int NoiseBytes = 10 * 1024 * 1024;

QByteArray fileBytes(const char *name)
{
    QFile file(QStringLiteral(HALVANE_SOURCE_DIR "/tests/data/smart/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray noiseBytes()
{
    QByteArray noise(NoiseBytes, Qt::Uninitialized);
    QRandomGenerator generator(1);
    generator.fillRange(reinterpret_cast<quint32 *>(noise.data()), NoiseBytes / 4);
    return noise;
}

/// Milliseconds of `work` per run, the best of three rounds, without those of `prepare`.
double measure(int runs, const std::function<void()> &prepare, const std::function<void()> &work)
{
    qint64 best = -1;
    for (int round = 0; round < 3; ++round) {
        qint64 spent = 0;
        for (int i = 0; i < runs; ++i) {
            prepare();
            QElapsedTimer timer;
            timer.start();
            work();
            spent += timer.nsecsElapsed();
        }
        best = best < 0 ? spent : std::min(best, spent);
    }
    return static_cast<double>(best) / 1e6 / runs;
}

void print(const char *what, double milliseconds)
{
    std::printf("%-44s %10.3f ms\n", what, milliseconds);
}

/// The work of the program on a report that the tool has written: it is read three times, then rated.
void benchReport(const char *what, const QByteArray &bytes, int runs)
{
    const QString path = tempFile(QStringLiteral("bench_parse.txt"));
    // Reading removes the file, so it is written for each run.
    const auto write = [&] {
        QFile file(nativePath(path));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write the report");
    };
    print(what, measure(runs, write, [&] {
              takeReportIn(path);
              rateHealth();
              ratePerformance();
              updateLifeFigures();
          }));
}

/// Starts a tool that reads the same, as a user without the program would.
void benchAlternative(const QString &program, const QStringList &arguments)
{
    const QByteArray what = "beside it: one start of " + program.toUtf8();
    if (QStandardPaths::findExecutable(program).isEmpty()) {
        std::printf("%-44s not installed\n", what.constData());
        return;
    }
    print(what.constData(), measure(
                                20, [] {},
                                [&] {
                                    QProcess process;
                                    process.setStandardOutputFile(QProcess::nullDevice());
                                    process.start(program, arguments);
                                    process.waitForFinished();
                                }));
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchReport("ATA report, 24 attributes", fileBytes("ata-seagate-st3000dm001.txt"), 500);
    benchReport("NVMe report, 19 lines", fileBytes("nvme-win-samsung-980pro-1tb.txt"), 500);
    benchReport("10 MB of noise", noiseBytes(), 1);
    benchReport("10 MB of noise as one line", QByteArray(NoiseBytes, 'x'), 1);
    const QString report = QStringLiteral(HALVANE_SOURCE_DIR "/tests/data/smart/ata-seagate-st3000dm001.txt");
    benchAlternative(QStringLiteral("grep"), {QStringLiteral("-c"), QStringLiteral("."), report});
    benchAlternative(QStringLiteral("smartctl"), {QStringLiteral("--version")});
    return 0;
}
