// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/ThreadDriveClone.h"

#include "clone/CloneCopy.h"
#include "clone/DestinationScripts.h"
#include "platform/Log.h"
#include "platform/PageMemory.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

#include <QElapsedTimer>

namespace
{

constexpr qint64 BlockSectors = BlockReader::BlockSectors;
constexpr std::size_t BufferSize = 0x1000001;
constexpr quint32 SettlePause = 4000; ///< ms
constexpr int ProgressPeriod = 3;     ///< blocks
constexpr qint64 TellPeriod = 200;    ///< ms, while small pieces are copied

/// The mark of a disk as the lists have it; the question before the clone named this disk.
DiskMark listed(const DiskDetails &details)
{
    return {details.nTotalSectors, details.szSerial};
}

/// The first thing that is wrong with the disks as they are now: one does not open, or is another one than
/// was listed, the source has no sectors, or the destination too few.
CloneFault compare(const CloneTarget &source, const DiskMark &listedSource, const CloneTarget &destination,
                   const DiskMark &listedDestination)
{
    if (!source.isOpen())
        return CloneFault::SourceNotOpen;
    if (!destination.isOpen())
        return CloneFault::DestinationNotOpen;
    if (!(source.mark() == listedSource))
        return CloneFault::SourceIsAnother;
    if (!(destination.mark() == listedDestination))
        return CloneFault::DestinationIsAnother;
    if (listedSource.sectors == 0)
        return CloneFault::SourceEmpty;
    return listedDestination.sectors < listedSource.sectors ? CloneFault::DestinationSmaller
                                                            : CloneFault::None;
}

/// The fault that a use of the destination stands for.
CloneFault faultOf(DiskUse::Kind use)
{
    switch (use) {
    case DiskUse::Free:
        return CloneFault::None;
    case DiskUse::System:
        return CloneFault::DestinationOfSystem;
    case DiskUse::Mounted:
        return CloneFault::DestinationMounted;
    case DiskUse::Held:
        return CloneFault::DestinationHeld;
    case DiskUse::Unknown:
        break;
    }
    return CloneFault::DestinationUnknown;
}

} // namespace

/// Counts what has been done and says now and then how far it is.
class ThreadDriveClone::Progress
{
public:
    Progress(ThreadDriveClone &thread, qint64 total) : m_thread(thread), m_total(total) { m_clock.start(); }

    /// `position` is where the block begins.
    void step(qint64 position)
    {
        // One guess from the first block, never refined.
        if (position == 0)
            m_estimate = m_clock.elapsed() * m_total / BlockSectors;
        if (m_tick == ProgressPeriod) {
            const qint64 remaining = m_estimate >= 1 ? m_estimate - m_clock.elapsed() : 0;
            m_tick = 0;
            emit m_thread.SetProgressValue(position, remaining);
        }
        ++m_tick;
    }

    /// Progress of the second pass. Told after as many sectors as a block has, and more often on a slow
    /// drive.
    void again(qint64 left, qint64 skipped)
    {
        if (!m_againClock.isValid()) {
            m_againClock.start();
            m_toldClock.start();
            m_toldLeft = skipped;
        }
        if (left != 0 && m_toldLeft - left < BlockSectors && m_toldClock.elapsed() < TellPeriod)
            return;
        m_toldClock.restart();
        m_toldLeft = left;
        const double share = static_cast<double>(left) / static_cast<double>(skipped - left);
        emit m_thread.SetProgressValue(
            m_total - left, static_cast<qint64>(share * static_cast<double>(m_againClock.elapsed())));
    }

private:
    ThreadDriveClone &m_thread;
    const qint64 m_total;
    QElapsedTimer m_clock;
    QElapsedTimer m_againClock;
    QElapsedTimer m_toldClock;
    qint64 m_toldLeft = 0;
    qint64 m_estimate = 0; ///< ms for the whole disk
    int m_tick = 0;
};

ThreadDriveClone::ThreadDriveClone(QObject *parent) : QThread(parent) {}

ThreadDriveClone::~ThreadDriveClone()
{
    wait();
}

void ThreadDriveClone::run()
{
    m_outcome = {};
    g_bCloneFailed = false;
    if (g_bAbortJob)
        m_outcome.end = CloneOutcome::End::Stopped;
    else
        cloneDisk();
    emit OnCloningFinish();
    g_bJobRunning = false;
}

