// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/RawAccess.h"

#include "platform/IoControl.h"
#include "platform/Log.h"
#include "state/DiskRecords.h"

#include <array>
#include <cstring>
#include <limits>

namespace
{

constexpr quint32 DescriptorSize = 1024; ///< room for what a drive says of itself, a zero at the end

ReadObserver readObserver;

bool transfer(Platform::RawHandle handle, quint64 sector, void *buffer, quint32 byteCount, bool write,
              quint32 *transferred)
{
    Platform &platform = Platform::current();
    if (sector > static_cast<quint64>(std::numeric_limits<qint64>::max()) / SectorSize)
        return false;
    if (!platform.SetFilePointer(handle, static_cast<qint64>(sector * SectorSize)))
        return false;
    return write ? platform.WriteFile(handle, buffer, byteCount, transferred)
                 : platform.ReadFile(handle, buffer, byteCount, transferred);
}

} // namespace

QString diskName(int driveCode)
{
    if (driveCode >= PhysicalDriveBase)
        return QStringLiteral("\\\\.\\PHYSICALDRIVE%1").arg(driveCode - PhysicalDriveBase);
    return QStringLiteral("\\\\.\\%1:").arg(QChar(u'A' + driveCode));
}

Platform::RawHandle OpenDisk(int driveCode)
{
    return Platform::current().CreateFileW(diskName(driveCode), io::GenericRead | io::GenericWrite,
                                           io::ShareRead | io::ShareWrite | io::ShareDelete,
                                           io::OpenExisting);
}

bool ReadWriteSectors(int driveCode, quint64 sector, void *buffer, quint32 byteCount,
                      Platform::RawHandle handle, bool write, quint32 *transferred)
{
    quint32 moved = 0;
    const bool ownHandle = handle == NoDiskHandle;
    if (ownHandle)
        handle = OpenDisk(driveCode);
    if (handle == Platform::InvalidHandle)
        return false;
    const bool done = transfer(handle, sector, buffer, byteCount, write, &moved);
    if (ownHandle)
        Platform::current().CloseHandle(handle);
    if (!done)
        qCDebug(logs::inventory) << (write ? "not written:" : "not read:") << diskName(driveCode) << "sector"
                                 << sector << "bytes" << byteCount;
    else if (!write && readObserver)
        readObserver(driveCode, sector, buffer, moved);
    if (transferred)
        *transferred = moved;
    return done;
}

void observeReads(ReadObserver observer)
{
    readObserver = std::move(observer);
}

DiskMark DiskMarkOf(Platform::RawHandle handle)
{
    DiskMark mark;
    Platform &platform = Platform::current();
    quint32 returned = 0;
    io::DiskGeometryEx geometry{};
    if (askTarget(handle, io::DiskGetDriveGeometryEx, &geometry) && geometry.diskSize > 0)
        mark.sectors = static_cast<quint64>(geometry.diskSize) / SectorSize;
    const io::StoragePropertyQuery query{};
    std::array<char, DescriptorSize> answer{};
    io::StorageDeviceDescriptor head{};
    if (platform.DeviceIoControl(handle, io::StorageQueryProperty, &query, sizeof query, answer.data(),
                                 DescriptorSize - 1, &returned)) {
        std::memcpy(&head, answer.data(), sizeof head);
        if (head.serialNumberOffset >= sizeof head && head.serialNumberOffset < DescriptorSize)
            mark.serial = QString::fromLatin1(answer.data() + head.serialNumberOffset).trimmed();
    }
    return mark;
}

DiskMark ReadDiskMark(int driveCode)
{
    const Platform::RawHandle handle = OpenDisk(driveCode);
    if (handle == Platform::InvalidHandle)
        return {};
    const DiskMark mark = DiskMarkOf(handle);
    Platform::current().CloseHandle(handle);
    return mark;
}

void GetDiskSectorCount(int driveCode, quint64 *result)
{
    *result = ReadDiskMark(driveCode).sectors;
}
