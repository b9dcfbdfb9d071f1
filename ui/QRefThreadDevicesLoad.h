#pragma once

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

/// Reads the disk lists anew behind the main window's busy state. Its owner must not touch the lists while it
/// runs.
class QRefThreadDevicesLoad : public QThread
{
    Q_OBJECT

public:
    using QThread::QThread;
    /// Waits for a run without a time limit.
    ~QRefThreadDevicesLoad() override;

signals:
    /// The lists are complete.
    void OnLoadingDevices();

public slots:
    void OnDriveLoad() {}

protected:
    void run() override;

private:
    QMutex m_mutex;
    QWaitCondition m_condition;
};
