// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/DiskPartition.h"

#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/PartitionTexts.h"
#include "ui/widgets/Style.h"

#include "ui_VolumeFrame.h"

#include <QCoreApplication>
#include <QScrollBar>

namespace
{

constexpr int MinimumDonutWidth = 300;
constexpr int MinimumDonutHeight = 143;
constexpr int HeaderHeight = 168; ///< also the side of the ring's square, half the view's width
/// The ring stands in the left half of its view. The details lie over the right one, as both side by side are
/// wider than the page.
constexpr int Overlap = 72;
constexpr int ScrollBarFrom = 4; ///< volumes
constexpr int SliceInset = 20;
constexpr double EmptyRing = 12.0;
constexpr int HeightPerFrame = 300; ///< of the frames' host, in pixels at every scale

} // namespace

DiskPartition::DiskPartition(QWidget *parent) : Page(parent)
{
    m_ui.setupUi(this);
    pagelook::makePage(this);
    pagelook::styleHeadings({m_ui.DiskPartitionLbl, m_ui.TreeStringLbl});
    pagelook::styleNames({m_ui.SerialNumberLbl, m_ui.CapacityLbl, m_ui.InterfaceLbl});
    pagelook::styleValues({m_ui.SerialNunValueLbl, m_ui.CapcityValLbl, m_ui.InterfaceValLbl});
    makeDonut();
    makeScrollArea();
    FillPartitionHeader();
}

void DiskPartition::makeDonut()
{
    m_pDonutSeries->colorBase = QColor(255, 0, 0);
    m_pDonutSeries->strUnit = QStringLiteral("GB");
    m_pDonutSeries->nSliceInset = SliceInset;
    m_pDonutSeries->bColourSlices = true;

    m_pDonutLegend->nStyleB = 0;
    m_pDonutLegend->nStyleC = 1;
    m_pDonutLegend->strTitle = QStringLiteral("Duplicate Files Statistics");
    m_pDonutLegend->fontTitle = QFont(QStringLiteral("Times"), 12, QFont::Bold);
    m_pDonutLegend->fontBody = QFont(QStringLiteral("Times"), 10);

    m_pDonutView =
        pagelook::named(new DonutChartView(m_pDonutSeries.get(), m_pDonutLegend.get(), this), "m_pDonutView");
    m_pDonutView->setMinimumSize(style::px(MinimumDonutWidth), style::px(MinimumDonutHeight));
    m_pDonutView->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_pDonutView->lower();
    m_ui.HeaderRow->insertWidget(0, m_pDonutView);
    m_ui.HeaderRow->insertSpacing(1, -style::px(Overlap));
    m_ui.HeaderRow->addStrut(style::px(HeaderHeight));
}

void DiskPartition::makeScrollArea()
{
    style::setWhiteBackground(m_ui.m_pScrollArea);
    style::setWhiteBackground(m_ui.m_pFrameHost);
    auto *stretch = new QLabel;
    // An item whose height depends on its width makes the scroll area ask the layout for its height.
    // Without it the host would stay at the minimum height that is set by hand.
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    policy.setHeightForWidth(true);
    stretch->setSizePolicy(policy);
    m_ui.HostColumn->addWidget(stretch, 1);
}

void DiskPartition::FillPartitionHeader()
{
    m_pDonutView->setAccessibleName(m_ui.DiskPartitionLbl->text());
    for (QLabel *value : {m_ui.SerialNunValueLbl, m_ui.CapcityValLbl, m_ui.InterfaceValLbl})
        value->clear();
    const DiskNode *node = findPhysicalDisk(PhysicalDriveBase + g_nCurrentDiskIndex);
    if (!node)
        return;
    m_ui.CapcityValLbl->setText(node->szSize.text());
    const WmicDiskRecord *record = findWmicDisk(node->nId);
    if (!record)
        return;
    m_ui.SerialNunValueLbl->setText(record->szSmartSerial.isEmpty() ? record->szModel.text()
                                                                    : record->szSmartSerial.text());
    m_ui.InterfaceValLbl->setText(record->szInterface.isEmpty() ? tr("ATA Disk")
                                                                : record->szInterface.text());
}

