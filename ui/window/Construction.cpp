// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "platform/Platform.h"
#include "state/Languages.h"
#include "state/SettingsStore.h"
#include "state/StartArgument.h"
#include "ui/dialogs/QCheckUpdate.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/PopupMenu.h"
#include "ui/widgets/Style.h"

#include <QAction>
#include <QEvent>
#include <QMovie>
#include <QTimer>

namespace
{

constexpr int WindowWidth = 905;
constexpr int WindowHeight = 600;
constexpr int TitleStripHeight = 26; ///< only a press on it drags the window
constexpr int TemperatureInterval = 60000;
const QPoint PagePlace(-16, 49); ///< in WidgetFrame; the margins of a page hang over its edges
const QString PaleBackground = style::sheet(QStringLiteral("background: @pale;"));

/// Shows a header button as its picture. The picture under the pointer has the suffix "Hov".
void dressToolButton(QPushButton *button, const QString &image)
{
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoDefault(true);
    button->setStyleSheet(
        QStringLiteral("QPushButton{border-image: url(%1)}QPushButton:hover{border-image: url(%2)}"
                       "QPushButton::menu-indicator{image: none; width: 0px;}"
                       "QPushButton:pressed{border:none}")
            .arg(images::nearestPath(image + QStringLiteral(".png")),
                 images::nearestPath(image + QStringLiteral("Hov.png"))));
}

/// Gives a header button its menu, with separators between the entries.
void addMenu(QPushButton *button, bool alignRight, const QList<QAction *> &entries)
{
    auto *menu = new PopupMenu(alignRight, button);
    menu->setFont(style::font(10));
    for (QAction *entry : entries) {
        if (!menu->isEmpty())
            menu->addSeparator();
        menu->addAction(entry);
    }
    button->setMenu(menu);
}

} // namespace

MainWindow::MainWindow(QWidget *parent) : QMainWindow(parent), m_drag(this, TitleStripHeight)
{
    m_ui.setupUi(this);
    setObjectName(QStringLiteral("MainWindow"));
    ::m_pMainWindow = this;
    scaleGeometry();
    setWindowFlags(Qt::FramelessWindowHint | Qt::Window);
    Platform::current().InitializeCom();
    styleShell();

    buildScreens();
    buildDialogs();
    buildNavigation();
    buildToolButtons();
    style::showTextsAsData(this);
    retranslateShell();
    FillDriveCombos();
    connectAll();
    connectKeys();
    orderFocus();
    const Screen first = startargument::asksForClone(g_strStartArgument) ? navigation::CloneDiskScreen
                                                                         : navigation::DiskStatusScreen;
    selectButton(first);
    showScreen(first);
    m_apNavigation[first]->setFocus();

    m_pSettings->ApplyFirstRunDefaults();
    selectStartDisk();
    RefreshSelectedDisk();
    SettingsStore store;
    store.write(key::SmartctlFolderPath, g_App.m_strSmartctlPath);
    if (store.flag(key::ShowTrayIcon) || !store.flag(key::FirstTimeLaunch)) {
        CheckCompanionRunning();
        store.write(key::FirstTimeLaunch, 1);
    }
    m_pTemperatureTimer = new QTimer(this);
    connect(m_pTemperatureTimer, &QTimer::timeout, this, &MainWindow::GetSmartTemprature);
    if (isOnShow(navigation::DiskStatusScreen))
        m_pTemperatureTimer->start(TemperatureInterval);
    // Above the main window, which is shown in a moment.
    if (g_strStartArgument == startargument::ForSettings)
        QTimer::singleShot(0, this, &MainWindow::OnShowSettings);
    m_pCheckUpdate = new QCheckUpdate(this);
    style::centreOn(m_pCheckUpdate, m_rcSplash);
}

MainWindow::~MainWindow()
{
    if (::m_pMainWindow == this)
        ::m_pMainWindow = nullptr;
}

