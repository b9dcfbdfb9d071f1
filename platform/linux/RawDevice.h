#pragma once

#include <QString>

#include <memory>

/// An open block device or image file. Never makes a file and never writes by itself. One thread at a time.
class RawDevice
{
public:
    /// Null if the node cannot be opened as asked.
    static std::unique_ptr<RawDevice> open(const QString &node, bool writable);
    ~RawDevice();
    RawDevice(const RawDevice &) = delete;
    RawDevice &operator=(const RawDevice &) = delete;

    /// Bytes; 0 where there is no medium.
    qint64 size() const { return m_size; }
    quint32 bytesPerSector() const { return m_bytesPerSector; }

    bool seek(qint64 byteOffset);
    /// Transfers up to `bytes`, cut at the end of the device; -1 on failure or at the end. Moves the position
    /// by what was transferred.
    qint64 read(void *buffer, quint32 bytes);
    qint64 write(const void *buffer, quint32 bytes);

private:
    explicit RawDevice(int descriptor);
    qint64 bytesToEnd(quint32 bytes) const;

    int m_descriptor;
    qint64 m_size = 0;
    quint32 m_bytesPerSector = 512;
    qint64 m_position = 0;
};
