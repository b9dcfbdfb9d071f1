// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/PartitionWalk.h"

#include "inventory/BootSector.h"

#include <QSet>
#include <QtEndian>

#include <cstring>
#include <vector>

namespace
{

using bootsector::Sector;

constexpr int TableOffset = 446;
constexpr int SlotCount = 4;
constexpr int SlotSize = 16;
constexpr int SlotTypeOffset = 4;
constexpr int SlotFirstOffset = 8;
constexpr int SlotCountOffset = 12;

constexpr quint8 ExtendedType = 5;
constexpr quint8 ExtendedLbaType = 15;
constexpr quint8 GptType = 238;

constexpr quint64 GptHeaderSector = 1;
constexpr quint64 GptArraySector = 2;
constexpr quint64 GptArrayLimit = 63; ///< not looked at any more
constexpr int GptEntrySize = 128;
constexpr int GptFirstOffset = 32;
constexpr int GptLastOffset = 40;

/// Type GUIDs as their bytes stand on disk.
constexpr char LinuxData[] = "\xAF\x3D\xC6\x0F\x83\x84\x72\x47\x8E\x79\x3D\x69\xD8\x47\x7D\xE4";
constexpr char BasicData[] = "\xA2\xA0\xD0\xEB\xE5\xB9\x33\x44\x87\xC0\x68\xB6\xB7\x26\x99\xC7";

bool isOfType(const unsigned char *entry, const char *type)
{
    return std::memcmp(entry, type, 16) == 0;
}

/// The walk of one disk. A table whose extended entry is being followed waits in m_open, so that a long chain
/// takes heap and not stack.
class Walk
{
public:
    explicit Walk(int driveCode) : m_drive(driveCode) {}
    void run(quint64 sector);

private:
    struct Table {
        quint64 sector = 0;
        Sector bytes{};
        int next = SlotCount;      ///< slot to look at; a table that is not taken in counts as one without
        quint32 baseToRestore = 0; ///< currentBase of the table that led here
    };

    void open(quint64 sector, quint32 baseToRestore);
    void close();
    void takeSlot(int index);
    void follow(quint32 first);
    bool takeGpt(Table *table);
    void takeGptEntry(const unsigned char *entry);
    bool read(quint64 sector, Sector *bytes) const
    {
        return ReadWriteSectors(m_drive, sector, bytes->data(), SectorSize);
    }
    void add(quint64 start, quint64 count, quint64 end) const;

    int m_drive;
    std::vector<Table> m_open;
    QSet<quint64> m_seen; ///< sectors of the tables taken in
};

void Walk::run(quint64 sector)
{
    open(sector, g_partitionWalk.currentBase);
    while (!m_open.empty()) {
        if (m_open.back().next < SlotCount)
            takeSlot(m_open.back().next++);
        else
            close();
    }
}

void Walk::open(quint64 sector, quint32 baseToRestore)
{
    Table table;
    table.sector = sector;
    table.baseToRestore = baseToRestore;
    if (m_seen.size() < MaxPartitionTables && !m_seen.contains(sector)) {
        m_seen.insert(sector);
        if (read(sector, &table.bytes))
            table.next = 0;
    }
    m_open.push_back(table);
}

void Walk::close()
{
    g_partitionWalk.currentBase = m_open.back().baseToRestore;
    m_open.pop_back();
    if (!m_open.empty())
        --g_partitionWalk.walkDepth;
}

void Walk::takeSlot(int index)
{
    Table &table = m_open.back();
    const unsigned char *slot = table.bytes.data() + TableOffset + index * SlotSize;
    const auto first = qFromLittleEndian<quint32>(slot + SlotFirstOffset);
    switch (slot[SlotTypeOffset]) {
    case ExtendedType:
    case ExtendedLbaType:
        follow(first);
        break;
    case LinuxPartitionType: {
        const quint64 start = quint64(first) + g_partitionWalk.currentBase;
        const auto count = qFromLittleEndian<quint32>(slot + SlotCountOffset);
        add(start, count, start + count);
        break;
    }
    case GptType:
        if (table.sector == 0 && !takeGpt(&table))
            table.next = SlotCount;
        break;
    default:
        break;
    }
}

/// Goes to the table of an extended entry. Chained tables count from the outermost extended partition.
void Walk::follow(quint32 first)
{
    PartitionWalkState &state = g_partitionWalk;
    const quint32 before = state.currentBase;
    if (state.extendedBase == 0) {
        state.extendedBase = first;
        state.currentBase += first;
    } else {
        state.currentBase = state.extendedBase + first;
    }
    ++state.walkDepth;
    open(state.currentBase, before);
}

/// False if a sector of the tables cannot be read, which ends the table that led here.
bool Walk::takeGpt(Table *table)
{
    // The header takes the place of the table that led to it: the slots that are left are read from there.
    table->bytes = {};
    if (!read(GptHeaderSector, &table->bytes))
        return false;
    if (std::memcmp(table->bytes.data(), "EFI PART", 8) != 0)
        return true;
    for (quint64 sector = GptArraySector; sector < GptArrayLimit; ++sector) {
        Sector bytes{};
        if (!read(sector, &bytes))
            return false;
        if (bytes == Sector{})
            return true;
        for (int offset = 0; offset < SectorSize; offset += GptEntrySize)
            takeGptEntry(bytes.data() + offset);
    }
    return true;
}

void Walk::takeGptEntry(const unsigned char *entry)
{
    const auto first = qFromLittleEndian<quint64>(entry + GptFirstOffset);
    const auto last = qFromLittleEndian<quint64>(entry + GptLastOffset);
    if (isOfType(entry, BasicData)) {
        // A partition whose start is unreadable or lies behind the disk's end is none of ours; the table that
        // names it is sound, so the walk goes on.
        bootsector::ExtProbe start{};
        if (!ReadWriteSectors(m_drive, first, start.data(), bootsector::ExtProbeSize) ||
            !bootsector::isExt(start))
            return;
    } else if (!isOfType(entry, LinuxData)) {
        return;
    }
    add(first, last - first + 1, last);
}

void Walk::add(quint64 start, quint64 count, quint64 end) const
{
    LinuxPartitionEntry &entry = g_linuxPartitions.append();
    entry.nStartSector = start;
    entry.nSectorCount = count;
    entry.nEndSector = end;
    entry.nType = LinuxPartitionType;
    entry.nDrive = static_cast<quint8>(m_drive);
    ++g_partitionWalk.partitionCount;
}

} // namespace

void ResetPartitionWalk()
{
    g_linuxPartitions.clear();
    g_partitionWalk = PartitionWalkState();
}

void ScanPartitionTable(int driveCode, quint64 sector)
{
    Walk(driveCode).run(sector);
}
