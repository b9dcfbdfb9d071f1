// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/screens/Page.h"

#include "ui_SmartStatus.h"

#include <vector>

class SmartChartView;
enum class OverallResult;
struct AttributeRow;
struct DiskNode;
struct GraphModel;

/// The SMART Status screen: the overall result, one row per attribute of the selected disk, and the graph of
/// one of them.
class SmartStatus : public Page
{
    Q_OBJECT

public:
    explicit SmartStatus(QWidget *parent = nullptr);

    /// Sets the tree's header labels, widths and hidden columns by the kind of the last report, and the
    /// header's style by scale and language. The rows stay.
    void FormatSmartTable();

    /// Puts rows in the place of those that show. Selects and gives the first; null where there is none.
    QTreeWidgetItem *ShowRows(const std::vector<AttributeRow> &rows);
    /// The selected rows, or all, as a spreadsheet takes them: tabs between the cells, a line for each row.
    QString RowTexts(bool selected) const;
    void ClearRows() { m_ui.m_pAttributeTree->clear(); }
    /// Shows a graph in place of the one before.
    /// `text` says what it shows.
    void ShowGraph(const QString &title, const GraphModel &graph, const QString &text);
    /// Shows what stands above rows and graph for the selected disk, whose report was read.
    void ShowReading(OverallResult result);
    /// What ShowReading() showed of the disk's interface.
    QString InterfaceText() const { return m_ui.InterfaceValLbl->text(); }

    /// Shows nothing of any disk.
    void ClearDisk();
    /// Writes the rows anew, in the language that is loaded. Neither history nor graph change.
    void RetranslateSmartTable();

signals:
    void rowClicked(QTreeWidgetItem *item, int column);

protected:
    void retranslate() override;

private:
    void makeTree();
    void addRest();
    /// Gives the disk; null where there is none.
    const DiskNode *showSelectedDisk();

    Ui::m_pSmartWgt m_ui;
    SmartChartView *m_pChartView;
};
