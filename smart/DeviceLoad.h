// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// The work of the device-load threads: all lists of disks and volumes anew, and for each disk the identity
/// that its SMART report gives. One at a time.
namespace deviceload
{

/// The pause in front of a load, milliseconds.
constexpr quint32 PauseMilliseconds = 2000;

/// Frees and rebuilds the disk list, then the two lists of the system's tables.
void loadLists();

} // namespace deviceload
