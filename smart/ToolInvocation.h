// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/CommandRunner.h"
#include "inventory/WmicInventory.h"

#include <QString>

/// How a disk is named to the report tool, and every command line that the tool is run with.

/// What the tool is run for.
enum class ToolPurpose {
    FullReport,
    Capabilities,
    TestProgress,
    StartShortTest,
    StartExtendedTest,
    AbortTest,
    SelfTestLog,
    WatchReport, ///< the full report of a disk that does not sleep, for the companion
    OnceReport   ///< the same for a companion that ends at once, beside the one that watches
};
constexpr int ToolPurposeCount = 9;

/// "/dev/sda" to "/dev/sdn" for the indexes 0 to 13, else empty.
QString deviceName(int diskIndex);

/// The device name, behind " -d sat,12 " where the interface is exactly "USB".
QString deviceString(int diskIndex, const QString &interfaceText);

/// The device name for self-test commands. The row of "/dev/sdk" goes by the combo index, all others by the
/// disk index; the first row that fits decides.
QString selfTestDevice(int diskIndex, int comboIndex);

/// Name of the temp file that a purpose writes.
QString toolFileName(ToolPurpose purpose);

/// The stored device string that a self-test purpose is run with: the one of the latest report for the log,
/// else the self-test's own. Empty for the full report, whose device the caller composes.
QString storedDevice(ToolPurpose purpose);

/// The whole command line, redirection into `file` (a full path) included. A process that the scheduler
/// started runs full reports with the tool's copy in the temp folder, as it has no useful current directory.
QString commandLine(ToolPurpose purpose, const QString &device, const QString &file);

/// Runs the tool for a purpose into its fresh temp file, whose path comes back. Blocks.
QString runTool(ToolPurpose purpose, const QString &device);

/// The same, and hands what the tool wrote to `read`. False, with `read` not called, where it wrote nothing.
bool readTool(ToolPurpose purpose, const QString &device, const runner::OutputReader &read);

/// The same with limits, see Platform::CreateProcessAndWaitFor(), into a file of the disk's own. False, too,
/// where the tool was ended.
bool readToolWithin(ToolPurpose purpose, const QString &device, qint32 milliseconds,
                    const std::function<bool()> &mayGoOn, const runner::OutputReader &read);

/// A report that waits to be taken in.
struct LoadedReport {
    int disk = 0; ///< its physical number
    QString device;
    QString path;
};

/// Runs the full report of a disk. Blocks; any thread, one at a time.
LoadedReport LoadSmartReport(int diskIndex);

/// Runs the full report of a disk of that interface. What it does not name is empty. Blocks; device-load
/// threads only.
ProbedIdentity ProbeDiskIdentity(int diskIndex, const QString &interfaceText);
