// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QWaitClass.h"

#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Languages.h"
#include "state/Scale.h"
#include "state/SettingsStore.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/Style.h"
#include "ui/window/MainWindow.h"

#include <QCursor>
#include <QLinearGradient>
#include <QMovie>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>
#include <QTimer>

namespace
{

constexpr int FadeTick = 50; ///< milliseconds
constexpr double FadeStep = 0.1;
constexpr float FadeInEnd = 4.0F;
constexpr float FadeOutStart = 3.0F;
/// Continuous, system required, away mode required: the machine must not sleep while the program runs.
constexpr quint32 StayAwake = 0x80000041u;

/// A step is taken in double precision and kept in single.
float stepped(float value, double step)
{
    return static_cast<float>(static_cast<double>(value) + step);
}

/// Puts a label at a design place. Its size is fixed, so a new geometry alone would not do.
void place(QLabel *label, const QRect &design)
{
    label->setFixedSize(style::px(design.width()), style::px(design.height()));
    label->move(style::px(design.x()), style::px(design.y()));
}

} // namespace

QWaitClass::QWaitClass()
{
    setupUi(this);
    m_pWaitDialog = this;
    setWindowFlags(Qt::FramelessWindowHint);
    style::setWhiteBackground(this);
    style::showTextsAsData(this);
    const int percent = scale::percentForDpi(Platform::current().LogPixelsX());
    g_App.m_fScale = static_cast<float>(percent) / 100.0F;
    setTextRectangle();
    setSideImage();
    setFixedSize(style::px(width()), style::px(height()));
    for (QLabel *child : {label_3, InitTextLabel, ProgressLabel, SplaceCoptLabel})
        style::scaleWidget(child);
    styleBrand();
    InitTextLabel->setText(tr("Initializing Velmora Halvane..."));
    InitTextLabel->setStyleSheet(style::BlackLabel);
    InitTextLabel->setFont(style::font(10));
    startFadeIn();
    // The main window takes the splash's place later, so that must not be left to the window
    // manager.
    style::centreOn(this, style::availableArea(QCursor::pos()));
    if (DeviceNotifier *notifier = Platform::current().deviceNotifier())
        connect(notifier, &DeviceNotifier::deviceChange, this, &QWaitClass::onDeviceChange);
}

void QWaitClass::setTextRectangle()
{
    const int x = g_App.m_bFrench || g_App.m_bSpanish ? 85
                  : g_App.m_bItalian                  ? 75
                  : g_App.m_bEnglish                  ? 60
                                                      : 65;
    m_rcText = QRect(x, 218, g_App.m_bEnglish ? 86 : 110, 21);
}

void QWaitClass::setSideImage()
{
    QString file = QStringLiteral("img_SideImage.png");
    if (g_App.m_bKorvaneBrand)
        file = QStringLiteral("img_SideImageKorvane.png");
    else if (g_App.m_bKorean && g_App.m_bKoreanImages)
        file = QStringLiteral("img_SideImage_KO.png");
    images::setLabelImage(label_3, file, images::Family::Folder);
}

void QWaitClass::styleBrand()
{
    if (!g_App.m_bKorvaneBrand) {
        SplaceCoptLabel->hide();
        return;
    }
    place(SplaceCoptLabel, QRect(1, 212, 448, 20));
    SplaceCoptLabel->setText(SettingsStore().textOrFirst(key::SCopyrightText));
    SplaceCoptLabel->setFont(style::font(8));
    place(InitTextLabel, QRect(1, 177, 448, 20));
}

void QWaitClass::startFadeIn()
{
    m_pFadeInTimer = new QTimer(this);
    setWindowFlags(Qt::SplashScreen);
    setWindowOpacity(0.0);
    Platform::current().SetThreadExecutionState(StayAwake);
    m_pFadeInTimer->start(FadeTick);
    connect(&m_loadThread, &QThreadDevicesLoad::OnLoadingDevices, this, &QWaitClass::OnInitialize);
    connect(m_pFadeInTimer, &QTimer::timeout, this, &QWaitClass::OnTimerLoadSlot);
}

void QWaitClass::OnTimerLoadSlot()
{
    setWindowOpacity(static_cast<qreal>(m_fFadeIn));
    m_fFadeIn = stepped(m_fFadeIn, FadeStep);
    if (m_fFadeIn >= FadeInEnd)
        startLoading();
}

void QWaitClass::startLoading()
{
    m_pMovie = images::newMovie(QStringLiteral("img_InitProgress.gif"), this);
    if (g_App.m_bKorvaneBrand)
        place(ProgressLabel, QRect(1, 160, 448, 16));
    ProgressLabel->setMovie(m_pMovie);
    m_pMovie->start();
    m_fFadeOut = FadeOutStart;
    m_pFadeOutTimer = new QTimer(this);
    m_pFadeInTimer->stop();
    emit WidgetDisable();
    m_loadThread.start(QThread::InheritPriority);
}

void QWaitClass::OnInitialize()
{
    if (m_pMovie)
        m_pMovie->stop();
    m_pFadeOutTimer->start(FadeTick);
    connect(m_pFadeOutTimer, &QTimer::timeout, this, &QWaitClass::OnTimerSlot);
}

void QWaitClass::OnTimerSlot()
{
    setWindowOpacity(static_cast<qreal>(m_fFadeOut));
    m_fFadeOut = stepped(m_fFadeOut, -FadeStep);
    if (m_fFadeOut > 0.0F)
        return;
    m_rcSplash = geometry();
    hide();
    showMainWindow();
    m_fFadeOut = 0.0F;
    m_pFadeOutTimer->stop();
}

void QWaitClass::showMainWindow()
{
    if (m_bMainWindowCreated)
        return;
    m_pMain = new MainWindow;
    connect(this, &QWaitClass::DriveArrived, m_pMain, &MainWindow::OnRefresh);
    connect(this, &QWaitClass::DriveRemoved, m_pMain, &MainWindow::OnRefresh);
    style::centreOn(m_pMain, m_rcSplash);
    m_pMain->raise();
    m_bMainWindowCreated = true;
    m_pMain->show();
}

void QWaitClass::GetDriveRefresh()
{
    emit WidgetDisable();
    m_loadThread.start(QThread::InheritPriority);
}

void QWaitClass::onDeviceChange(quint32 event, quint32 deviceType)
{
    const bool arrived = event == DeviceChange::Arrival;
    if (deviceType != DeviceChange::Volume || (!arrived && event != DeviceChange::RemoveComplete))
        return;
    // A volume that came during a job can wait for the next load. One that went is still in the lists: they
    // are stale.
    if (g_bJobRunning)
        g_bListsStale = g_bListsStale || !arrived;
    else if (arrived)
        emit DriveArrived();
    else
        emit DriveRemoved();
}

bool QWaitClass::nativeEvent(const QByteArray &eventType, void *message, long *)
{
    if (const auto change = Platform::current().decodeDeviceMessage(eventType, message))
        onDeviceChange(change->event, change->deviceType);
    return false;
}

void QWaitClass::paintEvent(QPaintEvent *)
{
    // Draws nothing: the background is the palette's.
    QLinearGradient gradient(0.0, 0.0, 0.0, height());
    gradient.setColorAt(0.0, QColor(102, 176, 54).lighter());
    gradient.setColorAt(1.0, QColor(102, 176, 54));
    QPainter painter(this);
    painter.end();
}

void QWaitClass::resizeEvent(QResizeEvent *)
{
    QPainterPath path;
    path.addRoundedRect(rect(), 0.0, 0.0);
    setMask(QRegion(path.toFillPolygon().toPolygon()));
}
