#pragma once

#include <QString>
#include <QThread>

/// Loads the installer of an update, off the main thread. Cannot be stopped: the destructor waits for a run
/// that is under way without a time limit. Signals come from the thread itself.
class QDownloadThread : public QThread
{
    Q_OBJECT

public:
    explicit QDownloadThread(QObject *parent = nullptr);
    ~QDownloadThread() override;

    QString m_strUrl; ///< of the installer; set before the start

signals:
    void OnDownloadStart();
    /// Nothing came; the last signal of a run.
    void OnDownloadFailed();
    /// Something came, if only a part by way of the console; the last signal of a run. The path is as this
    /// machine opens it.
    void OnDownloadFinish(QString strDownloadPath);

protected:
    void run() override;
};
