// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/DialogFrame.h"
#include "update/QDownloadThread.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

class QProgressBar;

/// Loads the installer, checks it if the publisher's key is built in, starts it, and ends the program so that
/// it can be replaced. The constructor begins the download, which cannot be stopped. Emits finished() where
/// it failed.
class QDownloadApp : public QDialog
{
    Q_OBJECT

public:
    explicit QDownloadApp(QWidget *parent = nullptr);

public slots:
    void OnDownloadStart();
    void OnDownloadFailed();
    void OnDownloadFinish(QString strDownloadPath);
    /// Shows how many bytes are in the update's folder by now.
    void OnTimerLoadSlot();
    /// A network reply has ended, or has brought more.
    void downloadFinished();
    void downloadReadyRead() { OnTimerLoadSlot(); }
    /// Shows the progress of a network reply, in bytes.
    void OnDownloadProgress(qlonglong bytesReceived, qlonglong bytesTotal);

private:
    void showProgress(qint64 bytes, const QString &copied);
    void clearProgress(const QString &blank);
    void buildDetails();

    DialogFrame m_Frame;
    QLabel *m_pInfoLabel;
    QProgressBar *m_pProgressBar;
    QLabel *m_pCopiedLabel;
    QLabel *m_pTimeLabel;
    QLabel *m_pRateLabel;
    QTimer m_timer;
    QElapsedTimer m_elapsed;
    QDownloadThread m_thread{this};
};
