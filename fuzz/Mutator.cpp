// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/Mutator.h"

#include "tests/support/HandMadeDisk.h"

#include <array>

namespace
{

constexpr int SectorSize = 512;
constexpr int MostChanges = 8;

} // namespace

/// The sequence of splitmix64.
quint64 Mutator::next()
{
    m_state += 0x9E3779B97F4A7C15;
    quint64 value = m_state;
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EB;
    return value ^ (value >> 31);
}

quint64 Mutator::below(quint64 end)
{
    return end == 0 ? 0 : next() % end;
}

/// A number for a table: mostly a sector of the disk, else one at a limit.
quint64 Mutator::number(quint64 sectors)
{
    static constexpr std::array<quint64, 12> borders{
        0,           1,           0x7FFFFFFF,         0x80000000,         0xFFFFFFFE, 0xFFFFFFFF,
        0x100000000, quint64(-1), 0x7FFFFFFFFFFFFFFF, 0x8000000000000000, 1ULL << 55, (1ULL << 55) - 1};
    switch (below(6)) {
    case 0:
        return borders[below(borders.size())];
    case 1:
        return next();
    case 2:
        return sectors - below(4);
    default:
        return below(sectors);
    }
}

/// A place with `room` bytes behind it; 0 if there is none.
int Mutator::place(const QByteArray &bytes, int room)
{
    return int(below(quint64(qMax(0, bytes.size() - room) + 1)));
}

const QByteArray &Mutator::pick(const QVector<QByteArray> &corpus)
{
    return corpus.at(int(below(quint64(corpus.size()))));
}

void Mutator::changeBytes(QByteArray *bytes)
{
    if (bytes->size() < 16)
        return;
    switch (below(5)) {
    case 0:
        (*bytes)[place(*bytes, 1)] = char(next());
        break;
    case 1: {
        const int at = place(*bytes, 1);
        (*bytes)[at] = char(bytes->at(at) ^ (1 << below(8)));
        break;
    }
    case 2:
        HandMadeDisk::putNumber(bytes, place(*bytes, 8), number(quint64(bytes->size() / SectorSize)));
        break;
    case 3: {
        const int length = int(below(qMin<quint64>(2048, quint64(bytes->size()))));
        const QByteArray piece = bytes->mid(place(*bytes, length), length);
        bytes->replace(place(*bytes, length), length, piece);
        break;
    }
    default: {
        const int length = int(below(qMin<quint64>(2048, quint64(bytes->size()))));
        bytes->replace(place(*bytes, length), length, QByteArray(length, below(2) ? '\xFF' : '\0'));
        break;
    }
    }
}

void Mutator::writeSlot(QByteArray *disk)
{
    static constexpr std::array<quint8, 8> kinds{5, 15, 131, 238, 5, 15, 7, 0};
    const int sectors = disk->size() / SectorSize;
    if (sectors == 0)
        return;
    // Few sectors have tables, so that chains often become cycles.
    const int table = int(below(below(2) ? 8 : quint64(sectors))) % sectors;
    const int slot = table * SectorSize + 446 + 16 * int(below(4));
    (*disk)[slot + 4] = char(kinds[below(kinds.size())]);
    const auto first = quint32(below(3) ? below(8) : number(quint64(sectors)));
    HandMadeDisk::putNumber(disk, slot + 8, first);
    HandMadeDisk::putNumber(disk, slot + 12, quint32(number(quint64(sectors))));
    writeName(disk, first + 2);
    writeName(disk, quint64(table) + first + 2);
}

/// Writes a path to one of the fields for names of a superblock, often without a terminator.
void Mutator::writeName(QByteArray *disk, quint64 sector)
{
    if (sector >= quint64(disk->size() / SectorSize) || below(4))
        return;
    const int offset = below(2) ? 120 : 136;
    const int length = int(below(2) ? below(20) : quint64(SectorSize - offset));
    disk->replace(int(sector) * SectorSize + offset, length, QByteArray(length, '/'));
}

