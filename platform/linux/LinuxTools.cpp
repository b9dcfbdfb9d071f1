// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LinuxTools.h"

#include "platform/Log.h"
#include "platform/OwnFiles.h"
#include "platform/tools/SystemTools.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <csignal>
#include <unistd.h>
#include <utility>

namespace linuxtools
{

namespace
{

const QString DevicePrefix = QStringLiteral("/dev/sd");
const QString ImageSuffix = QStringLiteral(".exe");

/// The processes that /proc shows, by number.
QStringList processFolders()
{
    QStringList numbers = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    numbers.erase(std::remove_if(numbers.begin(), numbers.end(),
                                 [](const QString &name) { return !name.at(0).isDigit(); }),
                  numbers.end());
    return numbers;
}

/// The file name of a process's program; the kernel's short name where the program cannot be seen.
QString imageOf(const QString &processNumber)
{
    const QString folder = QStringLiteral("/proc/") + processNumber;
    QString program = QFile::symLinkTarget(folder + QStringLiteral("/exe"));
    // An update has replaced the file of a process that still runs.
    const QString replaced = QStringLiteral(" (deleted)");
    if (program.endsWith(replaced))
        program.chop(replaced.size());
    if (!program.isEmpty())
        return QFileInfo(program).fileName();
    QFile name(folder + QStringLiteral("/comm"));
    return name.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(name.readAll()).trimmed() : QString();
}

thread_local const Limits *limitsInForce = nullptr;

/// Waits for the end of a process, and ends it where it reaches the limits of this thread. Its standard
/// output, of which no more than ownfiles::MostBytes are kept.
QByteArray outputOf(QProcess *process)
{
    constexpr int StepMs = 200;
    constexpr int KillMs = 2000; // a process that waits for a dead disk may not even end by force
    QByteArray output;
    const auto take = [process, &output] {
        const QByteArray more = process->readAllStandardOutput();
        output += more.left(static_cast<int>(ownfiles::MostBytes) - output.size());
    };
    if (!limitsInForce) {
        while (process->waitForReadyRead(-1))
            take();
        process->waitForFinished(-1);
    } else {
        while (!process->waitForFinished(StepMs) && process->state() != QProcess::NotRunning) {
            take();
            if (limitsInForce->allow())
                continue;
            process->kill();
            process->waitForFinished(KillMs);
            break;
        }
    }
    take();
    return output;
}

} // namespace

Limits::Limits(qint32 milliseconds, std::function<bool()> mayGoOn)
    : m_end(milliseconds), m_mayGoOn(std::move(mayGoOn))
{
    limitsInForce = this;
}

Limits::~Limits()
{
    limitsInForce = nullptr;
}

bool Limits::allow() const
{
    m_reached = m_reached || m_end.hasExpired() || !m_mayGoOn();
    return !m_reached;
}

QStringList systemFolders()
{
    return {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin"), QStringLiteral("/sbin"),
            QStringLiteral("/bin")};
}

QString find(const QString &name)
{
    // The search path may name another user's folders, and a group may write to the folder of local tools.
    if (ownfiles::isElevated())
        return QStandardPaths::findExecutable(name, systemFolders());
    const QString found = QStandardPaths::findExecutable(name);
    // Users other than root often lack these folders in their path.
    return found.isEmpty() ? QStandardPaths::findExecutable(
                                 name, QStringList{QStringLiteral("/usr/local/sbin")} + systemFolders())
                           : found;
}

Ended run(const QString &name, const QStringList &arguments, const QByteArray &input)
{
    const QString program = find(name);
    if (program.isEmpty()) {
        qCDebug(logs::platform, "%s is not installed", qUtf8Printable(name));
        return {};
    }
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    process.setProcessEnvironment(environment);
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    const QByteArray output = outputOf(&process);
    const bool ended =
        process.error() != QProcess::FailedToStart && process.exitStatus() == QProcess::NormalExit;
    qCDebug(logs::platform, "%s with %d words: status %d, %d bytes", qUtf8Printable(name), arguments.size(),
            ended ? process.exitCode() : -1, output.size());
    return {ended && process.exitCode() == 0, output};
}

QStringList processes()
{
    QStringList images;
    for (const QString &number : processFolders()) {
        const QString image = imageOf(number);
        if (!image.isEmpty())
            images.append(image + ImageSuffix);
    }
    return images;
}

QStringList smartctlArguments(const inventory::Machine &machine, const QStringList &arguments)
{
    QStringList translated = arguments;
    for (QString &word : translated) {
        if (!word.startsWith(DevicePrefix))
            continue;
        const int number = word.size() == DevicePrefix.size() + 1 ? word.back().unicode() - 'a' : -1;
        const inventory::Disk *disk = inventory::diskOf(machine, number);
        if (!disk)
            return {};
        word = disk->node;
    }
    return translated;
}

QByteArray smartctl(const inventory::Machine &machine, const QStringList &arguments)
{
    const QStringList words = smartctlArguments(machine, arguments);
    return words.isEmpty() ? QByteArray() : run(QStringLiteral("smartctl"), words).output;
}

QByteArray taskkill(const QStringList &arguments)
{
    QString image = tools::taskkillTarget(arguments);
    if (image.isEmpty())
        return {};
    if (image.endsWith(ImageSuffix, Qt::CaseInsensitive))
        image.chop(ImageSuffix.size());
    const int signalNumber =
        arguments.contains(QStringLiteral("/F"), Qt::CaseInsensitive) ? SIGKILL : SIGTERM;

    QByteArray said;
    for (const QString &number : processFolders()) {
        const pid_t id = number.toInt();
        const bool own = QFileInfo(QStringLiteral("/proc/") + number).ownerId() == geteuid();
        if (id <= 1 || id == getpid() || !own || imageOf(number).compare(image, Qt::CaseInsensitive) != 0)
            continue;
        if (kill(id, signalNumber) == 0)
            said += QStringLiteral("SUCCESS: The process \"%1\" with PID %2 has been terminated.\r\n")
                        .arg(tools::taskkillTarget(arguments))
                        .arg(id)
                        .toLocal8Bit();
    }
    return said;
}

QByteArray shutdown(const QStringList &arguments)
{
    if (arguments.contains(QStringLiteral("/s"), Qt::CaseInsensitive))
        run(QStringLiteral("shutdown"), {QStringLiteral("-h"), QStringLiteral("+1")});
    return {};
}

} // namespace linuxtools
