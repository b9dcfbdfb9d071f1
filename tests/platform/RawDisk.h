// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/IoControl.h"
#include "platform/Platform.h"
#include "tests/support/Files.h"

#include <QtTest>

/// What a disk does on every platform, whatever stands behind it.
namespace rawdisk
{

constexpr int Sectors = 2049;
constexpr int SectorSize = 512;
constexpr quint32 ReadWrite = io::GenericRead | io::GenericWrite;
const QString First = QStringLiteral("\\\\.\\PHYSICALDRIVE0");

inline Platform::RawHandle open(Platform &pc, const QString &name, quint32 access = ReadWrite)
{
    return pc.CreateFileW(name, access, io::ShareRead | io::ShareWrite, io::OpenExisting);
}

/// The disk holds pattern(Sectors), and nothing was read with the handle.
inline void checkReads(Platform &pc, Platform::RawHandle handle)
{
    const QByteArray content = pattern(Sectors);
    QByteArray buffer(content.size() + SectorSize, 'x');
    quint32 got = 0;
    // The whole disk, to an odd address, past the end.
    QVERIFY(pc.ReadFile(handle, buffer.data() + 1, quint32(content.size() + 100), &got));
    QCOMPARE(got, quint32(content.size()));
    QVERIFY(buffer.mid(1, content.size()) == content);
    QVERIFY(!pc.ReadFile(handle, buffer.data(), SectorSize, &got));
    QCOMPARE(got, 0u);
    // Two sectors one after the other, then a part of a sector.
    QVERIFY(pc.SetFilePointer(handle, 7 * SectorSize));
    QVERIFY(pc.ReadFile(handle, buffer.data(), SectorSize, nullptr));
    QVERIFY(pc.ReadFile(handle, buffer.data() + SectorSize, SectorSize, &got));
    QCOMPARE(buffer.left(2 * SectorSize), content.mid(7 * SectorSize, 2 * SectorSize));
    QVERIFY(pc.SetFilePointer(handle, SectorSize + 100));
    QVERIFY(pc.ReadFile(handle, buffer.data(), 600, &got));
    QCOMPARE(buffer.left(600), content.mid(SectorSize + 100, 600));
    QVERIFY(!pc.SetFilePointer(handle, -1));
    QVERIFY(pc.SetFilePointer(handle, qint64(Sectors + 9) * SectorSize));
    QVERIFY(!pc.ReadFile(handle, buffer.data(), SectorSize, &got));
    // A handle for reading does not write.
    const auto reader = open(pc, First, io::GenericRead);
    QVERIFY(reader != Platform::InvalidHandle);
    QVERIFY(!pc.WriteFile(reader, content.constData() + SectorSize, SectorSize, &got));
    QCOMPARE(got, 0u);
    pc.CloseHandle(reader);
}

/// Writes the sectors 3 and 4, and the last one: four sectors, of which three have no room.
inline void checkWrites(Platform &pc, Platform::RawHandle handle, qint64 last)
{
    const QByteArray data(4 * SectorSize, 'w');
    quint32 put = 0;
    QVERIFY(pc.SetFilePointer(handle, 3 * SectorSize));
    QVERIFY(pc.WriteFile(handle, data.constData() + 1, 2 * SectorSize, &put));
    QCOMPARE(put, quint32(2 * SectorSize));
    QVERIFY(pc.SetFilePointer(handle, last * SectorSize));
    QVERIFY(pc.WriteFile(handle, data.constData(), 4 * SectorSize, &put));
    QCOMPARE(put, quint32(SectorSize));
    QVERIFY(!pc.WriteFile(handle, data.constData(), SectorSize, &put));
    QCOMPARE(put, 0u);
    QVERIFY(pc.FlushFileBuffers(handle));
}

/// What these writes leave of the pattern; without the last sector where that lies beyond it.
inline QByteArray written(qint64 last = Sectors - 1)
{
    QByteArray content = pattern(Sectors);
    content.replace(3 * SectorSize, 2 * SectorSize, QByteArray(2 * SectorSize, 'w'));
    if (last < Sectors)
        content.replace(int(last) * SectorSize, SectorSize, QByteArray(SectorSize, 'w'));
    return content;
}

/// Names of nothing do not open. Closes `handle`, and compares it with what is no handle at all.
inline void checkNoHandles(Platform &pc, Platform::RawHandle handle)
{
    for (const char *name : {"\\\\.\\PHYSICALDRIVE77", "\\\\.\\PHYSICALDRIVE", "\\\\.\\Q:", ""})
        QCOMPARE(open(pc, name, io::GenericRead), Platform::InvalidHandle);
    QVERIFY(handle != Platform::InvalidHandle);
    pc.CloseHandle(handle);
    char byte = 0;
    quint32 moved = 9;
    for (const Platform::RawHandle none : {handle, Platform::RawHandle(0), Platform::InvalidHandle}) {
        QVERIFY(!pc.SetFilePointer(none, 0));
        QVERIFY(!pc.ReadFile(none, &byte, 1, &moved));
        QCOMPARE(moved, 0u);
        QVERIFY(!pc.WriteFile(none, &byte, 1, nullptr));
        QVERIFY(!pc.DeviceIoControl(none, io::DiskGetDriveGeometry, nullptr, 0, &byte, 1, nullptr));
        QVERIFY(!pc.FlushFileBuffers(none) && pc.IsGone(none));
        pc.CloseHandle(none);
    }
}

} // namespace rawdisk
