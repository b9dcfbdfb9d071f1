#pragma once

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

/// Reads the disk lists anew behind the main window's busy state. From the start to the signal the lists are
/// its own (g_bListsLoading).
class QRefThreadDevicesLoad : public QThread
{
    Q_OBJECT

public:
    using QThread::QThread;
    /// Waits for a run without a time limit.
    ~QRefThreadDevicesLoad() override;

    /// Starts a run that waits for the end of `reader` before it loads. Does nothing while a run is under
    /// way.
    void startBehind(QThread &reader);

signals:
    /// The lists are complete.
    void OnLoadingDevices();

public slots:
    void OnDriveLoad() {}

protected:
    void run() override;

private:
    QThread *m_pReader = nullptr;
    QMutex m_mutex;
    QWaitCondition m_condition;
};
