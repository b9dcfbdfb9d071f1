// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/CloneDisk.h"

#include "clone/RescueMap.h"
#include "state/CloneTexts.h"
#include "state/DriveTexts.h"
#include "state/GlobalApp.h"
#include "state/JobState.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/screens/PageLook.h"
#include "ui/widgets/QRoundProgressBar.h"
#include "ui/widgets/Style.h"

#include <QFileDialog>

#include <initializer_list>

namespace
{

constexpr int GaugeSide = 210;
constexpr double GaugeStart = -135; ///< degrees, at the lower left

/// Which label shows which text of a disk.
struct DetailRow {
    DetailLabel *Ui_m_pCloneDiskwgt::*source;
    DetailLabel *Ui_m_pCloneDiskwgt::*target;
    QString clonetexts::Details::*text;
};

const DetailRow detailRows[] = {
    {&Ui_m_pCloneDiskwgt::DisknLbl, &Ui_m_pCloneDiskwgt::TargetDiskNoLbl, &clonetexts::Details::diskNumber},
    {&Ui_m_pCloneDiskwgt::ModelNLbl, &Ui_m_pCloneDiskwgt::TargetModelLbl, &clonetexts::Details::model},
    {&Ui_m_pCloneDiskwgt::CapacityLbl, &Ui_m_pCloneDiskwgt::TargetCpaLbl, &clonetexts::Details::capacity},
    {&Ui_m_pCloneDiskwgt::SerialNuLabel, &Ui_m_pCloneDiskwgt::TargetSLbl, &clonetexts::Details::serial},
    {&Ui_m_pCloneDiskwgt::FirmWareLbl, &Ui_m_pCloneDiskwgt::TargetFrmLbl, &clonetexts::Details::firmware},
    {&Ui_m_pCloneDiskwgt::InterfaceLBL, &Ui_m_pCloneDiskwgt::TargetInterfaceLbl,
     &clonetexts::Details::interfaceType},
    {&Ui_m_pCloneDiskwgt::SectorLbl, &Ui_m_pCloneDiskwgt::TargetSectorLBl, &clonetexts::Details::sectors},
};

} // namespace

