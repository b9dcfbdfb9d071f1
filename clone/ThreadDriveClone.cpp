#include "clone/ThreadDriveClone.h"

#include "app/state/GlobalApp.h"
#include "app/state/Globals.h"
#include "clone/DestinationScripts.h"
#include "inventory/RawAccess.h"

#include <QElapsedTimer>
#include <QMutexLocker>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <new>

namespace
{

constexpr qint64 BlockSectors = 0x8000;
constexpr quint32 TransferSize = 0x1000000; ///< bytes; of every transfer, also of the last ones
constexpr std::size_t BufferSize = TransferSize + 1;
constexpr quint32 ProbeSize = 512;
constexpr quint32 SettlePause = 4000; ///< ms
constexpr int ProgressPeriod = 3;     ///< blocks

/// On a page boundary, so that a platform can hand it to the device as it is.
constexpr std::align_val_t BufferAlignment{4096};

struct FreeBuffer {
    void operator()(char *buffer) const { ::operator delete[](buffer, BufferAlignment); }
};
using Buffer = std::unique_ptr<char, FreeBuffer>;

Buffer allocateBuffer()
{
    Buffer buffer(static_cast<char *>(::operator new[](BufferSize, BufferAlignment, std::nothrow)));
    if (buffer)
        std::memset(buffer.get(), 0, BufferSize);
    return buffer;
}

} // namespace

/// A disk of the clone. While it is open its record holds the handle, too.
struct ThreadDriveClone::Target {
    explicit Target(DiskDetails &details) : m_details(details), driveCode(details.nDevice)
    {
        handle = OpenDisk(driveCode);
        m_details.hDisk = handle;
    }
    ~Target() { close(); }
    Target(const Target &) = delete;
    Target &operator=(const Target &) = delete;

    bool isOpen() const { return handle != Platform::InvalidHandle; }
    void close()
    {
        if (isOpen())
            Platform::current().CloseHandle(handle);
        handle = Platform::InvalidHandle;
        m_details.hDisk = 0;
    }

private:
    DiskDetails &m_details;

public:
    const int driveCode;
    Platform::RawHandle handle = Platform::InvalidHandle;
};

/// Counts what has been done and says every few blocks how far it is.
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

private:
    ThreadDriveClone &m_thread;
    const qint64 m_total;
    QElapsedTimer m_clock;
    qint64 m_estimate = 0; ///< ms for the whole disk
    int m_tick = 0;
};

ThreadDriveClone::ThreadDriveClone(QObject *parent) : QThread(parent) {}

ThreadDriveClone::~ThreadDriveClone()
{
    m_condition.wakeOne();
    wait();
}

void ThreadDriveClone::run()
{
    const QMutexLocker lock(&m_mutex);
    if (!g_bAbortJob)
        cloneDisk();
    emit OnCloningFinish();
    g_bJobRunning = false;
}

void ThreadDriveClone::cloneDisk()
{
    DiskNode *from = g_App.m_pCurrentDisk;
    DiskNode *onto = g_App.m_pCloneDisk;
    // Without both disks there is nothing to erase one for.
    if (!from || !onto || !from->pDetails || !onto->pDetails) {
        g_bCloneFailed = true;
        endAsFailed();
        return;
    }
    const auto total = static_cast<qint64>(from->pDetails->nTotalSectors);
    const int destinationNumber = onto->pDetails->nDevice - PhysicalDriveBase;
    const Buffer buffer = allocateBuffer();
    if (!buffer)
        return;
    g_bJobRunning = true;
    destination::runScripts(destination::prepareScripts(destinationNumber));
    Platform::current().Sleep(SettlePause);
    {
        const Target source(*from->pDetails);
        const Target destination(*onto->pDetails);
        Progress progress(*this, total);
        if (source.isOpen() && destination.isOpen())
            copyBlocks(source, destination, total, buffer.get(), progress);
        else
            g_bCloneFailed = true;
    }
    if (g_bCloneFailed) {
        endAsFailed();
        return;
    }
    destination::runScripts(destination::finishScripts(destinationNumber));
    if (g_bAbortJob) {
        g_bJobRunning = false;
        emit CloningAbort();
    }
}

void ThreadDriveClone::copyBlocks(const Target &source, const Target &destination, qint64 total, char *buffer,
                                  Progress &progress)
{
    for (qint64 position = 0; position < total && !g_bAbortJob;
         position += std::min(total - position, BlockSectors))
        copyBlock(source, destination, position, buffer, progress);
}

void ThreadDriveClone::copyBlock(const Target &source, const Target &destination, qint64 position,
                                 char *buffer, Progress &progress)
{
    const auto sector = static_cast<quint64>(position);
    quint32 got = 0;
    if (!ReadWriteSectors(source.driveCode, sector, buffer, TransferSize, source.handle, false, &got))
        return;
    // Behind the source's end the destination gets zeros, not what the block before left in the buffer.
    std::memset(buffer + got, 0, TransferSize - got);
    if (g_bAbortJob)
        return;
    if (ReadWriteSectors(destination.driveCode, sector, buffer, TransferSize, destination.handle, true))
        progress.step(position);
    else
        probeBlock(destination, position, progress);
}

void ThreadDriveClone::probeBlock(const Target &destination, qint64 position, Progress &progress)
{
    std::array<char, ProbeSize> sector{};
    // The bound is inclusive: the first sector of the next block is looked at, too.
    for (qint64 s = position; s <= position + BlockSectors && !g_bAbortJob; ++s) {
        if (ReadWriteSectors(destination.driveCode, static_cast<quint64>(s), sector.data(), ProbeSize,
                             destination.handle))
            progress.step(position);
    }
}

void ThreadDriveClone::endAsFailed()
{
    g_bJobRunning = false;
    emit CloningFailed();
}
