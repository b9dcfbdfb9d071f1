// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/CloneDisk.h"

#include "clone/RescueMap.h"
#include "state/CloneTexts.h"
#include "state/DriveTexts.h"
#include "state/GlobalApp.h"
#include "state/JobState.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/dialogs/SavePath.h"
#include "ui/widgets/QRoundProgressBar.h"
#include "ui/widgets/Style.h"

namespace
{

constexpr int GaugeSide = 210;
constexpr double GaugeStart = -135; ///< degrees, at the lower left

using Form = Ui::m_pCloneDiskwgt;

/// Which label shows which text of a disk.
struct DetailRow {
    DetailLabel *Form::*source;
    DetailLabel *Form::*target;
    QString clonetexts::Details::*text;
};

const DetailRow detailRows[] = {
    {&Form::DisknLbl, &Form::TargetDiskNoLbl, &clonetexts::Details::diskNumber},
    {&Form::ModelNLbl, &Form::TargetModelLbl, &clonetexts::Details::model},
    {&Form::CapacityLbl, &Form::TargetCpaLbl, &clonetexts::Details::capacity},
    {&Form::SerialNuLabel, &Form::TargetSLbl, &clonetexts::Details::serial},
    {&Form::FirmWareLbl, &Form::TargetFrmLbl, &clonetexts::Details::firmware},
    {&Form::InterfaceLBL, &Form::TargetInterfaceLbl, &clonetexts::Details::interfaceType},
    {&Form::SectorLbl, &Form::TargetSectorLBl, &clonetexts::Details::sectors},
};

} // namespace

CloneDisk::CloneDisk(QWidget *parent) : Page(parent)
{
    m_ui.setupUi(this);
    pagelook::makePage(this);
    m_pRoundProgressBar = pagelook::named(new QRoundProgressBar(m_ui.ProgressLabel), "m_pRoundProgressBar");
    m_pRoundProgressBar->setGeometry(0, 0, GaugeSide, GaugeSide);
    style::scaleWidget(m_pRoundProgressBar);
    style::setWhiteBackground(m_pRoundProgressBar);
    m_pRoundProgressBar->SetDecimals(0);
    m_pRoundProgressBar->SetNullPosition(GaugeStart);
    // A child of the window: the page's style sheets must not reach it.
    m_pMessageBox = pagelook::named(new InfoDialogClass(window()), "m_pMessageBox");
    stylePage();
    RefreshSourceDetails(nullptr);
    connect(m_ui.SourceComboBox, QOverload<int>::of(&QComboBox::activated), this,
            &CloneDisk::OnActivatedSourceComboBox);
    connect(m_ui.SourceComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CloneDisk::OnActivatedSourceComboBox);
    connect(m_ui.DestinationComboBox, QOverload<int>::of(&QComboBox::activated), this,
            &CloneDisk::OnActivatedDestinationComboBox);
    connect(m_ui.DestinationComboBox, QOverload<int>::of(&QComboBox::activated), this,
            &CloneDisk::DestinationActivated);
    connect(m_pMessageBox, &MessageDialog::dismissed, this, &CloneDisk::OnOk);
    connect(m_pMessageBox, &MessageDialog::confirmed, this, &CloneDisk::OnSaveLostSectors);
    connect(&m_cloneThread, &ThreadDriveClone::OnCloningFinish, this, &CloneDisk::OnDriveCloneFinish);
    connect(&m_cloneThread, &ThreadDriveClone::SetProgressValue, this, &CloneDisk::OnSetProgressValue);
    connect(&m_cloneThread, &ThreadDriveClone::CloningFailed, this, &CloneDisk::OnCloningFailed);
    connect(&m_cloneThread, &ThreadDriveClone::CloningAbort, this, &CloneDisk::OnCloningAbort);
}

void CloneDisk::stylePage()
{
    pagelook::styleHeadings({m_ui.DiskDetailLbl});
    pagelook::styleNames({m_ui.SourceDisk, m_ui.TargetDiskLbl, m_ui.TimeLabel2});
    pagelook::styleValues({m_ui.TimeLabel});
    for (const DetailRow &row : detailRows)
        pagelook::styleValues({m_ui.*row.source, m_ui.*row.target});
    pagelook::styleCard(m_ui.SourceFrame);
    pagelook::styleCard(m_ui.DesitanionFrame);
    for (QComboBox *combo : {m_ui.SourceComboBox, m_ui.DestinationComboBox}) {
        combo->setFont(style::font(10));
        // A long name must not widen the combo, which has the width of its card.
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    }
    pagelook::alignNames({m_ui.SourceDisk, m_ui.TargetDiskLbl});
    m_pRoundProgressBar->setAccessibleName(tr("Clone Disk"));
}

