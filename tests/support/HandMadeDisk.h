// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QtEndian>

#include <initializer_list>

/// Partition tables written byte by byte, for those that no tool would make.
class HandMadeDisk
{
public:
    struct Slot {
        quint8 type = 0;
        quint32 first = 0;
        quint32 count = 0;
    };

    explicit HandMadeDisk(int sectorCount = 0) : bytes(sectorCount * 512, '\0') {}

    /// Writes the slots of the table at `sector`. It has no signature; the reader does not look for one.
    HandMadeDisk &table(int sector, std::initializer_list<Slot> entries)
    {
        int at = sector * 512 + 446;
        for (const Slot &slot : entries) {
            bytes[at + 4] = char(slot.type);
            put(at + 8, slot.first);
            put(at + 12, slot.count);
            at += 16;
        }
        return *this;
    }

    /// Writes the mark of a GPT header.
    HandMadeDisk &header() { return text(512, "EFI PART"); }

    /// Writes entry `index` of the array that begins at sector 2.
    HandMadeDisk &entry(int index, const QByteArray &guid, quint64 first, quint64 last)
    {
        const int at = 1024 + index * 128;
        text(at, guid);
        put(at + 32, first);
        return put(at + 40, last);
    }

    HandMadeDisk &text(int at, const QByteArray &value)
    {
        bytes.replace(at, value.size(), value);
        return *this;
    }

    template<typename Number>
    HandMadeDisk &put(int at, Number value)
    {
        putNumber(&bytes, at, value);
        return *this;
    }

    /// Overwrites bytes with a number, little-endian.
    template<typename Number>
    static void putNumber(QByteArray *into, int at, Number value)
    {
        char digits[sizeof value];
        qToLittleEndian(value, digits);
        into->replace(at, int(sizeof value), digits, int(sizeof value));
    }

    static QByteArray linuxData() { return QByteArray::fromHex("af3dc60f838472478e793d69d8477de4"); }
    static QByteArray basicData() { return QByteArray::fromHex("a2a0d0ebe5b9334487c068b6b72699c7"); }

    QByteArray bytes;
};
