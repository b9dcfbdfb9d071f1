#include "inventory/RawAccess.h"

#include "app/state/DiskRecords.h"
#include "platform/IoControl.h"

#include <limits>

namespace
{

constexpr int SectorSize = 512;
constexpr int TransferAttempts = 1; ///< for physical disks; a volume always gets one

bool transferOnce(Platform::RawHandle handle, quint64 sector, void *buffer, quint32 byteCount, bool write,
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
    const int attempts = driveCode >= PhysicalDriveBase ? TransferAttempts : 1;
    bool done = false;
    for (int attempt = 0; attempt < attempts && !done; ++attempt)
        done = transferOnce(handle, sector, buffer, byteCount, write, &moved);
    if (ownHandle)
        Platform::current().CloseHandle(handle);
    if (transferred)
        *transferred = moved;
    return done;
}

void GetDiskSectorCount(int driveCode, quint64 *result)
{
    *result = 0;
    Platform &platform = Platform::current();
    const Platform::RawHandle handle = OpenDisk(driveCode);
    if (handle == Platform::InvalidHandle)
        return;
    io::DiskGeometryEx geometry{};
    quint32 returned = 0;
    if (platform.DeviceIoControl(handle, io::DiskGetDriveGeometryEx, nullptr, 0, &geometry, sizeof geometry,
                                 &returned) &&
        geometry.diskSize > 0)
        *result = static_cast<quint64>(geometry.diskSize) / SectorSize;
    platform.CloseHandle(handle);
}
