// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/RawDevices.h"

#include "platform/Log.h"
#include "platform/windows/Native.h"

#include <algorithm>
#include <iterator>

#include <winioctl.h>

namespace windows
{

namespace
{

HANDLE native(Platform::RawHandle handle)
{
    return reinterpret_cast<HANDLE>(handle);
}

/// In bytes; -1 where the system does not tell.
qint64 sizeOf(HANDLE handle)
{
    // A volume's geometry is that of its disk, so its own length is asked for first.
    DWORD returned = 0;
    GET_LENGTH_INFORMATION length{};
    if (::DeviceIoControl(handle, IOCTL_DISK_GET_LENGTH_INFO, nullptr, 0, &length, sizeof(length), &returned,
                          nullptr) &&
        length.Length.QuadPart > 0)
        return length.Length.QuadPart;
    LARGE_INTEGER size{};
    if (::GetFileSizeEx(handle, &size) && size.QuadPart > 0)
        return size.QuadPart;
    return -1;
}

/// In bytes; 1 where the system does not tell.
qint64 sectorOf(HANDLE handle)
{
    DWORD returned = 0;
    DISK_GEOMETRY geometry{};
    const BOOL told = ::DeviceIoControl(handle, IOCTL_DISK_GET_DRIVE_GEOMETRY, nullptr, 0, &geometry,
                                        sizeof(geometry), &returned, nullptr);
    return told && geometry.BytesPerSector > 0 ? static_cast<qint64>(geometry.BytesPerSector) : 1;
}

/// Whether an error tells that the device or its medium is not there.
bool isOfMissingDevice(DWORD error)
{
    constexpr DWORD NoSuchDevice = 433; // which older headers lack
    constexpr DWORD Missing[] = {
        ERROR_BAD_UNIT,
        ERROR_NOT_READY,
        ERROR_DEV_NOT_EXIST,
        NoSuchDevice,
        ERROR_FILE_INVALID,
        ERROR_MEDIA_CHANGED,
        ERROR_NO_MEDIA_IN_DRIVE,
        ERROR_DEVICE_REMOVED,
        ERROR_DEVICE_NOT_CONNECTED,
        ERROR_DEVICE_NOT_AVAILABLE,
    };
    return std::find(std::begin(Missing), std::end(Missing), error) != std::end(Missing);
}

/// ReadFile or WriteFile of whole sectors.
template<typename Call, typename Byte>
bool transferAt(Call call, HANDLE handle, Byte *memory, qint64 byteOffset, qint64 bytes)
{
    LONG high = static_cast<LONG>(byteOffset >> 32);
    const auto low = static_cast<LONG>(byteOffset & 0xFFFFFFFF);
    ::SetLastError(NO_ERROR);
    if (::SetFilePointer(handle, low, &high, FILE_BEGIN) == INVALID_SET_FILE_POINTER &&
        ::GetLastError() != NO_ERROR)
        return false;
    DWORD moved = 0;
    return call(handle, memory, static_cast<DWORD>(bytes), &moved, nullptr) && moved == bytes;
}

} // namespace

Platform::RawHandle RawDevices::CreateFileW(const QString &name, quint32 access, quint32 shareMode,
                                            quint32 disposition)
{
    const HANDLE handle = ::CreateFileW(wide(name), access, shareMode, nullptr, disposition, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        qCDebug(logs::platform, "%s does not open: error %lu", qUtf8Printable(name), ::GetLastError());
        return InvalidHandle;
    }
    auto device = std::make_shared<Device>();
    device->size = sizeOf(handle);
    device->sector = sectorOf(handle);
    const auto key = reinterpret_cast<Platform::RawHandle>(handle);
    const std::lock_guard<std::mutex> guard(m_mutex);
    m_open.insert(key, device);
    return key;
}

std::shared_ptr<RawDevices::Device> RawDevices::find(Platform::RawHandle handle)
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    return m_open.value(handle);
}

bool RawDevices::SetFilePointer(Platform::RawHandle handle, qint64 byteOffset)
{
    const auto device = find(handle);
    if (!device || byteOffset < 0)
        return false;
    device->position = byteOffset;
    return true;
}

