// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "smart/AttributeGraph.h"
#include "smart/AttributeHistory.h"
#include "smart/AttributeRows.h"
#include "smart/DiskFigures.h"
#include "smart/SmartGlobals.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "ui/screens/SmartStatus.h"
#include "ui/widgets/SmartChartView.h"

#include <QDateTime>
#include <QTreeWidget>

namespace
{

constexpr int NameColumn = 1;
constexpr int AtaKeyColumn = 7;
constexpr int NvmeKeyColumn = 3;

std::vector<HistoryValue> historyValues(const std::vector<AttributeRow> &rows)
{
    std::vector<HistoryValue> values;
    for (const AttributeRow &row : rows)
        values.push_back({row.key, row.historyValue});
    return values;
}

} // namespace

void MainWindow::FillSmartTable()
{
    const std::vector<AttributeRow> rows = SmartStatus::CurrentRows();
    recordHistory(g_strSerialNumber, QDateTime::currentDateTime(), historyValues(rows));
    m_pSmartStatusPage->ShowRows(rows);
    if (QTreeWidgetItem *first = m_pSmartStatusPage->m_pAttributeTree->topLevelItem(0))
        GraphWithAttributes(first, 0);
}

void MainWindow::GraphWithAttributes(QTreeWidgetItem *item, int /*column*/)
{
    // During a refresh only its thread may use the identity texts; at its end the table is filled anew.
    if (!item || g_bListsLoading)
        return;
    const HistoryPaths paths = historyPaths(serialOfGraph());
    const GraphKind kind = g_App.m_bNVMe ? GraphKind::Nvme : GraphKind::Ata;
    const QString key = item->text(g_App.m_bNVMe ? NvmeKeyColumn : AtaKeyColumn);
    bool opened = false;
    const std::vector<QString> dates = readHistoryDates(paths.dates, &opened);
    if (!opened)
        return;
    const auto model =
        graphModel(kind, key, dates, readHistoryValues(paths.values, dates, key), QDate::currentDate());
    if (!model)
        return;
    g_strGraphTitle = tr("Graph : ") + item->text(NameColumn);
    m_pSmartStatusPage->ShowGraphTitle(g_strGraphTitle);
    m_pSmartStatusPage->m_pChartView->ShowGraph(*model);
}
