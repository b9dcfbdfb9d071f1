// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "inventory/Companion.h"
#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Languages.h"
#include "state/SettingsStore.h"
#include "state/StartArgument.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/screens/AccessNotice.h"
#include "ui/screens/CloneDisk.h"
#include "ui/screens/DiskPartition.h"
#include "ui/screens/DiskStatus.h"
#include "ui/screens/ScanDisk.h"
#include "ui/screens/Settings.h"
#include "ui/screens/SmartStatus.h"
#include "ui/widgets/DonutChartView.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/MyButton.h"
#include "ui/widgets/PopupMenu.h"
#include "ui/widgets/Style.h"

#include <QAction>
#include <QEvent>
#include <QTimer>
#include <QTreeWidget>

namespace
{

constexpr int WindowWidth = 905;
constexpr int WindowHeight = 600;
constexpr int TitleStripHeight = 26; ///< only a press on it drags the window
constexpr int TemperatureInterval = 60000;
const QRect PageGeometry(-16, 49, 764, 452); ///< in WidgetFrame; the page's margins hang over its edges
constexpr int FirstNavigationY = 55;
constexpr int NavigationStep = 44;
const QString PaleBackground = QStringLiteral("background: rgb(245,245,245);");

bool startsOnClonePage()
{
    return startargument::asksForClone(g_strStartArgument);
}

QPushButton *makeToolButton(QWidget *parent, const QString &name, int x)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(name);
    button->setGeometry(x, 8, 28, 28);
    style::scaleWidget(button);
    return button;
}

/// A header button is its picture; the hover twin of the picture bears the suffix "Hov".
void dressToolButton(QPushButton *button, const QString &image)
{
    button->setFocusPolicy(Qt::NoFocus);
    button->setStyleSheet(
        QStringLiteral("QPushButton{border-image: url(%1)}QPushButton:hover{border-image: url(%2)}"
                       "QPushButton::menu-indicator{image: none; width: 0px;}"
                       "QPushButton:pressed{border:none}")
            .arg(images::nearestPath(image + QStringLiteral(".png")),
                 images::nearestPath(image + QStringLiteral("Hov.png"))));
}

} // namespace

MainWindow::MainWindow(QWidget *parent) : QMainWindow(parent), m_drag(this, TitleStripHeight)
{
    setupUi(this);
    setObjectName(QStringLiteral("MainWindow"));
    ::m_pMainWindow = this;
    scaleGeometry();
    m_abSwitchTarget.fill(false);
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
    selectButton(startsOnClonePage() ? navigation::CloneDiskScreen : navigation::DiskStatusScreen);
    showScreen(startsOnClonePage() ? navigation::CloneDiskScreen : navigation::DiskStatusScreen);

    m_pSettings->ApplyFirstRunDefaults();
    RefreshSelectedDisk();
    SettingsStore store;
    store.write(key::SmartctlFolderPath, g_App.m_strSmartctlPath);
    if (store.flag(key::ShowTrayIcon) || !store.flag(key::FirstTimeLaunch)) {
        CheckCompanionRunning();
        store.write(key::FirstTimeLaunch, 1);
    }
    startTemperatureTimer();
    checkAtStart();
}

MainWindow::~MainWindow()
{
    if (::m_pMainWindow == this)
        ::m_pMainWindow = nullptr;
}

void MainWindow::scaleGeometry()
{
    setFixedSize(style::px(WindowWidth), style::px(WindowHeight));
    for (QWidget *widget : std::initializer_list<QWidget *>{MainFrame,
                                                            HeaderLabel,
                                                            PixmapLabel,
                                                            ButtonLabel,
                                                            minimizeButton,
                                                            CloseButton,
                                                            line,
                                                            SideButtonLabel,
                                                            line_2,
                                                            WidgetFrame,
                                                            DriveCombobox,
                                                            GifFrame,
                                                            Giflabel,
                                                            label,
                                                            SerialNumLabel,
                                                            SerialNumValLabel,
                                                            InterfaceTypeLabel,
                                                            CapacityValLabel,
                                                            SmartStatusLabel,
                                                            ResultLabel,
                                                            line_3,
                                                            BottamLabel,
                                                            BackTestButton,
                                                            ScanButton,
                                                            CloneButton,
                                                            StopButton,
                                                            StopTestButton,
                                                            ReportSaveButton,
                                                            ScreenshotButton})
        style::scaleWidget(widget);
    // The hairlines stay one pixel thin, and the frames meet them at every scale.
    const int header = line->y();
    const int side = line_2->x();
    const int bottom = line_3->y();
    line->setFixedHeight(1);
    line_2->setFixedWidth(1);
    line_3->setFixedHeight(1);
    SideButtonLabel->move(1, header + 1);
    WidgetFrame->move(side + 1, header + 1);
    WidgetFrame->setFixedSize(width() - side - 2, bottom - header - 1);
    BottamLabel->move(side + 1, bottom + 1);
    BottamLabel->setFixedSize(width() - side - 2, height() - bottom - 2);
    SideButtonLabel->setFixedHeight(height() - header - 2);
    HeaderLabel->setFixedSize(width() - 2, header - 1);
}

