// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AlignedBuffer.h"
#include "platform/Platform.h"

#include <QHash>

#include <memory>
#include <mutex>

namespace windows
{

/// The open raw devices. The system refuses a transfer that crosses the end of a disk, so it is cut at the
/// end first; one that begins at or behind the end fails. The system moves whole sectors only, and those of a
/// volume from and to aligned memory only. Other reads go through a buffer; parts of a sector are not
/// written. If the system does not tell the sizes, transfers are passed on as they are.
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
    std::optional<quint64> DiskActivity(int number) override;

private:
    static constexpr qint64 UnknownSize = -1;

    struct Device {
        qint64 size = UnknownSize; ///< bytes
        qint64 sector = 1;         ///< bytes
        qint64 position = 0;       ///< bytes
        AlignedBuffer buffer;
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
