// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/DiskPartition.h"

#include "state/Globals.h"
#include "ui/screens/PageLook.h"
#include "ui/widgets/Style.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

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

const QString PercentLabel = QStringLiteral("QLabel {color : #1F82F9;}");
const QString BlankLabel = QStringLiteral("QLabel {color : #64778b;}");

enum LookIndex : std::size_t {
    PartitionTitle,
    StatusTitle,
    VolumeName,
    StatusValue,
    SpaceTitle,
    Blank,
    SpaceValue,
    Percentage,
    LookCount
};

/// A label of a volume's frame; the first four stand left of the separator.
struct LabelLook {
    const char *name;
    DiskPartition::LabelArray DiskPartition::*array;
    bool semiBold;
    const QString *sheet;
    bool centred;
    int row;
    int column;
    int stretch; ///< share of the column
};

const std::array<LabelLook, LookCount> looks = {{
    {"m_apPartitionTitle", &DiskPartition::m_apPartitionTitle, true, &style::GreyLabel, false, 0, 0, 208},
    {"m_apStatusTitle", &DiskPartition::m_apStatusTitle, true, &style::GreyLabel, false, 0, 1, 112},
    {"m_apVolumeName", &DiskPartition::m_apVolumeName, false, &style::GreyLabel, false, 1, 0, 208},
    {"m_apStatusValue", &DiskPartition::m_apStatusValue, false, &style::GreyLabel, false, 1, 1, 112},
    {"m_apSpaceTitle", &DiskPartition::m_apSpaceTitle, true, &style::GreyLabel, true, 0, 0, 230},
    {"m_apBlankLabel", &DiskPartition::m_apBlankLabel, true, &BlankLabel, false, 0, 1, 112},
    {"m_apSpaceValue", &DiskPartition::m_apSpaceValue, false, &style::GreyLabel, true, 1, 0, 230},
    {"m_apPercentage", &DiskPartition::m_apPercentage, true, &PercentLabel, true, 1, 1, 112},
}};

/// True if the font is so high that letters would be cut off at the bottom of a label that centres its
/// text. A label that aligns its text at the bottom cuts off only the blank part above the letters.
bool reachesBelow(const QLabel *label)
{
    const QFontMetrics metrics = label->fontMetrics();
    const int baseline = (label->height() - metrics.height()) / 2 + metrics.ascent();
    return baseline + metrics.tightBoundingRect(QStringLiteral("gjpqy(")).bottom() >= label->height();
}

} // namespace

DiskPartition::DiskPartition(QWidget *parent) : Page(parent)
{
    setupUi(this);
    pagelook::makePage(this);
    pagelook::styleHeadings({DiskPartitionLbl, TreeStringLbl});
    pagelook::styleNames({SerialNumberLbl, CapacityLbl, InterfaceLbl});
    pagelook::styleValues({SerialNunValueLbl, CapcityValLbl, InterfaceValLbl});
    DetailGrid->setColumnMinimumWidth(0, style::px(115));
    makeDonut();
    makeScrollArea();
    setFixedTexts();
}

DiskPartition::~DiskPartition()
{
    // First the view, which points at the other two.
    delete m_pDonutView;
    delete m_pDonutSeries;
    delete m_pDonutLegend;
}

void DiskPartition::makeDonut()
{
    m_pDonutSeries = new DonutSeries;
    m_pDonutSeries->colorBase = QColor(255, 0, 0);
    m_pDonutSeries->strUnit = QStringLiteral("GB");
    m_pDonutSeries->nSliceInset = SliceInset;
    m_pDonutSeries->bColourSlices = true;

    m_pDonutLegend = new DonutLegend;
    m_pDonutLegend->nStyleB = 0;
    m_pDonutLegend->nStyleC = 1;
    m_pDonutLegend->strTitle = QStringLiteral("Duplicate Files Statistics");
    m_pDonutLegend->fontTitle = QFont(QStringLiteral("Times"), 12, QFont::Bold);
    m_pDonutLegend->fontBody = QFont(QStringLiteral("Times"), 10);

    m_pDonutView = new DonutChartView(m_pDonutSeries, m_pDonutLegend, this);
    m_pDonutView->setObjectName(QStringLiteral("m_pDonutView"));
    m_pDonutView->setMinimumSize(style::px(MinimumDonutWidth), style::px(MinimumDonutHeight));
    m_pDonutView->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_pDonutView->lower();
    HeaderRow->insertWidget(0, m_pDonutView);
    HeaderRow->insertSpacing(1, -style::px(Overlap));
    HeaderRow->addStrut(style::px(HeaderHeight));
}

