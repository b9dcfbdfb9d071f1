#pragma once

#include "app/state/DiskRecords.h"

#include "ui_ScanDisk.h"

#include <QWidget>

class SelfTestPanel;

/// The Scan Disk screen: the choice among a surface scan and the two drive self-tests.
class ScanDisk : public QWidget, public Ui::m_pScanDiskwgt
{
    Q_OBJECT

public:
    explicit ScanDisk(QWidget *parent = nullptr);

    /// Shows the choice of the test with the surface scan preselected; counters, legend and map are hidden.
    void ShowChooser();
    /// Shows the panel of a self-test, with its progress and its times, and nothing of the others.
    void ShowSelfTest();
    /// Shows the size and the sectors of a disk; nothing and "0" where it is null.
    void FillDisk(const DiskNode *pNode);

    SelfTestPanel *m_pSelfTestPanel = nullptr; ///< in frame_3

protected:
    void changeEvent(QEvent *event) override;

private:
    void hideParts();
    void styleChooser();
    void styleCounters();
    void setFixedTexts();
};