void ThreadDriveClone::cloneDisk()
{
    const DiskNode *from = g_App.m_pCurrentDisk;
    const DiskNode *onto = g_App.m_pCloneDisk;
    m_pSource = from ? from->pDetails.get() : nullptr;
    m_pDestination = onto ? onto->pDetails.get() : nullptr;
    // Nothing is erased unless both disks are there.
    if (!m_pSource || !m_pDestination) {
        endAsFailed(CloneOutcome::End::Refused, CloneFault::NoDisks);
        return;
    }
    // One is filled while the other is written.
    const PageMemory first = pageMemory(BufferSize);
    const PageMemory second = pageMemory(BufferSize);
    if (!first || !second) {
        endAsFailed(CloneOutcome::End::Refused, CloneFault::NoMemory);
        return;
    }
    g_bJobRunning = true;
    if (!checkBeforeErasing()) {
        endAsFailed(CloneOutcome::End::Refused, m_outcome.fault);
        return;
    }
    if (g_bAbortJob) {
        m_outcome.end = CloneOutcome::End::Stopped;
        return;
    }
    destination::runScripts(destination::prepareScripts(m_pDestination->nDevice - PhysicalDriveBase));
    Platform::current().Sleep(SettlePause);
    copy({first.get(), second.get()});
    finish();
}

bool ThreadDriveClone::mayUse(const CloneTarget &source, const CloneTarget &destination)
{
    m_outcome.fault = compare(source, listed(*m_pSource), destination, listed(*m_pDestination));
    if (m_outcome.fault != CloneFault::None)
        return false;
    const DiskUse use = Platform::current().DismountDisk(m_pDestination->nDevice - PhysicalDriveBase);
    m_outcome.fault = faultOf(use.kind);
    m_outcome.detail = use.by;
    return m_outcome.fault == CloneFault::None;
}

bool ThreadDriveClone::checkBeforeErasing()
{
    const CloneTarget source(*m_pSource);
    const CloneTarget destination(*m_pDestination);
    return mayUse(source, destination);
}

void ThreadDriveClone::copy(const std::array<char *, 2> &buffers)
{
    CloneSource source(*m_pSource);
    CloneDestination destination(*m_pDestination);
    // Both numbers may lead to other disks by now, and the system may have mounted something.
    if (!mayUse(source, destination)) {
        m_outcome.end = CloneOutcome::End::Failed;
        return;
    }
    const auto total = static_cast<qint64>(m_pSource->nTotalSectors);
    Progress progress(*this, total);
    CloneCopy copying(source, destination, total,
                      {[&progress](qint64 position) { progress.step(position); },
                       [&progress](qint64 left, qint64 skipped) { progress.again(left, skipped); }});
    m_outcome = copying.run(buffers);
    if (m_outcome.fault == CloneFault::DestinationGone || destination.flush())
        return;
    m_outcome.lost.unconfirmed = true;
    if (m_outcome.end == CloneOutcome::End::Complete)
        m_outcome.end = CloneOutcome::End::WithErrors;
}

void ThreadDriveClone::finish()
{
    const bool failed = m_outcome.end == CloneOutcome::End::Failed;
    // The number may belong to another disk by now, so nothing is done to it.
    if (!failed || m_outcome.fault == CloneFault::SourceGone)
        destination::runScripts(destination::finishScripts(m_pDestination->nDevice - PhysicalDriveBase));
    if (failed) {
        endAsFailed(m_outcome.end, m_outcome.fault);
        return;
    }
    // A stop counts even if it came too late to stop anything.
    if (g_bAbortJob)
        m_outcome.end = CloneOutcome::End::Stopped;
    if (m_outcome.end == CloneOutcome::End::Stopped) {
        g_bJobRunning = false;
        emit CloningAbort();
    }
}

void ThreadDriveClone::endAsFailed(CloneOutcome::End end, CloneFault fault)
{
    qCDebug(logs::clone) << "the clone was refused or failed, fault:" << static_cast<int>(fault);
    m_outcome.end = end;
    m_outcome.fault = fault;
    g_bCloneFailed = true;
    g_bJobRunning = false;
    emit CloningFailed();
}