void MainWindow::scaleGeometry()
{
    setFixedSize(style::px(WindowWidth), style::px(WindowHeight));
    const auto widgets = centralWidget()->findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        style::scaleWidget(widget);
    // The hairlines stay one pixel thin, and the frames meet them at every scale.
    const int header = m_ui.line->y();
    const int side = m_ui.line_2->x();
    const int bottom = m_ui.line_3->y();
    m_ui.line->setFixedHeight(1);
    m_ui.line_2->setFixedWidth(1);
    m_ui.line_3->setFixedHeight(1);
    m_ui.SideButtonLabel->move(1, header + 1);
    m_ui.WidgetFrame->move(side + 1, header + 1);
    m_ui.WidgetFrame->setFixedSize(width() - side - 2, bottom - header - 1);
    m_ui.BottamLabel->move(side + 1, bottom + 1);
    m_ui.BottamLabel->setFixedSize(width() - side - 2, height() - bottom - 2);
    m_ui.SideButtonLabel->setFixedHeight(height() - header - 2);
    m_ui.HeaderLabel->setFixedSize(width() - 2, header - 1);
}

void MainWindow::styleShell()
{
    style::setWhiteBackground(this);
    centralWidget()->setStyleSheet(style::fieldSheet());
    // The texts of the navigation stand behind the icons of their pictures.
    m_ui.SideButtonLabel->setStyleSheet(
        QStringLiteral("QLabel#SideButtonLabel{%1}MyButton{padding-left: %2px;}")
            .arg(PaleBackground)
            .arg(style::px(34)));
    m_ui.BottamLabel->setStyleSheet(QStringLiteral("QLabel#BottamLabel{%1}").arg(PaleBackground) +
                                    QStringLiteral("MyButton1{padding-left: %1px;}").arg(style::px(32)));

    pagelook::styleLabels({m_ui.label}, style::font(10), style::BlackLabel);
    m_ui.GifFrame->setStyleSheet(
        style::sheet(QStringLiteral("QFrame#GifFrame{background: @white; border: 1px solid #c9d2db; "
                                    "border-radius: %1px;}"))
            .arg(style::px(4)));
    m_pMovie = images::newMovie(QStringLiteral("img_Scan.gif"), this);
    m_ui.Giflabel->setMovie(m_pMovie);
    m_ui.GifFrame->hide();
    images::setLabelImage(m_ui.PixmapLabel, QStringLiteral("img_HalvaneSmallLogo.png"));
    m_ui.PixmapLabel->setScaledContents(true);
    pagelook::styleLabels({m_ui.m_pHeaderText}, style::semiBold(11), style::BlackLabel);
    for (QLabel *name : {m_ui.SerialNumLabel, m_ui.InterfaceTypeLabel, m_ui.SmartStatusLabel})
        name->setFont(style::semiBold(8));
    for (QLabel *value : {m_ui.SerialNumValLabel, m_ui.CapacityValLabel, m_ui.ResultLabel})
        value->setFont(style::font(8));

    m_ui.DriveCombobox->setFont(style::font(10));
    for (QPushButton *button : {m_ui.ScreenshotButton, m_ui.StopButton, m_ui.StopTestButton})
        style::styleButton(button, style::ButtonRole::Light);
    for (QPushButton *button : {m_ui.ScanButton, m_ui.CloneButton, m_ui.ReportSaveButton})
        style::styleButton(button, style::ButtonRole::Main);
    style::setVisible({m_ui.ScanButton, m_ui.CloneButton, m_ui.ReportSaveButton, m_ui.ScreenshotButton,
                       m_ui.StopButton, m_ui.StopTestButton, m_ui.BackTestButton},
                      false);
}

void MainWindow::buildScreens()
{
    m_pDiskStatusPage = new DiskStatus(m_ui.WidgetFrame);
    m_pSmartStatusPage = new SmartStatus(m_ui.WidgetFrame);
    m_pDiskPartitionPage = new DiskPartition(m_ui.WidgetFrame);
    m_pScanDiskPage = new ScanDisk(m_ui.WidgetFrame);
    m_pCloneDiskPage = new CloneDisk(m_ui.WidgetFrame);
    m_apScreens = {m_pDiskStatusPage, m_pSmartStatusPage, m_pDiskPartitionPage, m_pScanDiskPage,
                   m_pCloneDiskPage};
    m_pAccessNotice = pagelook::named(new AccessNotice(m_ui.WidgetFrame), "m_pAccessNotice");
    QList<QWidget *> pages(m_apScreens.cbegin(), m_apScreens.cend());
    for (QWidget *screen : pages << m_pAccessNotice) {
        screen->move(style::px(PagePlace.x()), style::px(PagePlace.y()));
        screen->hide();
    }
    m_pSettings = new Settings;
    m_ui.GifFrame->raise();
    m_ui.DriveCombobox->raise();
}

