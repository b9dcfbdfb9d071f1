// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

/// The first load of the disk lists, behind the splash. Before it, the SMART tool is copied to the temp
/// folder for runs that have no useful current directory.
class QThreadDevicesLoad : public QThread
{
    Q_OBJECT

public:
    using QThread::QThread;
    /// Waits for a run without a time limit.
    ~QThreadDevicesLoad() override;

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
