// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/SmartStatus.h"

#include "smart/AttributeColumns.h"
#include "smart/DiskFigures.h"
#include "smart/SmartGlobals.h"
#include "smart/Temperature.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Scale.h"
#include "ui/widgets/SmartChartView.h"
#include "ui/widgets/Style.h"

#include <QAction>
#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHeaderView>
#include <QStyledItemDelegate>

namespace
{

/// An empty label that keeps rows apart.
QLabel *newSpacer(QWidget *parent)
{
    auto *spacer = new QLabel(parent);
    spacer->setFixedHeight(style::px(2));
    return spacer;
}

/// Keeps a cell's own colour where its row is selected.
class CellDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->palette.setBrush(QPalette::HighlightedText, option->palette.brush(QPalette::Text));
    }
};

/// Fills all cells of a row; the hidden key is the last one.
void fillItem(QTreeWidgetItem *item, const AttributeRow &row)
{
    int column = 0;
    for (const QString &text : row.cells) {
        item->setText(column, text);
        item->setToolTip(column, style::wholeTip(text));
        item->setTextAlignment(column, Qt::AlignLeft | Qt::AlignVCenter);
        item->setForeground(column,
                            QColor(column == row.redCell ? style::colour::Failed : style::colour::Text));
        if (column == row.redCell)
            item->setFont(column, style::semiBold(10)); // seen without the colour, too
        item->setSizeHint(column, QSize(style::px(12), style::px(20)));
        ++column;
    }
}

} // namespace

SmartStatus::SmartStatus(QWidget *parent) : Page(parent)
{
    m_ui.setupUi(this);
    pagelook::makePage(this);
    pagelook::styleHeadings({m_ui.TreeStringLbl, m_ui.GraphLabel});
    m_ui.SmartResultLabel->setFont(style::font(13));
    pagelook::styleNames({m_ui.SerialNumberLbl, m_ui.InterfaceLbl, m_ui.CapacityLbl});
    pagelook::styleLabels({m_ui.SerialNunValueLbl, m_ui.InterfaceValLbl, m_ui.CapcityValLbl}, style::font(10),
                          style::GreyLabel);
    pagelook::makeCopyable(
        {m_ui.SerialNunValueLbl, m_ui.InterfaceValLbl, m_ui.CapcityValLbl, m_ui.SmartResultLabel});
    pagelook::styleLabels({m_ui.m_pHeadingLabel}, style::semiBold(12), style::UnseenLabel);
    pagelook::styleLabels({m_ui.m_pHeadingResultLabel}, style::semiBold(13, true), style::UnseenLabel);
    makeTree();
    addRest();
    FormatSmartTable();
}

void SmartStatus::makeTree()
{
    m_ui.m_pAttributeTree->setFont(style::font(10));
    m_ui.m_pAttributeTree->setIconSize(QSize(style::px(12), style::px(12)));
    m_ui.m_pAttributeTree->setItemDelegate(new CellDelegate(m_ui.m_pAttributeTree));
    connect(m_ui.m_pAttributeTree, &QTreeWidget::itemClicked, this, &SmartStatus::rowClicked);
    // The keys move along the rows as well.
    connect(m_ui.m_pAttributeTree, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        if (m_ui.m_pAttributeTree->hasFocus() && QGuiApplication::mouseButtons() == Qt::NoButton)
            emit rowClicked(item, 0);
    });
    m_ui.m_pCopyAction->setShortcut(QKeySequence::Copy);
    connect(m_ui.m_pCopyAction, &QAction::triggered, this, [this] {
        if (const QString rows = RowTexts(true); !rows.isEmpty())
            QGuiApplication::clipboard()->setText(rows);
    });

    QPalette palette = m_ui.m_pAttributeTree->palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(style::colour::Pale));
    palette.setColor(QPalette::Highlight, QColor(style::colour::Chosen));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    m_ui.m_pAttributeTree->setPalette(palette);
}

/// The widgets without a name, and the chart, whose size the form does not know.
void SmartStatus::addRest()
{
    m_ui.SmartResultLabel->setFixedHeight(style::px(47) / 2);
    m_ui.AttributeColumn->setSpacing(5);
    m_ui.AttributeColumn->insertWidget(0, newSpacer(m_ui.DitaledFrame));
    m_ui.AttributeColumn->insertWidget(2, newSpacer(m_ui.DitaledFrame));
    m_pChartView = new SmartChartView(m_ui.DitaledFrame);
    m_ui.AttributeColumn->addWidget(m_pChartView);
}

