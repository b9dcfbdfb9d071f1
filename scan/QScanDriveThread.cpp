// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/QScanDriveThread.h"

#include "inventory/RawAccess.h"
#include "platform/Log.h"
#include "platform/PageMemory.h"
#include "scan/ScanGlobals.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

#include <QMutexLocker>

#include <cstring>

namespace
{

constexpr quint32 ChunkBytes = 0x800000;
constexpr qint64 SectorsPerChunk = ChunkBytes / SectorSize;

constexpr int TakingMs = 200;    ///< between looks at the disk while it refuses sectors
constexpr int ReadsPerLook = 16; ///< between looks at the clock where they are quick
constexpr int PartingMs = 2000;  ///< that a system may take to notice that a disk was pulled out
constexpr int PartingLooks = 40;
constexpr int PatienceMs = 200; ///< then the receivers' event loop counts as standing still
constexpr int NapMs = 1;        ///< between looks at what is waited for

/// A difference that wraps instead of being undefined.
qint64 difference(qint64 end, qint64 start)
{
    return static_cast<qint64>(static_cast<quint64>(end) - static_cast<quint64>(start));
}

qint64 blockStep(qint64 total)
{
    const qint64 quotient = total / ScanBlockCount;
    return quotient * ScanBlockCount == total ? quotient : quotient + 1;
}

/// The record of the selected disk; null where none is selected, and while the lists are rebuilt.
DiskDetails *selectedDisk()
{
    const DiskNode *node = g_bListsLoading ? nullptr : g_App.m_pCurrentDisk;
    return node ? node->pDetails.get() : nullptr;
}

} // namespace

QScanDriveThread::QScanDriveThread(QObject *parent) : QThread(parent)
{
    g_bAbortJob = false;
}

QScanDriveThread::~QScanDriveThread()
{
    g_bAbortJob = true;
    wait();
}

void QScanDriveThread::StartScan(DiskNode *, int)
{
    const QMutexLocker lock(&m_mutex);
    if (isRunning()) {
        g_bAbortJob = true;
    } else {
        g_bJobRunning = true; // a refresh of the lists must not slip in before the thread is up
        start(QThread::LowPriority);
    }
}

void QScanDriveThread::SetRange(qint64 start, qint64 end)
{
    const QMutexLocker lock(&m_mutex);
    g_nScanStartSector = start;
    g_nScanEndSector = end;
}

void QScanDriveThread::run()
{
    const QMutexLocker lock(&m_mutex);
    g_bJobRunning = true;
    // The flags of the last scan say nothing about this disk.
    g_bScanFailed = false;
    g_bScanDiskGone = false;
    if (!g_bAbortJob)
        scan();
    emit OnFinish(g_bScanFailed ? QStringLiteral("Failed") : QStringLiteral("Pass"));
    g_bJobRunning = false;
}

void QScanDriveThread::scan()
{
    g_BadSectors.clear();
    DiskDetails *const disk = selectedDisk();
    const PageMemory buffer = pageMemory(ChunkBytes);
    if (!buffer)
        return;
    m_nBadSectors = 0;
    m_nGoodSector = -1;
    m_nStoodStillAt = -1;
    m_total = difference(g_nScanEndSector, g_nScanStartSector);
    emit MaximumBadBlockScanProgress();
    m_progress = 2;
    emit ScanProgressValue(m_progress);
    g_nBlockStep = blockStep(m_total);

    // Once a stop has been confirmed the lists may be rebuilt: from here on the record is left alone.
    const qint64 diskSectors = disk ? static_cast<qint64>(disk->nTotalSectors) : 0;
    m_nDrive = disk ? disk->nDevice : 0;
    m_handle = disk ? OpenDisk(m_nDrive) : Platform::InvalidHandle;
    if (disk)
        disk->hDisk = m_handle;
    if (m_handle == Platform::InvalidHandle) {
        qCDebug(logs::scan) << "the disk does not open:" << m_nDrive;
        g_bScanFailed = true;
    } else {
        emit ScanProgressValue(1);
        readChunks(buffer.get());
        g_bScanFailed = g_bScanDiskGone.load();
        Platform::current().CloseHandle(m_handle);
    }

    if (g_bAbortJob || g_bScanDiskGone) {
        emit ScanProgressValue(m_progress);
    } else {
        if (disk)
            disk->hDisk = 0;
        emit AllBlockProcessed(diskSectors);
        if (!g_bScanFailed)
            emit ScanProgressValue(m_progress + 2);
    }
    emit BadBockCount(0);
    tellCounts(m_nBadSectors, m_nBadSectors);
}

