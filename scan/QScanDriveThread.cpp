#include "scan/QScanDriveThread.h"

#include "app/state/GlobalApp.h"
#include "app/state/Globals.h"
#include "inventory/RawAccess.h"
#include "scan/ScanGlobals.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMutexLocker>

#include <cstring>
#include <memory>
#include <new>

namespace
{

constexpr int SectorSize = 512;
constexpr quint32 ChunkBytes = 0x800000;
constexpr qint64 SectorsPerChunk = ChunkBytes / SectorSize;

// How far the scan may run ahead of those who hear of its bad sectors: one chunk. A disk that has gone fails
// faster than a window can show it, and a queue without end would take all memory and every click.
constexpr qlonglong SectorsPerMark = 4096;
constexpr int MarksAhead = SectorsPerChunk / SectorsPerMark;
constexpr int PatienceMs = 200; ///< then the receivers' event loop counts as standing still
constexpr int NapMs = 10;       ///< between looks at the stop request

QEvent::Type followedEvent()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

// Memory that the system can let a drive write into, without a copy on the way.
constexpr std::align_val_t PageSize{4096};

struct Free {
    void operator()(char *memory) const { ::operator delete(memory, PageSize); }
};
using Buffer = std::unique_ptr<char, Free>;

/// Zeroed; null where there is no memory.
Buffer allocate(quint32 bytes)
{
    Buffer buffer(static_cast<char *>(::operator new(bytes, PageSize, std::nothrow)));
    if (buffer)
        std::memset(buffer.get(), 0, bytes);
    return buffer;
}

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

/// What a short read leaves of the buffer is zero afterwards.
bool readSectors(int drive, Platform::RawHandle handle, qint64 sector, char *buffer, quint32 bytes)
{
    quint32 filled = 0;
    if (!ReadWriteSectors(drive, static_cast<quint64>(sector), buffer, bytes, handle, false, &filled))
        return false;
    std::memset(buffer + filled, 0, bytes - filled);
    return true;
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
    m_condition.wakeOne();
    wait();
}

void QScanDriveThread::StartScan(DiskNode *, int mode)
{
    const QMutexLocker lock(&m_mutex);
    m_nMode = mode;
    if (isRunning()) {
        g_bAbortJob = true;
        m_condition.wakeOne();
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

bool QScanDriveThread::event(QEvent *event)
{
    if (event->type() != followedEvent())
        return QThread::event(event);
    m_followed.release();
    return true;
}

void QScanDriveThread::run()
{
    const QMutexLocker lock(&m_mutex);
    g_bScanBegun = false;
    g_bJobRunning = true;
    m_nSectorSize = SectorSize;
    if (!g_bAbortJob)
        scan();
    emit OnFinish(g_bScanFailed ? QStringLiteral("Failed") : QStringLiteral("Pass"));
    g_bScanFinished = true;
    g_bJobRunning = false;
}

void QScanDriveThread::scan()
{
    g_BadSectors.clear();
    DiskDetails *const disk = selectedDisk();
    m_nBadBlocks = 0;
    const Buffer buffer = allocate(ChunkBytes);
    if (!buffer)
        return;
    m_nBadSectors = 0;
    m_total = difference(g_nScanEndSector, g_nScanStartSector);
    emit MaximumBadBlockScanProgress();
    m_progress = 1;
    if (!m_bProgressKnown) {
        m_progress = 2;
        emit ScanProgressValue(m_progress);
    }
    g_nBlockStep = blockStep(m_total);

    // Once a stop has been confirmed the lists may be rebuilt: from here on the record is left alone.
    const qlonglong diskSectors = disk ? static_cast<qlonglong>(disk->nTotalSectors) : 0;
    m_nDrive = disk ? disk->nDevice : 0;
    m_handle = disk ? OpenDisk(m_nDrive) : Platform::InvalidHandle;
    if (disk)
        disk->hDisk = m_handle;
    if (m_handle == Platform::InvalidHandle) {
        g_bScanFailed = true;
    } else {
        emit ScanProgressValue(1);
        readChunks(buffer.get());
        Platform::current().CloseHandle(m_handle);
    }

    if (g_bAbortJob) {
        emit ScanProgressValue(m_progress);
    } else {
        if (disk)
            disk->hDisk = 0;
        emit AllBlockProcessed(diskSectors);
        if (!g_bScanFailed)
            emit ScanProgressValue(m_progress + 2);
    }
    emit BadBockCount(m_nBadBlocks);
    emit ExactBadSectorCount(m_nBadSectors);
}

void QScanDriveThread::readChunks(char *buffer)
{
    const qint64 step = g_nBlockStep;
    quint32 bytes = ChunkBytes;
    for (qint64 position = 0; position < m_total && !g_bAbortJob; position += bytes / SectorSize) {
        emit TotalBlockCount(position, m_total, step);
        if (m_total - position < SectorsPerChunk)
            bytes = static_cast<quint32>(m_total - position) * SectorSize;
        if (!readSectors(m_nDrive, m_handle, position, buffer, bytes))
            narrowDown(position, bytes / SectorSize);
        if (position == 0)
            emit setRemainingTime(bytes / SectorSize, g_nScanEndSector);
        m_progress = qMax<qlonglong>(position / step, 1);
        emit ScanProgressValue(m_progress);
    }
}

void QScanDriveThread::narrowDown(qint64 position, qint64 sectors)
{
    alignas(static_cast<std::size_t>(PageSize)) char probe[SectorSize];
    // The bound belongs to the range: the sector behind the chunk is probed too, and a bad one there is found
    // again with its own chunk.
    for (qint64 sector = position; sector <= position + sectors && !g_bAbortJob; ++sector) {
        if (readSectors(m_nDrive, m_handle, sector, probe, SectorSize))
            continue;
        g_BadSectors.append(sector);
        if (g_bAbortJob)
            break;
        emit ExactBadSectorCount(++m_nBadSectors);
        if (m_nBadSectors % SectorsPerMark == 0)
            letReceiversFollow();
    }
}

void QScanDriveThread::letReceiversFollow()
{
    QCoreApplication::postEvent(this, new QEvent(followedEvent()));
    ++m_nMarksOut;
    int waited = m_bNobodyFollows ? PatienceMs : 0;
    while (m_nMarksOut > MarksAhead && !g_bAbortJob) {
        if (m_followed.tryAcquire(1, waited < PatienceMs ? NapMs : 0)) {
            --m_nMarksOut;
            waited = 0;
        } else if (waited >= PatienceMs) {
            break;
        } else {
            waited += NapMs;
        }
    }
    m_bNobodyFollows = waited >= PatienceMs;
}
