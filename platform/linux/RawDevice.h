// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AlignedBuffer.h"

#include <QByteArray>
#include <QString>

#include <memory>

/// An open block device or image file. Never makes a file and never writes by itself. Block devices are read
/// and written past the page cache, so that a read comes from the medium and a failed write is told at once.
/// Until the first write() the node is open for reading only. When a node that was open for writing closes,
/// the system reads its partitions and file systems anew, and mere reading must not cause that. One thread at
/// a time.
class RawDevice
{
public:
    /// Null if the node cannot be opened for reading, or with `writable` if this process may not write it or
    /// the kernel holds it read-only.
    static std::unique_ptr<RawDevice> open(const QString &node, bool writable);
    /// Whether this process lacks the rights to open the node.
    static bool isDenied(const QString &node);
    ~RawDevice();
    RawDevice(const RawDevice &) = delete;
    RawDevice &operator=(const RawDevice &) = delete;

    /// Bytes; 0 where there is no medium.
    qint64 size() const { return m_size; }
    quint32 bytesPerSector() const { return m_bytesPerSector; }
    /// The kernel's number of the medium, which no other one gets while the system runs; 0 where it has none.
    quint64 medium() const;

    /// What the drive says its serial number is; empty where it says none.
    QByteArray serial() const;

    bool seek(qint64 byteOffset);
    /// Transfers up to `bytes`, cut at the end of the device; -1 on failure or at the end. Moves the position
    /// by what was transferred.
    qint64 read(void *buffer, quint32 bytes);
    /// The first call opens the node for writing; -1 too where that fails, or where another device stands
    /// behind the node by now. A block device opens exclusively: not while one of its volumes is
    /// mounted or something else holds it, and nothing can be mounted from it until it is closed.
    qint64 write(const void *buffer, quint32 bytes);
    /// Returns when all that was written lies on the medium; false where the device does not confirm that.
    bool flush();
    /// Whether the device or the medium that was opened is no longer there.
    bool isGone() const;

private:
    RawDevice(int descriptor, bool direct, bool writable);
    bool openForWriting();
    qint64 bytesToEnd(quint32 bytes) const;
    /// What a transfer has to fit; 0: nothing.
    qint64 sector() const { return m_direct ? m_bytesPerSector : 0; }

    int m_descriptor;
    bool m_direct; ///< past the page cache: memory, offsets and lengths are multiples of a sector
    bool m_mayWrite;
    bool m_written = false; ///< the descriptor is one for writing
    AlignedBuffer m_buffer;
    qint64 m_size = 0;
    quint64 m_medium = 0; ///< as it was opened
    quint32 m_bytesPerSector = 512;
    qint64 m_position = 0;
};
