// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"
#include "update/TrustedFetch.h"

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
    QString m_strLink;             ///< the web folder; set before the start if a publisher's key is built in
    QString m_strInstalled;        ///< the version of this program; the same

    /// Why the run failed: what came is not an update of the publisher. After the last signal only.
    bool wasRefused() const { return m_refused; }
    /// To be asked right before the installer is started. False if it is no longer the one that was verified;
    /// then wasRefused() tells so. After OnDownloadFinish() only.
    bool mayStart();

signals:
    void OnDownloadStart();
    /// Nothing came, or it was refused; the last signal of a run.
    void OnDownloadFailed();
    /// The installer came; the last signal of a run. The path is as this machine opens it. Until this object
    /// goes, the file is held, so that what is started is what came.
    void OnDownloadFinish(QString strDownloadPath);

protected:
    void run() override;

private:
    void loadTrusted();

    std::unique_ptr<QFile> m_held;
    std::unique_ptr<update::TrustedFetch> m_trusted;
    bool m_refused = false;
};
