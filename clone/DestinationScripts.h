#pragma once

#include <QStringList>

/// What is done to the destination of a clone before and after the copying, as scripts for the system's
/// partition tool. Disks are physical numbers. Results are not looked at: the disk is looked at before and
/// behind, and trouble shows when it is written.
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
