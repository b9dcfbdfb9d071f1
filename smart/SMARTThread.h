#pragma once

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

/// Reads the report of one disk per run, off the main thread. The destructor waits for a running read without
/// a time limit.
class SMARTThread : public QThread
{
    Q_OBJECT

public:
    explicit SMARTThread(QObject *parent = nullptr);
    ~SMARTThread() override;

    /// Asks for the report of a disk. Blocks for as long as a read is under way; a request that meets the
    /// thread before it has ended is lost and sets g_bAbortJob. Main thread only.
    void RequestSmartRead(int diskIndex);

signals:
    /// The report lies at g_strSmartReportPath.
    void OnLodingSmarInfo();

protected:
    void run() override;

private:
    QMutex m_mutex; ///< held for a whole run
    QWaitCondition m_condition;
    int m_nIndex = 0;
};
