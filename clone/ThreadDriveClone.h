#pragma once

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <atomic>

/// Set when a disk of a clone could not be opened, and never cleared: every later clone of the process ends
/// as failed, too.
inline std::atomic<bool> g_bCloneFailed{false};

/// Copies the disk g_App.m_pCurrentDisk onto the disk g_App.m_pCloneDisk, block by block, off the main
/// thread. Whatever the destination held is lost as soon as a run begins. Started with
/// start(QThread::InheritPriority); g_bAbortJob, cleared by whoever starts a run, asks it to end at the next
/// block. Until isRunning() is false both nodes are in use: the disk list must not be rebuilt before, even if
/// g_bJobRunning has been cleared by a stop.
///
/// Sectors that cannot be read stay on the destination as they were; those that cannot be written are passed
/// over. Neither is told. The destructor waits for a run that is under way without a time limit.
class ThreadDriveClone : public QThread
{
    Q_OBJECT

public:
    explicit ThreadDriveClone(QObject *parent = nullptr);
    ~ThreadDriveClone() override;

signals:
    /// The last one of every run, however it went: g_bAbortJob and g_bCloneFailed tell how. g_bJobRunning is
    /// cleared right behind it.
    void OnCloningFinish();
    /// With the fourth block, then with every third: where that block begins, and milliseconds that are left
    /// by an estimate made once from the first block; these may be negative.
    void SetProgressValue(qlonglong position, qlonglong remaining);
    /// A disk could not be opened, now or in an earlier run.
    void CloningFailed();
    /// Stopped; the disks are closed and the destination is back in the system.
    void CloningAbort();
    /// Never emitted.
    void RemainingTime(qlonglong remaining);

protected:
    void run() override;

private:
    class Progress;
    struct Target;

    void cloneDisk();
    void copyBlocks(const Target &source, const Target &destination, qint64 total, char *buffer,
                    Progress &progress);
    void copyBlock(const Target &source, const Target &destination, qint64 position, char *buffer,
                   Progress &progress);
    void probeBlock(const Target &destination, qint64 position, Progress &progress);
    void endAsFailed();

    QMutex m_mutex; ///< held for a whole run
    QWaitCondition m_condition;
};