void CloneDisk::FillSources(const std::vector<drivetexts::Entry> &disks)
{
    const QSignalBlocker block(m_ui.SourceComboBox);
    m_ui.SourceComboBox->clear();
    clearDestinations();
    m_nDestinationDrive = -1;
    g_App.m_pCloneDisk = nullptr;
    for (const drivetexts::Entry &entry : disks)
        m_ui.SourceComboBox->addItem(entry.texts.source, static_cast<int>(entry.node->nId));
}

CloneDisk::Pair CloneDisk::ChosenPair() const
{
    return {{m_ui.SourceComboBox->currentData().toInt(), m_ui.SourceComboBox->currentText()},
            {m_ui.DestinationComboBox->currentData().toInt(), m_ui.DestinationComboBox->currentText()}};
}

void CloneDisk::RefreshSourceDetails(const DiskNode *pNode)
{
    m_nSourceSectors = pNode && pNode->pDetails ? pNode->pDetails->nTotalSectors : 0;
    const clonetexts::Details captions = clonetexts::captions();
    const clonetexts::Details texts =
        pNode ? clonetexts::details(*pNode, findWmicDisk(pNode->nId)) : captions;
    for (const DetailRow &row : detailRows) {
        (m_ui.*row.source)->setText(texts.*row.text);
        (m_ui.*row.target)->setText(captions.*row.text);
    }
    ShowTargetDetails(false);
    DetailLabel::align({m_ui.DisknLbl, m_ui.ModelNLbl, m_ui.CapacityLbl, m_ui.SerialNuLabel,
                        m_ui.TargetDiskNoLbl, m_ui.TargetModelLbl, m_ui.TargetCpaLbl, m_ui.TargetSLbl});
    DetailLabel::align({m_ui.FirmWareLbl, m_ui.InterfaceLBL, m_ui.SectorLbl, m_ui.TargetFrmLbl,
                        m_ui.TargetInterfaceLbl, m_ui.TargetSectorLBl});
    clearDestinations();
    if (g_bListsLoading)
        return;
    for (const clonetexts::Destination &disk :
         clonetexts::destinations(g_App.m_diskList, pNode ? pNode->nId : 0))
        m_ui.DestinationComboBox->addItem(disk.text, disk.diskId);
}

void CloneDisk::ShowTargetDetails(bool bShow)
{
    for (const DetailRow &row : detailRows)
        (m_ui.*row.target)->setVisible(bShow);
}

void CloneDisk::clearDestinations()
{
    g_strSelectDestination = tr("Select Destination");
    m_ui.DestinationComboBox->clear();
    m_ui.DestinationComboBox->addItem(g_strSelectDestination);
    // With a size of 0 this entry does not show in the drop-down.
    m_ui.DestinationComboBox->setItemData(0, QSize(0, 0), Qt::SizeHintRole);
    m_nDestinationIndex = 0;
}

void CloneDisk::OnActivatedSourceComboBox(int index)
{
    if (m_ui.SourceComboBox->count() == 0)
        return;
    emit ComboboxIndexChange(index);
    g_App.m_pCurrentDisk = findPhysicalDisk(m_ui.SourceComboBox->itemData(index).toInt());
    RefreshSourceDetails(g_App.m_pCurrentDisk);
}

void CloneDisk::OnActivatedDestinationComboBox(int index)
{
    m_nDestinationIndex = index;
    m_nDestinationDrive = m_ui.DestinationComboBox->itemData(index).toInt() - PhysicalDriveBase;
    if (index == 0)
        return;
    g_App.m_pCloneDisk = findPhysicalDisk(m_nDestinationDrive + PhysicalDriveBase);
    if (!g_App.m_pCloneDisk) {
        ShowTargetDetails(false);
        return;
    }
    const clonetexts::Details texts =
        clonetexts::details(*g_App.m_pCloneDisk, findWmicDisk(g_App.m_pCloneDisk->nId));
    for (const DetailRow &row : detailRows)
        (m_ui.*row.target)->setText(texts.*row.text);
    ShowTargetDetails(true);
}

