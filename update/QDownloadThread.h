// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"

#include <QFile>
#include <QString>
#include <QThread>

#include <memory>

/// Loads the installer of an update, off the main thread. Cannot be stopped: the destructor waits for a run
/// that is under way without a time limit. Signals come from the thread itself.
class QDownloadThread : public QThread
{
    Q_OBJECT

public:
    explicit QDownloadThread(QObject *parent = nullptr);
    ~QDownloadThread() override;

    QString m_strUrl;              ///< of the installer; set before the start
    DownloadLimits m_limits{0, 0}; ///< the same

signals:
    void OnDownloadStart();
    /// Nothing came; the last signal of a run.
    void OnDownloadFailed();
    /// The installer came; the last signal of a run. The path is as this machine opens it. Until this object
    /// goes, the file is held, so that what is started is what came.
    void OnDownloadFinish(QString strDownloadPath);

protected:
    void run() override;

private:
    std::unique_ptr<QFile> m_held;
};
