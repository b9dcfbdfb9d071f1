#include "platform/windows/RawDevices.h"

#include <algorithm>

#include <windows.h>

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

} // namespace

Platform::RawHandle RawDevices::open(const QString &name, quint32 access, quint32 shareMode,
                                     quint32 disposition)
{
    const HANDLE handle = ::CreateFileW(reinterpret_cast<const wchar_t *>(name.utf16()), access, shareMode,
                                        nullptr, disposition, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return Platform::InvalidHandle;
    auto device = std::make_shared<Device>();
    device->size = sizeOf(handle);
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

bool RawDevices::seek(Platform::RawHandle handle, qint64 byteOffset)
{
    const auto device = find(handle);
    if (!device || byteOffset < 0)
        return false;
    LONG high = static_cast<LONG>(byteOffset >> 32);
    const auto low = static_cast<LONG>(byteOffset & 0xFFFFFFFF);
    ::SetLastError(NO_ERROR);
    if (::SetFilePointer(native(handle), low, &high, FILE_BEGIN) == INVALID_SET_FILE_POINTER &&
        ::GetLastError() != NO_ERROR)
        return false;
    device->position = byteOffset;
    return true;
}

quint32 RawDevices::cut(const Device &device, quint32 bytes)
{
    if (device.size < 0)
        return bytes;
    const qint64 left = std::max<qint64>(0, device.size - device.position);
    return static_cast<quint32>(std::min<qint64>(left, bytes));
}

bool RawDevices::read(Platform::RawHandle handle, void *buffer, quint32 bytes, quint32 *transferred)
{
    if (transferred)
        *transferred = 0;
    const auto device = find(handle);
    const quint32 wanted = device ? cut(*device, bytes) : 0;
    DWORD got = 0;
    // A file that stands for a disk succeeds with nothing at its end.
    if (wanted == 0 || !::ReadFile(native(handle), buffer, wanted, &got, nullptr) || got == 0)
        return false;
    device->position += got;
    if (transferred)
        *transferred = static_cast<quint32>(got);
    return true;
}

bool RawDevices::write(Platform::RawHandle handle, const void *buffer, quint32 bytes, quint32 *transferred)
{
    if (transferred)
        *transferred = 0;
    const auto device = find(handle);
    const quint32 wanted = device ? cut(*device, bytes) : 0;
    DWORD put = 0;
    if (wanted == 0 || !::WriteFile(native(handle), buffer, wanted, &put, nullptr))
        return false;
    device->position += put;
    if (transferred)
        *transferred = static_cast<quint32>(put);
    return true;
}

bool RawDevices::control(Platform::RawHandle handle, quint32 code, const void *in, quint32 inSize, void *out,
                         quint32 outSize, quint32 *returned)
{
    DWORD count = 0;
    // The system takes the input without const and only reads it.
    const BOOL done = find(handle) && ::DeviceIoControl(native(handle), code, const_cast<void *>(in), inSize,
                                                        out, outSize, &count, nullptr);
    if (returned)
        *returned = static_cast<quint32>(count);
    return done != FALSE;
}

void RawDevices::close(Platform::RawHandle handle)
{
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        if (!m_open.remove(handle))
            return;
    }
    ::CloseHandle(native(handle));
}

} // namespace windows
