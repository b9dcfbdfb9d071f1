// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// Scripts for the system's partition tool that prepare the destination of a clone, and bring it back
/// afterwards. Disks go by their physical number. The tool's result is not checked: the disk itself is
/// checked before and after, and a fault shows when the disk is written.
namespace destination
{

/// The scripts that make a disk writable and empty it, in order.
QStringList prepareScripts(int disk);

/// The scripts that bring it back into the system.
QStringList finishScripts(int disk);

/// Runs scripts one after the other, each through the one script file of the temp folder, which is gone
/// afterwards and which nobody else can change meanwhile. A script that cannot be written so is not run.
/// Blocks until the tool has ended; one thread at a time in the whole process.
void runScripts(const QStringList &scripts);

} // namespace destination
