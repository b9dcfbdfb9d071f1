#pragma once

#include "platform/Platform.h"

#include <QMutex>
#include <QSemaphore>
#include <QString>
#include <QThread>
#include <QWaitCondition>

struct DiskNode;

/// Reads the selected disk (g_App.m_pCurrentDisk) from sector 0 on and collects what cannot be read in
/// g_BadSectors. Lives on the main thread and is started anew for each scan; set g_bAbortJob to end one.
/// Connect the signals, which come queued from the thread, before a start.
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
    /// start. The refresh of the disk lists stays away from the moment of the call on (g_bJobRunning).
    void StartScan(DiskNode *disk, int mode);

    /// The sectors to scan are 0 to `end` - `start`. Waits for the end of a run that is under way.
    void SetRange(qint64 start, qint64 end);

    bool event(QEvent *event) override;

signals:
    // The order and the spelling belong to the interface. "never" marks signals that nothing emits.
    void WrtiteText(qlonglong value);                              ///< never
    void SetLogItemData(QString time, QString kind, QString text); ///< never
    void ExactBadSectorCount(qlonglong count); ///< at each bad sector, and once at the end
    void SetMaximumRangeVal(qlonglong value);  ///< never
    void CurrentProgressVal(ulong value);      ///< never
    void CurrentProgressText(QString text);    ///< never
    void MaximumBadBlockScanProgress();        ///< once, when the scan begins
    void AllBlockProcessed(qlonglong total);   ///< once, unless the scan was stopped: the disk's sectors
    void ScanProgressValue(qlonglong value);   ///< in blocks: at the start, behind each chunk, at the end
    void CreateImageSectorRead(QString from, QString to); ///< never
    void OnFinish(QString verdict);     ///< once, last: "Pass" or "Failed" (the disk did not open)
    void CreateImageProgressReset();    ///< never
    void BadBockCount(qlonglong count); ///< once at the end, 0
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
    /// Reads the sectors of a chunk that failed one by one.
    void narrowDown(qint64 position, qint64 sectors);
    /// Waits where the receivers' thread is too far behind.
    void letReceiversFollow();

    QMutex m_mutex; ///< held by a whole run
    QWaitCondition m_condition;
    bool m_bProgressKnown = false; ///< nothing sets it
    int m_nSectorSize = 0;         ///< bytes
    int m_nMode = 0;
    qlonglong m_nBadBlocks = 0; ///< nothing raises it
    qlonglong m_nBadSectors = 0;

    // Of the run under way.
    int m_nDrive = 0; ///< drive code
    Platform::RawHandle m_handle = Platform::InvalidHandle;
    qint64 m_total = 0;       ///< sectors
    qlonglong m_progress = 0; ///< in blocks

    QSemaphore m_followed; ///< one for each mark in the stream of signals that the receivers' thread reached
    int m_nMarksOut = 0;   ///< marks sent and not yet seen to be reached
    bool m_bNobodyFollows = false;
};