void MainWindow::styleShell()
{
    style::setWhiteBackground(this);
    centralWidget()->setStyleSheet(style::fieldSheet());
    MainFrame->setStyleSheet(
        QStringLiteral("QFrame#MainFrame{background: white; border: 1px solid #d0d4d9;}"));
    const QString hairline = QStringLiteral("QFrame#%1{background: #e3e6e9;}");
    for (QFrame *frame : {line, line_2, line_3})
        frame->setStyleSheet(hairline.arg(frame->objectName()));
    // The texts of the navigation stand behind the icons of their pictures.
    SideButtonLabel->setStyleSheet(QStringLiteral("QLabel#SideButtonLabel{%1}MyButton{padding-left: %2px;}")
                                       .arg(PaleBackground)
                                       .arg(style::px(34)));
    BottamLabel->setStyleSheet(QStringLiteral("QLabel#BottamLabel{%1}").arg(PaleBackground) +
                               QStringLiteral("MyButton1{padding-left: %1px;}").arg(style::px(32)));

    label->setFont(style::font(8));
    label->setStyleSheet(style::BlackLabel);
    GifFrame->hide();
    images::setLabelImage(PixmapLabel, QStringLiteral("img_HalvaneSmallLogo.png"));
    PixmapLabel->setScaledContents(true);

    m_pHeaderText = new QLabel(HeaderLabel);
    m_pHeaderText->setObjectName(QStringLiteral("m_pHeaderText"));
    m_pHeaderText->setGeometry(52, 8, 300, 29);
    style::scaleWidget(m_pHeaderText);
    m_pHeaderText->setFont(style::semiBold(11));
    m_pHeaderText->setStyleSheet(style::BlackLabel);

    for (QLabel *name : {SerialNumLabel, InterfaceTypeLabel, SmartStatusLabel})
        name->setFont(style::semiBold(8));
    for (QLabel *value : {SerialNumValLabel, CapacityValLabel, ResultLabel})
        value->setFont(style::font(8));

    DriveCombobox->setFont(style::font(10));
    for (QPushButton *button : {ScreenshotButton, StopButton, StopTestButton})
        style::styleButton(button, style::ButtonRole::Light);
    for (QPushButton *button : {ScanButton, CloneButton, ReportSaveButton})
        style::styleButton(button, style::ButtonRole::Main);
    for (QPushButton *button :
         {ScanButton, CloneButton, ReportSaveButton, ScreenshotButton, StopButton, StopTestButton})
        button->hide();
    BackTestButton->hide();
}

void MainWindow::buildScreens()
{
    m_apScreens[navigation::DiskStatusScreen] = m_pDiskStatusPage = new DiskStatus(WidgetFrame);
    m_apScreens[navigation::SmartStatusScreen] = m_pSmartStatusPage = new SmartStatus(WidgetFrame);
    m_apScreens[navigation::DiskPartitionScreen] = m_pDiskPartitionPage = new DiskPartition(WidgetFrame);
    m_apScreens[navigation::ScanDiskScreen] = m_pScanDiskPage = new ScanDisk(WidgetFrame);
    m_apScreens[navigation::CloneDiskScreen] = m_pCloneDiskPage = new CloneDisk(WidgetFrame);
    m_pAccessNotice = new AccessNotice(WidgetFrame);
    m_pAccessNotice->setObjectName(QStringLiteral("m_pAccessNotice"));
    QList<QWidget *> pages(m_apScreens.cbegin(), m_apScreens.cend());
    for (QWidget *screen : pages << m_pAccessNotice) {
        screen->setFixedSize(style::px(PageGeometry.width()), style::px(PageGeometry.height()));
        screen->move(style::px(PageGeometry.x()), style::px(PageGeometry.y()));
        screen->hide();
    }
    m_pSettings = new Settings;
    GifFrame->raise();
    DriveCombobox->raise();
}

