// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Opening documents and pages with the rights of the user who is logged on.
namespace windows
{

/// Has the shell of the desktop open a file, page or address: what it starts has its rights and not those of
/// this process. False where there is no such shell. Any thread.
bool openByShell(const QString &file, const QString &parameters, const QString &verb, int show);

/// Brings the main window of a program to the front, which bears that file name. False where none is there.
bool bringToFront(const QString &file);

} // namespace windows