void Mutator::writeGptEntry(QByteArray *disk)
{
    const int sectors = disk->size() / SectorSize;
    const int entry = 1024 + 128 * int(below(below(2) ? 16 : 280));
    if (sectors < 3 || entry + 128 > disk->size())
        return;
    disk->replace(entry, 16, below(2) ? HandMadeDisk::linuxData() : HandMadeDisk::basicData());
    const quint64 first = number(quint64(sectors));
    HandMadeDisk::putNumber(disk, entry + 32, first);
    HandMadeDisk::putNumber(disk, entry + 40, number(quint64(sectors)));
    // The contents of the partition, if it is on the disk: mostly an ext file system.
    if (first < quint64(sectors) - 2 && below(4))
        HandMadeDisk::putNumber(disk, int(first) * SectorSize + 1080, quint16(0xEF53));
    writeName(disk, first + 2);
}

QByteArray Mutator::disk(const QVector<QByteArray> &corpus)
{
    QByteArray disk = pick(corpus);
    for (quint64 changes = below(MostChanges); changes > 0; --changes) {
        switch (below(8)) {
        case 0:
            changeBytes(&disk);
            break;
        case 1:
        case 2:
            writeGptEntry(&disk);
            break;
        case 3:
            if (!below(8))
                disk.truncate(place(disk, 0));
            break;
        default:
            writeSlot(&disk);
            break;
        }
    }
    return disk;
}

QByteArray Mutator::volume(const QVector<QByteArray> &corpus)
{
    static constexpr std::array<const char *, 7> names{"NTFS    ", "EXFAT   ", "MSDOS5.0",        "MSWIN4.1",
                                                       "mkfs.fat", "NTF",      "\0\0\0\0\0\0\0\0"};
    static constexpr std::array<int, 4> bootSectors{0, 6, 12, 20};
    QByteArray volume = pick(corpus);
    for (quint64 changes = below(MostChanges); changes > 0; --changes) {
        const int at = bootSectors[below(bootSectors.size())] * SectorSize + 3;
        if (below(2) && at + 8 <= volume.size())
            volume.replace(at, 8, names[below(names.size())]);
        else
            changeBytes(&volume);
    }
    if (!below(16))
        volume.truncate(place(volume, 0));
    return volume;
}

void Mutator::changeText(QByteArray *text, const QVector<QByteArray> &corpus)
{
    static constexpr std::array<const char *, 20> words{"\r\n",
                                                        "\n",
                                                        "\t",
                                                        "\xFF\xFE",
                                                        "\xEF\xBB\xBF",
                                                        "99999999999999999999",
                                                        "-1",
                                                        "0x7fffffff",
                                                        "ID#",
                                                        "[",
                                                        ":",
                                                        "\xC3\x28",
                                                        "0x00",
                                                        "4294967296",
                                                        ",",
                                                        "%",
                                                        "PASSED",
                                                        "-2147483648",
                                                        "Index ",
                                                        "2147483648 "};
    const int length = int(below(200));
    const int at = place(*text, 0);
    switch (below(6)) {
    case 0:
        text->insert(at, words[below(words.size())]);
        break;
    case 1:
        text->remove(at, length);
        break;
    case 2:
        text->insert(at, text->mid(place(*text, length), length));
        break;
    case 3:
        text->insert(at, QByteArray(length * 4, below(2) ? ' ' : char('0' + below(75))));
        break;
    case 4: {
        const QByteArray &other = pick(corpus);
        text->insert(at, other.mid(place(other, length), length));
        break;
    }
    default:
        changeBytes(text);
        break;
    }
}

QByteArray Mutator::text(const QVector<QByteArray> &corpus)
{
    QByteArray text = pick(corpus);
    for (quint64 changes = below(MostChanges); changes > 0; --changes)
        changeText(&text, corpus);
    return text;
}
