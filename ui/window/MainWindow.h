// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "clone/CloneMessages.h"
#include "smart/SMARTThread.h"
#include "smart/SelfTest.h"
#include "state/JobState.h"
#include "state/Navigation.h"
#include "ui/widgets/FramelessDrag.h"
#include "ui/window/QRefThreadDevicesLoad.h"
#include "update/HelpLinks.h"

#include "ui_MainWindow.h"

#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <QSystemTrayIcon>

#include <array>
#include <optional>
#include <utility>

class AccessNotice;
class CloneDisk;
class CloneWarning;
class CloseWgt;
class ConfarmetionClass;
class DestinitionWarning;
class DiskPartition;
class DiskStatus;
class InfoDialogClass;
class MyButton;
class PopupMenu;
class QCheckUpdate;
class QMovie;
class QTimer;
class QTreeWidgetItem;
class ScanDisk;
class ScanSwitchClass;
class SelfTestNotSupported;
class Settings;
class ShutDownWarning;
class SmartStatus;
class SmartWarning;
struct DiskNode;

/// The frameless window with its five screens, of which one shows at a time, and the wiring between them and
/// the engines below. Created once, never deleted. Main thread only. The definitions are split by screen in
/// ui/window/.
class MainWindow : public QMainWindow, public Ui::m_pMainWindow
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
    /// How the mark of an encrypted volume reads.
    enum class BitLockerMark { AsWritten, Translated };
    /// Shows the volumes of the selected disk on Disk Partition: the ring and a frame for each.
    void ShowPartitions(BitLockerMark mark);
    /// Has the report of a physical disk read in the background.
    void RequestSmartRead(int diskIndex);
    /// Starts the companion unless it runs.
    void CheckCompanionRunning();

    void ComputePerformance();
    void ComputeHealth();
    void ShowDiskLifeDetails();
    /// Fills the attribute tree from the report that was read last, keeps its values in the history of the
    /// day, and draws the first row's graph.
    void FillSmartTable();

