// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AlignedBuffer.h"
#include "platform/Platform.h"

#include <QHash>

#include <memory>
#include <mutex>

namespace windows
{

/// The open raw devices. The system refuses a transfer that crosses the end of a disk; it is cut there by the
/// disk's size instead, and one that begins at or behind the end fails. It also moves whole sectors only, and
/// file systems want aligned memory for those of a volume: what is not so goes by way of a buffer, and parts
/// of a sector are not written. Where the system does not tell the sizes, transfers go through as they are.
class RawDevices : public Platform
{
public:
    RawHandle CreateFileW(const QString &name, quint32 access, quint32 shareMode,
                          quint32 disposition) override;
    bool SetFilePointer(RawHandle handle, qint64 byteOffset) override;
    bool ReadFile(RawHandle handle, void *buffer, quint32 bytes, quint32 *transferred) override;
    bool WriteFile(RawHandle handle, const void *buffer, quint32 bytes, quint32 *transferred) override;
    bool DeviceIoControl(RawHandle handle, quint32 code, const void *in, quint32 inSize, void *out,
                         quint32 outSize, quint32 *returned) override;
    bool FlushFileBuffers(RawHandle handle) override;
    bool IsGone(RawHandle handle) override;
    void CloseHandle(RawHandle handle) override;
    bool IsAccessDenied(const QString &name) override;

private:
    static constexpr qint64 UnknownSize = -1;

    struct Device {
        qint64 size = UnknownSize; ///< bytes
        qint64 sector = 1;         ///< bytes
        qint64 position = 0;       ///< bytes
        AlignedBuffer buffer;

        bool takes(const void *memory, quint32 bytes) const
        {
            return AlignedBuffer::takes(memory, position, bytes, sector);
        }
    };

    std::shared_ptr<Device> find(RawHandle handle);
    /// How much of a transfer lies on the device; 0 fails it.
    static quint32 cut(const Device &device, quint32 bytes);
    /// Ends a transfer of which `moved` bytes were done.
    static bool finish(Device *device, quint32 moved, quint32 *transferred);

    std::mutex m_mutex;
    QHash<RawHandle, std::shared_ptr<Device>> m_open;
};

} // namespace windows
