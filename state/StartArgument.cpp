// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/StartArgument.h"

#include <QStringList>

namespace startargument
{

bool asksForClone(const QString &argument)
{
    return argument.contains(QLatin1String("CloneDisk"));
}

std::optional<QString> cloneDiskText(const QString &argument)
{
    if (!asksForClone(argument))
        return std::nullopt;
    const QStringList parts = argument.split(QStringLiteral("####"), Qt::SkipEmptyParts);
    return parts.size() > 1 ? std::optional<QString>(parts.at(1)) : std::nullopt;
}

const QString ForSettings = QStringLiteral("Settings");

QString forDisk(int number)
{
    return QStringLiteral("Disk####%1").arg(number);
}

std::optional<int> diskNumber(const QString &argument)
{
    const QString begin = QStringLiteral("Disk####");
    bool isNumber = false;
    const int number = argument.mid(begin.size()).toInt(&isNumber);
    return argument.startsWith(begin) && isNumber && number >= 0 ? std::optional<int>(number) : std::nullopt;
}

bool matchesDisk(const QString &itemText, const QString &diskText)
{
    QString compact = itemText;
    compact.remove(QLatin1Char(' '));
    return compact.compare(diskText, Qt::CaseInsensitive) == 0;
}

} // namespace startargument
