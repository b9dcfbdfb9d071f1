// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/screens/Page.h"
#include "ui/widgets/DonutChartView.h"

#include "ui_DiskPartition.h"

#include <QList>

#include <array>

class DonutChartView;
class QGridLayout;
class QScrollArea;
class QVBoxLayout;

/// The texts of the frame of one volume.
struct VolumeTexts {
    QString name;
    QString status;
    QString space;
    QString percentage;
};

/// The Disk Partition screen: the ring of the selected disk's volumes, its serial number and capacity above;
/// below a frame for each volume. Main thread only.
class DiskPartition : public Page, private Ui::m_pDiskPartitionWgt
{
    Q_OBJECT

public:
    explicit DiskPartition(QWidget *parent = nullptr);
    ~DiskPartition() override;

    /// Shows serial number, interface and capacity of the selected disk; empty where there is no record.
    void FillPartitionHeader();

    /// Draws the ring of m_listSizes, grey where there are none. Shows the scroll bar from four entries on.
    void ShowSizes();

    /// Appends a frame to the column and puts its widgets into the arrays at `place`; beyond them the frame
    /// only shows. The caller owns the frame.
    QFrame *AddFrame(int place, const VolumeTexts &texts);
    /// Appends a line of text to the column. The caller owns the label.
    QLabel *AddNotice(const QString &text);
    /// Empties the arrays. Call before the frames are deleted.
    void ForgetFrames();
    /// Gives the frames' host its minimum height, in pixels, and scrolls to its top.
    void LayOutFrames(int minimumHeight);

    static constexpr std::size_t MaxFrames = 40;
    using LabelArray = std::array<QLabel *, MaxFrames>;

    DonutSeries *m_pDonutSeries; ///< owned
    DonutLegend *m_pDonutLegend; ///< owned
    DonutChartView *m_pDonutView;
    QList<qint64> m_listSizes; ///< bytes of the volumes that show

    /// \name The widgets of the frames
    /// Not owned; null where there is none.
    /// @{
    std::array<QFrame *, MaxFrames> m_apFrame{};
    LabelArray m_apPartitionTitle{};
    LabelArray m_apStatusTitle{};
    LabelArray m_apSpaceTitle{};
    LabelArray m_apVolumeName{};
    LabelArray m_apStatusValue{};
    LabelArray m_apSpaceValue{};
    LabelArray m_apBlankLabel{};
    LabelArray m_apPercentage{};
    LabelArray m_apSeparator{};
    /// @}

    QScrollArea *m_pScrollArea;
    QFrame *m_pFrameHost;
    QVBoxLayout *m_pFrameColumn; ///< the frames, above what stretches below them

protected:
    void retranslate() override;

private:
    void makeDonut();
    void makeScrollArea();
    void addLabel(QFrame *frame, QGridLayout *grid, std::size_t look, int place, const QString &text);
    void setFixedTexts();
};
