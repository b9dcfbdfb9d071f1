// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/SystemInventory.h"

#include "platform/IoControl.h"
#include "platform/Platform.h"
#include "platform/tools/DiskWords.h"
#include "platform/tools/StorageRecords.h"

#include <QDeadlineTimer>

#include <atomic>
#include <chrono>
#include <cstring>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <utility>

#include <windows.h>

#include <winioctl.h>

namespace windows
{

namespace
{

constexpr int DiskNumbers = 128; ///< that are tried: there may be gaps
constexpr int AnswerBytes = 64 * 1024;

/// The answer of a device to a question without a size of its own; empty where it refuses.
QByteArray ask(HANDLE device, DWORD code, const QByteArray &question = {})
{
    QByteArray answer(AnswerBytes, '\0');
    QByteArray in = question;
    DWORD returned = 0;
    if (!::DeviceIoControl(device, code, in.isEmpty() ? nullptr : in.data(), static_cast<DWORD>(in.size()),
                           answer.data(), AnswerBytes, &returned, nullptr))
        return {};
    answer.truncate(static_cast<int>(returned));
    return answer;
}

/// The record at the start of an answer; all zero where it is cut short.
template<typename Record>
Record recordOf(const QByteArray &answer)
{
    Record record{};
    if (answer.size() >= static_cast<int>(sizeof record))
        std::memcpy(&record, answer.constData(), sizeof record);
    return record;
}

inventory::Disk readDisk(HANDLE device, int number)
{
    STORAGE_PROPERTY_QUERY query{};
    query.PropertyId = StorageDeviceProperty;
    query.QueryType = PropertyStandardQuery;
    inventory::Disk disk = storage::readDisk(
        number, ask(device, IOCTL_STORAGE_QUERY_PROPERTY,
                    QByteArray(reinterpret_cast<const char *>(&query), static_cast<int>(sizeof query))));
    const auto size = recordOf<io::DiskGeometryEx>(ask(device, IOCTL_DISK_GET_DRIVE_GEOMETRY_EX));
    if (size.geometry.bytesPerSector != 0)
        disk.bytesPerSector = size.geometry.bytesPerSector;
    disk.sectors = static_cast<quint64>(size.diskSize) / 512;
    if (recordOf<STORAGE_PREDICT_FAILURE>(ask(device, IOCTL_STORAGE_PREDICT_FAILURE)).PredictFailure != 0)
        disk.status = QStringLiteral("Pred Fail");
    return disk;
}

void readDisks(inventory::Machine *machine)
{
    for (int number = 0; number < DiskNumbers; ++number) {
        const std::wstring name = L"\\\\.\\PHYSICALDRIVE" + std::to_wstring(number);
        // Without access: that is enough for questions, and everybody may.
        const HANDLE device = ::CreateFileW(name.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                            OPEN_EXISTING, 0, nullptr);
        if (device == INVALID_HANDLE_VALUE)
            continue;
        machine->disks.append(readDisk(device, number));
        machine->partitions += storage::readPartitions(number, ask(device, IOCTL_DISK_GET_DRIVE_LAYOUT_EX));
        ::CloseHandle(device);
    }
}

inventory::Volume readVolume(const QString &root, Platform *platform)
{
    inventory::Volume volume;
    volume.letter = root.at(0).toUpper();
    const quint32 type = platform->GetDriveTypeW(root);
    volume.type = tools::volumeTypes().value(static_cast<int>(type));
    if (type != io::DriveRemote) {
        platform->GetVolumeInformationW(root, &volume.label, &volume.fileSystem);
        platform->GetDiskFreeSpaceExW(root, &volume.size, &volume.free);
    }
    return volume;
}

} // namespace

inventory::Machine readMachine(const QString &alias, Platform *platform)
{
    inventory::Machine machine;
    if (alias.compare(QLatin1String("logicaldisk"), Qt::CaseInsensitive) != 0) {
        readDisks(&machine);
        return machine;
    }
    for (const QString &root : platform->GetLogicalDriveStringsW())
        machine.volumes.append(readVolume(root, platform));
    return machine;
}

std::optional<inventory::Machine> readMachineWithin(const QString &alias, Platform *platform,
                                                    qint32 milliseconds, const std::function<bool()> &mayGoOn)
{
    constexpr std::chrono::milliseconds Step(200);
    static std::atomic<bool> isAsking{false};
    if (isAsking.exchange(true))
        return std::nullopt;
    // Nothing ends a question to a dead driver: its thread is left behind, and outlives this call.
    const auto told = std::make_shared<std::promise<inventory::Machine>>();
    std::future<inventory::Machine> machine = told->get_future();
    std::thread([told, alias, platform] {
        inventory::Machine read = readMachine(alias, platform);
        isAsking = false;
        told->set_value(std::move(read));
    }).detach();
    const QDeadlineTimer end(milliseconds);
    while (machine.wait_for(Step) != std::future_status::ready) {
        if (end.hasExpired() || !mayGoOn())
            return std::nullopt;
    }
    return machine.get();
}

} // namespace windows
