// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/tools/StorageRecords.h"

#include "platform/tools/DiskWords.h"

#include <QtEndian>

#include <cstring>
#include <map>

namespace storage
{

namespace
{

// STORAGE_DEVICE_DESCRIPTOR
constexpr int RemovableOffset = 10;
constexpr int VendorOffset = 12;
constexpr int ProductOffset = 16;
constexpr int SerialOffset = 24;
constexpr int BusOffset = 28;

// DRIVE_LAYOUT_INFORMATION_EX
constexpr int CountOffset = 4;
constexpr int EntriesOffset = 48;
constexpr int EntryBytes = 144;

// PARTITION_INFORMATION_EX
constexpr int StartOffset = 8;
constexpr int LengthOffset = 16;
constexpr int TypeOffset = 32;
constexpr quint32 MbrStyle = 0;
constexpr quint32 GptStyle = 1;

constexpr int PrimaryEntries = 4;

template<typename Number>
Number numberAt(const QByteArray &record, int offset)
{
    Number bytes = 0;
    if (offset >= 0 && record.size() - offset >= static_cast<int>(sizeof bytes))
        std::memcpy(&bytes, record.constData() + offset, sizeof bytes);
    return qFromLittleEndian(bytes);
}

/// The text that a field of the descriptor leads to; an offset of 0 stands for none.
QString textAt(const QByteArray &descriptor, int field)
{
    const auto offset = numberAt<quint32>(descriptor, field);
    if (offset == 0 || offset >= static_cast<quint32>(descriptor.size()))
        return QString();
    const QByteArray text = descriptor.mid(static_cast<int>(offset));
    return QString::fromLatin1(text.constData(),
                               static_cast<int>(qstrnlen(text.constData(), uint(text.size()))));
}

/// By the numbers of STORAGE_BUS_TYPE.
tools::Bus busOf(quint32 number)
{
    switch (number) {
    case 2:  // ATAPI
    case 3:  // ATA
    case 11: // SATA
        return tools::Bus::Ata;
    case 7:
        return tools::Bus::Usb;
    case 10:
        return tools::Bus::Sas;
    case 12: // SD
    case 13: // MMC
        return tools::Bus::Card;
    case 17:
        return tools::Bus::Nvme;
    default:
        return tools::Bus::Other;
    }
}

bool isContainer(quint8 type)
{
    return type == 0x05 || type == 0x0F;
}

QUuid guidAt(const QByteArray &record, int offset)
{
    const auto part = [&](int at) { return numberAt<quint8>(record, offset + 8 + at); };
    return QUuid(numberAt<quint32>(record, offset), numberAt<quint16>(record, offset + 4),
                 numberAt<quint16>(record, offset + 6), part(0), part(1), part(2), part(3), part(4), part(5),
                 part(6), part(7));
}

/// Null for an entry that is not listed. `place` is the one in the layout, where each table of a chain has
/// four.
QString typeOf(const QByteArray &entry, int place)
{
    const auto style = numberAt<quint32>(entry, 0);
    if (style == GptStyle)
        return tools::gptPartitionType(guidAt(entry, TypeOffset));
    const auto type = numberAt<quint8>(entry, TypeOffset);
    const bool inChain = isContainer(type) && place >= PrimaryEntries;
    return style == MbrStyle && !inChain ? tools::mbrPartitionType(type) : QString();
}

} // namespace

inventory::Disk readDisk(int number, const QByteArray &descriptor)
{
    const tools::Bus bus = busOf(numberAt<quint32>(descriptor, BusOffset));
    inventory::Disk disk;
    disk.number = number;
    disk.media = numberAt<quint8>(descriptor, RemovableOffset) != 0 ? QStringLiteral("removable")
                                                                    : QStringLiteral("fixed");
    disk.model = tools::diskModel(textAt(descriptor, VendorOffset), textAt(descriptor, ProductOffset),
                                  QStringLiteral("Disk %1").arg(number), bus);
    disk.serial = textAt(descriptor, SerialOffset).simplified();
    disk.interfaceType = tools::interfaceWord(bus);
    disk.status = QStringLiteral("OK");
    return disk;
}

QVector<inventory::Partition> readPartitions(int disk, const QByteArray &layout)
{
    std::multimap<quint64, inventory::Partition> byPlace;
    const auto count = numberAt<quint32>(layout, CountOffset);
    const int room = (layout.size() - EntriesOffset) / EntryBytes;
    for (int place = 0; place < room && static_cast<quint32>(place) < count; ++place) {
        const QByteArray entry = layout.mid(EntriesOffset + place * EntryBytes, EntryBytes);
        const QString type = typeOf(entry, place);
        if (!type.isNull())
            byPlace.insert({numberAt<quint64>(entry, StartOffset),
                            {QString(), type, numberAt<quint64>(entry, LengthOffset), disk}});
    }
    QVector<inventory::Partition> partitions;
    for (auto &found : byPlace) {
        found.second.name = QStringLiteral("Disk #%1, Partition #%2").arg(disk).arg(partitions.size());
        partitions.append(found.second);
    }
    return partitions;
}

} // namespace storage
