// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/RawDevices.h"

#include "platform/IoControl.h"
#include "platform/OwnFiles.h"
#include "platform/SparseFile.h"
#include "platform/simulated/DiskScripts.h"
#include "platform/simulated/DriveAnswer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>
#include <QRegularExpression>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <thread>

namespace simulated
{
namespace
{

constexpr qint64 LongestImage = qint64(15) << 40; ///< 15 TiB

constexpr qint64 sectorBytes = 512;

constexpr qint64 longestTransfer = 1000000000; ///< in nanoseconds; nothing stops in between

qint64 bytesOf(const Disk &disk)
{
    return static_cast<qint64>(disk.record.sectors) * sectorBytes;
}

/// Makes a transfer take the time that the disk needs for it.
class Throttle
{
public:
    Throttle(const Disk &disk, qint64 bytes) : m_bytesPerSecond(disk.bytesPerSecond), m_bytes(bytes)
    {
        m_clock.start();
    }
    Throttle(const Throttle &) = delete;
    Throttle &operator=(const Throttle &) = delete;
    ~Throttle()
    {
        if (m_bytesPerSecond > 0) {
            const double wanted = 1e9 * static_cast<double>(m_bytes) / static_cast<double>(m_bytesPerSecond);
            const qint64 left =
                std::min(static_cast<qint64>(wanted), longestTransfer) - m_clock.nsecsElapsed();
            std::this_thread::sleep_for(std::chrono::nanoseconds(std::max<qint64>(0, left)));
        }
    }

private:
    QElapsedTimer m_clock;
    quint64 m_bytesPerSecond;
    qint64 m_bytes;
};

} // namespace

RawDevices::RawDevices(PcDescription pc, const QString &imageFolder)
    : m_pc(std::move(pc)), m_presence(m_pc), m_imageFolder(imageFolder)
{
}

RawDevices::~RawDevices() = default;

QString RawDevices::imageFile(int disk) const
{
    return QStringLiteral("%1/disk%2.img").arg(m_imageFolder).arg(disk);
}

bool RawDevices::prepareImage(const Disk &disk)
{
    const QString file = imageFile(disk.record.number);
    // The largest file of common file systems ends before the largest disk: the rest of such a disk reads as
    // zeros and cannot be written.
    const qint64 size = std::min(bytesOf(disk), LongestImage);
    if (const QFileInfo there(file); there.exists() || there.isSymLink())
        return (there.size() == size && !there.isSymLink()) || sparse::resize(file, size);
    const QString described = disk.record.node;
    const bool copied = !described.isEmpty() && QFileInfo::exists(described);
    return QDir().mkpath(m_imageFolder) &&
           (copied ? sparse::copy(described, file, size) : sparse::resize(file, size));
}

bool RawDevices::isThere(const Device &device) const
{
    return device.volume != nullptr ? m_presence.has(*device.volume)
                                    : m_presence.hasDisk(device.pieces.first().disk->record.number);
}

bool RawDevices::addPiece(Device &device, int number, qint64 start, qint64 length)
{
    const Disk *disk = m_pc.disk(number);
    if (disk == nullptr || !prepareImage(*disk))
        return false;
    // Each handle has a file of its own, so that threads do not share a file position.
    auto file = std::make_shared<QFile>();
    const bool writes = (device.access & io::GenericWrite) != 0;
    if (!ownfiles::openRegular(file.get(), imageFile(number),
                               (writes ? QIODevice::ReadWrite : QIODevice::ReadOnly) |
                                   QIODevice::Unbuffered)) {
        return false;
    }
    device.pieces.append({disk, file, start, length});
    device.length += length;
    return true;
}

const Disk *RawDevices::plugged(const QString &name) const
{
    static const QRegularExpression physical(QStringLiteral("^\\\\\\\\\\.\\\\PHYSICALDRIVE([0-9]{1,9})$"),
                                             QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = physical.match(name);
    const Disk *disk = match.hasMatch() ? m_pc.disk(match.captured(1).toInt()) : nullptr;
    return disk != nullptr && m_presence.hasDisk(disk->record.number) ? disk : nullptr;
}

bool RawDevices::IsAccessDenied(const QString &name)
{
    const Disk *disk = plugged(name);
    return disk != nullptr && !disk->opens;
}

Platform::RawHandle RawDevices::CreateFileW(const QString &name, quint32 access, quint32, quint32 disposition)
{
    static const QRegularExpression letter(QStringLiteral("^\\\\\\\\\\.\\\\([A-Za-z]):$"));
    if (disposition != io::OpenExisting)
        return InvalidHandle;
    const QMutexLocker lock(&m_mutex);
    auto device = std::make_shared<Device>();
    device->access = access;
    bool opened = false;
    const QRegularExpressionMatch volumeName = letter.match(name);
    if (const Disk *disk = plugged(name)) {
        opened = disk->opens && addPiece(*device, disk->record.number, 0, bytesOf(*disk));
    } else if (volumeName.hasMatch()) {
        device->volume = m_pc.volume(volumeName.captured(1).at(0));
        opened = device->volume != nullptr && m_presence.has(*device->volume) &&
                 !device->volume->extents.isEmpty();
        for (int i = 0; opened && i < device->volume->extents.size(); ++i) {
            const inventory::Extent &extent = device->volume->extents.at(i);
            opened = addPiece(*device, extent.disk, static_cast<qint64>(extent.offset),
                              static_cast<qint64>(extent.length));
        }
    }
    if (!opened)
        return InvalidHandle;
    const RawHandle handle = m_next++;
    m_devices.insert(handle, device);
    return handle;
}

std::shared_ptr<RawDevices::Device> RawDevices::find(RawHandle handle)
{
    const QMutexLocker lock(&m_mutex);
    return m_devices.value(handle);
}

bool RawDevices::IsGone(RawHandle handle)
{
    const std::shared_ptr<Device> device = find(handle);
    return !device || !isThere(*device);
}

void RawDevices::CloseHandle(RawHandle handle)
{
    const QMutexLocker lock(&m_mutex);
    m_devices.remove(handle);
}

void RawDevices::closeAll()
{
    const QMutexLocker lock(&m_mutex);
    m_devices.clear();
}

bool RawDevices::SetFilePointer(RawHandle handle, qint64 byteOffset)
{
    const std::shared_ptr<Device> device = find(handle);
    if (!device || byteOffset < 0)
        return false;
    device->position = byteOffset;
    return true;
}

bool RawDevices::ReadFile(RawHandle handle, void *buffer, quint32 bytes, quint32 *transferred)
{
    return transfer(handle, Direction::Read, static_cast<char *>(buffer), bytes, transferred);
}

bool RawDevices::WriteFile(RawHandle handle, const void *buffer, quint32 bytes, quint32 *transferred)
{
    // The buffer is only read from in this direction.
    return transfer(handle, Direction::Write, static_cast<char *>(const_cast<void *>(buffer)), bytes,
                    transferred);
}

bool RawDevices::transfer(RawHandle handle, Direction direction, char *buffer, quint32 bytes,
                          quint32 *transferred)
{
    if (transferred != nullptr)
        *transferred = 0;
    const std::shared_ptr<Device> device = find(handle);
    const quint32 right = direction == Direction::Read ? io::GenericRead : io::GenericWrite;
    if (!device || (device->access & right) == 0 || device->position >= device->length || !isThere(*device))
        return false;
    const qint64 room = device->length - device->position;
    if (bytes > room && device->pieces.first().disk->failsPastEnd)
        return false;
    const qint64 accepted = std::min<qint64>(bytes, room);
    if (!transferPieces(*device, direction, buffer, accepted))
        return false;
    device->position += accepted;
    if (transferred != nullptr)
        *transferred = static_cast<quint32>(accepted);
    return true;
}

bool RawDevices::transferPieces(const Device &device, Direction direction, char *buffer, qint64 bytes)
{
    qint64 from = device.position;
    for (const Piece &piece : device.pieces) {
        if (from >= piece.length) {
            from -= piece.length;
            continue;
        }
        const qint64 part = std::min(bytes, piece.length - from);
        if (!transferPiece(piece, direction, piece.start + from, buffer, part))
            return false;
        buffer += part;
        bytes -= part;
        from = 0;
        if (bytes == 0)
            break;
    }
    return bytes == 0;
}

bool RawDevices::transferPiece(const Piece &piece, Direction direction, qint64 offset, char *buffer,
                               qint64 bytes)
{
    const Throttle throttle(*piece.disk, bytes);
    if (offset + bytes > bytesOf(*piece.disk))
        return false;
    const qint64 first = offset / sectorBytes;
    const qint64 count = (offset + bytes + sectorBytes - 1) / sectorBytes - first;
    const bool reads = direction == Direction::Read;
    if ((reads ? piece.disk->bad : piece.disk->unwritable).touches(first, count))
        return false;
    return (reads ? sparse::read(*piece.file, offset, buffer, bytes)
                  : sparse::write(*piece.file, offset, buffer, bytes));
}

bool RawDevices::DeviceIoControl(RawHandle handle, quint32 code, const void *in, quint32 inSize, void *out,
                                 quint32 outSize, quint32 *returned)
{
    const std::shared_ptr<Device> device = find(handle);
    if (!device || !isThere(*device))
        return false;
    const QByteArray request(static_cast<const char *>(in), in == nullptr ? 0 : static_cast<int>(inSize));
    const Disk &first = *device->pieces.first().disk;
    QByteArray told = geometryAnswer(code, bytesOf(first), first.record);
    if (device->volume && code == io::VolumeGetVolumeDiskExtents)
        told = extentsAnswer(code, device->volume->extents);
    else if (!device->volume && told.isEmpty())
        told = driveAnswer(first, code, request);
    return answer(told, out, outSize, returned);
}

inventory::Machine RawDevices::machine()
{
    inventory::Machine machine;
    for (const Disk &disk : m_pc.disks) {
        if (m_presence.hasDisk(disk.record.number))
            machine.disks.append(disk.record);
    }
    std::copy_if(m_pc.volumes.cbegin(), m_pc.volumes.cend(), std::back_inserter(machine.volumes),
                 [this](const inventory::Volume &volume) { return m_presence.has(volume); });
    std::copy_if(m_pc.partitions.cbegin(), m_pc.partitions.cend(), std::back_inserter(machine.partitions),
                 [this](const inventory::Partition &row) { return m_presence.hasDisk(row.disk); });
    return machine;
}

std::unique_ptr<tools::ScriptedDisks> RawDevices::scriptedDisks()
{
    return std::make_unique<DiskScripts>(machine(), *this);
}

} // namespace simulated
