// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/RawAccess.h"

#include <QByteArray>

struct DiskDetails;

/// One of the two disks of a clone, opened. While it is open, the disk's record holds the handle, too. One
/// thread at a time. Sectors are of 512 bytes.
class CloneTarget
{
public:
    explicit CloneTarget(DiskDetails &details);
    ~CloneTarget();
    CloneTarget(const CloneTarget &) = delete;
    CloneTarget &operator=(const CloneTarget &) = delete;

    bool isOpen() const { return m_handle != Platform::InvalidHandle; }
    DiskMark mark() const { return DiskMarkOf(m_handle); }
    /// Sectors that the drive reads and writes at once, at least 1.
    qint64 unit() const { return m_unit; }
    bool isGone() const { return Platform::current().IsGone(m_handle); }
    /// False where the drive does not confirm that what was written is stored.
    bool flush() const { return Platform::current().FlushFileBuffers(m_handle); }

protected:
    bool transfer(qint64 sector, void *buffer, qint64 sectors, bool write, quint32 *moved) const;

private:
    DiskDetails &m_details;
    const int m_driveCode;
    Platform::RawHandle m_handle;
    qint64 m_unit = 1;
};

/// The disk that is read.
class CloneSource : public CloneTarget
{
public:
    using CloneTarget::CloneTarget;

    /// Reads up to `room` sectors; fails if fewer than `wanted` come. The rest of the buffer becomes zeros.
    bool read(qint64 sector, char *buffer, qint64 wanted, qint64 room);
    /// Whether the disk still reads anything: first tries what it read last, then sectors all over its
    /// `total`. Ask this after a failed read, as no error code tells a dead disk from a bad place.
    bool answers(qint64 total);

private:
    qint64 m_good = -1; ///< the begin of the last read that succeeded
};

/// The disk that is written.
class CloneDestination : public CloneTarget
{
public:
    using CloneTarget::CloneTarget;

    /// Writes up to `room` sectors; fails if fewer than `wanted` are written. The rest may lie behind the
    /// disk's end.
    bool write(qint64 sector, char *buffer, qint64 wanted, qint64 room);
    /// Whether the disk still takes anything: writes what it took last once more. False if it never took
    /// anything.
    bool answers();
    bool everTook() const { return m_goodSector >= 0; }

private:
    qint64 m_goodSector = -1;
    QByteArray m_good; ///< what was written there
};