public slots:
    void OnSystemShutDown();
    void OnCloningProcesFailed();
    void OnInitializeSmart();
    void OnComboboxIndexChange(int index);
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
    void OnOpenHelp();
    void OnMinimized();
    void OnClose();
    void Onyes();
    void OnNo();
    void OnHideButtons() {}
    void OnCloseSelfTestNotSupported();
    void OnActivatedDriveCombo(int nIndex);
    void OnTargetChangeIndex(int nIndex);
    void OnSourceIndexChange(int nIndex);
    void OnCloseDestinitionWarning();

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
    void OnBackTestHoverImage();
    void OnBackTestReleaseImage();
    void OnBackTestNormalImage();

    void SystemTrayQuit() {}
    void iconActivated(QSystemTrayIcon::ActivationReason reason);
    void OnSetSmartSettings();
    void GetSmartTemprature();
    void GraphWithAttributes(QTreeWidgetItem *item, int column);
    void OnCloningCancel();
    void OnCloningStart();
    void OnSwitchCancel();
    void OnSwitchConfirm();
    void OnInitialize();
    void TakeScreenshot();
    void LaunchDataRecovery();
    void LaunchVideoRepair();
    void LaunchPhotoRepair();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    using Screen = navigation::Screen;
    using Job = JobState::Job;

    /// \name Construction
    /// @{
    void scaleGeometry();
    void styleShell();
    void buildNavigation();
    void buildScreens();
    void buildDialogs();
    void buildToolButtons();
    void connectAll();
    void connectNavigation();
    void startTemperatureTimer();
    void checkAtStart();
    void applyLanguageWidths();
    void retranslateShell();
    /// @}

    /// \name Navigation
    /// @{
    MyButton *button(Screen screen) const;
    bool isOnShow(Screen screen) const { return m_screen == screen; }
    enum class Look;
    void setLook(Screen screen, Look look);
    void hoverNavigation(Screen screen);
    void leaveNavigation(Screen screen);
    void pressNavigation(Screen screen);
    void releaseNavigation(Screen screen);
    void selectButton(Screen screen);
    void applyLooks();
    void showScreen(Screen screen);
    void showAccess();
    void callShowSlot(Screen screen);
    void askForSwitch();
    void setSwitchTarget(Screen screen);
    links::Topic helpTopic() const;
    /// @}

    /// \name Reading a disk
    /// @{
    void takeUpChosenDisk();
    void showWaitingTiles();
    void clearIdentityTexts();
    void startRead();
    void updateReportButtons();
    bool reportKnown() const;
    void enterBusy(const QString &text);
    void leaveBusy();
    void prepareLogFolder();
    void initializeSmartStatus();
    void showSmartHeading();
    void initializeDiskStatus();
    void showTemperature(int celsius);
    void showOverallResult();
    void showLifeFields(const DiskNode *node);
    void refreshBehindJob();
    void selectCloneArgument();
    void refreshClonePage();
    int currentComboDisk() const;
    void clearPartitions();
    void addVolumeFrames(const QString &letter, const QString &mark);
    void retranslatePartitions();
    /// @}

    /// \name Surface scan
    /// @{
    using ChosenDisk = std::pair<int, QString>; ///< drive code, and the name that the combo shows
    ChosenDisk chosenDisk() const;
    void keepScannedDisk();
    void refreshScanPage();
    void startSurfaceScan();
    void setMenuEntriesEnabled(bool enabled);
    void dropScanResults();
    /// @}

    /// \name Clone
    /// @{
    /// Two disks as a person chose them: drive codes and the names that were shown.
    struct ClonePair {
        int source = 0;
        int target = 0;
        QString sourceText;
        QString targetText;

        bool operator==(const ClonePair &other) const
        {
            return source == other.source && target == other.target && sourceText == other.sourceText &&
                   targetText == other.targetText;
        }
    };
    ClonePair chosenPair() const;
    void askForTarget();
    void refuseClone(const clonemessages::Message &reason);
    void startClone();
    /// @}

    /// \name Self-test
    /// @{
    void showTestScreen();
    void showTestButtons(bool running);
    void setNavigationEnabled(Screen screen, bool enabled);
    void enableNavigation();
    void showTestStep(const SelfTest::Step &step);
    void showTestEnd(selftest::Told how);
    void showTestOver(selftest::Told how);
    /// @}

    /// \name Closing
    /// @{
    void showRunningPanel(bool fromYes);
    void keepAwake();
    void launchSibling(const QString &fileName);
    /// @}

    std::array<MyButton *, navigation::ScreenCount> m_apNavigation{};
    std::optional<Screen> m_screen; ///< the one on show; its button is down
    DiskStatus *m_pDiskStatusPage = nullptr;
    SmartStatus *m_pSmartStatusPage = nullptr;
    DiskPartition *m_pDiskPartitionPage = nullptr;
    ScanDisk *m_pScanDiskPage = nullptr;
    CloneDisk *m_pCloneDiskPage = nullptr;
    std::array<QWidget *, navigation::ScreenCount> m_apScreens{};
    AccessNotice *m_pAccessNotice = nullptr; ///< in the place of the screens while no disk may be opened
    Settings *m_pSettings = nullptr;         ///< top-level, without a parent

    CloseWgt *m_pCloseWgt = nullptr;
    SmartWarning *m_pSmartWarning = nullptr;
    ShutDownWarning *m_pShutDownWarning = nullptr;
    CloneWarning *m_pCloneWarning = nullptr;
    ConfarmetionClass *m_pConfirmation = nullptr;
    ScanSwitchClass *m_pScanSwitch = nullptr;
    InfoDialogClass *m_pInfoDialog = nullptr;
    DestinitionWarning *m_pDestinitionWarning = nullptr;
    SelfTestNotSupported *m_pSelfTestNotSupported = nullptr;

    QLabel *m_pHeaderText = nullptr;
    QLabel *m_pCompanyLogo = nullptr;
    QPushButton *m_pMenuButton = nullptr;
    QPushButton *m_pHelpButton = nullptr;
    QPushButton *m_pMoreToolsButton = nullptr;
    PopupMenu *m_pMainMenu = nullptr;
    PopupMenu *m_pMoreToolsMenu = nullptr;
    QAction *m_pSettingsAction = nullptr;
    QAction *m_pAboutAction = nullptr;
    QAction *m_pRecoverAction = nullptr;
    QAction *m_pVideoAction = nullptr;
    QAction *m_pPhotoAction = nullptr;

    /// The screen asked for while a job's results are open.
    std::array<bool, navigation::ScreenCount> m_abSwitchTarget{};
    ChosenDisk m_scannedDisk;           ///< whose results show: of a scan, or of a self-test
    ClonePair m_askedPair;              ///< named in the question before a clone
    QHash<int, int> m_hashComboToDisk;  ///< combo index to DiskNode::nId
    QList<QAction *> m_listHeldEntries; ///< menu entries that a scan made grey
    QMovie *m_pMovie = nullptr;
    int m_nFrameCount = 0;         ///< frames of the letter shown last
    QList<QFrame *> m_listFrames;  ///< all frames on Disk Partition
    QList<QLabel *> m_listNotices; ///< the line that stands there instead of frames
    bool m_bRefreshing = false;
    bool m_bRefreshAgain = false; ///< a volume came or went during a refresh
    QTimer *m_pTemperatureTimer = nullptr;
    QPointer<QCheckUpdate> m_pCheckUpdate;
    SelfTest m_selfTest;
    QTimer *m_pTestTimer = nullptr; ///< made at the first self-test
    FramelessDrag m_drag;
    SMARTThread m_smartThread;
    QRefThreadDevicesLoad m_refreshThread;
};
