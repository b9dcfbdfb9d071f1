// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/DiskTable.h"

#include "inventory/CCreateDiskDriveList.h"
#include "inventory/CommandRunner.h"
#include "inventory/WmicInventory.h"
#include "monitor/WatchMemory.h"
#include "platform/Platform.h"
#include "state/Globals.h"

#include <algorithm>

std::optional<std::vector<ListedDisk>> listDisks(const QString &tempName,
                                                 const std::function<bool()> &mayGoOn)
{
    if (!Platform::current().BeginDiskListing(Schedule::ToolLimit, mayGoOn))
        return std::nullopt;
    const runner::Limits limits(Schedule::ToolLimit, mayGoOn);
    // A probe by the report tool would wake the disk.
    LoadDiskDrives([](int, const QString &) { return ProbedIdentity(); }, tempName);
    const QHash<int, DiskMedium> media = LoadDiskMedia(tempName);
    if (limits.wereReached())
        return std::nullopt;
    std::vector<ListedDisk> disks;
    for (const WmicDiskRecord &record : g_wmicDisks) {
        const int number = static_cast<int>(record.nIndex);
        const bool isEmpty = !media.isEmpty() && !media.contains(number); // a card reader without a card
        if (record.nIndex >= CCreateDiskDriveList::ListedDisks || isEmpty)
            continue;
        const QString bus = record.szInterface.text();
        const DiskMedium medium = media.value(number);
        disks.push_back({number, record.szSmartModel.text(), record.szSmartSerial.text().trimmed(), bus,
                         medium.bytes, medium.isRemovable || bus == QLatin1String("USB")});
    }
    return disks;
}

std::vector<std::size_t> recordsOf(const std::vector<ListedDisk> &table, WatchMemory *memory)
{
    using Same = bool (*)(const ListedDisk &, const WatchedDisk &);
    // The surest first. Some bridges give each disk the same serial number.
    static constexpr Same sames[] = {
        [](const ListedDisk &disk, const WatchedDisk &known) {
            return known.tableSerial == disk.serial && known.tableModel == disk.model &&
                   known.number == disk.number;
        },
        [](const ListedDisk &disk, const WatchedDisk &known) {
            return known.tableSerial == disk.serial && known.tableModel == disk.model;
        },
    };
    constexpr std::size_t None = static_cast<std::size_t>(-1);
    std::vector<std::size_t> places(table.size(), None);
    std::vector<bool> taken(memory->disks.size(), false);
    for (const Same same : sames) {
        for (std::size_t i = 0; i < table.size(); ++i) {
            for (std::size_t k = 0; k < taken.size() && places[i] == None; ++k) {
                if (!taken[k] && same(table[i], memory->disks[k])) {
                    places[i] = k;
                    taken[k] = true;
                }
            }
        }
    }
    for (std::size_t i = 0; i < table.size(); ++i) {
        const ListedDisk &disk = table[i];
        if (places[i] == None) {
            places[i] = memory->disks.size();
            memory->disks.emplace_back();
        }
        WatchedDisk &known = memory->disks[places[i]];
        known.number = disk.number;
        known.tableModel = disk.model;
        known.tableSerial = disk.serial;
        known.interfaceText = disk.interfaceText;
        known.removable = disk.removable;
        known.last.bytes = known.last.bytes > 0 ? known.last.bytes : disk.bytes;
    }
    return places;
}
