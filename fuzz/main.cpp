// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/Targets.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <sanitizer/common_interface_defs.h>
#include <unistd.h>

namespace
{

constexpr unsigned SecondsPerInput = 20;
constexpr quint64 InputsPerMachine = 2000;

/// The input that is read, for the last line of the process.
quint64 currentSeed = 0;
quint64 currentInput = 0;
int onlyTarget = -1;       ///< -1: each in its turn
const char *onlyName = ""; ///< of that target, as an argument

void nameInput()
{
    std::fprintf(stderr, "\nThis was input %llu of seed %llu: fuzz/run --seed %llu --input %llu%s%s\n",
                 static_cast<unsigned long long>(currentInput), static_cast<unsigned long long>(currentSeed),
                 static_cast<unsigned long long>(currentSeed), static_cast<unsigned long long>(currentInput),
                 onlyTarget < 0 ? "" : " --only ", onlyName);
}

/// The process ends anyhow, so calls that are not safe in a signal handler are allowed.
void onAlarm(int)
{
    std::fputs("An input takes too long.\n", stderr);
    nameInput();
    _exit(3);
}

QVector<QByteArray> readCorpus(const QString &folder)
{
    QVector<QByteArray> corpus;
    for (const QFileInfo &info : QDir(folder).entryInfoList(QDir::Files, QDir::Name)) {
        QFile file(info.filePath());
        if (file.open(QIODevice::ReadOnly))
            corpus << file.readAll();
    }
    return corpus;
}

/// Makes an input and gives it to its reader. False, with a line on standard error, if something is wrong.
bool runInput(const QVector<QVector<QByteArray>> &corpora, quint64 seed, quint64 input)
{
    currentInput = input;
    const int index = onlyTarget < 0 ? int(input % quint64(allTargets().size())) : onlyTarget;
    const Target &target = allTargets().at(index);
    Mutator mutator(seed * 0x9E3779B97F4A7C15 + input * 0xD1B54A32D192ED03);
    alarm(SecondsPerInput);
    const QString complaint = target.run((mutator.*target.make)(corpora.at(index)), mutator);
    alarm(0);
    if (complaint.isEmpty())
        return true;
    std::fprintf(stderr, "%s: %s\n", target.name, qPrintable(complaint));
    nameInput();
    return false;
}

} // namespace

/// halvane_fuzz <folder of sound inputs> <seed> <first input> <count> [<target>]
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    for (int i = 0; i < allTargets().size(); ++i) {
        if (arguments.value(5) == QLatin1String(allTargets().at(i).name)) {
            onlyTarget = i;
            onlyName = allTargets().at(i).name;
        }
    }
    if (arguments.size() < 5 || (arguments.size() > 5 && onlyTarget < 0)) {
        std::fputs("halvane_fuzz <folder of sound inputs> <seed> <first input> <count> [<target>]\n", stderr);
        return 2;
    }
    currentSeed = arguments.at(2).toULongLong();
    const quint64 first = arguments.at(3).toULongLong();
    const quint64 count = arguments.at(4).toULongLong();
    QVector<QVector<QByteArray>> corpora;
    for (const Target &target : allTargets()) {
        corpora << readCorpus(arguments.at(1) + QLatin1Char('/') + QLatin1String(target.name));
        if (corpora.last().isEmpty()) {
            std::fprintf(stderr, "There are no sound inputs for %s.\n", target.name);
            return 2;
        }
    }
    __sanitizer_set_death_callback(nameInput);
    std::signal(SIGALRM, onAlarm);
    QElapsedTimer clock;
    clock.start();
    for (quint64 done = 0; done < count; ++done) {
        if (done % InputsPerMachine == 0)
            freshMachine();
        if (!runInput(corpora, currentSeed, first + done))
            return 1;
    }
    std::printf("%llu inputs of seed %llu, %.1f s: nothing found\n", static_cast<unsigned long long>(count),
                static_cast<unsigned long long>(currentSeed), double(clock.elapsed()) / 1000);
    return 0;
}
