// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QThread>

#include <atomic>

/// Reads the disk lists anew while the main window shows its busy state. From the start to the signal only
/// this thread may use the lists (g_bListsLoading).
class QRefThreadDevicesLoad : public QThread
{
    Q_OBJECT

public:
    using QThread::QThread;
    /// Waits for a run without a time limit.
    ~QRefThreadDevicesLoad() override { wait(); }

    /// Starts a run that waits for the end of `reader` before it loads. Not to be called while a run is under
    /// way, that is from here to its signal.
    void startBehind(QThread &reader);
    /// The lists of the latest run are complete.
    bool isComplete() const { return m_bComplete; }

signals:
    /// The lists are complete.
    void OnLoadingDevices();

public slots:
    void OnDriveLoad() {}

protected:
    void run() override;
    /// What a run does between its pause and the load.
    virtual void prepare() {}

private:
    QThread *m_pReader = nullptr;
    std::atomic<bool> m_bComplete{false};
};
