// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scan/QScanDriveThread.h"
#include "scan/ScanClock.h"
#include "state/DiskRecords.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/screens/SelfTestPanel.h"

#include "ui_ScanDisk.h"

#include <QElapsedTimer>

struct JobEnd;
class QGridView;
class SaveListButton;
class QTimer;

/// The Scan Disk screen: the choice among a surface scan and the two drive self-tests, and the surface scan
/// itself with its counters, its map and its result. Main thread only.
class ScanDisk : public Page
{
    Q_OBJECT

public:
    explicit ScanDisk(QWidget *parent = nullptr);

    /// Shows the choice of the test with the surface scan preselected; counters, legend and map are hidden.
    void ShowChooser();
    /// The self-test that is chosen; none where it is the surface scan.
    std::optional<SelfTestKind> ChosenTest() const;
    /// Shows the counters and the legend of a surface scan in place of the choice.
    void ShowCounters() { showPart(m_ui.frame_4); }
    /// Shows the panel of a self-test in place of the choice.
    void ShowSelfTest(const SelfTest::Shown &shown);
    /// Changes what the panel of a self-test shows, wherever the page stands.
    void TellSelfTest(const SelfTest::Shown &shown) { m_pSelfTestPanel->Show(shown); }
    bool IsSelfTestShown() const { return m_pSelfTestPanel->isVisible(); }
    /// Shows the size and the sectors of a disk; nothing and "0" where it is null.
    void FillDisk(const DiskNode *pNode);
    /// Makes the map an empty one of a disk, without a cell where it is null.
    void PrepareMap(const DiskNode *pNode);

    /// Scans the selected disk, which the lists call `name`, from its begin. Only while no scan runs.
    void StartScan(const QString &name);
    /// Forgets how long the scan will take.
    void ForgetEstimate() { m_clock.forgetEstimate(); }
    /// Moves the result box over the window.
    void CentreResult();
    /// The user leaves the page or chooses another disk: times, counters and map go. The bad sectors go at
    /// once, or when the scan that finds them has ended.
    void DropResults();
    /// Whether the box with a result waits to be read.
    bool IsResultUnread() const { return m_pResultBox->isVisible(); }
    /// Takes the box away unread.
    void HideResult() { m_pResultBox->hide(); }

signals:
    /// The scan has read so much of the disk.
    void Progressed(int percent);
    /// It has ended; its result is about to show.
    void Ended(const JobEnd &end);
    /// The result of a scan shows.
    void OnScanFinished();
    /// The box with the result was closed.
    void OnResultRead();

public slots:
    void onWrtiteText(qlonglong) {}
    void ScanMaxProgressForDisk();
    void ScanProgValForDisk(qlonglong value);
    void BadSectorProgressDisk(uint) {}
    void OnBadBlockCount(qlonglong) {}
    void OnTotalBlockCount(qlonglong position, qlonglong total, qlonglong step);
    void OnScanFinish(QString verdict);
    void OnExactBadSectorCount(qlonglong count);
    void OnSetRemainingTime(qlonglong sectors, qlonglong endSector);
    void OnUpdateTime();
    void OnAllBlockProcessed(qlonglong i64ProcessedBlocks);

protected:
    void retranslate() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showPart(const QFrame *part);
    void styleChooser();
    void styleCounters();
    void setTimeCaptions();
    void describeMap();
    void clearTimes();
    void showBlockSize();
    void clearCounts();
    void showResult(const QString &verdict);

    Ui::m_pScanDiskwgt m_ui;
    SelfTestPanel *m_pSelfTestPanel = nullptr; ///< in frame_3
    QGridView *m_pGridView = nullptr;          ///< in frame
    InfoDialogClass *m_pResultBox = nullptr;
    SaveListButton *m_pSaveListButton = nullptr; ///< in frame_4
    QTimer *m_pUpdateTimer = nullptr;            ///< of the latest scan
    ScanClock m_clock;
    QElapsedTimer m_sinceStart;
    qlonglong m_i64BlockStep = 0; ///< sectors of a block; 0 before a scan
    bool m_bDropped = false;      ///< the results of the scan under way were given up
    QScanDriveThread m_scanThread;
};
