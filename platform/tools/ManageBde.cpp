// SPDX-License-Identifier: GPL-3.0-or-later
#include <QStringList>

#include "platform/PlainText.h"
#include "platform/tools/SystemTools.h"

#include <algorithm>

namespace tools
{

namespace
{

using inventory::Volume;

const QString ManageBdeBanner =
    QStringLiteral("BitLocker Drive Encryption: Configuration Tool version 10.0.22000\r\n"
                   "Copyright (C) 2013 Microsoft Corporation. All rights reserved.\r\n"
                   "\r\n");
const QString Heading = QStringLiteral("Disk volumes that can be protected with\r\n"
                                       "BitLocker Drive Encryption:\r\n");
const QString NotOpened =
    QStringLiteral("ERROR: The volume %1 could not be opened by BitLocker.\r\n"
                   "This may be because the volume does not exist, or because it is not a valid\r\n"
                   "BitLocker volume.\r\n");

constexpr int LabelWidth = 22;
constexpr double Gigabyte = 1024.0 * 1024.0 * 1024.0;

/// What the tool says of a volume in the clear and of a protected one.
struct Row {
    const char *label;
    const char *clear;
    const char *sealed;
};

constexpr Row StateRows[] = {
    {"Conversion Status:", "Fully Decrypted", "Used Space Only Encrypted"},
    {"Percentage Encrypted:", "0.0%", "100.0%"},
    {"Encryption Method:", "None", "XTS-AES 128"},
    {"Protection Status:", "Protection Off", "Protection On"},
    {"Lock Status:", "Unlocked", "Unlocked"},
    {"Identification Field:", "None", "Unknown"},
};

QString line(const char *label, const QString &value)
{
    return QStringLiteral("    %1%2\r\n").arg(QLatin1String(label), -LabelWidth).arg(value);
}

bool canBeProtected(const Volume &volume)
{
    return volume.hasBitLockerLine || volume.type == QLatin1String("fixed") ||
           volume.type == QLatin1String("removable");
}

QString describe(const Volume &volume)
{
    const bool systemVolume = volume.letter == QLatin1Char('C');
    const bool isSealed = volume.hasBitLockerLine && volume.bitLocker != QLatin1String("None");

    QString text = QStringLiteral("Volume %1: [%2]\r\n[%3 Volume]\r\n\r\n")
                       .arg(QString(volume.letter), plaintext::line(volume.label),
                            systemVolume ? QStringLiteral("OS") : QStringLiteral("Data"));
    text +=
        line("Size:", QStringLiteral("%1 GB").arg(static_cast<double>(volume.size) / Gigabyte, 0, 'f', 2));
    if (volume.hasBitLockerLine)
        text += line("BitLocker Version:", volume.bitLocker);
    for (const Row &row : StateRows)
        text += line(row.label, QLatin1String(isSealed ? row.sealed : row.clear));
    if (!systemVolume)
        text += line("Automatic Unlock:", QStringLiteral("Disabled"));
    if (!isSealed)
        return text + line("Key Protectors:", QStringLiteral("None Found")) + QLatin1String("\r\n");
    return text + QStringLiteral("    Key Protectors:\r\n        %1\r\n        Numerical Password\r\n\r\n")
                      .arg(systemVolume ? QStringLiteral("TPM") : QStringLiteral("Password"));
}

} // namespace

QByteArray manageBde(const inventory::Machine &machine, const QStringList &arguments)
{
    if (arguments.isEmpty() || arguments.first().compare(QLatin1String("-status"), Qt::CaseInsensitive) != 0)
        return {};

    const QString wanted = arguments.value(1);
    QString blocks;
    for (const Volume &volume : machine.volumes) {
        const QString name = QString(volume.letter) + QLatin1Char(':');
        const bool asked = wanted.isEmpty() || wanted.compare(name, Qt::CaseInsensitive) == 0;
        if (asked && canBeProtected(volume))
            blocks += describe(volume);
    }
    if (blocks.isEmpty() && !wanted.isEmpty())
        return (ManageBdeBanner + NotOpened.arg(wanted)).toLocal8Bit();
    return (ManageBdeBanner + Heading + blocks + QLatin1String("\r\n")).toLocal8Bit();
}

} // namespace tools
