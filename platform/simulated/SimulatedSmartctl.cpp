// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/SimulatedSmartctl.h"

#include "platform/OwnFiles.h"
#include "platform/simulated/SelfTestText.h"

#include <QDateTime>
#include <QLocale>
#include <QMutexLocker>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace simulated
{
namespace
{

const QByteArray banner = "smartctl 7.4 2023-08-01 r5530 [x86_64-w64-mingw32-w10-b19045] (sf-7.4-1)\n"
                          "Copyright (C) 2002-23, Bruce Allen, Christian Franke, www.smartmontools.org\n\n";
const QByteArray seeHelp = "\nUse smartctl -h to get a usage summary\n\n";
const QByteArray testSection = "=== START OF OFFLINE IMMEDIATE AND SELF-TEST SECTION ===\n";
const QByteArray noTestsLogged = "=== START OF READ SMART DATA SECTION ===\n"
                                 "SMART Self-test log structure revision number 1\n"
                                 "No self-tests have been logged.  [To run self-tests, use: smartctl -t]\n\n";

} // namespace

SimulatedSmartctl::SimulatedSmartctl(const PcDescription &pc, const Presence &presence,
                                     const QString &stateFile, Clock clock, Clock age)
    : m_pc(pc), m_presence(presence), m_tests(stateFile, clock), m_clock(std::move(clock)),
      m_age(std::move(age))
{
}

const ReportChange *SimulatedSmartctl::lastChange(int disk, bool (*names)(const ReportChange &)) const
{
    const ReportChange *last = nullptr;
    const qint64 age = m_age();
    for (const ReportChange &change : m_pc.reportChanges) {
        if (change.afterSeconds * 1000 <= age && change.disk == disk && names(change))
            last = &change;
    }
    return last;
}

bool SimulatedSmartctl::isAsleep(const Disk &disk) const
{
    const ReportChange *change =
        lastChange(disk.record.number, [](const ReportChange &each) { return each.asleep.has_value(); });
    return change ? *change->asleep : disk.asleep;
}

QString SimulatedSmartctl::reportFile(const Disk &disk, int run) const
{
    const ReportChange *change =
        lastChange(disk.record.number, [](const ReportChange &each) { return !each.report.isEmpty(); });
    if (change)
        return change->report;
    return disk.reports.isEmpty() ? QString() : disk.reports.at(std::min(run, disk.reports.size() - 1));
}

SimulatedSmartctl::Request SimulatedSmartctl::parse(const QStringList &arguments)
{
    Request request;
    const auto refuse = [&request](const QString &option, const QString &value) {
        request.wrong = value.isNull() ? "=======> UNRECOGNIZED OPTION: " + option.mid(1).toLocal8Bit() + "\n"
                                       : "=======> INVALID ARGUMENT TO " + option.toLocal8Bit() + ": " +
                                             value.toLocal8Bit() + "\n";
    };
    for (int i = 0; i < arguments.size() && request.wrong.isEmpty(); ++i) {
        const QString &word = arguments.at(i);
        if (!word.startsWith(QLatin1Char('-'))) {
            request.devices.append(word);
        } else if (word == QLatin1String("-a") || word == QLatin1String("--all")) {
            request.report = true;
        } else if (word == QLatin1String("-c")) {
            request.capabilities = true;
        } else if (word == QLatin1String("-X")) {
            request.abort = true;
        } else if (word == QLatin1String("-d") || word == QLatin1String("-l") ||
                   word == QLatin1String("-n") || word == QLatin1String("-t")) {
            const QString value = arguments.value(++i, QStringLiteral(""));
            const bool test = word == QLatin1String("-t");
            if (test && (value == QLatin1String("short") || value == QLatin1String("long")))
                request.test = value;
            else if (word == QLatin1String("-l") && value == QLatin1String("selftest"))
                request.log = true;
            else if (word == QLatin1String("-n") && value == QLatin1String("standby"))
                request.unlessAsleep = true;
            else if (word != QLatin1String("-d") || value.isEmpty())
                refuse(word, value);
        } else {
            refuse(word, QString());
        }
    }
    return request;
}

const Disk *SimulatedSmartctl::diskOf(const QString &device) const
{
    static const QRegularExpression name(QStringLiteral("^/dev/sd([a-z])$"));
    const QRegularExpressionMatch match = name.match(device);
    const int number = match.hasMatch() ? match.captured(1).at(0).unicode() - u'a' : -1;
    return m_presence.hasDisk(number) ? m_pc.disk(number) : nullptr;
}

QByteArray SimulatedSmartctl::run(const QStringList &arguments)
{
    const Request request = parse(arguments);
    if (!request.wrong.isEmpty())
        return banner + request.wrong + seeHelp;
    if (request.devices.size() != 1) {
        return banner +
               (request.devices.isEmpty()
                    ? QByteArray(
                          "ERROR: smartctl requires a device name as the final command-line argument.\n")
                    : "ERROR: smartctl takes ONE device name as the final command-line argument.\n" +
                          QByteArray("You have provided ") + QByteArray::number(request.devices.size()) +
                          " device names:\n" + request.devices.join(QLatin1Char('\n')).toLocal8Bit() + '\n') +
               seeHelp;
    }
    const QString &device = request.devices.first();
    const Disk *disk = diskOf(device);
    if (disk == nullptr) {
        return banner +
               (device.startsWith(QLatin1String("/dev/"))
                    ? "Smartctl open device: " + device.toLocal8Bit() + " failed: No such file or directory\n"
                    : device.toLocal8Bit() + ": Unable to detect device type\n" +
                          "Please specify device type with the -d option.\n" + seeHelp);
    }
    if (request.unlessAsleep && isAsleep(*disk))
        return banner + "Device is in STANDBY mode, exit(2)\n";
    const QMutexLocker lock(&m_mutex);
    QByteArray output;
    if (request.report)
        output += report(*disk);
    if (request.capabilities)
        output += m_tests.applyTo(disk->record.number, ownfiles::contents(disk->capabilities));
    if (request.log)
        output += log(*disk);
    if (request.abort)
        output += abortTest(*disk);
    if (!request.test.isEmpty())
        output += startTest(*disk, request.test);
    return output;
}

QByteArray SimulatedSmartctl::report(const Disk &disk)
{
    const int run = m_runs[disk.record.number]++;
    return m_tests.applyTo(disk.record.number, ownfiles::contents(reportFile(disk, run)));
}

QByteArray SimulatedSmartctl::log(const Disk &disk)
{
    QByteArray text = ownfiles::contents(disk.selfTestLog);
    if (disk.selfTestLog.isEmpty() && !disk.capabilities.isEmpty())
        text = banner + noTestsLogged;
    return m_tests.applyTo(disk.record.number, text);
}

QByteArray SimulatedSmartctl::startTest(const Disk &disk, const QString &test)
{
    const QByteArray capabilities = ownfiles::contents(disk.capabilities);
    const bool isLong = test == QLatin1String("long");
    const QByteArray command = QByteArray("\"Execute SMART ") + (isLong ? "Extended" : "Short") +
                               " self-test routine immediately in off-line mode\"";
    // "No Self-test supported." is what a drive without them says.
    static const QRegularExpression supported(QStringLiteral("(?<!No )Self-test supported\\."));
    if (!supported.match(QString::fromLatin1(capabilities)).hasMatch())
        return banner + testSection +
               "Warning: device does not support Self-Test functions.\n\nSending command: " + command +
               ".\nCommand " + command + " failed: Input/output error\n";
    if (const std::optional<int> left = m_tests.remaining(disk.record.number))
        return banner + testSection + "Can't start self-test without aborting current test (" +
               QByteArray::number(*left) + "0% remaining),\n" +
               "add '-t force' option to override, or run 'smartctl -X' to abort test.\n";
    const int minutes = selftext::pollingMinutes(capabilities, isLong ? "Extended" : "Short").value_or(0);
    SelfTestRun run;
    run.kind = isLong ? QStringLiteral("Extended offline") : QStringLiteral("Short offline");
    run.end = disk.selfTestEnd;
    run.duration = static_cast<qint64>(minutes * m_pc.secondsPerMinute * 1000.0);
    run.hours =
        selftext::powerOnHours(ownfiles::contents(reportFile(disk, m_runs.value(disk.record.number))));
    constexpr int readFailure = 7;
    run.lba = run.end.status == readFailure && !disk.bad.isEmpty() ? QString::number(disk.bad.lowest())
                                                                   : QStringLiteral("-");
    m_tests.start(disk.record.number, run);
    const QDateTime end = QDateTime::fromMSecsSinceEpoch(m_clock() + qint64(minutes) * 60000);
    return banner + testSection + "Sending command: " + command + ".\nDrive command " + command +
           " successful.\nTesting has begun.\nPlease wait " + QByteArray::number(minutes) +
           " minutes for test to complete.\nTest will complete after " +
           QLocale::c().toString(end, QStringLiteral("ddd MMM d HH:mm:ss yyyy t")).toLocal8Bit() +
           "\nUse smartctl -X to abort test.\n";
}

QByteArray SimulatedSmartctl::abortTest(const Disk &disk)
{
    m_tests.abort(disk.record.number);
    return banner + testSection + "Sending command: \"Abort SMART off-line mode self-test routine\".\n" +
           "Self-testing aborted!\n";
}

} // namespace simulated