void MainWindow::buildDialogs()
{
    m_pCloseWgt = new CloseWgt;
    m_pSmartWarning = new SmartWarning(this);
    m_pShutDownWarning = new ShutDownWarning(this);
    m_pCloneWarning = new CloneWarning(this);
    m_pConfirmation = new ConfarmetionClass(this);
    m_pScanSwitch = new ScanSwitchClass(this);
    m_pDestinitionWarning = new DestinitionWarning(this);
    m_pSelfTestNotSupported = new SelfTestNotSupported(this);
}

void MainWindow::buildNavigation()
{
    m_apNavigation = {m_ui.DiskStatusButton, m_ui.SmartStatusButton, m_ui.DiskPartitionButton,
                      m_ui.ScanDiskButton, m_ui.CloneDiskButton};
    for (MyButton *button : m_apNavigation)
        button->setFont(style::font(10));
    m_ui.BackTestButton->setFont(style::font(10));
    m_ui.BackTestButton->setIconSize(QSize(style::px(32), style::px(30)));
    OnBackTestNormalImage();
}

void MainWindow::buildToolButtons()
{
    images::setLabelImage(m_ui.m_pCompanyLogo, g_App.m_bKorvaneBrand
                                                   ? QStringLiteral("img_CompanyLogoKorvane.png")
                                                   : QStringLiteral("img_CompanyLogo.png"));
    dressToolButton(m_ui.m_pHelpButton, QStringLiteral("img_Help"));
    dressToolButton(m_ui.m_pMoreToolsButton, QStringLiteral("img_MoreTools"));
    dressToolButton(m_ui.m_pMenuButton, QStringLiteral("img_Menu"));
    dressToolButton(m_ui.minimizeButton, QStringLiteral("img_Minimize"));
    dressToolButton(m_ui.CloseButton, QStringLiteral("img_Close"));

    const auto icon = [](const char *file) {
        return QIcon(images::path(QLatin1String(file), images::Family::MoreTools));
    };
    m_ui.m_pRecoverAction->setIcon(icon("img_RecoverData.png"));
    m_ui.m_pVideoAction->setIcon(icon("img_RepairVideo.png"));
    m_ui.m_pPhotoAction->setIcon(icon("img_RepairPhoto.png"));
    addMenu(m_ui.m_pMenuButton, true, {m_ui.m_pSettingsAction, m_ui.m_pAboutAction});
    addMenu(m_ui.m_pMoreToolsButton, false,
            {m_ui.m_pRecoverAction, m_ui.m_pVideoAction, m_ui.m_pPhotoAction});
}

void MainWindow::retranslateShell()
{
    for (const Screen screen : Screens) {
        m_apNavigation[screen]->setText(tr(navigation::buttons[screen].text));
        m_apNavigation[screen]->setToolTip(tr(navigation::buttons[screen].toolTip));
        m_apNavigation[screen]->setAccessibleName(m_apNavigation[screen]->text().trimmed());
    }
    m_ui.DriveCombobox->setAccessibleName(tr("Disk Drive ").trimmed());
    for (QPushButton *button : {m_ui.m_pHelpButton, m_ui.m_pMoreToolsButton, m_ui.m_pMenuButton,
                                m_ui.minimizeButton, m_ui.CloseButton})
        button->setAccessibleName(button->toolTip());

    const languages::Language &language = languages::current();
    constexpr int Gap = 10;
    constexpr int PageMargin = 25;
    m_ui.ReportSaveButton->setFixedSize(style::px(language.reportWidth), style::px(32));
    m_ui.ScreenshotButton->setFixedSize(style::px(language.screenshotWidth), style::px(32));
    const int y = m_ui.ReportSaveButton->y();
    // They end where the pages' contents end.
    const int right = m_pDiskStatusPage->x() + m_pDiskStatusPage->width() - style::px(PageMargin);
    for (QPushButton *last :
         {m_ui.ScreenshotButton, m_ui.ScanButton, m_ui.CloneButton, m_ui.StopButton, m_ui.StopTestButton})
        last->move(right - last->width(), y);
    const auto moveBefore = [y](QPushButton *button, const QPushButton *next) {
        button->move(next->x() - style::px(Gap) - button->width(), y);
    };
    moveBefore(m_ui.ReportSaveButton, m_ui.ScreenshotButton);
    moveBefore(m_ui.BackTestButton, m_ui.ScanButton);
}