void MainWindow::buildDialogs()
{
    m_pCloseWgt = new CloseWgt;
    m_pSmartWarning = new SmartWarning(this);
    m_pShutDownWarning = new ShutDownWarning(this);
    m_pCloneWarning = new CloneWarning(this);
    m_pConfirmation = new ConfarmetionClass(this);
    m_pScanSwitch = new ScanSwitchClass(this);
    m_pInfoDialog = new InfoDialogClass(this);
    m_pDestinitionWarning = new DestinitionWarning(this);
    m_pSelfTestNotSupported = new SelfTestNotSupported(this);
}

void MainWindow::buildNavigation()
{
    static const char *const names[navigation::ScreenCount] = {
        "DiskStatusButton", "SmartStatusButton", "DiskPartitionButton", "ScanDiskButton", "CloneDiskButton"};
    for (int i = 0; i < navigation::ScreenCount; ++i) {
        auto *navigationButton = new MyButton(SideButtonLabel);
        navigationButton->setObjectName(QLatin1String(names[i]));
        navigationButton->setFont(style::font(10));
        navigationButton->setFixedSize(style::px(172), style::px(40));
        navigationButton->move(0, style::px(FirstNavigationY + i * NavigationStep));
        m_apNavigation[static_cast<std::size_t>(i)] = navigationButton;
    }
    BackTestButton->setFont(style::font(10));
    BackTestButton->setIconSize(QSize(style::px(32), style::px(30)));
    OnBackTestNormalImage();
}

void MainWindow::buildToolButtons()
{
    m_pHelpButton = makeToolButton(ButtonLabel, QStringLiteral("m_pHelpButton"), 101);
    m_pMoreToolsButton = makeToolButton(ButtonLabel, QStringLiteral("m_pMoreToolsButton"), 133);
    m_pMenuButton = makeToolButton(ButtonLabel, QStringLiteral("m_pMenuButton"), 165);
    m_pCompanyLogo = new QLabel(ButtonLabel);
    m_pCompanyLogo->setObjectName(QStringLiteral("m_pCompanyLogo"));
    m_pCompanyLogo->setGeometry(58, 8, 29, 29);
    style::scaleWidget(m_pCompanyLogo);
    images::setLabelImage(m_pCompanyLogo, g_App.m_bKorvaneBrand ? QStringLiteral("img_CompanyLogoKorvane.png")
                                                                : QStringLiteral("img_CompanyLogo.png"));
    dressToolButton(m_pHelpButton, QStringLiteral("img_Help"));
    dressToolButton(m_pMoreToolsButton, QStringLiteral("img_MoreTools"));
    dressToolButton(m_pMenuButton, QStringLiteral("img_Menu"));
    dressToolButton(minimizeButton, QStringLiteral("img_Minimize"));
    dressToolButton(CloseButton, QStringLiteral("img_Close"));

    m_pMainMenu = new PopupMenu(true, m_pMenuButton);
    m_pSettingsAction = m_pMainMenu->addAction(QString());
    m_pMainMenu->addSeparator();
    m_pAboutAction = m_pMainMenu->addAction(QString());
    m_pMenuButton->setMenu(m_pMainMenu);

    m_pMoreToolsMenu = new PopupMenu(false, m_pMoreToolsButton);
    m_pRecoverAction = m_pMoreToolsMenu->addAction(QString());
    m_pMoreToolsMenu->addSeparator();
    m_pVideoAction = m_pMoreToolsMenu->addAction(QString());
    m_pMoreToolsMenu->addSeparator();
    m_pPhotoAction = m_pMoreToolsMenu->addAction(QString());
    m_pMoreToolsButton->setMenu(m_pMoreToolsMenu);
    const struct {
        QAction *action;
        const char *name;
    } names[] = {{m_pSettingsAction, "m_pSettingsAction"},
                 {m_pAboutAction, "m_pAboutAction"},
                 {m_pRecoverAction, "m_pRecoverAction"},
                 {m_pVideoAction, "m_pVideoAction"},
                 {m_pPhotoAction, "m_pPhotoAction"}};
    for (const auto &entry : names)
        entry.action->setObjectName(QLatin1String(entry.name));
    const struct {
        QAction *action;
        const char *image;
    } icons[] = {{m_pRecoverAction, "img_RecoverData.png"},
                 {m_pVideoAction, "img_RepairVideo.png"},
                 {m_pPhotoAction, "img_RepairPhoto.png"}};
    for (const auto &entry : icons)
        entry.action->setIcon(QIcon(images::path(QLatin1String(entry.image), images::Family::MoreTools)));
    for (PopupMenu *menu : {m_pMainMenu, m_pMoreToolsMenu})
        menu->setFont(style::font(10));
}

