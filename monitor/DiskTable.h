// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <vector>

class WatchMemory;

/// A disk of the system's table. Reading the table wakes no disk.
struct ListedDisk {
    int number = -1;
    QString model;
    QString serial; ///< empty where the system knows none
    QString interfaceText;
    qint64 bytes = 0;
    bool removable = false; ///< its medium, or the whole disk by USB
};

/// The fixed and removable disks of the PC, of which the inventory lists 24 at most; the tables come in a
/// temp file of that name. Blocks for the system's tools. Nothing where one of them had to be ended: after
/// Schedule::ToolLimit, or because `mayGoOn` says no.
std::optional<std::vector<ListedDisk>> listDisks(const QString &tempName,
                                                 const std::function<bool()> &mayGoOn);

/// For each disk of the table the place of its record in `memory`, where a new disk gets one. A disk goes by
/// its serial number and model, and by its number where the system knows no serial number.
std::vector<std::size_t> recordsOf(const std::vector<ListedDisk> &table, WatchMemory *memory);
