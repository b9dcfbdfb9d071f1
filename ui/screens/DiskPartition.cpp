// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/DiskPartition.h"

#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/PartitionTexts.h"
#include "ui/widgets/Style.h"

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
constexpr int LineHeight = 21; ///< with the marks above and below the letters of every script
constexpr double EmptyRing = 12.0;
constexpr int HeightPerFrame = 300; ///< of the frames' host, in pixels at every scale

const QString PercentLabel = QStringLiteral("QLabel {color : #1F82F9;}");
const QString BlankLabel = QStringLiteral("QLabel {color : #64778b;}");

/// A label of a volume's frame.
struct LabelLook {
    const char *name;
    bool semiBold;
    const QString *sheet;
    bool centred;
    int row;
    int column;
    int stretch; ///< share of the column
};

constexpr int LeftLooks = 4; ///< so many stand left of the separator

const LabelLook looks[] = {
    {"m_apPartitionTitle", true, &style::GreyLabel, false, 0, 0, 208},
    {"m_apStatusTitle", true, &style::GreyLabel, false, 0, 1, 112},
    {"m_apVolumeName", false, &style::GreyLabel, false, 1, 0, 208},
    {"m_apStatusValue", false, &style::GreyLabel, false, 1, 1, 112},
    {"m_apSpaceTitle", true, &style::GreyLabel, true, 0, 0, 230},
    {"m_apBlankLabel", true, &BlankLabel, false, 0, 1, 112},
    {"m_apSpaceValue", false, &style::GreyLabel, true, 1, 0, 230},
    {"m_apPercentage", true, &PercentLabel, true, 1, 1, 112},
};

void addLabel(QGridLayout *grid, const LabelLook &look, const QString &text, QFrame *frame)
{
    auto *label = pagelook::named(new QLabel(text, frame), look.name);
    label->setTextFormat(Qt::PlainText);
    pagelook::styleLabels({label}, look.semiBold ? style::semiBold(10) : style::font(10), *look.sheet);
    label->setFixedHeight(style::px(LineHeight));
    // The columns of all frames stand below each other, whatever is written in them.
    label->setMinimumWidth(1);
    if (look.centred)
        label->setAlignment(Qt::AlignCenter);
    grid->addWidget(label, look.row, look.column);
    grid->setColumnStretch(look.column, look.stretch);
}

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
    const bool scrolls = m_listSizes.size() >= ScrollBarFrom;
    m_ui.m_pScrollArea->setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    m_ui.m_pScrollArea->verticalScrollBar()->setEnabled(scrolls);
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

QFrame *DiskPartition::addFrame(const QStringList &texts)
{
    auto *frame = pagelook::named(new QFrame, "m_apFrame");
    frame->setFixedHeight(style::px(50));
    frame->setFrameShape(QFrame::Box);
    frame->setFrameShadow(QFrame::Raised);
    frame->setStyleSheet(QStringLiteral(".QFrame{ border: 1px solid #e0d0e0;}"));

    auto *row = new QHBoxLayout(frame);
    row->setContentsMargins(style::px(12), 0, style::px(12), 0);
    row->setSpacing(0);
    QGridLayout *const grids[] = {new QGridLayout, new QGridLayout};
    for (QGridLayout *grid : grids) {
        grid->setHorizontalSpacing(0);
        grid->setVerticalSpacing(0);
        grid->setContentsMargins(0, style::px(3), 0, style::px(3));
    }
    for (int i = 0; i < texts.size(); ++i)
        addLabel(grids[i < LeftLooks ? 0 : 1], looks[i], texts.at(i), frame);

    auto *separator = pagelook::named(new QLabel(frame), "m_apSeparator");
    const QString picture = QStringLiteral(":/images/line.png");
    separator->setPixmap(QPixmap(picture));
    separator->setProperty("imagePath", picture);
    separator->setScaledContents(true);
    separator->setFixedSize(style::px(1), style::px(32));
    row->addLayout(grids[0], 320);
    row->addWidget(separator);
    row->addLayout(grids[1], 342);
    m_ui.m_pFrameColumn->addWidget(frame);
    frame->show();
    return frame;
}

void DiskPartition::addFrames(const QString &letter, const QString &mark)
{
    // Begins anew with each letter, so the height goes by the frames of the last one.
    m_nFrameCount = 0;
    const QVector<int> disks = partitiontexts::disksOfVolume(letter, g_App.m_diskList);
    for (const LogicalDiskRecord &volume : g_logicalDisks) {
        if (volume.szCaption.text() != letter)
            continue;
        const QString health = partitiontexts::healthWord(
            disks.isEmpty() ? QVector<int>{volume.nDiskIndex} : disks, g_wmicDisks);
        m_listFrames.append(
            addFrame({tr("Partition"), tr("Status"), partitiontexts::volumeName(volume, mark), health,
                      tr("Space"), QString(), partitiontexts::spaceText(volume, g_App.m_bKorean),
                      partitiontexts::percentText(volume)}));
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
