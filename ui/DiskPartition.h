#pragma once

#include "ui_DiskPartition.h"

#include <QWidget>

class QScrollArea;
class QVBoxLayout;

/// The Disk Partition screen: serial number and capacity of the selected disk above, its volumes below.
class DiskPartition : public QWidget, public Ui::m_pDiskPartitionWgt
{
    Q_OBJECT

public:
    explicit DiskPartition(QWidget *parent = nullptr);
    ~DiskPartition() override;

    /// Shows serial number, interface and capacity of the selected disk; empty where there is no record.
    void FillPartitionHeader();

    QScrollArea *m_pScrollArea;
    QFrame *m_pFrameHost;
    QVBoxLayout *m_pFrameColumn; ///< of m_pFrameHost

protected:
    void changeEvent(QEvent *event) override;

private:
    void makeScrollArea();
    void setFixedTexts();
};
