#include "platform/windows/RawDevices.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <vector>

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

bool seekTo(HANDLE handle, qint64 byteOffset)
{
    LONG high = static_cast<LONG>(byteOffset >> 32);
    const auto low = static_cast<LONG>(byteOffset & 0xFFFFFFFF);
    ::SetLastError(NO_ERROR);
    return ::SetFilePointer(handle, low, &high, FILE_BEGIN) != INVALID_SET_FILE_POINTER ||
           ::GetLastError() == NO_ERROR;
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

bool RawDevices::seek(Platform::RawHandle handle, qint64 byteOffset)
{
    const auto device = find(handle);
    // A volume takes no place within a sector.
    if (!device || byteOffset < 0 || !seekTo(native(handle), byteOffset / device->sector * device->sector))
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

bool RawDevices::readWithinSectors(Platform::RawHandle handle, Device *device, char *out, quint32 bytes)
{
    constexpr qint64 SectorsAtOnce = 16;
    const qint64 end = device->position + bytes;
    std::vector<char> whole(static_cast<std::size_t>(SectorsAtOnce * device->sector));
    qint64 at = device->position;
    qint64 first = device->sectorStart();
    bool done = true;
    while (done && at < end) {
        const qint64 sectors = std::min((end - first + device->sector - 1) / device->sector, SectorsAtOnce);
        const auto wanted = static_cast<DWORD>(sectors * device->sector);
        DWORD got = 0;
        done = ::ReadFile(native(handle), whole.data(), wanted, &got, nullptr) && got == wanted;
        if (done) {
            const qint64 useful = std::min(first + wanted, end) - at;
            std::memcpy(out, whole.data() + (at - first), static_cast<std::size_t>(useful));
            out += useful;
            at += useful;
            first += wanted;
        }
    }
    if (done)
        device->position = end;
    seekTo(native(handle), device->sectorStart());
    return done;
}

bool RawDevices::read(Platform::RawHandle handle, void *buffer, quint32 bytes, quint32 *transferred)
{
    if (transferred)
        *transferred = 0;
    const auto device = find(handle);
    const quint32 wanted = device ? cut(*device, bytes) : 0;
    if (wanted != 0 && !device->isWhole(wanted)) {
        const bool done = readWithinSectors(handle, device.get(), static_cast<char *>(buffer), wanted);
        if (done && transferred)
            *transferred = wanted;
        return done;
    }
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
    if (wanted == 0 || !device->isWhole(wanted) ||
        !::WriteFile(native(handle), buffer, wanted, &put, nullptr))
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

bool RawDevices::flush(Platform::RawHandle handle)
{
    // A driver that has no such request keeps nothing back.
    return find(handle) && (::FlushFileBuffers(native(handle)) || ::GetLastError() == ERROR_INVALID_FUNCTION);
}

bool RawDevices::isGone(Platform::RawHandle handle)
{
    DWORD returned = 0;
    return !find(handle) || (!::DeviceIoControl(native(handle), IOCTL_STORAGE_CHECK_VERIFY, nullptr, 0,
                                                nullptr, 0, &returned, nullptr) &&
                             isOfMissingDevice(::GetLastError()));
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
