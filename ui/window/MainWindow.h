// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/Companion.h"
#include "smart/SMARTThread.h"
#include "smart/SelfTest.h"
#include "state/GlobalApp.h"
#include "state/JobState.h"
#include "state/Navigation.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/screens/AccessNotice.h"
#include "ui/screens/CloneDisk.h"
#include "ui/screens/DiskPartition.h"
#include "ui/screens/DiskStatus.h"
#include "ui/screens/ScanDisk.h"
#include "ui/screens/Settings.h"
#include "ui/screens/SmartStatus.h"
#include "ui/widgets/FramelessDrag.h"
#include "ui/widgets/MyButton.h"
#include "ui/window/JobDisplay.h"
#include "ui/window/QRefThreadDevicesLoad.h"
#include "update/HelpLinks.h"

#include "ui_MainWindow.h"

#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <QSystemTrayIcon>

class QCheckUpdate;
class QMovie;
class QTimer;

/// The frameless window with its five screens, of which one shows at a time, and the wiring between them and
/// the engines below. Created once, never deleted. Main thread only. The definitions are split by screen in
/// ui/window/.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Reloads the active screen for the selected disk.
    void RefreshSelectedDisk();
    /// Fills the three drive combos from the disk list.
    void FillDriveCombos();
    /// Makes the disk of a combo index the current one; none where there is no such disk.
    void LookUpDisk(int comboIndex);
    /// Shows the volumes of the selected disk on Disk Partition, with `mark` behind an encrypted one.
    void ShowPartitions(const QString &mark);
    /// Has the report of a physical disk read in the background.
    void RequestSmartRead(int diskIndex);
    /// Starts the companion unless it runs.
    void CheckCompanionRunning() { companion::ensureRunning(); }

    void ComputePerformance();
    void ComputeHealth();
    void ShowDiskLifeDetails();
    /// Fills the attribute tree from the report that was read last, keeps its values in the history of the
    /// day, and draws the first row's graph.
    void FillSmartTable();

