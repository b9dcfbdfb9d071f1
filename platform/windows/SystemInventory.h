// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Inventory.h"

class Platform;

namespace windows
{

/// What the tables of WMIC tell of this PC, asked of the system's own interfaces. No rights are needed.
/// `alias` is the table: what the others are about is not asked. A network share is listed, and not asked for
/// anything. Any thread.
inventory::Machine readMachine(const QString &alias, Platform *platform);

} // namespace windows
