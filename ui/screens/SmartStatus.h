// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/screens/Page.h"

#include "ui_SmartStatus.h"

#include <vector>

class QTreeWidget;
class SmartChartView;
enum class OverallResult;
struct AttributeRow;

/// The SMART Status screen: the overall result, one row per attribute of the selected disk, and the graph of
/// one of them. The main window fills it.
class SmartStatus : public Page, private Ui::m_pSmartWgt
{
    Q_OBJECT

public:
    explicit SmartStatus(QWidget *parent = nullptr);

    /// Sets the tree's header labels, widths and hidden columns by the kind of the last report, and the
    /// header's style by scale and language. The rows stay.
    void FormatSmartTable();

    /// The rows of the report that was read last, of its kind.
    static std::vector<AttributeRow> CurrentRows();
    /// Puts rows in the place of those that show, and selects the first.
    void ShowRows(const std::vector<AttributeRow> &rows);
    /// The overall result, and what stands above the tree and the graph.
    void ShowResult(OverallResult result);
    void ShowInterface(const QString &text) { InterfaceValLbl->setText(text); }
    void ShowSerial(const QString &text) { SerialNunValueLbl->setText(text); }
    void ShowCapacity(const QString &text) { CapcityValLbl->setText(text); }
    void ShowGraphTitle(const QString &text) { GraphLabel->setText(text); }

    /// Shows nothing of any disk.
    void ClearDisk();
    /// Writes the rows anew, in the language that is loaded. Neither history nor graph change.
    void RetranslateSmartTable();

    QTreeWidget *m_pAttributeTree;
    SmartChartView *m_pChartView;
    QLabel *m_pHeadingLabel;       ///< in ImageLabel, hidden with it
    QLabel *m_pHeadingResultLabel; ///< in ImageLabel, hidden with it

protected:
    void retranslate() override;

private:
    void makeTree();
    void makeHeading();
    void layOutPage();
    void setFixedTexts();
    void showOverallResult();
    void showSelectedDisk();
};
