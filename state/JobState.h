// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/Globals.h"

/// What runs, what is about to, and whose result shows. The flags of Globals.h are filled from here, but for
/// g_bJobRunning, which the workers set and clear by themselves, too; nothing else combines them. Main
/// thread.
class JobState
{
public:
    enum class Job { Scan, Clone, SelfTest };

    /// A job begins. A scan or a clone asks nobody to stop.
    void begin(Job job);
    /// It is at rest: its thread has ended, and the disks are free. Nothing where it does not run.
    void end(Job job);
    /// From begin() to end(). A scan or a clone that was stopped runs on until the drive has answered.
    bool runs(Job job) const;
    /// A scan or a clone runs: its thread holds the disks, and takes the current one by itself.
    bool holdsDisks() const { return m_bScanning || m_bCloning; }

    /// A scan was asked for; begin() or dropPlan() come next.
    void planScan() { g_bScanStarted = true; }
    void dropPlan() { g_bScanStarted = false; }

    /// The user stops the job: it counts as ended where nobody asks for its thread.
    void stop();
    /// Its results are not wanted any more. The thread ends by itself.
    void giveUp() { g_bAbortJob = true; }
    /// The user takes the stop back.
    void withdrawStop() { g_bAbortJob = false; }

    /// \name Results: they show until somebody goes on to another screen
    /// @{
    void openResult(Job job);
    void closeResults();
    void closeScanResult() { g_bScanResultOpen = false; }
    bool resultOpen() const { return g_bScanResultOpen || g_bSelfTestResultOpen; }
    /// @}

    /// A scan or a clone may start: the lists stand, and no thread holds the disks. A scan that was stopped
    /// would take the stop request of the next job for its own.
    bool mayStart() const { return !g_bListsLoading && !holdsDisks(); }
    /// Nothing would be cut off by the end of the program.
    bool mayClose() const { return mayQuit() && !g_bSelfTestRunning; }
    /// The same, but for a self-test: the drive goes on with that by itself.
    bool mayQuit() const { return !g_bJobRunning && !holdsDisks(); }
    /// The program may be taken up by settings or an update: nothing runs, and nothing is about to.
    bool isIdle() const { return mayClose() && !g_bScanStarted; }
    /// Going to another screen leaves neither a clone nor a result.
    bool mayLeave() const { return !resultOpen() && !m_bCloning; }

private:
    bool m_bScanning = false;
    bool m_bCloning = false;
};

inline JobState g_Jobs;