void QScanDriveThread::readChunks(char *buffer)
{
    const qint64 step = g_nBlockStep;
    quint32 bytes = ChunkBytes;
    for (qint64 position = 0; position < m_total && !g_bAbortJob; position += bytes / SectorSize) {
        emit TotalBlockCount(position, m_total, step);
        if (m_total - position < SectorsPerChunk)
            bytes = static_cast<quint32>(m_total - position) * SectorSize;
        if (!read(position, buffer, bytes))
            narrowDown(position, bytes / SectorSize);
        if (g_bScanDiskGone)
            return;
        if (position == 0)
            emit setRemainingTime(bytes / SectorSize, g_nScanEndSector);
        m_progress = qMax<qint64>(position / step, 1);
        emit ScanProgressValue(m_progress);
    }
}

bool QScanDriveThread::read(qint64 sector, char *buffer, quint32 bytes)
{
    quint32 filled = 0;
    if (!ReadWriteSectors(m_nDrive, static_cast<quint64>(sector), buffer, bytes, m_handle, false, &filled))
        return false;
    // The part of the buffer that a short read does not fill becomes zero.
    std::memset(buffer + filled, 0, bytes - filled);
    m_nGoodSector = sector;
    return true;
}

void QScanDriveThread::narrowDown(qint64 position, qint64 sectors)
{
    const PageMemory buffer = pageMemory(SectorSize);
    char *const probe = buffer.get();
    if (!probe)
        return;
    int uncounted = 0;
    bool wasBad = false;
    qint64 readsPerLook = 1;
    qint64 lastLook = 0;
    m_sinceTaken.start();
    if (Platform::current().IsGone(m_handle)) {
        g_bScanDiskGone = true;
        return;
    }
    // The end is included: the sector behind the chunk is read as well. If it is bad it is found again with
    // its own chunk.
    for (qint64 sector = position; sector <= position + sectors && !g_bAbortJob && !g_bScanDiskGone;
         ++sector) {
        const bool bad = !read(sector, probe, SectorSize);
        if (bad) {
            m_found.add(sector, 1);
            uncounted = g_bAbortJob ? 1 : 0;
        }
        // Asking for the time costs a good part of a quick read, so it is not done after each of these.
        if (bad != wasBad)
            readsPerLook = 1;
        wasBad = bad;
        if (m_found.count() == 0 || uncounted > 0 || sector % readsPerLook != 0)
            continue;
        const qint64 now = m_sinceTaken.elapsed();
        readsPerLook = now == lastLook ? ReadsPerLook : 1;
        lastLook = now;
        if (now >= TakingMs)
            takeFound(0);
    }
    takeFound(uncounted);
}

void QScanDriveThread::takeFound(int uncounted)
{
    if (m_found.count() == 0)
        return;
    if (isStillThere()) {
        const qint64 told = m_nBadSectors;
        for (const SectorRun &run : m_found.runs()) {
            g_BadSectors.append(run.first, run.count);
            m_nBadSectors += run.count;
        }
        qCDebug(logs::scan) << "bad sectors, in all:" << m_nBadSectors;
        m_nBadSectors -= uncounted;
        if (m_nBadSectors > told)
            tellCounts(told + 1, m_nBadSectors);
    } else {
        qCDebug(logs::scan) << "the disk has gone:" << m_nDrive;
        g_bScanDiskGone = true;
    }
    m_found = {};
    m_sinceTaken.start();
}

bool QScanDriveThread::isStillThere()
{
    Platform &platform = Platform::current();
    if (platform.IsGone(m_handle))
        return false;
    const PageMemory buffer = pageMemory(SectorSize);
    char *const probe = buffer.get();
    if (!probe)
        return true;
    if (m_nGoodSector < 0 || read(m_nGoodSector, probe, SectorSize))
        return true;
    // The disk refuses a sector that it could read a moment ago. If it was pulled out, the system soon
    // notices. If it is still there after a while, it has failed altogether, and all its sectors are bad.
    for (int look = 0; look < PartingLooks; ++look) {
        msleep(PartingMs / PartingLooks);
        if (platform.IsGone(m_handle))
            return false;
        // A stop was asked for, and it is not known whether the last refusals were bad sectors.
        if (g_bAbortJob) {
            m_found = {};
            return true;
        }
    }
    m_nGoodSector = -1;
    return true;
}

void QScanDriveThread::tellCounts(qint64 first, qint64 last)
{
    // One event is on its way at a time. A dead disk refuses sectors faster than a window can show them,
    // and an endless queue would fill the memory and hold up every click. An event loop that stands still
    // is not waited for.
    qint64 heard = m_nHeard;
    int waited = heard == m_nStoodStillAt ? PatienceMs : 0;
    while (m_nEventsOut > 0 && waited < PatienceMs && !g_bAbortJob) {
        msleep(NapMs);
        waited = m_nHeard == heard ? waited + NapMs : 0;
        heard = m_nHeard;
    }
    m_nStoodStillAt = waited < PatienceMs ? -1 : heard;
    ++m_nEventsOut;
    const auto tell = [this, first, last] {
        --m_nEventsOut;
        for (qint64 count = first; count <= last; ++count) {
            emit ExactBadSectorCount(count);
            m_nHeard.store(count, std::memory_order_relaxed);
        }
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}
