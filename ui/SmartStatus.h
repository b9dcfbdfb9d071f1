#pragma once

#include "ui_SmartStatus.h"

#include <QWidget>

class QTreeWidget;

/// The SMART Status screen: the overall result, one row per attribute of the selected disk, and room for the
/// graph of one of them. The main window fills it.
class SmartStatus : public QWidget, public Ui::m_pSmartWgt
{
    Q_OBJECT

public:
    explicit SmartStatus(QWidget *parent = nullptr);

    /// Sets the tree's header labels, widths and hidden columns by the kind of the last report, and the
    /// header's style by scale and language. The rows stay.
    void FormatSmartTable();

    QTreeWidget *m_pAttributeTree;
    QLabel *m_pHeadingLabel;       ///< in ImageLabel, hidden with it
    QLabel *m_pHeadingResultLabel; ///< in ImageLabel, hidden with it

protected:
    void changeEvent(QEvent *event) override;

private:
    void makeTree();
    void makeHeading();
    void layOutPage();
    void setFixedTexts();
    void showOverallResult();
    void showSelectedDisk();
};