void SmartStatus::FormatSmartTable()
{
    const bool nvme = g_App.m_bNVMe;
    QTreeWidgetItem *header = m_ui.m_pAttributeTree->headerItem();
    int index = 0;
    for (const attributecolumns::Column &column : attributecolumns::columns(nvme)) {
        if (column.header) {
            const QString text = tr(column.header);
            header->setText(index, text);
            header->setToolTip(index, style::wholeTip(text.trimmed()));
        }
        const int width = attributecolumns::width(column, nvme, scale::percent());
        if (width > 0)
            m_ui.m_pAttributeTree->setColumnWidth(index, width);
        m_ui.m_pAttributeTree->setColumnHidden(index, column.hidden);
        ++index;
    }

    QHeaderView *view = m_ui.m_pAttributeTree->header();
    view->setFont(style::font(10));
    view->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    view->setFixedHeight(style::px(28));
    view->setSectionsMovable(false);
    // The unscaled ID column of NVMe disks has room for its blanks and the two letters, but not for an
    // ellipsis.
    view->setTextElideMode(nvme ? Qt::ElideNone : Qt::ElideRight);
    QString sheet = QStringLiteral("QHeaderView::section{color : @text}");
    const int pixels =
        attributecolumns::headerFontPixels(scale::percent(), g_App.m_bItalian || g_App.m_bKorean);
    if (pixels > 0)
        sheet += QStringLiteral("QHeaderView{font-size : %1px}").arg(pixels);
    // The padding is as wide as the margin of the cells below.
    sheet += QStringLiteral("QHeaderView{background : @head}"
                            "QHeaderView::section{background : @head; border : none; "
                            "border-bottom : 1px solid #e0d0e0; padding-left : 3px; padding-right : 0px}");
    view->setStyleSheet(style::sheet(sheet));
}

QTreeWidgetItem *SmartStatus::ShowRows(const std::vector<AttributeRow> &rows)
{
    FormatSmartTable();
    const QSignalBlocker block(
        m_ui.m_pAttributeTree); // the caller knows of the row that becomes the current one
    m_ui.m_pAttributeTree->clear();
    for (const AttributeRow &row : rows)
        fillItem(new QTreeWidgetItem(m_ui.m_pAttributeTree), row);
    m_ui.m_pAttributeTree->scrollToTop();
    m_ui.m_pAttributeTree->setCurrentItem(m_ui.m_pAttributeTree->topLevelItem(0));
    return m_ui.m_pAttributeTree->topLevelItem(0);
}

void SmartStatus::ClearDisk()
{
    m_ui.m_pAttributeTree->clear();
    m_pChartView->Clear();
    m_pChartView->setAccessibleName(QString());
    m_pChartView->setAccessibleDescription(QString());
    for (QLabel *label : {m_ui.GraphLabel, m_ui.SmartResultLabel, m_ui.m_pHeadingResultLabel,
                          m_ui.SerialNunValueLbl, m_ui.InterfaceValLbl, m_ui.CapcityValLbl})
        label->clear();
}

void SmartStatus::ShowGraph(const QString &title, const GraphModel &graph, const QString &text)
{
    m_ui.GraphLabel->setText(title);
    m_pChartView->setAccessibleName(title);
    m_pChartView->setAccessibleDescription(text);
    m_pChartView->ShowGraph(graph);
}

void SmartStatus::RetranslateSmartTable()
{
    // There are no rows while a disk is being read.
    if (m_ui.m_pAttributeTree->topLevelItemCount() > 0)
        ShowRows(currentRows());
}

QString SmartStatus::RowTexts(bool selected) const
{
    QStringList lines;
    for (int i = 0; i < m_ui.m_pAttributeTree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *item = m_ui.m_pAttributeTree->topLevelItem(i);
        if (selected && !item->isSelected())
            continue;
        QStringList cells;
        for (int column = 0; column < attributecolumns::Count; ++column) {
            if (!m_ui.m_pAttributeTree->isColumnHidden(column))
                cells << item->text(column).trimmed();
        }
        lines << cells.join(QLatin1Char('\t'));
    }
    return lines.join(QLatin1Char('\n'));
}

void SmartStatus::ShowReading(OverallResult result)
{
    m_pChartView->setVisible(g_bSmartAvailable);
    pagelook::showResult(m_ui.SmartResultLabel, result);
    m_ui.m_pHeadingLabel->setText(QCoreApplication::translate("MainWindow", "SMART Status"));
    m_ui.GraphLabel->clear();
    const DiskNode *node = showSelectedDisk();
    if (!node)
        return;
    if (const WmicDiskRecord *record = findWmicDisk(node->nId))
        m_ui.SerialNunValueLbl->setText(record->szSmartSerial.text());
    if (node->nKind == FixedDisk && !g_strSerialNumber.trimmed().isEmpty())
        m_ui.SerialNunValueLbl->setText(g_strSerialNumber.trimmed());
}

const DiskNode *SmartStatus::showSelectedDisk()
{
    const DiskNode *node = findPhysicalDisk(PhysicalDriveBase + g_nCurrentDiskIndex);
    if (!node)
        return nullptr;
    m_ui.CapcityValLbl->setText(node->szSize.text());
    const WmicDiskRecord *record = findWmicDisk(node->nId);
    const bool named = record && !record->szInterface.isEmpty();
    m_ui.InterfaceValLbl->setText(named ? record->szInterface.text() : tr("ATA Disk"));
    return node;
}

void SmartStatus::retranslate()
{
    m_ui.retranslateUi(this);
    if (!g_bReportPending) {
        const bool passed = g_bSmartAvailable && g_driveVerdict != DriveVerdict::Failed;
        pagelook::showResult(m_ui.SmartResultLabel,
                             passed ? OverallResult::Passed
                                    : overallResult(false, GetDiskTemperature(), g_driveVerdict));
        m_ui.m_pHeadingResultLabel->setText(passed ? tr("PASSED") : tr("FAIELD"));
        m_ui.GraphLabel->setText(g_bSmartAvailable ? tr("Graph") : QString());
    }
    RetranslateSmartTable();
    showSelectedDisk();
    FormatSmartTable();
}
