// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/tools/MasterBootRecord.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <limits>

namespace mbr
{

namespace
{

constexpr int DiskSignatureAt = 440;
constexpr int TableAt = 446;
constexpr int EntrySize = 16;
constexpr int EntryCount = 4;
constexpr int PlaceSize = 3;
constexpr int FirstPlaceAt = 1; ///< within an entry, as all that follow
constexpr int TypeAt = 4;
constexpr int LastPlaceAt = 5;
constexpr int FirstAt = 8;
constexpr int CountAt = 12;
constexpr int MarkAt = 510;
constexpr quint16 Mark = 0xAA55;
constexpr char InstallableFileSystem = 0x07;
constexpr quint64 FirstPartitionByte = 1024 * 1024;

constexpr quint32 Heads = 255;
constexpr quint32 SectorsPerTrack = 63;
constexpr quint32 LastCylinder = 1023;

template<typename Number>
void put(QByteArray &record, int at, Number number)
{
    std::array<char, sizeof(Number)> bytes;
    qToLittleEndian(number, bytes.data());
    record.replace(at, int{sizeof(Number)}, bytes.data(), int{sizeof(Number)});
}

/// Cylinder, head and sector of a place as the entry packs them; the farthest one for what lies beyond.
QByteArray placeOf(quint64 sector)
{
    const quint64 cylinder = sector / (Heads * SectorsPerTrack);
    if (cylinder > LastCylinder)
        return QByteArrayLiteral("\xFE\xFF\xFF");
    QByteArray place;
    place.append(static_cast<char>(sector / SectorsPerTrack % Heads));
    place.append(static_cast<char>((sector % SectorsPerTrack + 1) | (cylinder >> 8 << 6)));
    place.append(static_cast<char>(cylinder & 0xFF));
    return place;
}

} // namespace

bool hasTable(const QByteArray &record)
{
    return record.size() >= RecordSize && qFromLittleEndian<quint16>(record.constData() + MarkAt) == Mark;
}

bool hasPartitions(const QByteArray &record)
{
    if (!hasTable(record))
        return false;
    for (int entry = 0; entry < EntryCount; ++entry) {
        if (record.at(TableAt + entry * EntrySize + TypeAt) != 0)
            return true;
    }
    return false;
}

QByteArray emptyTable(quint32 diskSignature)
{
    QByteArray record(RecordSize, '\0');
    put(record, DiskSignatureAt, diskSignature);
    put(record, MarkAt, Mark);
    return record;
}

QByteArray withOnePartition(QByteArray record, quint64 diskSectors, quint32 sectorBytes)
{
    const quint64 first = FirstPartitionByte / sectorBytes;
    if (diskSectors <= first)
        return {};
    const quint64 count = std::min<quint64>(diskSectors - first, std::numeric_limits<quint32>::max());
    record[TableAt + TypeAt] = InstallableFileSystem;
    record.replace(TableAt + FirstPlaceAt, PlaceSize, placeOf(first));
    record.replace(TableAt + LastPlaceAt, PlaceSize, placeOf(first + count - 1));
    put(record, TableAt + FirstAt, static_cast<quint32>(first));
    put(record, TableAt + CountAt, static_cast<quint32>(count));
    return record;
}

} // namespace mbr
