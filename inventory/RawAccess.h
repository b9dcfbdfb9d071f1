// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"

#include <functional>

/// Raw access to disks and volumes. A target is named by its drive code: 128 + N is physical disk N, a code
/// below 128 a drive letter, 0 for A. Sectors are of 512 bytes whatever the disk reports. Any thread may
/// call.

constexpr qint64 SectorSize = 512;

/// Stands for "no handle" in ReadWriteSectors().
constexpr Platform::RawHandle NoDiskHandle = 0;

/// The system's name of a target: `\\.\PHYSICALDRIVE%d` or `\\.\%c:`.
QString diskName(int driveCode);

/// Opens a target for reading and writing, shared with everybody. Platform::InvalidHandle if it does not
/// open. The caller closes the handle.
Platform::RawHandle OpenDisk(int driveCode);

/// Transfers `byteCount` bytes from or to sector `sector`. Works on `handle` and leaves it open; with
/// NoDiskHandle the call opens and closes the target itself. False if the target does not open, the place
/// cannot be sought or the transfer fails. A transfer that crosses the target's end is cut there and
/// succeeds: the rest of `buffer` keeps what it held. `transferred`, which may be null, gets the bytes moved.
bool ReadWriteSectors(int driveCode, quint64 sector, void *buffer, quint32 byteCount,
                      Platform::RawHandle handle = NoDiskHandle, bool write = false,
                      quint32 *transferred = nullptr);

/// Gets what was read by ReadWriteSectors(). To be set while nothing is read; null takes it away.
using ReadObserver = std::function<void(int driveCode, quint64 sector, const void *bytes, quint32 count)>;
void observeReads(ReadObserver observer);

/// What tells one disk from another.
struct DiskMark {
    quint64 sectors = 0; ///< 0 where the size is not told
    QString serial;      ///< the drive's own; empty where it tells none

    bool operator==(const DiskMark &other) const
    {
        return sectors == other.sectors && serial == other.serial;
    }
};

/// Asks the disk behind an open handle.
DiskMark DiskMarkOf(Platform::RawHandle handle);
/// The same by its drive code; an empty mark where it does not open.
DiskMark ReadDiskMark(int driveCode);

/// Count of sectors of the target in `result`, 0 on failure.
void GetDiskSectorCount(int driveCode, quint64 *result);

/// Asks the target behind an open handle a question without data. False where it refuses; `answer` then
/// stays as it is.
template<typename Answer>
bool askTarget(Platform::RawHandle handle, quint32 code, Answer *answer)
{
    quint32 returned = 0;
    return Platform::current().DeviceIoControl(handle, code, nullptr, 0, answer, sizeof *answer, &returned);
}