void MainWindow::applyLanguageWidths()
{
    const languages::Language &language = languages::current();
    SideButtonLabel->setFixedWidth(style::px(language.sideWidth));
    constexpr int Gap = 10;
    constexpr int RightMargin = 16;
    ReportSaveButton->setFixedSize(style::px(language.reportWidth), style::px(32));
    ScreenshotButton->setFixedSize(style::px(language.screenshotWidth), style::px(32));
    const int y = ReportSaveButton->y();
    ScreenshotButton->move(BottamLabel->width() - style::px(RightMargin) - ScreenshotButton->width(), y);
    ReportSaveButton->move(ScreenshotButton->x() - style::px(Gap) - ReportSaveButton->width(), y);
}

void MainWindow::retranslateShell()
{
    setWindowTitle(tr("Velmora Halvane"));
    m_pHeaderText->setText(tr("Velmora Halvane"));
    for (int i = 0; i < navigation::ScreenCount; ++i) {
        const navigation::Button &entry = navigation::buttons[static_cast<std::size_t>(i)];
        m_apNavigation[static_cast<std::size_t>(i)]->setText(tr(entry.text));
        m_apNavigation[static_cast<std::size_t>(i)]->setToolTip(tr(entry.toolTip));
    }
    ScanButton->setText(tr("Start"));
    CloneButton->setText(tr("Clone"));
    StopButton->setText(tr("Stop"));
    StopTestButton->setText(tr("Stop"));
    BackTestButton->setText(tr("Back"));
    ReportSaveButton->setText(tr("Save Report"));
    ScreenshotButton->setText(tr("Screenshot"));
    SerialNumLabel->setText(tr("Serial Number"));
    SmartStatusLabel->setText(tr("SMART Status"));
    m_pHelpButton->setToolTip(tr("View Velmora Halvane help document"));
    m_pMoreToolsButton->setToolTip(tr("More Tools"));
    m_pSettingsAction->setText(tr("Settings"));
    m_pAboutAction->setText(tr("About"));
    m_pRecoverAction->setText(tr("Recover Data"));
    m_pVideoAction->setText(tr("Repair Video"));
    m_pPhotoAction->setText(tr("Repair Photo"));
    applyLanguageWidths();
}

void MainWindow::connectNavigation()
{
    using Slot = void (MainWindow::*)();
    struct ButtonSlots {
        Slot hover;
        Slot normal;
        Slot press;
        Slot release;
    };
    static const std::array<ButtonSlots, navigation::ScreenCount> table = {{
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
    }};
    for (std::size_t i = 0; i < table.size(); ++i) {
        connect(m_apNavigation[i], &MyButton::ChangePixmap, this, table[i].hover);
        connect(m_apNavigation[i], &MyButton::OnUpdatePixmap, this, table[i].normal);
        connect(m_apNavigation[i], &MyButton::OnPressPixmap, this, table[i].press);
        connect(m_apNavigation[i], &MyButton::OnReleasePixmap, this, table[i].release);
        m_apNavigation[i]->installEventFilter(this);
    }
    connect(BackTestButton, &MyButton1::ChangePixmap1, this, &MainWindow::OnBackTestHoverImage);
    connect(BackTestButton, &MyButton1::OnUpdatePixmap1, this, &MainWindow::OnBackTestNormalImage);
    connect(BackTestButton, &MyButton1::OnPressPixmap1, this, &MainWindow::OnBackTestPressImage);
    connect(BackTestButton, &MyButton1::OnReleasePixmap1, this, &MainWindow::OnBackTestReleaseImage);
}

