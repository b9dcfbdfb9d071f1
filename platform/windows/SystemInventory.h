// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Inventory.h"

#include <functional>
#include <optional>

class Platform;

namespace windows
{

/// What the tables of WMIC tell of this PC, asked of the system's own interfaces. No rights are needed.
/// `alias` is the table: what the others are about is not asked. A network share is listed, and not asked for
/// anything. Any thread.
inventory::Machine readMachine(const QString &alias, Platform *platform);

/// The same with limits: nothing after a time, or when `mayGoOn` says no, which is asked several times a
/// second on this thread. Also nothing while a disk still leaves an earlier question of this kind without an
/// answer.
std::optional<inventory::Machine> readMachineWithin(const QString &alias, Platform *platform,
                                                    qint32 milliseconds,
                                                    const std::function<bool()> &mayGoOn);

} // namespace windows
