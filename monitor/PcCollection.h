// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Keeps what the program reads of this PC, so that it can be shown elsewhere.
namespace collection
{

/// Writes a described PC into `folder`, which is made and may hold nothing: reports, tables, history,
/// settings, and the sectors with partition tables and begins of file systems. No other content of a disk
/// goes along, and no list of programs. `anonymous` replaces serial numbers and the user's name. Gives one
/// line that says what is wrong; empty if all is well. `sawDisk` is told whether a disk could be read, and
/// may be null. Blocks for the tools.
QString collect(const QString &folder, bool anonymous, bool *sawDisk = nullptr);

} // namespace collection
