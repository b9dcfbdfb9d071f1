// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Folders that hold what a simulated PC changes.
namespace simulated
{

/// A fresh folder that only its owner can enter, with no blank in its path, as the command interpreter would
/// cut a path there. Empty if none can be made.
QString makePrivateFolder();

/// Copies a folder with all that is in it; false if a file could not be copied.
bool copyFolder(const QString &from, const QString &to);

} // namespace simulated