void MainWindow::connectNavigation()
{
    using Slot = void (MainWindow::*)();
    /// By columns: pointer on the button, pointer gone, press, release.
    static const Slot table[navigation::ScreenCount][4] = {
        {&MainWindow::OnShowHoverImage, &MainWindow::OnShowNormalImage, &MainWindow::OnShowPressImage,
         &MainWindow::OnShowReleaseImageImage},
        {&MainWindow::OnSmartHoverImage, &MainWindow::OnSmartNormalImage, &MainWindow::OnSmartPressImage,
         &MainWindow::OnSmartReleaseImageImage},
        {&MainWindow::OnDiskPartitionHoverImage, &MainWindow::OnDiskPartitionNormalImage,
         &MainWindow::OnDiskPartitionPressImage, &MainWindow::OnDiskPartReleaseImageImage},
        {&MainWindow::OnScanDiskHoverImage, &MainWindow::OnScanDiskNormalImage,
         &MainWindow::OnScanDiskPressImage, &MainWindow::OnScanDiskReleaseImageImage},
        {&MainWindow::OnCloneDiskHoverImage, &MainWindow::OnCloneDiskNormalImage,
         &MainWindow::OnCloneDiskPressImage, &MainWindow::OnCloneDiskReleaseImageImage},
    };
    for (const Screen screen : Screens) {
        MyButton *button = m_apNavigation[screen];
        connect(button, &MyButton::ChangePixmap, this, table[screen][0]);
        connect(button, &MyButton::OnUpdatePixmap, this, table[screen][1]);
        connect(button, &MyButton::OnPressPixmap, this, table[screen][2]);
        connect(button, &MyButton::OnReleasePixmap, this, table[screen][3]);
        button->installEventFilter(this);
    }
    connect(m_ui.BackTestButton, &MyButton1::ChangePixmap1, this, &MainWindow::OnBackTestHoverImage);
    connect(m_ui.BackTestButton, &MyButton1::OnUpdatePixmap1, this, &MainWindow::OnBackTestNormalImage);
    connect(m_ui.BackTestButton, &MyButton1::OnPressPixmap1, this, &MainWindow::OnBackTestPressImage);
    connect(m_ui.BackTestButton, &MyButton1::OnReleasePixmap1, this, &MainWindow::OnBackTestReleaseImage);
}