void MainWindow::connectAll()
{
    connectNavigation();
    connect(DriveCombobox, QOverload<int>::of(&QComboBox::activated), this,
            &MainWindow::OnActivatedDriveCombo);
    connect(minimizeButton, &QPushButton::clicked, this, &MainWindow::OnMinimized);
    connect(CloseButton, &QPushButton::clicked, this, &MainWindow::OnClose);
    connect(StopButton, &QPushButton::clicked, this, &MainWindow::OnStop);
    connect(StopTestButton, &QPushButton::clicked, this, &MainWindow::OnClickStopTestButton);
    connect(ScanButton, &QPushButton::clicked, this, &MainWindow::OnScanStart);
    connect(m_pScanDiskPage, &ScanDisk::OnScanFinished, this, &MainWindow::OnFinishScanDisk);
    connect(m_pScanDiskPage, &ScanDisk::OnResultRead, this, &MainWindow::refreshBehindJob);
    connect(CloneButton, &QPushButton::clicked, this, &MainWindow::OnCloneStart);
    connect(ReportSaveButton, &QPushButton::clicked, this, &MainWindow::SavePDFReport);
    connect(ScreenshotButton, &QPushButton::clicked, this, &MainWindow::TakeScreenshot);
    connect(m_pMenuButton, &QPushButton::clicked, this, &MainWindow::OnHideButtons);
    connect(m_pSettingsAction, &QAction::triggered, this, &MainWindow::OnShowSettings);
    connect(m_pAboutAction, &QAction::triggered, this, &MainWindow::OnShowAbout);
    connect(m_pHelpButton, &QPushButton::clicked, this, &MainWindow::OnOpenHelp);
    connect(m_pRecoverAction, &QAction::triggered, this, &MainWindow::LaunchDataRecovery);
    connect(m_pVideoAction, &QAction::triggered, this, &MainWindow::LaunchVideoRepair);
    connect(m_pPhotoAction, &QAction::triggered, this, &MainWindow::LaunchPhotoRepair);

    connect(m_pCloseWgt, &CloseWgt::confirmed, this, &MainWindow::Onyes);
    connect(m_pCloseWgt, &CloseWgt::dismissed, this, &MainWindow::OnNo);
    connect(m_pConfirmation, &MessageDialog::confirmed, this, &MainWindow::OnStopConfirm);
    connect(m_pConfirmation, &MessageDialog::dismissed, this, &MainWindow::OnStopCancel);
    connect(m_pCloneWarning, &MessageDialog::confirmed, this, &MainWindow::OnCloningStart);
    connect(m_pCloneWarning, &MessageDialog::dismissed, this, &MainWindow::OnCloningCancel);
    connect(m_pScanSwitch, &MessageDialog::confirmed, this, &MainWindow::OnSwitchConfirm);
    connect(m_pScanSwitch, &MessageDialog::dismissed, this, &MainWindow::OnSwitchCancel);
    connect(m_pDestinitionWarning, &MessageDialog::dismissed, this, &MainWindow::OnCloseDestinitionWarning);
    connect(m_pShutDownWarning, &MessageDialog::confirmed, this, &MainWindow::OnSystemShutDown);
    connect(m_pSettings, &Settings::left, this, &MainWindow::OnSetSmartSettings);

    connect(&m_smartThread, &SMARTThread::OnLodingSmarInfo, this, &MainWindow::OnInitializeSmart);
    connect(&m_refreshThread, &QRefThreadDevicesLoad::OnLoadingDevices, this, &MainWindow::OnInitialize);
    connect(m_pSmartStatusPage->m_pAttributeTree, &QTreeWidget::itemClicked, this,
            &MainWindow::GraphWithAttributes);
    connect(m_pCloneDiskPage, &CloneDisk::OnCloneFinish, this, &MainWindow::OnCloningFinish);
    connect(m_pCloneDiskPage, &CloneDisk::DiskCloneFinished, this, &MainWindow::OnFinishDiskCloning);
    connect(m_pCloneDiskPage, &CloneDisk::ComboboxIndexChange, this, &MainWindow::OnComboboxIndexChange);
    connect(m_pCloneDiskPage, &CloneDisk::CloningProcesFailed, this, &MainWindow::OnCloningProcesFailed);
    connect(m_pCloneDiskPage->SourceComboBox, QOverload<int>::of(&QComboBox::activated), this,
            &MainWindow::OnSourceIndexChange);
    connect(m_pCloneDiskPage->DestinationComboBox, QOverload<int>::of(&QComboBox::activated), this,
            &MainWindow::OnTargetChangeIndex);
}

void MainWindow::startTemperatureTimer()
{
    m_pTemperatureTimer = new QTimer(this);
    if (!isOnShow(navigation::DiskStatusScreen))
        return;
    m_pTemperatureTimer->start(TemperatureInterval);
    connect(m_pTemperatureTimer, &QTimer::timeout, this, &MainWindow::GetSmartTemprature);
}

void MainWindow::CheckCompanionRunning()
{
    companion::ensureRunning();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi(this);
        retranslateShell();
        retranslatePartitions();
        if (!ResultLabel->text().isEmpty())
            showOverallResult();
        if (SettingsStore().flag(key::ShowTrayIcon)) {
            companion::kill();
            companion::start();
        }
    }
    // The ring does not paint itself in a minimised window; this starts it again.
    if (event->type() == QEvent::WindowStateChange && m_pDiskPartitionPage)
        m_pDiskPartitionPage->m_pDonutView->update();
    QMainWindow::changeEvent(event);
}
