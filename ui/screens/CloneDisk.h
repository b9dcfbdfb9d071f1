// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "clone/CloneMessages.h"
#include "clone/ThreadDriveClone.h"
#include "state/DiskRecords.h"
#include "ui/screens/Page.h"

#include "ui_CloneDisk.h"

#include <utility>
#include <vector>

namespace drivetexts
{
struct Entry;
}

class InfoDialogClass;
class QRoundProgressBar;

/// The Clone Disk screen: the choice of a source and a destination with the details of both, and the clone
/// itself with its gauge, its remaining time and the box that tells how it ended. Main thread only.
class CloneDisk : public Page
{
    Q_OBJECT

public:
    explicit CloneDisk(QWidget *parent = nullptr);

    /// Fills the combo of the sources, and takes back the choice of a destination: the disk numbers may
    /// belong to other disks now. Nothing is told of it.
    void FillSources(const std::vector<drivetexts::Entry> &disks);
    /// Chooses a row of that combo.
    void ChooseSource(int index) { m_ui.SourceComboBox->setCurrentIndex(index); }
    int SourceIndex() const { return m_ui.SourceComboBox->currentIndex(); }
    QString SourceText(int index) const { return m_ui.SourceComboBox->itemText(index); }
    /// Shows the details of the source, hides those of the target and rebuilds the list of destinations; the
    /// choice of a destination goes back to none. Null: no source, and any physical disk is a destination.
    void RefreshSourceDetails(const DiskNode *pNode);
    /// Shows or hides the details of the target.
    void ShowTargetDetails(bool bShow);

    /// Source and target as their combos show them: drive code and name.
    using Pair = std::pair<std::pair<int, QString>, std::pair<int, QString>>;
    Pair ChosenPair() const;
    bool HasDestination() const { return m_nDestinationIndex > 0; }
    /// Drive code of the destination that was chosen last.
    int DestinationId() const { return m_nDestinationDrive + PhysicalDriveBase; }

    /// Copies the current disk onto the clone disk, which loses all that it holds. Only while no clone runs.
    void StartClone();
    /// Shows a message in the box, over the main window.
    void ShowMessage(const clonemessages::Message &message);

signals:
    /// The clone has copied so much of the disk.
    void Progressed(int percent);
    /// It has ended; its result is about to show.
    void Ended(const JobEnd &end);
    /// A clone has ended, and its result shows.
    void OnCloneFinish();
    /// The result was read: the page is back at the choice of disks.
    void DiskCloneFinished();
    /// The source combo went to another row; it has the rows of the main window's drive combo.
    void ComboboxIndexChange(int index);
    /// The user has chosen a row of the destinations.
    void DestinationActivated(int index);
    /// The clone was refused, or failed.
    void CloningProcesFailed();

public slots:
    void OnActivatedSourceComboBox(int index);
    void OnActivatedDestinationComboBox(int index);
    void OnSetProgressValue(qlonglong position, qlonglong remaining);
    void OnDriveCloneFinish();
    void OnCloningFailed();
    void OnCloningAbort();
    void OnOk();
    void OnUpdateTime();
    void OnSaveLostSectors();

protected:
    void retranslate() override;

private:
    void stylePage();
    void clearDestinations();
    void showRunning(bool bRunning);
    void showRemaining(const QString &time);

    Ui::m_pCloneDiskwgt m_ui;
    int m_nDestinationIndex = 0;  ///< row in DestinationComboBox, 0: none chosen
    int m_nDestinationDrive = -1; ///< physical number of the disk chosen last, negative: none
    quint64 m_nSourceSectors = 0; ///< sectors of 512 bytes
    QString m_strLastMinutes;     ///< the remaining time shown last
    QRoundProgressBar *m_pRoundProgressBar = nullptr;
    InfoDialogClass *m_pMessageBox = nullptr;
    ThreadDriveClone m_cloneThread;
};