public slots:
    void OnSystemShutDown();
    void OnCloningProcesFailed() { m_ui.DriveCombobox->setEnabled(true); }
    void OnInitializeSmart();
    void OnComboboxIndexChange(int index) { m_ui.DriveCombobox->setCurrentIndex(index); }
    void OnFinishDiskCloning();
    void OnStopCancel();
    void OnStopConfirm();
    void OnCheckUpdate();
    void OnCloningFinish();
    void OnShowAbout();
    void OnRefresh();
    void SavePDFReport();
    void OnFinishScanDisk();
    void OnStop();
    void OnScanStart();
    void OnCloneStart();
    void OnShowDiskStatus();
    void OnShowDiskPartition();
    void OnShowScanDisk();
    void OnCheckRadioButton();
    void ChooseScanType();
    void OnClickStopTestButton();
    void StopConfirm() { m_selfTest.abort(); }
    void OnCheckShortTest1();
    void OnStartShortSelfTest();
    void CheckShortTestStatus1();
    void DetailsforSelftest();
    void OnCheckPreviousTestResult();
    void OnShowCloneDisk();
    void OnShowSmartStatus();
    void OnShowSettings();
    void OnOpenHelp() { links::openHelp(helpTopic()); }
    void OnMinimized() { showMinimized(); }
    void OnClose();
    void Onyes();
    void OnNo() { m_pCloseWgt->hide(); }
    void OnHideButtons() {}
    void OnCloseSelfTestNotSupported();
    void OnActivatedDriveCombo(int nIndex);
    void OnTargetChangeIndex(int nIndex);
    void OnSourceIndexChange(int) {}
    void OnCloseDestinitionWarning() { m_pDestinitionWarning->hide(); }

    void OnShowHoverImage() { hoverNavigation(navigation::DiskStatusScreen); }
    void OnShowNormalImage() { leaveNavigation(navigation::DiskStatusScreen); }
    void OnShowPressImage() { pressNavigation(navigation::DiskStatusScreen); }
    void OnShowReleaseImageImage() { releaseNavigation(navigation::DiskStatusScreen); }
    void OnSmartHoverImage() { hoverNavigation(navigation::SmartStatusScreen); }
    void OnSmartNormalImage() { leaveNavigation(navigation::SmartStatusScreen); }
    void OnSmartPressImage() { pressNavigation(navigation::SmartStatusScreen); }
    void OnSmartReleaseImageImage() { releaseNavigation(navigation::SmartStatusScreen); }
    void OnDiskPartitionHoverImage() { hoverNavigation(navigation::DiskPartitionScreen); }
    void OnDiskPartitionNormalImage() { leaveNavigation(navigation::DiskPartitionScreen); }
    void OnDiskPartitionPressImage() { pressNavigation(navigation::DiskPartitionScreen); }
    void OnDiskPartReleaseImageImage() { releaseNavigation(navigation::DiskPartitionScreen); }
    void OnScanDiskHoverImage() { hoverNavigation(navigation::ScanDiskScreen); }
    void OnScanDiskNormalImage() { leaveNavigation(navigation::ScanDiskScreen); }
    void OnScanDiskPressImage() { pressNavigation(navigation::ScanDiskScreen); }
    void OnScanDiskReleaseImageImage() { releaseNavigation(navigation::ScanDiskScreen); }
    void OnCloneDiskHoverImage() { hoverNavigation(navigation::CloneDiskScreen); }
    void OnCloneDiskNormalImage() { leaveNavigation(navigation::CloneDiskScreen); }
    void OnCloneDiskPressImage() { pressNavigation(navigation::CloneDiskScreen); }
    void OnCloneDiskReleaseImageImage() { releaseNavigation(navigation::CloneDiskScreen); }
    void OnBackTestPressImage();
    void OnBackTestHoverImage() { setBackLook(Look::Hover); }
    void OnBackTestReleaseImage() { OnBackTestNormalImage(); }
    void OnBackTestNormalImage() { setBackLook(Look::Normal); }

    void SystemTrayQuit() {}
    void iconActivated(QSystemTrayIcon::ActivationReason reason);
    void OnSetSmartSettings();
    void GetSmartTemprature();
    void GraphWithAttributes(QTreeWidgetItem *item, int column);
    void OnCloningCancel() { m_pCloneWarning->hide(); }
    void OnCloningStart();
    void OnSwitchCancel();
    void OnSwitchConfirm();
    void OnInitialize();
    void TakeScreenshot();
    void LaunchDataRecovery() { launchSibling(g_App.m_strSibling1); }
    void LaunchVideoRepair() { launchSibling(g_App.m_strSibling2); }
    void LaunchPhotoRepair() { launchSibling(g_App.m_strSibling3); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    using Screen = navigation::Screen;
    using Job = JobState::Job;
    static constexpr std::array<Screen, navigation::ScreenCount> Screens = {
        navigation::DiskStatusScreen, navigation::SmartStatusScreen, navigation::DiskPartitionScreen,
        navigation::ScanDiskScreen, navigation::CloneDiskScreen};

    /// Construction
    void scaleGeometry();
    void styleShell();
    void buildNavigation();
    void buildScreens();
    void buildDialogs();
    void buildToolButtons();
    void connectAll();
    void connectNavigation();
    void connectKeys();
    void orderFocus();
    void retranslateShell();

    /// Navigation
    bool isOnShow(Screen screen) const { return m_screen == screen; }
    enum class Look { Normal, Hover, Selected };
    void setLook(Screen screen, Look look);
    void hoverNavigation(Screen screen);
    void leaveNavigation(Screen screen);
    void pressNavigation(Screen screen);
    void releaseNavigation(Screen screen) { setLook(screen, Look::Selected); }
    void setBackLook(Look look);
    void selectButton(Screen screen);
    void showScreen(Screen screen);
    void showAccess();
    void callShowSlot(Screen screen);
    void showCentred(QWidget *dialog);
    void askToStop(const QString &title, const QString &warning, const QString &question);
    links::Topic helpTopic() const;

    /// Reading a disk
    void takeUpChosenDisk();
    void showWaitingTiles();
    void startRead();
    void updateButtons();
    bool reportKnown() const;
    void enterBusy(const QString &text);
    void leaveBusy();
    void prepareLogFolder();
    int takeReading();
    void initializeSmartStatus();
    void initializeDiskStatus();
    void showOverallResult();
    void refreshBehindJob();
    void selectCloneArgument();
    /// Chooses the disk that the companion asks for.
    void selectStartDisk();
    void refreshClonePage();
    int currentComboDisk() const { return m_ui.DriveCombobox->currentData().toInt() - PhysicalDriveBase; }

    /// Jobs
    using ChosenDisk = std::pair<int, QString>; ///< drive code, and the name that the combo shows
    ChosenDisk chosenDisk() const;
    void keepScannedDisk();
    void refreshScanPage();
    void startSurfaceScan();
    void dropScanResults();
    void lockShell(Screen screen);
    void releaseShell();
    void setNavigationEnabled(Screen screen, bool enabled);
    void enableNavigation(bool enabled = true);
    void showTestButtons(bool running);
    void takeTestStep(const SelfTest::Step &step);
    void leaveTest();
    void showRunningPanel(bool fromYes);
    void keepAwake();
    void launchSibling(const QString &fileName);

    Ui::m_pMainWindow m_ui;
    /// Buttons and pages by navigation::Screen.
    std::array<MyButton *, navigation::ScreenCount> m_apNavigation{};
    std::array<QWidget *, navigation::ScreenCount> m_apScreens{};
    std::optional<Screen> m_screen; ///< the one on show; its button is down
    DiskStatus *m_pDiskStatusPage = nullptr;
    SmartStatus *m_pSmartStatusPage = nullptr;
    DiskPartition *m_pDiskPartitionPage = nullptr;
    ScanDisk *m_pScanDiskPage = nullptr;
    CloneDisk *m_pCloneDiskPage = nullptr;
    AccessNotice *m_pAccessNotice = nullptr; ///< in the place of the screens while no disk may be opened
    Settings *m_pSettings = nullptr;         ///< top-level, without a parent

    CloseWgt *m_pCloseWgt = nullptr;
    SmartWarning *m_pSmartWarning = nullptr;
    ShutDownWarning *m_pShutDownWarning = nullptr;
    CloneWarning *m_pCloneWarning = nullptr;
    ConfarmetionClass *m_pConfirmation = nullptr;
    ScanSwitchClass *m_pScanSwitch = nullptr;
    DestinitionWarning *m_pDestinitionWarning = nullptr;
    SelfTestNotSupported *m_pSelfTestNotSupported = nullptr;

    /// The screen asked for while a job's results are open.
    std::array<bool, navigation::ScreenCount> m_abSwitchTarget{};
    ChosenDisk m_scannedDisk;          ///< whose results show: of a scan, or of a self-test
    CloneDisk::Pair m_askedPair;       ///< named in the question before a clone
    QHash<int, int> m_hashComboToDisk; ///< combo index to DiskNode::nId
    QMovie *m_pMovie = nullptr;
    bool m_bStartedByKey = false; ///< the latest job
    bool m_bRefreshing = false;
    bool m_bRefreshAgain = false; ///< a volume came or went during a refresh
    QTimer *m_pTemperatureTimer = nullptr;
    QPointer<QCheckUpdate> m_pCheckUpdate;
    SelfTest m_selfTest;
    QTimer *m_pTestTimer = nullptr;
    FramelessDrag m_drag;
    JobDisplay m_jobDisplay{this};
    SMARTThread m_smartThread;
    QRefThreadDevicesLoad m_refreshThread;
};