CloneDisk::CloneDisk(QWidget *parent) : Page(parent)
{
    setupUi(this);
    pagelook::makePage(this);
    m_pRoundProgressBar = pagelook::named(new QRoundProgressBar(ProgressLabel), "m_pRoundProgressBar");
    m_pRoundProgressBar->setGeometry(0, 0, GaugeSide, GaugeSide);
    style::scaleWidget(m_pRoundProgressBar);
    style::setWhiteBackground(m_pRoundProgressBar);
    m_pRoundProgressBar->SetDecimals(0);
    // A child of the window: the page's style sheets must not reach it.
    m_pMessageBox = pagelook::named(new InfoDialogClass(window()), "m_pMessageBox");
    stylePage();
    RefreshSourceDetails(nullptr);
    connect(SourceComboBox, QOverload<int>::of(&QComboBox::activated), this,
            &CloneDisk::OnActivatedSourceComboBox);
    connect(SourceComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CloneDisk::OnActivatedSourceComboBox);
    connect(DestinationComboBox, QOverload<int>::of(&QComboBox::activated), this,
            &CloneDisk::OnActivatedDestinationComboBox);
    connect(DestinationComboBox, QOverload<int>::of(&QComboBox::activated), this,
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
    pagelook::styleHeadings({DiskDetailLbl});
    pagelook::styleNames({SourceDisk, TargetDiskLbl, TimeLabel2});
    pagelook::styleValues({TimeLabel});
    for (const DetailRow &row : detailRows)
        pagelook::styleValues({this->*row.source, this->*row.target});
    pagelook::styleCard(SourceFrame);
    pagelook::styleCard(DesitanionFrame);
    for (QComboBox *combo : {SourceComboBox, DestinationComboBox}) {
        combo->setFont(style::font(10));
        // A long name must not widen the combo, which has the width of its card.
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    }
    pagelook::alignNames({SourceDisk, TargetDiskLbl});
    SourceComboBox->setAccessibleName(SourceDisk->text());
    DestinationComboBox->setAccessibleName(TargetDiskLbl->text());
}

void CloneDisk::FillSources(const std::vector<drivetexts::Entry> &disks)
{
    const QSignalBlocker block(SourceComboBox);
    SourceComboBox->clear();
    clearDestinations();
    m_nDestinationDrive = -1;
    g_App.m_pCloneDisk = nullptr;
    for (const drivetexts::Entry &entry : disks)
        SourceComboBox->addItem(entry.texts.source, static_cast<int>(entry.node->nId));
}

CloneDisk::Pair CloneDisk::ChosenPair() const
{
    return {{SourceComboBox->currentData().toInt(), SourceComboBox->currentText()},
            {DestinationComboBox->currentData().toInt(), DestinationComboBox->currentText()}};
}

void CloneDisk::RefreshSourceDetails(const DiskNode *pNode)
{
    m_nSourceSectors = pNode && pNode->pDetails ? pNode->pDetails->nTotalSectors : 0;
    const clonetexts::Details captions = clonetexts::captions();
    const clonetexts::Details texts =
        pNode ? clonetexts::details(*pNode, findWmicDisk(pNode->nId)) : captions;
    for (const DetailRow &row : detailRows) {
        (this->*row.source)->setText(texts.*row.text);
        (this->*row.target)->setText(captions.*row.text);
    }
    ShowTargetDetails(false);
    DetailLabel::align({DisknLbl, ModelNLbl, CapacityLbl, SerialNuLabel, TargetDiskNoLbl, TargetModelLbl,
                        TargetCpaLbl, TargetSLbl});
    DetailLabel::align(
        {FirmWareLbl, InterfaceLBL, SectorLbl, TargetFrmLbl, TargetInterfaceLbl, TargetSectorLBl});
    clearDestinations();
    if (g_bListsLoading)
        return;
    for (const clonetexts::Destination &disk :
         clonetexts::destinations(g_App.m_diskList, pNode ? pNode->nId : 0))
        DestinationComboBox->addItem(disk.text, disk.diskId);
}

void CloneDisk::ShowTargetDetails(bool bShow)
{
    for (const DetailRow &row : detailRows)
        (this->*row.target)->setVisible(bShow);
}

void CloneDisk::clearDestinations()
{
    g_strSelectDestination = tr("Select Destination");
    DestinationComboBox->clear();
    DestinationComboBox->addItem(g_strSelectDestination);
    // With a size of 0 this entry does not show in the drop-down.
    DestinationComboBox->setItemData(0, QSize(0, 0), Qt::SizeHintRole);
    m_nDestinationIndex = 0;
}

void CloneDisk::OnActivatedSourceComboBox(int index)
{
    if (SourceComboBox->count() == 0)
        return;
    emit ComboboxIndexChange(index);
    g_App.m_pCurrentDisk = findPhysicalDisk(SourceComboBox->itemData(index).toInt());
    RefreshSourceDetails(g_App.m_pCurrentDisk);
}

void CloneDisk::OnActivatedDestinationComboBox(int index)
{
    m_nDestinationIndex = index;
    m_nDestinationDrive = DestinationComboBox->itemData(index).toInt() - PhysicalDriveBase;
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
        (this->*row.target)->setText(texts.*row.text);
    ShowTargetDetails(true);
}

/// The gauge and the remaining time, or the choice of the two disks.
void CloneDisk::showRunning(bool bRunning)
{
    for (QWidget *choice :
         std::initializer_list<QWidget *>{DiskDetailLbl, ExtraLbl, SourceFrame, DesitanionFrame, SourceDisk,
                                          TargetDiskLbl, SourceComboBox, DestinationComboBox})
        choice->setVisible(!bRunning);
    for (const DetailRow &row : detailRows)
        (this->*row.source)->setVisible(!bRunning);
    ShowTargetDetails(!bRunning);
    for (QWidget *progress :
         std::initializer_list<QWidget *>{ProgressLabel, TimeLabel, TimeLabel2, TimeSpaceLbl, TimeSpaceLbl_2})
        progress->setVisible(bRunning);
}

void CloneDisk::StartClone()
{
    g_Jobs.begin(JobState::Job::Clone);
    m_pMessageBox->hide();
    m_strLastMinutes.clear();
    TimeLabel->clear();
    showRunning(true);
    m_pRoundProgressBar->SetMinimum(0.0);
    m_pRoundProgressBar->SetMaximum(100.0);
    m_pRoundProgressBar->SetValue(0);
    m_pRoundProgressBar->SetNullPosition(GaugeStart);
    m_pRoundProgressBar->SetBarStyle(QRoundProgressBar::RingStyle);
    m_pRoundProgressBar->show();
    m_cloneThread.start(QThread::InheritPriority);
}

void CloneDisk::OnSetProgressValue(qlonglong position, qlonglong remaining)
{
    m_strLastMinutes = clonemessages::remainingText(remaining);
    OnUpdateTime();
    m_pRoundProgressBar->SetValue(clonemessages::percentDone(position, m_nSourceSectors));
    m_pRoundProgressBar->repaint();
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
    const QString path = QFileDialog::getSaveFileName(m_pMessageBox, tr("Save List"),
                                                      QStringLiteral("clone.map"), QStringLiteral("*.map"));
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
        TimeLabel->clear();
        m_pRoundProgressBar->SetValue(100);
        ProgressLabel->repaint();
    }
    if (outcome.fault != CloneFault::None)
        g_bListsStale = true;
    ShowMessage(clonemessages::finished(outcome));
    m_pMessageBox->OfferSaving(outcome.end == CloneOutcome::End::WithErrors);
    emit OnCloneFinish();
}

void CloneDisk::OnOk()
{
    m_pMessageBox->hide();
    TimeLabel->clear();
    if (!g_Jobs.mayQuit())
        return;
    showRunning(false);
    emit DiskCloneFinished();
}

void CloneDisk::retranslate()
{
    retranslateUi(this);
    RefreshSourceDetails(findPhysicalDisk(SourceComboBox->currentData().toInt()));
    stylePage();
}
