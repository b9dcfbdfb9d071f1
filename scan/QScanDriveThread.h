// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/SectorRuns.h"
#include "platform/Platform.h"

#include <QElapsedTimer>
#include <QMutex>
#include <QString>
#include <QThread>

#include <atomic>

struct DiskNode;

/// Reads the selected disk (g_App.m_pCurrentDisk) from sector 0 on and collects what cannot be read in
/// g_BadSectors. Lives on the main thread and is started anew for each scan; set g_bAbortJob to end one.
/// Connect the signals before a start. All come from the scan's own thread, except ExactBadSectorCount: the
/// thread that this object lives on emits it, in the right order among the others.
class QScanDriveThread : public QThread
{
    Q_OBJECT

public:
    /// Clears g_bAbortJob.
    explicit QScanDriveThread(QObject *parent = nullptr);
    /// Asks a running scan to end and waits for it.
    ~QScanDriveThread() override;

    /// Starts a scan of the selected disk over the range set before; `disk` is not looked at. Waits for the
    /// end of a run that is under way. A thread that has not ended by then gets g_bAbortJob instead of a
    /// start. From this call on no refresh of the disk lists starts (g_bJobRunning).
    void StartScan(DiskNode *disk, int mode);

    /// The sectors to scan are 0 to `end` - `start`. Waits for the end of a run that is under way.
    void SetRange(qint64 start, qint64 end);

signals:
    // The order and the spelling belong to the interface. "never" marks signals that nothing emits.
    void WrtiteText(qlonglong value);                              ///< never
    void SetLogItemData(QString time, QString kind, QString text); ///< never
    void ExactBadSectorCount(qlonglong count); ///< at each bad sector, and once at the end
    void SetMaximumRangeVal(qlonglong value);  ///< never
    void CurrentProgressVal(ulong value);      ///< never
    void CurrentProgressText(QString text);    ///< never
    void MaximumBadBlockScanProgress();        ///< once, when the scan begins
    void AllBlockProcessed(qlonglong total);   ///< once, unless stopped or gone: the disk's sectors
    void ScanProgressValue(qlonglong value);   ///< in blocks: at the start, behind each chunk, at the end
    void CreateImageSectorRead(QString from, QString to); ///< never
    void OnFinish(QString verdict);                       ///< once, last: "Pass" or "Failed" (g_bScanFailed)
    void CreateImageProgressReset();                      ///< never
    void BadBockCount(qlonglong count);                   ///< once at the end, 0
    void TotalBlockCount(qlonglong position, qlonglong total, qlonglong step); ///< before each chunk; sectors
    void ScanForBadBlockProgressValue(uint value);                             ///< never
    void setRemainingTime(qlonglong sectors, qlonglong endSector); ///< once, behind the first chunk
    void BadSectorFound();                                         ///< never
    void CloningFailed();                                          ///< never

protected:
    void run() override;

private:
    void scan();
    void readChunks(char *buffer);
    bool read(qint64 sector, char *buffer, quint32 bytes);
    /// Reads the sectors of a chunk that failed one by one.
    void narrowDown(qint64 position, qint64 sectors);
    /// Adds the bad sectors found since the last call to the list and tells their count; the last
    /// `uncounted` of them are listed only. If the disk has gone the scan ends instead: its refusals were
    /// no bad sectors.
    void takeFound(int uncounted);
    bool isStillThere();
    /// Makes the receivers' thread emit the counts from `first` to `last`.
    void tellCounts(qint64 first, qint64 last);

    QMutex m_mutex; ///< held by a whole run
    qint64 m_nBadSectors = 0;

    // Of the run under way.
    int m_nDrive = 0; ///< drive code
    Platform::RawHandle m_handle = Platform::InvalidHandle;
    qint64 m_total = 0;        ///< sectors
    qint64 m_progress = 0;     ///< in blocks
    qint64 m_nGoodSector = -1; ///< the latest that could be read
    SectorRuns m_found;        ///< not in the list yet
    QElapsedTimer m_sinceTaken;

    std::atomic<int> m_nEventsOut{0}; ///< counts on their way to the receivers' thread
    std::atomic<qint64> m_nHeard{0};  ///< the count that it told last
    qint64 m_nStoodStillAt = -1;      ///< the count at which waiting for that thread was given up
};
