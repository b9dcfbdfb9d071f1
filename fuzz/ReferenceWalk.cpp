// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/ReferenceWalk.h"

#include "tests/support/HandMadeDisk.h"

namespace
{

template<typename Number>
Number at(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

} // namespace

bool ReferenceWalk::readable(quint64 sector) const
{
    return sector < (quint64(m_disk.size()) + 511) / 512;
}

/// Reads behind the disk's end give zeros.
QByteArray ReferenceWalk::read(quint64 sector, int bytes) const
{
    const QByteArray there = m_disk.mid(int(sector) * 512, bytes);
    return there + QByteArray(bytes - there.size(), '\0');
}

void ReferenceWalk::scan(quint32 sector)
{
    if (m_seen.contains(sector) || !readable(sector))
        return;
    m_seen.insert(sector);
    QByteArray table = read(sector, 512);
    for (int i = 0; i < 4; ++i) {
        const int slot = 446 + 16 * i;
        const auto kind = quint8(table.at(slot + 4));
        const auto first = at<quint32>(table, slot + 8);
        if (kind == 5 || kind == 15) {
            const quint32 before = m_currentBase;
            m_currentBase = (m_extendedBase == 0 ? m_currentBase : m_extendedBase) + first;
            if (m_extendedBase == 0)
                m_extendedBase = first;
            scan(m_currentBase);
            m_currentBase = before;
        } else if (kind == 131) {
            const quint64 start = quint64(first) + m_currentBase;
            const auto count = at<quint32>(table, slot + 12);
            m_found << Partition{start, count, start + count};
        } else if (kind == 238 && sector == 0 && !scanGpt(&table)) {
            return;
        }
    }
}

bool ReferenceWalk::scanGpt(QByteArray *table)
{
    if (!readable(1))
        return false;
    *table = read(1, 512);
    if (!table->startsWith("EFI PART"))
        return true;
    for (quint64 sector = 2; sector <= 62; ++sector) {
        if (!readable(sector))
            return false;
        const QByteArray entries = read(sector, 512);
        if (entries == QByteArray(512, '\0'))
            return true;
        for (int i = 0; i < 4; ++i)
            takeGptEntry(entries.mid(128 * i, 128));
    }
    return true;
}

void ReferenceWalk::takeGptEntry(const QByteArray &entry)
{
    const auto first = at<quint64>(entry, 32);
    const auto last = at<quint64>(entry, 40);
    if (entry.startsWith(HandMadeDisk::basicData())) {
        if (!readable(first))
            return;
        const QByteArray start = read(first, 1536);
        const QByteArray name = start.mid(3, 8);
        if (name.startsWith("NTFS") || name.startsWith("MS") || name.startsWith("EXFAT") ||
            start.mid(1080, 2) != "\x53\xEF")
            return;
    } else if (!entry.startsWith(HandMadeDisk::linuxData())) {
        return;
    }
    m_found << Partition{first, last - first + 1, last};
}
