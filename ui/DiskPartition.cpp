#include "ui/DiskPartition.h"

#include "app/state/Globals.h"
#include "ui/PageLook.h"
#include "ui/Style.h"

#include <QEvent>
#include <QScrollArea>
#include <QVBoxLayout>

namespace
{
constexpr int HeaderHeight = 143;
}

DiskPartition::DiskPartition(QWidget *parent) : QWidget(parent)
{
    setupUi(this);
    pagelook::makePage(this);
    pagelook::styleHeadings({DiskPartitionLbl, TreeStringLbl});
    pagelook::styleNames({SerialNumberLbl, CapacityLbl, InterfaceLbl});
    pagelook::styleValues({SerialNunValueLbl, CapcityValLbl, InterfaceValLbl});
    DetailGrid->setColumnMinimumWidth(0, style::px(115));
    HeaderRow->addStrut(style::px(HeaderHeight));
    makeScrollArea();
    setFixedTexts();
}

DiskPartition::~DiskPartition() = default;

void DiskPartition::makeScrollArea()
{
    m_pScrollArea = new QScrollArea(this);
    m_pScrollArea->setObjectName(QStringLiteral("m_pScrollArea"));
    m_pScrollArea->setFrameShape(QFrame::NoFrame);
    m_pScrollArea->setWidgetResizable(true);
    m_pScrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    pagelook::styleVerticalScrollBar(m_pScrollArea);
    style::setWhiteBackground(m_pScrollArea);

    m_pFrameHost = new QFrame;
    m_pFrameHost->setObjectName(QStringLiteral("m_pFrameHost"));
    style::setWhiteBackground(m_pFrameHost);
    m_pFrameColumn = new QVBoxLayout(m_pFrameHost);
    m_pFrameColumn->setObjectName(QStringLiteral("m_pFrameColumn"));
    m_pFrameColumn->setSpacing(0);
    m_pFrameColumn->setContentsMargins(0, style::px(5), style::px(5), 0);
    m_pScrollArea->setWidget(m_pFrameHost);
    PageColumn->addWidget(m_pScrollArea);
}

void DiskPartition::setFixedTexts()
{
    DiskPartitionLbl->setText(tr("Disk Partition"));
    TreeStringLbl->setText(tr("Partition Details"));
    SerialNumberLbl->setText(tr("Serial Number"));
    CapacityLbl->setText(tr("Capacity"));
    InterfaceLbl->setText(tr("Interface Type"));
}

void DiskPartition::FillPartitionHeader()
{
    for (QLabel *value : {SerialNunValueLbl, CapcityValLbl, InterfaceValLbl})
        value->clear();
    const DiskNode *node = findPhysicalDisk(PhysicalDriveBase + g_nCurrentDiskIndex);
    if (!node)
        return;
    CapcityValLbl->setText(node->szSize.text());
    const WmicDiskRecord *record = findWmicDisk(node->nId);
    if (!record)
        return;
    SerialNunValueLbl->setText(record->szSmartSerial.isEmpty() ? record->szModel.text()
                                                               : record->szSmartSerial.text());
    InterfaceValLbl->setText(record->szInterface.isEmpty() ? tr("ATA Disk") : record->szInterface.text());
}

void DiskPartition::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi(this);
        setFixedTexts();
        FillPartitionHeader();
    }
    QWidget::changeEvent(event);
}
