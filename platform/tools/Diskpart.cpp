// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/tools/Diskpart.h"

#include "platform/OwnFiles.h"

#include <QFile>
#include <QRegularExpression>
#include <QVector>

#include <optional>

namespace tools
{

namespace
{

constexpr qint64 LongestScript = 64 * 1024;

const char DiskpartBanner[] = "\r\nMicrosoft DiskPart version 10.0.22000.1\r\n"
                              "\r\nCopyright (C) Microsoft Corporation.\r\nOn computer: PC\r\n";
const char Usage[] =
    "\r\nMicrosoft DiskPart syntax:\r\n\tdiskpart [/s <script>] [/?]\r\n"
    "\r\n\t/s <script> - Use a DiskPart script.\r\n\t/?          - Show this help screen.\r\n";
const char NoScript[] =
    "\r\nDiskPart has encountered an error: The system cannot find the file specified.\r\n"
    "See the System Event Log for more information.\r\n";
const char CutShort[] = "\r\nDiskPart has encountered an error: Reached the end of the file.\r\n"
                        "See the System Event Log for more information.\r\n";
const char BadLine[] = "\r\nThe arguments specified for this command are not valid.\r\n"
                       "For more information on the command type: HELP %1\r\n";
const char NowSelected[] = "\r\nDisk %1 is now the selected disk.\r\n";
const char NoSuchDisk[] = "\r\nThe disk you specified is not valid.\r\n\r\nThere is no disk selected.\r\n";
const char NothingSelected[] = "\r\nThere is no disk selected.\r\n\r\nSelect a disk and try again.\r\n";
const char Leaving[] = "\r\nLeaving DiskPart...\r\n";

/// A line that acts on the selected disk, and the tool's words when it is done.
struct Action {
    const char *words;
    DiskAction action;
    const char *done;
};

constexpr Action Actions[] = {
    {"online disk", DiskAction::Online, "\r\nDiskPart successfully onlined the selected disk.\r\n"},
    {"clean", DiskAction::Clean, "\r\nDiskPart succeeded in cleaning the disk.\r\n"},
    {"convert mbr", DiskAction::ConvertMbr,
     "\r\nDiskPart successfully converted the selected disk to MBR format.\r\n"},
    {"create partition primary", DiskAction::CreatePrimary,
     "\r\nDiskPart succeeded in creating the specified partition.\r\n"},
    {"rescan", DiskAction::Rescan,
     "\r\nPlease wait while DiskPart scans your configuration...\r\n"
     "\r\nDiskPart has finished scanning your configuration.\r\n"},
};

struct Refusal {
    DiskOutcome outcome;
    const char *text;
};

constexpr Refusal Refusals[] = {
    {DiskOutcome::AlreadyOnline, "\r\nVirtual Disk Service error:\r\nThis disk is already online.\r\n"},
    {DiskOutcome::AccessDenied, "\r\nDiskPart has encountered an error: Access is denied.\r\n"
                                "See the System Event Log for more information.\r\n"},
    {DiskOutcome::DeviceError,
     "\r\nDiskPart has encountered an error: The request could not be performed because of an I/O device "
     "error.\r\nSee the System Event Log for more information.\r\n"},
    {DiskOutcome::SystemDisk,
     "\r\nVirtual Disk Service error:\r\nClean is not allowed on the disk containing the current boot,\r\n"
     "system, pagefile, crashdump or hibernation volume.\r\n"},
    {DiskOutcome::InUse, "\r\nVirtual Disk Service error:\r\nThe device is in use.\r\n"},
    {DiskOutcome::NotEmpty, "\r\nVirtual Disk Service error:\r\nThe disk is not empty.\r\n"},
    {DiskOutcome::NoRoom,
     "\r\nNo usable free extent could be found. It may be that there is insufficient\r\nfree space to create "
     "a partition at the specified size and offset.\r\n"},
};

struct Step {
    enum Kind { Select, Act, Exit } kind = Exit;
    int disk = 0;
    const Action *action = nullptr;
};

std::optional<Step> parseLine(const QString &line)
{
    static const QRegularExpression select(QStringLiteral("^select disk ([0-9]{1,9})$"));
    if (line == QLatin1String("exit"))
        return Step{};
    const QRegularExpressionMatch match = select.match(line);
    if (match.hasMatch())
        return Step{Step::Select, match.captured(1).toInt(), nullptr};
    for (const Action &action : Actions) {
        if (line == QLatin1String(action.words))
            return Step{Step::Act, 0, &action};
    }
    return std::nullopt;
}

/// The steps up to the exit. Without steps `refusal` says why.
QVector<Step> parseScript(const QByteArray &script, QString *refusal)
{
    QVector<Step> steps;
    for (const QString &raw : QString::fromLatin1(script).split(QLatin1Char('\n'))) {
        const QString line = raw.simplified().toLower();
        if (line.isEmpty())
            continue;
        const std::optional<Step> step = parseLine(line);
        if (!step) {
            *refusal = QString::fromLatin1(BadLine).arg(line.section(QLatin1Char(' '), 0, 0).toUpper());
            return {};
        }
        steps.append(*step);
        if (step->kind == Step::Exit)
            return steps;
    }
    *refusal = QLatin1String(CutShort);
    return {};
}

const char *refusalOf(DiskOutcome outcome)
{
    for (const Refusal &refusal : Refusals) {
        if (refusal.outcome == outcome)
            return refusal.text;
    }
    return "";
}

QString runSteps(const QVector<Step> &steps, ScriptedDisks &disks)
{
    QString said;
    std::optional<int> selected;
    for (const Step &step : steps) {
        if (step.kind == Step::Exit)
            return said + QLatin1String(Leaving);
        if (step.kind == Step::Select) {
            if (!disks.has(step.disk))
                return said + QLatin1String(NoSuchDisk);
            selected = step.disk;
            said += QString::fromLatin1(NowSelected).arg(step.disk);
            continue;
        }
        if (!selected)
            return said + QLatin1String(NothingSelected);
        const DiskOutcome outcome = disks.act(step.action->action, *selected);
        if (outcome != DiskOutcome::Done)
            return said + QLatin1String(refusalOf(outcome));
        said += QLatin1String(step.action->done);
    }
    return said;
}

} // namespace

QByteArray diskpart(const QStringList &arguments, const std::function<QString(const QString &)> &nativePath,
                    ScriptedDisks &disks)
{
    if (arguments.size() != 2 || arguments.first().compare(QLatin1String("/s"), Qt::CaseInsensitive) != 0)
        return QByteArray(DiskpartBanner) + Usage;
    QFile file;
    if (!ownfiles::openRegular(&file, nativePath(arguments.last()), QIODevice::ReadOnly) ||
        file.size() > LongestScript)
        return QByteArray(DiskpartBanner) + NoScript;
    QString said;
    const QVector<Step> steps = parseScript(file.readAll(), &said);
    // Other programs may want the file while the tool works.
    file.close();
    if (!steps.isEmpty())
        said = runSteps(steps, disks);
    return DiskpartBanner + said.toLatin1();
}

} // namespace tools
