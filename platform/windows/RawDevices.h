#pragma once

#include "platform/Platform.h"

#include <QHash>

#include <memory>
#include <mutex>

namespace windows
{

/// The open raw devices. The system refuses a transfer that crosses the end of a disk; it is cut there by the
/// disk's size instead, and one that begins at or behind the end fails. It also moves whole sectors only:
/// what lies within larger ones than 512 bytes is read by way of whole ones, and is not written. Where the
/// system does not tell the sizes, transfers go through as they are.
class RawDevices
{
public:
    Platform::RawHandle open(const QString &name, quint32 access, quint32 shareMode, quint32 disposition);
    bool seek(Platform::RawHandle handle, qint64 byteOffset);
    bool read(Platform::RawHandle handle, void *buffer, quint32 bytes, quint32 *transferred);
    bool write(Platform::RawHandle handle, const void *buffer, quint32 bytes, quint32 *transferred);
    bool control(Platform::RawHandle handle, quint32 code, const void *in, quint32 inSize, void *out,
                 quint32 outSize, quint32 *returned);
    bool flush(Platform::RawHandle handle);
    bool isGone(Platform::RawHandle handle);
    void close(Platform::RawHandle handle);

private:
    static constexpr qint64 UnknownSize = -1;

    struct Device {
        qint64 size = UnknownSize; ///< bytes
        qint64 sector = 1;         ///< bytes
        qint64 position = 0;       ///< bytes; the system's own stands at the start of that sector

        qint64 sectorStart() const { return position / sector * sector; }
        bool isWhole(quint32 bytes) const { return position % sector == 0 && bytes % sector == 0; }
    };

    std::shared_ptr<Device> find(Platform::RawHandle handle);
    /// How much of a transfer lies on the device; 0 fails it.
    static quint32 cut(const Device &device, quint32 bytes);
    static bool readWithinSectors(Platform::RawHandle handle, Device *device, char *out, quint32 bytes);

    std::mutex m_mutex;
    QHash<Platform::RawHandle, std::shared_ptr<Device>> m_open;
};

} // namespace windows
