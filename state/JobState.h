// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/Globals.h"

/// What runs, what was asked for, and whose result is on show. This class sets the flags of Globals.h, and no
/// other code combines them. The workers, too, set and clear g_bJobRunning. Main thread.
class JobState
{
public:
    enum class Job { Scan, Clone, SelfTest };

    /// A job begins. For a scan or a clone this clears the stop request.
    void begin(Job job);
    /// The thread of the job has ended. Does nothing where the job does not run.
    void end(Job job);
    /// From begin() to end(). A scan or a clone that was stopped runs on until the drive has answered.
    bool runs(Job job) const;
    /// A scan or a clone runs: its thread has disks open, and reads m_pCurrentDisk.
    bool holdsDisks() const { return m_bScanning || m_bCloning; }

    /// A scan was asked for. begin() or dropPlan() follows.
    void planScan() { g_bScanStarted = true; }
    void dropPlan() { g_bScanStarted = false; }

    /// The user stops the job. g_bJobRunning is false from now on; the thread needs some time to end.
    void stop();
    /// Asks the job to stop, as nobody wants its results.
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

    /// A scan or a clone may start: no refresh rebuilds the lists, and no scan or clone runs. A scan that was
    /// stopped, and has not ended yet, would go on when begin() clears the stop request.
    bool mayStart() const { return !g_bListsLoading && !holdsDisks(); }
    /// The program may end: no job runs.
    bool mayClose() const { return mayQuit() && !g_bSelfTestRunning; }
    /// The same, except that a self-test may run: the drive goes on with it by itself.
    bool mayQuit() const { return !g_bJobRunning && !holdsDisks(); }
    /// Settings or an update may open: no job runs, and no scan was asked for.
    bool isIdle() const { return mayClose() && !g_bScanStarted; }
    /// The user may go to another screen: no clone runs, and no result is on show.
    bool mayLeave() const { return !resultOpen() && !m_bCloning; }

private:
    bool m_bScanning = false;
    bool m_bCloning = false;
};

inline JobState g_Jobs;
