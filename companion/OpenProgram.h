// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// How the companion opens the program.
namespace openprogram
{

void open();
/// On the page of a disk; a negative number means none.
void onDisk(int number);
void inSettings();

} // namespace openprogram
