// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/DiskScripts.h"

#include "platform/IoControl.h"
#include "platform/tools/MasterBootRecord.h"

#include <QRandomGenerator>

#include <algorithm>

namespace simulated
{
namespace
{

using tools::DiskAction;
using tools::DiskOutcome;

/// What emptying a disk erases at its begin and at its end, where partition tables are.
constexpr qint64 ErasedStretch = 1024 * 1024;

/// A raw disk that is open.
class OpenedDisk
{
public:
    OpenedDisk(Platform &devices, int number)
        : m_devices(devices),
          m_handle(devices.CreateFileW(QStringLiteral("\\\\.\\PHYSICALDRIVE%1").arg(number),
                                       io::GenericRead | io::GenericWrite, 0, io::OpenExisting))
    {
    }
    OpenedDisk(const OpenedDisk &) = delete;
    OpenedDisk &operator=(const OpenedDisk &) = delete;
    ~OpenedDisk() { m_devices.CloseHandle(m_handle); }

    bool isOpen() const { return m_handle != Platform::InvalidHandle; }
    QByteArray read(qint64 offset, qint64 bytes)
    {
        QByteArray data(static_cast<int>(bytes), '\0');
        quint32 got = 0;
        const bool whole = m_devices.SetFilePointer(m_handle, offset) &&
                           m_devices.ReadFile(m_handle, data.data(), static_cast<quint32>(bytes), &got) &&
                           got == bytes;
        return whole ? data : QByteArray();
    }
    bool write(qint64 offset, const QByteArray &data)
    {
        const auto bytes = static_cast<quint32>(data.size());
        quint32 put = 0;
        return m_devices.SetFilePointer(m_handle, offset) &&
               m_devices.WriteFile(m_handle, data.constData(), bytes, &put) && put == bytes;
    }
    bool erase(qint64 offset, qint64 bytes)
    {
        // Zeros are not written again: they may lie on sectors that cannot be written.
        const QByteArray zeros(static_cast<int>(bytes), '\0');
        return read(offset, bytes) == zeros || write(offset, zeros);
    }

private:
    Platform &m_devices;
    const Platform::RawHandle m_handle;
};

DiskOutcome outcomeOf(bool done)
{
    return done ? DiskOutcome::Done : DiskOutcome::DeviceError;
}

DiskOutcome clean(OpenedDisk &disk, qint64 size)
{
    const qint64 stretch = std::min(size, ErasedStretch);
    return outcomeOf(disk.erase(0, stretch) && disk.erase(size - stretch, stretch));
}

DiskOutcome convertToMbr(OpenedDisk &disk)
{
    const QByteArray record = disk.read(0, mbr::RecordSize);
    if (record.isEmpty())
        return DiskOutcome::DeviceError;
    if (mbr::hasPartitions(record))
        return DiskOutcome::NotEmpty;
    return outcomeOf(disk.write(0, mbr::emptyTable(QRandomGenerator::global()->generate())));
}

DiskOutcome createPrimary(OpenedDisk &disk, const inventory::Disk &record)
{
    const QByteArray first = disk.read(0, mbr::RecordSize);
    if (first.isEmpty())
        return DiskOutcome::DeviceError;
    const quint64 sectors = record.sectors * mbr::RecordSize / record.bytesPerSector;
    const QByteArray partitioned = mbr::hasTable(first) && !mbr::hasPartitions(first)
                                       ? mbr::withOnePartition(first, sectors, record.bytesPerSector)
                                       : QByteArray();
    return partitioned.isEmpty() ? DiskOutcome::NoRoom : outcomeOf(disk.write(0, partitioned));
}

} // namespace

DiskOutcome DiskScripts::act(DiskAction action, int disk)
{
    if (action == DiskAction::Online)
        return DiskOutcome::AlreadyOnline;
    if (action == DiskAction::Rescan)
        return DiskOutcome::Done;
    OpenedDisk opened(m_devices, disk);
    if (!opened.isOpen())
        return DiskOutcome::DeviceError;
    const inventory::Disk &record = *inventory::diskOf(m_machine, disk);
    switch (action) {
    case DiskAction::Clean:
        return clean(opened, static_cast<qint64>(record.sectors) * mbr::RecordSize);
    case DiskAction::ConvertMbr:
        return convertToMbr(opened);
    default:
        return createPrimary(opened, record);
    }
}

} // namespace simulated
