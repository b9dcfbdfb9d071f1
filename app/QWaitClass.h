// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/QThreadDevicesLoad.h"

#include "ui_WaitDlg.h"

#include <QDialog>

class MainWindow;
class QMovie;
class QTimer;

/// The splash. It fades in, loads the disks on a thread of its own, fades out and brings up the main window.
/// Hidden, it stays for the whole run, because the notices of volumes that come and go arrive at it. Main
/// thread only.
class QWaitClass : public QDialog, private Ui::WaitDlg
{
    Q_OBJECT

public:
    QWaitClass();

signals:
    void IntimateToRefreshDrives();
    void WidgetDisable();
    void DriveArrived();
    void DriveRemoved();

public slots:
    void OnInitialize();
    void OnTimerSlot();
    void OnTimerLoadSlot();
    void GetDriveRefresh();

protected:
    bool nativeEvent(const QByteArray &eventType, void *message, long *result) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setTextRectangle();
    void setSideImage();
    void styleBrand();
    void startFadeIn();
    void startLoading();
    void showMainWindow();
    void onDeviceChange(quint32 event, quint32 deviceType);

    QRect m_rcText; ///< kept per language, read by nothing
    QThreadDevicesLoad m_loadThread;
    QMovie *m_pMovie = nullptr;
    MainWindow *m_pMain = nullptr;
    QTimer *m_pFadeOutTimer = nullptr;
    QTimer *m_pFadeInTimer = nullptr;
    float m_fFadeOut = 0.0F;
    float m_fFadeIn = 0.0F;
};
