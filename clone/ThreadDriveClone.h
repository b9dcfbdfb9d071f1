// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "clone/CloneOutcome.h"

#include <QThread>

#include <array>
#include <atomic>

class CloneTarget;
struct DiskDetails;

/// Whether the last clone was refused or failed; clear while one runs.
inline std::atomic<bool> g_bCloneFailed{false};

/// Copies the disk g_App.m_pCurrentDisk onto the disk g_App.m_pCloneDisk, block by block, off the main
/// thread. Whatever the destination held is lost, unless the disks are not those of the lists any more or the
/// destination is in use: then the run is refused before anything is written. Started with
/// start(QThread::InheritPriority); g_bAbortJob, cleared by whoever starts a run, asks it to end at the next
/// block. Until isRunning() is false both nodes are in use: the disk list must not be rebuilt before, even if
/// g_bJobRunning has been cleared by a stop.
///
/// What cannot be read or written is tried again in small pieces behind the rest; outcome() tells what was
/// lost all the same. The destructor waits for a run that is under way without a time limit.
class ThreadDriveClone : public QThread
{
    Q_OBJECT

public:
    explicit ThreadDriveClone(QObject *parent = nullptr);
    ~ThreadDriveClone() override;

    /// How the last run ended. Only to be called while none is under way.
    const CloneOutcome &outcome() const { return m_outcome; }

signals:
    /// The last signal of every run; outcome() tells how the run ended. g_bJobRunning is cleared right
    /// after it.
    void OnCloningFinish();
    /// At the fourth block, then at every third one: where the block begins, and the remaining
    /// milliseconds. They are estimated once, from the first block, and may become negative. In the second
    /// pass now and then: how much of the disk is copied, and the remaining milliseconds of that pass.
    void SetProgressValue(qlonglong position, qlonglong remaining);
    /// The clone was refused, or failed.
    void CloningFailed();
    /// Stopped; the disks are closed and the destination is back in the system.
    void CloningAbort();
    /// Never emitted.
    void RemainingTime(qlonglong remaining);

protected:
    void run() override;

private:
    class Progress;

    void cloneDisk();
    /// Whether the disks may be used; keeps the reason where they may not.
    bool mayUse(const CloneTarget &source, const CloneTarget &destination);
    bool checkBeforeErasing();
    void copy(const std::array<char *, 2> &buffers);
    void finish();
    void endAsFailed(CloneOutcome::End end, CloneFault fault);

    CloneOutcome m_outcome;
    DiskDetails *m_pSource = nullptr; ///< of the run that is under way
    DiskDetails *m_pDestination = nullptr;
};