bool RawDevices::finish(Device *device, quint32 moved, quint32 *transferred)
{
    if (transferred)
        *transferred = moved;
    if (device)
        device->position += moved;
    return moved != 0;
}

quint32 RawDevices::cut(const Device &device, quint32 bytes)
{
    if (device.size < 0)
        return bytes;
    const qint64 left = std::max<qint64>(0, device.size - device.position);
    return static_cast<quint32>(std::min<qint64>(left, bytes));
}

bool RawDevices::ReadFile(Platform::RawHandle handle, void *buffer, quint32 bytes, quint32 *transferred)
{
    const auto device = find(handle);
    const quint32 wanted = device ? cut(*device, bytes) : 0;
    const auto move = [handle](char *memory, qint64 offset, qint64 count) {
        return transferAt(::ReadFile, native(handle), memory, offset, count);
    };
    const bool done = wanted != 0 && device->buffer.read(static_cast<char *>(buffer), device->position,
                                                         wanted, device->sector, move);
    return finish(device.get(), done ? wanted : 0, transferred);
}

bool RawDevices::WriteFile(Platform::RawHandle handle, const void *buffer, quint32 bytes,
                           quint32 *transferred)
{
    const auto device = find(handle);
    const quint32 wanted = device ? cut(*device, bytes) : 0;
    const auto move = [handle](const char *memory, qint64 offset, qint64 count) {
        return transferAt(::WriteFile, native(handle), memory, offset, count);
    };
    const bool done = wanted != 0 && device->buffer.write(static_cast<const char *>(buffer), device->position,
                                                          wanted, device->sector, move);
    return finish(device.get(), done ? wanted : 0, transferred);
}

bool RawDevices::DeviceIoControl(Platform::RawHandle handle, quint32 code, const void *in, quint32 inSize,
                                 void *out, quint32 outSize, quint32 *returned)
{
    DWORD count = 0;
    // The system takes the input without const and only reads it.
    const BOOL done = find(handle) && ::DeviceIoControl(native(handle), code, const_cast<void *>(in), inSize,
                                                        out, outSize, &count, nullptr);
    if (returned)
        *returned = static_cast<quint32>(count);
    return done != FALSE;
}

bool RawDevices::FlushFileBuffers(Platform::RawHandle handle)
{
    // A driver without this request has nothing to flush.
    return find(handle) && (::FlushFileBuffers(native(handle)) || ::GetLastError() == ERROR_INVALID_FUNCTION);
}

bool RawDevices::IsGone(Platform::RawHandle handle)
{
    DWORD returned = 0;
    return !find(handle) || (!::DeviceIoControl(native(handle), IOCTL_STORAGE_CHECK_VERIFY, nullptr, 0,
                                                nullptr, 0, &returned, nullptr) &&
                             isOfMissingDevice(::GetLastError()));
}

bool RawDevices::IsAccessDenied(const QString &name)
{
    const HANDLE handle =
        ::CreateFileW(wide(name), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                      OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return ::GetLastError() == ERROR_ACCESS_DENIED;
    ::CloseHandle(handle);
    return false;
}

std::optional<quint64> RawDevices::DiskActivity(int number)
{
    const QString name = QStringLiteral("\\\\.\\PHYSICALDRIVE%1").arg(number);
    // A handle without rights is enough, and disturbs nobody.
    const HANDLE handle =
        ::CreateFileW(wide(name), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return std::nullopt;
    DISK_PERFORMANCE counted{};
    DWORD returned = 0;
    const BOOL told = ::DeviceIoControl(handle, IOCTL_DISK_PERFORMANCE, nullptr, 0, &counted, sizeof(counted),
                                        &returned, nullptr);
    ::CloseHandle(handle);
    return told ? std::optional<quint64>(quint64(counted.ReadCount) + counted.WriteCount) : std::nullopt;
}

void RawDevices::CloseHandle(Platform::RawHandle handle)
{
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        if (!m_open.remove(handle))
            return;
    }
    ::CloseHandle(native(handle));
}

} // namespace windows