/// The gauge and the remaining time, or the choice of the two disks.
void CloneDisk::showRunning(bool bRunning)
{
    style::setVisible({m_ui.DiskDetailLbl, m_ui.ExtraLbl, m_ui.SourceFrame, m_ui.DesitanionFrame}, !bRunning);
    ShowTargetDetails(!bRunning);
    style::setVisible({m_ui.ProgressLabel, m_ui.TimeSpaceLbl, m_ui.TimeSpaceLbl_2}, bRunning);
}

/// The remaining time, or nothing of it where the text is empty.
void CloneDisk::showRemaining(const QString &time)
{
    m_strLastMinutes = time;
    OnUpdateTime();
}

void CloneDisk::OnUpdateTime()
{
    m_ui.TimeLabel->setText(m_strLastMinutes);
    style::setVisible({m_ui.TimeLabel, m_ui.TimeLabel2}, !m_strLastMinutes.isEmpty());
}

void CloneDisk::StartClone()
{
    g_Jobs.begin(JobState::Job::Clone);
    m_pMessageBox->hide();
    showRemaining(QString());
    showRunning(true);
    m_pRoundProgressBar->SetValue(0);
    m_pRoundProgressBar->setAccessibleDescription(clonemessages::gaugeText(0));
    emit Progressed(0);
    m_cloneThread.start(QThread::InheritPriority);
}

void CloneDisk::OnSetProgressValue(qlonglong position, qlonglong remaining)
{
    showRemaining(clonemessages::remainingText(remaining));
    const int percent = clonemessages::percentDone(position, m_nSourceSectors);
    m_pRoundProgressBar->SetValue(percent);
    m_pRoundProgressBar->setAccessibleDescription(clonemessages::gaugeText(percent));
    m_pRoundProgressBar->repaint();
    emit Progressed(percent);
}

void CloneDisk::ShowMessage(const clonemessages::Message &message)
{
    m_pMessageBox->OfferSaving(false);
    m_pMessageBox->SetTexts(message.title, message.text, message.second);
    style::centreOn(m_pMessageBox, window()->geometry());
    m_pMessageBox->show();
}

void CloneDisk::OnSaveLostSectors()
{
    const QString path = askForPath(m_pMessageBox, tr("Save List"), QStringLiteral("clone"),
                                    {{QStringLiteral("*.map"), QStringLiteral(".map")}});
    const CloneOutcome &outcome = m_cloneThread.outcome();
    if (!path.isEmpty() && !rescuemap::save(path, outcome.lost, outcome.total))
        m_pMessageBox->SetSecondText(tr("The list could not be saved."));
}

void CloneDisk::OnCloningFailed()
{
    ShowMessage(clonemessages::failed());
    emit CloningProcesFailed();
}

void CloneDisk::OnCloningAbort()
{
    ShowMessage(clonemessages::aborted(m_pMessageBox->SecondText()));
}

void CloneDisk::OnDriveCloneFinish()
{
    // The thread signals its end a moment before it has ended.
    m_cloneThread.wait();
    g_Jobs.end(JobState::Job::Clone);
    const CloneOutcome &outcome = m_cloneThread.outcome();
    if (outcome.end == CloneOutcome::End::Complete || outcome.end == CloneOutcome::End::WithErrors) {
        showRemaining(QString());
        m_pRoundProgressBar->SetValue(100);
        m_pRoundProgressBar->setAccessibleDescription(clonemessages::gaugeText(100));
        m_ui.ProgressLabel->repaint();
    }
    if (outcome.fault != CloneFault::None)
        g_bListsStale = true;
    emit Ended(clonemessages::jobEnd(outcome));
    ShowMessage(clonemessages::finished(outcome));
    m_pMessageBox->OfferSaving(outcome.end == CloneOutcome::End::WithErrors);
    emit OnCloneFinish();
}

void CloneDisk::OnOk()
{
    m_pMessageBox->hide();
    showRemaining(QString());
    if (!g_Jobs.mayQuit())
        return;
    showRunning(false);
    emit DiskCloneFinished();
}

void CloneDisk::retranslate()
{
    m_ui.retranslateUi(this);
    RefreshSourceDetails(findPhysicalDisk(m_ui.SourceComboBox->currentData().toInt()));
    stylePage();
}
