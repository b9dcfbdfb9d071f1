// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/CommandLine.h"

#include "companion/Resident.h"
#include "inventory/Companion.h"
#include "monitor/Monitor.h"
#include "monitor/PcCollection.h"
#include "platform/NativePlatform.h"
#include "state/GlobalApp.h"
#include "state/Product.h"
#include "state/Startup.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

namespace commandline
{

namespace
{

constexpr int NothingRead = 3;
constexpr int NoDiskCollected = 1;
const QString Anonymous = QStringLiteral("--anonymous");

constexpr char Usage[] = "Usage: %1 [--once [--json | --metrics] | --collect DIR [--anonymous] |\n"
                         "          --version | --help]\n"
                         "\n"
                         "Without an argument it watches the disks of this PC from the tray.\n"
                         "  --once     read every disk once, without waking it, and print a table\n"
                         "  --json     with --once: print one JSON object\n"
                         "  --metrics  with --once: print the metrics for Prometheus\n"
                         "  --collect  write into the new folder DIR what the program reads of this PC,\n"
                         "             as a described PC: reports, tables, layout; no content of disks.\n"
                         "             The files belong to who runs this, and so has all above DIR, or to\n"
                         "             the system: root takes /root/case, an administrator C:\\case\n"
                         "  --anonymous  with --collect: replace serial numbers, other numbers of disks and\n"
                         "             volumes, and the user's name\n"
                         "  --version  print the version\n"
                         "  --help     print this text\n"
                         "Exit code of --collect: 0 done, 1 written, but no disk could be read,\n"
                         "3 it could not be written.\n"
                         "Exit code of --once: 0 all in order, 1 something needs attention,\n"
                         "2 a disk is failing, 3 nothing could be read,\n"
                         "4 HALVANE_PC describes no PC.\n";

void print(const QByteArray &text, FILE *stream = stdout)
{
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stream);
}

int readOnce(Wish wish)
{
    if (!hasTempFolder())
        return NothingRead;
    const QDateTime now = Platform::current().Now();
    ToolUse tool;
    const std::vector<DiskSummary> disks = Monitor::once(now, &tool);
    if (wish == Wish::OnceJson)
        print(once::json(disks, QLatin1String(product::Version), now));
    else if (wish == Wish::Once)
        print(once::table(disks, WatchSettings::load().fahrenheit).toLocal8Bit());
    else if (!disks.empty()) // without disks, as where the turn did not come, an older text says more
        print(metrics::text(disks, metrics::volumes(), tool, now));
    return once::exitCode(disks);
}

int collectInto(const QStringList &arguments)
{
    // Before the program goes to its own folder.
    const QString folder = QDir::cleanPath(QDir().absoluteFilePath(arguments.at(2)));
    startup::readSettings();
    startup::readMachine();
    if (!hasTempFolder())
        return NothingRead;
    bool sawDisk = false;
    const QString wrong = collection::collect(folder, arguments.last() == Anonymous, &sawDisk);
    if (wrong.isEmpty() && !sawDisk)
        print("No disk could be read: only root, or an administrator, may do so.\n", stderr);
    if (wrong.isEmpty())
        return sawDisk ? 0 : NoDiskCollected;
    print((wrong + QLatin1Char('\n')).toLocal8Bit(), stderr);
    // A file in it that cannot be written has another reason, such as a full disk.
    if (!wrong.startsWith(folder + QLatin1Char('/')))
        print("A case is kept where no other user can read or change it: name a new folder such as "
              "/root/case or C:\\case.\n",
              stderr);
    return NothingRead;
}

int answer(Wish wish, int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (wish == Wish::Collect)
        return collectInto(application.arguments());
    if (wish == Wish::Once || wish == Wish::OnceJson || wish == Wish::OnceMetrics) {
        startup::readSettings();
        startup::readMachine();
        return readOnce(wish);
    }
    if (wish == Wish::Version) {
        print((companion::taskName() + QLatin1Char(' ') + QLatin1String(product::Version) + QLatin1Char('\n'))
                  .toUtf8());
        return 0;
    }
    const bool unknown = wish == Wish::Unknown;
    print(QString::fromLatin1(Usage).arg(companion::taskName()).toUtf8(), unknown ? stderr : stdout);
    return unknown ? NothingRead : 0;
}

} // namespace

Wish wishOf(const QStringList &arguments)
{
    const auto is = [&arguments](std::initializer_list<const char *> words) {
        QStringList wanted;
        for (const char *word : words)
            wanted << QLatin1String(word);
        return arguments == wanted;
    };
    if (arguments.isEmpty() || is({"Schedular"}))
        return Wish::Watch;
    if (is({"--once"}))
        return Wish::Once;
    if (is({"--once", "--json"}) || is({"--json", "--once"}))
        return Wish::OnceJson;
    if (is({"--once", "--metrics"}) || is({"--metrics", "--once"}))
        return Wish::OnceMetrics;
    const bool isFolder = arguments.size() > 1 && !arguments.at(1).startsWith(QLatin1Char('-'));
    if (isFolder && arguments.first() == QLatin1String("--collect") &&
        (arguments.size() == 2 || arguments.mid(2) == QStringList(Anonymous)))
        return Wish::Collect;
    if (is({"--version"}))
        return Wish::Version;
    return is({"--help"}) || is({"-h"}) ? Wish::Help : Wish::Unknown;
}

int run(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const Wish wish = wishOf(arguments);
    if (wish == Wish::Watch)
        return runResident(argc, argv);
    useConsole();
    // The texts name the companion as its brand does, also where no setting is read.
    g_App.m_bKorvaneBrand = product::SecondBrand;
    return answer(wish, argc, argv);
}

} // namespace commandline
