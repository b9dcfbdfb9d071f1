// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/VolumeExtents.h"

#include "platform/IoControl.h"
#include "platform/Platform.h"

#include <cstddef>
#include <cstring>

namespace
{

constexpr quint64 SectorSize = 512;
constexpr std::size_t ExtentBytes = 1024;

/// Extents of a volume in the room that the system call gets; further ones lie behind the first.
union ExtentBuffer {
    io::VolumeDiskExtents extents;
    std::uint8_t bytes[ExtentBytes];
};

std::optional<VolumeExtents> readVolumeExtents(QChar letter)
{
    Platform &platform = Platform::current();
    if (platform.GetDriveTypeW(letter + QLatin1String(":\\")) == io::DriveRemote)
        return std::nullopt;
    const Platform::RawHandle handle =
        platform.CreateFileW(QStringLiteral("\\\\.\\%1:").arg(letter), io::GenericRead,
                             io::ShareRead | io::ShareWrite, io::OpenExisting);
    if (handle == Platform::InvalidHandle)
        return std::nullopt;
    ExtentBuffer buffer{};
    quint32 returned = 0;
    const bool answered = platform.DeviceIoControl(handle, io::VolumeGetVolumeDiskExtents, nullptr, 0,
                                                   &buffer, sizeof buffer, &returned);
    platform.CloseHandle(handle);
    if (!answered || buffer.extents.numberOfDiskExtents == 0)
        return std::nullopt;
    const io::DiskExtent &first = buffer.extents.extents[0];
    const auto start = static_cast<quint64>(first.startingOffset);
    VolumeExtents found{buffer.extents.numberOfDiskExtents,
                        first.diskNumber,
                        start / SectorSize,
                        (start + static_cast<quint64>(first.extentLength)) / SectorSize,
                        {}};
    std::size_t at = offsetof(io::VolumeDiskExtents, extents);
    for (quint32 i = 0; i < found.count && at + sizeof(io::DiskExtent) <= ExtentBytes; ++i) {
        io::DiskExtent extent;
        std::memcpy(&extent, buffer.bytes + at, sizeof extent);
        found.disks.append(static_cast<int>(extent.diskNumber));
        at += sizeof extent;
    }
    return found;
}

} // namespace

std::optional<VolumeExtents> KnownExtents::of(QChar letter)
{
    const auto known = m_known.constFind(letter);
    return known != m_known.constEnd() ? *known : *m_known.insert(letter, readVolumeExtents(letter));
}
