// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/screens/Page.h"
#include "ui/widgets/DonutChartView.h"

#include "ui_DiskPartition.h"

#include <QList>

#include <memory>

struct LogicalDiskRecord;

/// The Disk Partition screen: the ring of the selected disk's volumes, its serial number and capacity above;
/// below a frame for each volume. Main thread only.
class DiskPartition : public Page
{
    Q_OBJECT

public:
    explicit DiskPartition(QWidget *parent = nullptr);

    /// Shows serial number, interface and capacity of the selected disk; empty where there is no record.
    void FillPartitionHeader();
    /// Shows the volumes of the selected disk: the ring and a frame for each, with `mark` behind the name of
    /// an encrypted one. Where there is none, the ring is grey and a line says so.
    void ShowVolumes(const QString &mark);
    /// Draws the ring of such sizes, in bytes; grey where there are none. The frames scroll from four on.
    void ShowSizes(const QList<qint64> &sizes);
    /// Shows the head of the selected disk, and no volumes.
    void ClearVolumes();
    /// Paints the ring again, which does not paint itself in a minimised window.
    void RepaintRing() { m_pDonutView->update(); }

protected:
    void retranslate() override;

private:
    void makeDonut();
    void makeScrollArea();
    void dropFrames();
    void addFrames(const QString &letter, const QString &mark);
    void addFrame(const LogicalDiskRecord &volume, const QString &mark, const QString &health);

    Ui::m_pDiskPartitionWgt m_ui;
    const std::unique_ptr<DonutSeries> m_pDonutSeries = std::make_unique<DonutSeries>();
    const std::unique_ptr<DonutLegend> m_pDonutLegend = std::make_unique<DonutLegend>();
    DonutChartView *m_pDonutView;
    QList<qint64> m_listSizes;     ///< bytes of the volumes that show
    QList<QFrame *> m_listFrames;  ///< all that show
    QList<QLabel *> m_listNotices; ///< the line that stands there instead of frames
    int m_nFrameCount = 0;         ///< frames of the letter shown last
};
