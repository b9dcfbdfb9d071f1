// SPDX-License-Identifier: GPL-3.0-or-later
#include <QStringList>

#include "platform/tools/SystemTools.h"

#include <algorithm>

namespace tools
{

namespace
{

constexpr int ImageNameWidth = 25;

/// Rows of the task list start after the identifiers that the system itself takes.
constexpr int FirstProcessId = 1024;
constexpr int ProcessIdStep = 148;

QString memoryUsage(int row)
{
    // Only the shape counts: some thousands of KB with a grouping comma.
    const int kilobytes = 4096 + (row * 7919) % 61440;
    return QStringLiteral("%1,%2 K").arg(kilobytes / 1000).arg(kilobytes % 1000, 3, 10, QLatin1Char('0'));
}

int processId(const QString &image, int row)
{
    if (image == QLatin1String("System Idle Process"))
        return 0;
    if (image == QLatin1String("System"))
        return 4;
    return FirstProcessId + row * ProcessIdStep;
}

QString taskRow(const QString &image, int row)
{
    const int id = processId(image, row);
    const bool service = id < FirstProcessId;
    return QStringLiteral("%1 %2 %3 %4 %5\r\n")
        .arg(image.left(ImageNameWidth), -ImageNameWidth)
        .arg(id, 8)
        .arg(service ? QStringLiteral("Services") : QStringLiteral("Console"), -16)
        .arg(service ? 0 : 1, 11)
        .arg(memoryUsage(row), 12);
}

} // namespace

QByteArray tasklist(const inventory::Machine &machine)
{
    QString text =
        QStringLiteral("\r\n"
                       "Image Name                     PID Session Name        Session#    Mem Usage\r\n"
                       "========================= ======== ================ =========== ============\r\n");
    for (int row = 0; row < machine.processes.size(); ++row)
        text += taskRow(machine.processes.at(row), row);
    return text.toLocal8Bit();
}

QByteArray findstr(const QStringList &arguments, const QByteArray &input)
{
    const auto isSwitch = [](const QString &word) { return word.startsWith(QLatin1Char('/')); };
    const auto wanted = std::find_if_not(arguments.cbegin(), arguments.cend(), isSwitch);
    if (wanted == arguments.cend())
        return {};

    const QByteArray needle = wanted->toLocal8Bit();
    QByteArray found;
    for (QByteArray line : input.split('\n')) {
        if (line.endsWith('\r'))
            line.chop(1);
        if (line.contains(needle))
            found += line + "\r\n";
    }
    return found;
}

QString taskkillTarget(const QStringList &arguments)
{
    for (int i = 0; i + 1 < arguments.size(); ++i) {
        if (arguments.at(i).compare(QLatin1String("/IM"), Qt::CaseInsensitive) == 0)
            return arguments.at(i + 1);
    }
    return {};
}

} // namespace tools