void DiskPartition::makeScrollArea()
{
    m_pScrollArea = new QScrollArea(this);
    m_pScrollArea->setObjectName(QStringLiteral("m_pScrollArea"));
    m_pScrollArea->setFrameShape(QFrame::NoFrame);
    m_pScrollArea->setWidgetResizable(true);
    m_pScrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    style::setWhiteBackground(m_pScrollArea);

    m_pFrameHost = new QFrame;
    m_pFrameHost->setObjectName(QStringLiteral("m_pFrameHost"));
    style::setWhiteBackground(m_pFrameHost);
    auto *column = new QVBoxLayout(m_pFrameHost);
    column->setSpacing(0);
    column->setContentsMargins(0, style::px(5), style::px(5), 0);
    m_pFrameColumn = new QVBoxLayout;
    m_pFrameColumn->setObjectName(QStringLiteral("m_pFrameColumn"));
    m_pFrameColumn->setSpacing(style::px(5));
    column->addLayout(m_pFrameColumn);
    auto *stretch = new QLabel;
    // An item whose height depends on its width makes the scroll area ask the layout for its height.
    // Without it the host would stay at the minimum height that is set by hand.
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    policy.setHeightForWidth(true);
    stretch->setSizePolicy(policy);
    column->addWidget(stretch, 1);
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

void DiskPartition::ShowSizes()
{
    const bool scrolls = m_listSizes.size() >= ScrollBarFrom;
    m_pScrollArea->setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    m_pScrollArea->verticalScrollBar()->setEnabled(scrolls);
    m_pScrollArea->setFocusPolicy(scrolls ? Qt::StrongFocus : Qt::NoFocus);

    m_pDonutSeries->Clear();
    for (const qint64 size : qAsConst(m_listSizes))
        m_pDonutSeries->AddSlice(static_cast<double>(size), QString(), QString());
    g_bNoPartitions = m_listSizes.isEmpty();
    if (g_bNoPartitions)
        m_pDonutSeries->AddSlice(EmptyRing, QString(), QString());
    m_pDonutView->Redraw();
    m_pDonutView->update();
    update();
}

void DiskPartition::addLabel(QFrame *frame, QGridLayout *grid, std::size_t look, int place,
                             const QString &text)
{
    const LabelLook &entry = looks.at(look);
    auto *label = new QLabel(text, frame);
    label->setObjectName(QLatin1String(entry.name));
    label->setTextFormat(Qt::PlainText);
    label->setFont(entry.semiBold ? style::semiBold(10) : style::font(10));
    label->setStyleSheet(*entry.sheet);
    label->setFixedHeight(style::px(16));
    // The columns of all frames stand below each other, whatever is written in them.
    label->setMinimumWidth(1);
    if (entry.centred)
        label->setAlignment(Qt::AlignCenter);
    if (reachesBelow(label))
        label->setAlignment((label->alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignBottom);
    grid->addWidget(label, entry.row, entry.column);
    grid->setColumnStretch(entry.column, entry.stretch);
    if (place >= 0 && static_cast<std::size_t>(place) < MaxFrames)
        (this->*entry.array)[static_cast<std::size_t>(place)] = label;
}

QFrame *DiskPartition::AddFrame(int place, const VolumeTexts &texts)
{
    const std::array<QString, LookCount> contents = {tr("Partition"), tr("Status"),    texts.name,
                                                     texts.status,    tr("Space"),     QString(),
                                                     texts.space,     texts.percentage};
    auto *frame = new QFrame;
    frame->setObjectName(QStringLiteral("m_apFrame"));
    frame->setFixedHeight(style::px(50));
    frame->setFrameShape(QFrame::Box);
    frame->setFrameShadow(QFrame::Raised);
    frame->setStyleSheet(QStringLiteral(".QFrame{ border: 1px solid #e0d0e0;}"));

    auto *row = new QHBoxLayout(frame);
    row->setContentsMargins(style::px(12), 0, style::px(12), 0);
    row->setSpacing(0);
    std::array<QGridLayout *, 2> grids{};
    for (QGridLayout *&grid : grids) {
        grid = new QGridLayout;
        grid->setHorizontalSpacing(0);
        grid->setVerticalSpacing(style::px(3));
        grid->setContentsMargins(0, style::px(6), 0, style::px(6));
    }
    for (std::size_t i = 0; i < LookCount; ++i)
        addLabel(frame, grids[i < SpaceTitle ? 0 : 1], i, place, contents[i]);

    auto *separator = new QLabel(frame);
    separator->setObjectName(QStringLiteral("m_apSeparator"));
    const QString picture = QStringLiteral(":/images/line.png");
    separator->setPixmap(QPixmap(picture));
    separator->setProperty("imagePath", picture);
    separator->setScaledContents(true);
    separator->setFixedSize(style::px(1), style::px(32));
    row->addLayout(grids[0], 320);
    row->addWidget(separator);
    row->addLayout(grids[1], 342);
    if (place >= 0 && static_cast<std::size_t>(place) < MaxFrames) {
        m_apFrame[static_cast<std::size_t>(place)] = frame;
        m_apSeparator[static_cast<std::size_t>(place)] = separator;
    }
    m_pFrameColumn->addWidget(frame);
    frame->show();
    return frame;
}

QLabel *DiskPartition::AddNotice(const QString &text)
{
    auto *notice = new QLabel(text);
    notice->setObjectName(QStringLiteral("m_pNoPartition"));
    notice->setTextFormat(Qt::PlainText);
    notice->setFont(style::font(13));
    notice->setStyleSheet(style::BlackLabel);
    m_pFrameColumn->addWidget(notice);
    notice->show();
    return notice;
}

void DiskPartition::ForgetFrames()
{
    m_apFrame.fill(nullptr);
    m_apSeparator.fill(nullptr);
    for (const LabelLook &look : looks)
        (this->*look.array).fill(nullptr);
}

void DiskPartition::LayOutFrames(int minimumHeight)
{
    m_pFrameHost->setMinimumHeight(minimumHeight);
    m_pFrameHost->layout()->activate();
    m_pScrollArea->verticalScrollBar()->setValue(0);
}

void DiskPartition::retranslate()
{
    retranslateUi(this);
    setFixedTexts();
    FillPartitionHeader();
}