void DiskPartition::ShowSizes(const QList<qint64> &sizes)
{
    m_listSizes = sizes;
    m_pDonutView->setAccessibleDescription(partitiontexts::ringText(sizes));
    const bool scrolls = m_listSizes.size() >= ScrollBarFrom;
    m_ui.m_pScrollArea->setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    m_ui.m_pScrollArea->verticalScrollBar()->setEnabled(scrolls);
    // Without a scroll bar the frames end where the other pages' contents end.
    m_ui.HostColumn->setContentsMargins(0, style::px(5), scrolls ? style::px(5) : 0, 0);
    m_ui.m_pScrollArea->setFocusPolicy(scrolls ? Qt::StrongFocus : Qt::NoFocus);

    m_pDonutSeries->Clear();
    for (const qint64 size : qAsConst(m_listSizes))
        m_pDonutSeries->AddSlice(static_cast<double>(size), QString(), QString());
    g_bNoPartitions = m_listSizes.isEmpty();
    if (g_bNoPartitions)
        m_pDonutSeries->AddSlice(EmptyRing, QString(), QString());
    m_pDonutView->Redraw();
    RepaintRing();
    update();
}

void DiskPartition::addFrame(const LogicalDiskRecord &volume, const QString &mark, const QString &health)
{
    auto *frame = new QFrame;
    Ui::VolumeFrame form;
    form.setupUi(frame);
    style::scaleForm(frame);
    frame->setFixedHeight(style::px(50));
    style::showTextsAsData(frame);
    pagelook::styleNames({form.m_apPartitionTitle, form.m_apStatusTitle, form.m_apSpaceTitle});
    pagelook::styleValues({form.m_apVolumeName, form.m_apStatusValue, form.m_apSpaceValue});
    pagelook::styleLabels({form.m_apBlankLabel}, style::semiBold(10), style::GreyLabel);
    pagelook::styleLabels({form.m_apPercentage}, style::semiBold(10), style::label(style::colour::Accent));
    pagelook::makeCopyable({form.m_apPercentage});
    form.m_apVolumeName->setText(partitiontexts::volumeName(volume, mark));
    form.m_apStatusValue->setText(health);
    form.m_apSpaceValue->setText(partitiontexts::spaceText(volume, g_App.m_bKorean));
    form.m_apPercentage->setText(partitiontexts::percentText(volume));
    const QString picture = QStringLiteral(":/images/line.png");
    form.m_apSeparator->setPixmap(QPixmap(picture));
    form.m_apSeparator->setProperty("imagePath", picture);
    m_ui.m_pFrameColumn->addWidget(frame);
    frame->show();
    m_listFrames.append(frame);
}

void DiskPartition::addFrames(const QString &letter, const QString &mark)
{
    // Begins anew with each letter, so the height goes by the frames of the last one.
    m_nFrameCount = 0;
    const QVector<int> disks = partitiontexts::disksOfVolume(letter, g_App.m_diskList);
    for (const LogicalDiskRecord &volume : g_logicalDisks) {
        if (volume.szCaption.text() != letter)
            continue;
        addFrame(volume, mark,
                 partitiontexts::healthWord(disks.isEmpty() ? QVector<int>{volume.nDiskIndex} : disks,
                                            g_wmicDisks));
        ++m_nFrameCount;
    }
}

void DiskPartition::dropFrames()
{
    qDeleteAll(m_listFrames);
    qDeleteAll(m_listNotices);
    m_listFrames.clear();
    m_listNotices.clear();
}

void DiskPartition::ClearVolumes()
{
    dropFrames();
    FillPartitionHeader();
    ShowSizes({});
}

void DiskPartition::ShowVolumes(const QString &mark)
{
    dropFrames();
    FillPartitionHeader();
    const DiskNode *node = findPhysicalDisk(PhysicalDriveBase + g_nCurrentDiskIndex);
    const QStringList letters =
        partitiontexts::driveLetters(node && node->pDetails ? node->pDetails->szDrives : QString());
    ShowSizes(partitiontexts::volumeSizes(letters, g_logicalDisks));
    for (const QString &letter : letters)
        addFrames(letter, mark);
    if (g_bNoPartitions) {
        auto *notice = pagelook::named(
            new QLabel(QCoreApplication::translate("MainWindow", "No Partition Found")), "m_pNoPartition");
        notice->setTextFormat(Qt::PlainText);
        pagelook::styleHeadings({notice});
        m_ui.m_pFrameColumn->addWidget(notice);
        notice->show();
        m_listNotices.append(notice);
    }
    m_ui.m_pFrameHost->setMinimumHeight(m_nFrameCount * HeightPerFrame);
    m_ui.m_pFrameHost->layout()->activate();
    m_ui.m_pScrollArea->verticalScrollBar()->setValue(0);
}

void DiskPartition::retranslate()
{
    m_ui.retranslateUi(this);
    FillPartitionHeader();
}
