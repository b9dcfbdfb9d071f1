// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

/// What the program did, for whoever looks for a fault: `qCDebug(logs::platform) << "no such node" << node;`.
/// One category for each floor, called "halvane." and its folder. Nothing is printed until QT_LOGGING_RULES
/// says so. Never log what a disk holds or its serial number: people send these lines to others.
namespace logs
{

Q_DECLARE_LOGGING_CATEGORY(platform)
Q_DECLARE_LOGGING_CATEGORY(state)
Q_DECLARE_LOGGING_CATEGORY(inventory)
Q_DECLARE_LOGGING_CATEGORY(smart)
Q_DECLARE_LOGGING_CATEGORY(scan)
Q_DECLARE_LOGGING_CATEGORY(clone)
Q_DECLARE_LOGGING_CATEGORY(update)
Q_DECLARE_LOGGING_CATEGORY(monitor)

} // namespace logs