void MainWindow::connectAll()
{
    connectNavigation();
    connect(m_ui.DriveCombobox, QOverload<int>::of(&QComboBox::activated), this,
            &MainWindow::OnActivatedDriveCombo);
    connect(m_ui.minimizeButton, &QPushButton::clicked, this, &MainWindow::OnMinimized);
    connect(m_ui.CloseButton, &QPushButton::clicked, this, &MainWindow::OnClose);
    connect(m_ui.StopButton, &QPushButton::clicked, this, &MainWindow::OnStop);
    connect(m_ui.StopTestButton, &QPushButton::clicked, this, &MainWindow::OnClickStopTestButton);
    connect(m_ui.ScanButton, &QPushButton::clicked, this, &MainWindow::OnScanStart);
    connect(m_ui.CloneButton, &QPushButton::clicked, this, &MainWindow::OnCloneStart);
    connect(m_ui.ReportSaveButton, &QPushButton::clicked, this, &MainWindow::SavePDFReport);
    connect(m_ui.ScreenshotButton, &QPushButton::clicked, this, &MainWindow::TakeScreenshot);
    connect(m_ui.m_pSettingsAction, &QAction::triggered, this, &MainWindow::OnShowSettings);
    connect(m_ui.m_pAboutAction, &QAction::triggered, this, &MainWindow::OnShowAbout);
    connect(m_ui.m_pHelpButton, &QPushButton::clicked, this, &MainWindow::OnOpenHelp);
    connect(m_ui.m_pRecoverAction, &QAction::triggered, this, &MainWindow::LaunchDataRecovery);
    connect(m_ui.m_pVideoAction, &QAction::triggered, this, &MainWindow::LaunchVideoRepair);
    connect(m_ui.m_pPhotoAction, &QAction::triggered, this, &MainWindow::LaunchPhotoRepair);

    connect(m_pCloseWgt, &CloseWgt::confirmed, this, &MainWindow::Onyes);
    connect(m_pCloseWgt, &CloseWgt::dismissed, this, &MainWindow::OnNo);
    connect(m_pConfirmation, &MessageDialog::confirmed, this, &MainWindow::OnStopConfirm);
    connect(m_pConfirmation, &MessageDialog::dismissed, this, &MainWindow::OnStopCancel);
    connect(m_pCloneWarning, &MessageDialog::confirmed, this, &MainWindow::OnCloningStart);
    connect(m_pCloneWarning, &MessageDialog::dismissed, this, &MainWindow::OnCloningCancel);
    connect(m_pScanSwitch, &MessageDialog::confirmed, this, &MainWindow::OnSwitchConfirm);
    connect(m_pScanSwitch, &MessageDialog::dismissed, this, &MainWindow::OnSwitchCancel);
    connect(m_pDestinitionWarning, &MessageDialog::dismissed, this, &MainWindow::OnCloseDestinitionWarning);
    connect(m_pSelfTestNotSupported, &MessageDialog::dismissed, this,
            &MainWindow::OnCloseSelfTestNotSupported);
    connect(m_pShutDownWarning, &MessageDialog::confirmed, this, &MainWindow::OnSystemShutDown);
    connect(m_pSettings, &Settings::left, this, &MainWindow::OnSetSmartSettings);
    connect(&m_smartThread, &SMARTThread::OnLodingSmarInfo, this, &MainWindow::OnInitializeSmart);
    connect(&m_refreshThread, &QRefThreadDevicesLoad::OnLoadingDevices, this, &MainWindow::OnInitialize);
    m_pTestTimer = new QTimer(this);
    connect(m_pTestTimer, &QTimer::timeout, this, &MainWindow::CheckShortTestStatus1);

    connect(m_pSmartStatusPage, &SmartStatus::rowClicked, this, &MainWindow::GraphWithAttributes);
    connect(m_pScanDiskPage, &ScanDisk::OnScanFinished, this, &MainWindow::OnFinishScanDisk);
    connect(m_pScanDiskPage, &ScanDisk::Progressed, this,
            [this](int percent) { m_jobDisplay.show(percent); });
    connect(m_pScanDiskPage, &ScanDisk::Ended, this,
            [this](const JobEnd &end) { m_jobDisplay.tellEnd(end); });
    connect(m_pCloneDiskPage, &CloneDisk::Progressed, this,
            [this](int percent) { m_jobDisplay.show(percent); });
    connect(m_pCloneDiskPage, &CloneDisk::Ended, this,
            [this](const JobEnd &end) { m_jobDisplay.tellEnd(end); });
    connect(m_pScanDiskPage, &ScanDisk::OnResultRead, this, &MainWindow::refreshBehindJob);
    connect(m_pCloneDiskPage, &CloneDisk::OnCloneFinish, this, &MainWindow::OnCloningFinish);
    connect(m_pCloneDiskPage, &CloneDisk::DiskCloneFinished, this, &MainWindow::OnFinishDiskCloning);
    connect(m_pCloneDiskPage, &CloneDisk::ComboboxIndexChange, this, &MainWindow::OnComboboxIndexChange);
    connect(m_pCloneDiskPage, &CloneDisk::CloningProcesFailed, this, &MainWindow::OnCloningProcesFailed);
    connect(m_pCloneDiskPage, &CloneDisk::DestinationActivated, this, &MainWindow::OnTargetChangeIndex);
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui.retranslateUi(this);
        retranslateShell();
        if (isOnShow(navigation::DiskPartitionScreen))
            ShowPartitions(tr("(BitLocker)"));
        if (!m_ui.ResultLabel->text().isEmpty())
            showOverallResult();
        if (SettingsStore().flag(key::ShowTrayIcon))
            companion::startAgain();
    }
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_jobDisplay.seen();
    // The ring does not paint itself in a minimised window; this starts it again.
    if (event->type() == QEvent::WindowStateChange && m_pDiskPartitionPage)
        m_pDiskPartitionPage->RepaintRing();
    QMainWindow::changeEvent(event);
}
