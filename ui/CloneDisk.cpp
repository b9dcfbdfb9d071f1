#include "ui/CloneDisk.h"

#include "app/state/CloneTexts.h"
#include "app/state/GlobalApp.h"
#include "app/state/Globals.h"
#include "ui/PageLook.h"
#include "ui/Style.h"

#include <QEvent>

#include <algorithm>

namespace
{

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

CloneDisk::CloneDisk(QWidget *parent) : QWidget(parent)
{
    setupUi(this);
    pagelook::makePage(this);
    stylePage();
    setFixedTexts();
    RefreshSourceDetails(nullptr);
    connect(SourceComboBox, QOverload<int>::of(&QComboBox::activated), this,
            &CloneDisk::OnActivatedSourceComboBox);
    connect(SourceComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CloneDisk::OnActivatedSourceComboBox);
    connect(DestinationComboBox, QOverload<int>::of(&QComboBox::activated), this,
            &CloneDisk::OnActivatedDestinationComboBox);
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
    SourceComboBox->setFont(style::font(10));
    DestinationComboBox->setFont(style::font(10));
    // A long name must not widen the combo, which has the width of its card.
    for (QComboBox *combo : {SourceComboBox, DestinationComboBox})
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

void CloneDisk::setFixedTexts()
{
    DiskDetailLbl->setText(tr("Disk Details"));
    SourceDisk->setText(tr("Source Disk"));
    TargetDiskLbl->setText(tr("Target Disk"));
    TimeLabel2->setText(tr("Remaining Time"));
    const int widest = std::max(SourceDisk->sizeHint().width(), TargetDiskLbl->sizeHint().width());
    SourceDisk->setMinimumWidth(widest);
    TargetDiskLbl->setMinimumWidth(widest);
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
    rebuildDestinations(pNode);
}

void CloneDisk::ShowTargetDetails(bool bShow)
{
    for (const DetailRow &row : detailRows)
        (this->*row.target)->setVisible(bShow);
}

void CloneDisk::rebuildDestinations(const DiskNode *pSource)
{
    g_strSelectDestination = tr("Select Destination");
    DestinationComboBox->clear();
    DestinationComboBox->addItem(g_strSelectDestination);
    // Without a size it is not among the choices of the drop-down.
    DestinationComboBox->setItemData(0, QSize(0, 0), Qt::SizeHintRole);
    const int sourceId = pSource ? pSource->nId : 0;
    for (const clonetexts::Destination &disk : clonetexts::destinations(g_App.m_pDiskListHead, sourceId))
        DestinationComboBox->addItem(disk.text, disk.diskId);
    m_nDestinationIndex = 0;
    m_nDestinationDrive = -1;
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

void CloneDisk::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi(this);
        setFixedTexts();
        RefreshSourceDetails(findPhysicalDisk(SourceComboBox->currentData().toInt()));
    }
    QWidget::changeEvent(event);
}
