// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/tools/DiskWords.h"

#include <array>

namespace tools
{

namespace
{

struct BusWords {
    const char *interfaceType;
    const char *modelWord;
};

/// In the order of Bus.
constexpr std::array<BusWords, 6> Buses{
    {{"IDE", "ATA"}, {"USB", "USB"}, {"SCSI", "NVM"}, {"SCSI", "SAS"}, {"SD", "MMC"}, {"SCSI", "HDD"}}};

const BusWords &wordsOf(Bus bus)
{
    return Buses.at(static_cast<std::size_t>(bus));
}

struct GptType {
    QUuid type;
    const char *words;
};

struct MbrType {
    quint8 type;
    const char *words;
};

constexpr MbrType MbrTypes[] = {
    {0x01, "12-bit FAT"},
    {0x02, "Xenix Type 1"},
    {0x03, "Xenix Type 2"},
    {0x04, "16-bit FAT"},
    {0x05, "Extended Partition"},
    {0x06, "MS-DOS V4 Huge"},
    {0x07, "Installable File System"},
    {0x0B, "Win95 w/Extended Int 13"},
    {0x0C, "Win95 w/Extended Int 13"},
    {0x0E, "Win95 w/Extended Int 13"},
    {0x0F, "Extended w/Extended Int 13"},
    {0x41, "PowerPC Reference Platform"},
    {0x42, "Logical Disk Manager"},
    {0x63, "UNIX"},
};

} // namespace

QString interfaceWord(Bus bus)
{
    return QLatin1String(wordsOf(bus).interfaceType);
}

QString diskModel(const QString &vendor, const QString &product, const QString &name, Bus bus)
{
    const QString maker = vendor.simplified();
    QString model = product.simplified();
    // A vendor is left out if it is the name of a bus, the number of a virtual disk, or the begin of the
    // product.
    const bool isMaker = !maker.isEmpty() && maker != QLatin1String("ATA") &&
                         maker != QLatin1String("NVMe") && !maker.startsWith(QLatin1String("0x")) &&
                         !model.startsWith(maker, Qt::CaseInsensitive);
    if (model.isEmpty())
        model = name;
    else if (isMaker)
        model = maker + QLatin1Char(' ') + model;
    return QStringLiteral("%1 %2 Device").arg(model, QLatin1String(wordsOf(bus).modelWord));
}

const QStringList &volumeTypes()
{
    static const QStringList types{QStringLiteral("unknown"),   QStringLiteral("noroot"),
                                   QStringLiteral("removable"), QStringLiteral("fixed"),
                                   QStringLiteral("remote"),    QStringLiteral("cdrom"),
                                   QStringLiteral("ramdisk")};
    return types;
}

QString gptPartitionType(const QUuid &type)
{
    static const QUuid reserved(QStringLiteral("{e3c9e316-0b5c-4db8-817d-f92df00215ae}"));
    static const std::array<GptType, 4> types{
        {{QUuid(QStringLiteral("{c12a7328-f81f-11d2-ba4b-00a0c93ec93b}")), "System"},
         {QUuid(QStringLiteral("{ebd0a0a2-b9e5-4433-87c0-68b6b72699c7}")), "Basic Data"},
         {QUuid(QStringLiteral("{5808c8aa-7e8f-42e0-85d2-e1e90434cfb3}")), "Logical Disk Manager Metadata"},
         {QUuid(QStringLiteral("{af9b60a0-1431-4f62-bc68-3311714a69ad}")), "Logical Disk Manager Data"}}};
    if (type == reserved || type.isNull())
        return QString();
    for (const GptType &known : types) {
        if (known.type == type)
            return QLatin1String("GPT: ") + QLatin1String(known.words);
    }
    return QStringLiteral("GPT: Unknown");
}

QString mbrPartitionType(quint8 type)
{
    if (type == 0)
        return QString();
    for (const MbrType &known : MbrTypes) {
        if (known.type == type)
            return QLatin1String(known.words);
    }
    return QStringLiteral("Unknown");
}

} // namespace tools
