// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantList>
#include <QWidget>

/// The block map of a surface scan: 25 by 16 cells, done in blue, in work in grey, bad in red. Draws what its
/// page tells it and the list of bad sectors (scan/ScanGlobals.h). Hovering tells the sectors of a cell.
/// Main thread only.
class QGridView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(qlonglong totalSectors READ totalSectors)
    Q_PROPERTY(qlonglong position READ position)
    Q_PROPERTY(QVariantList badSectors READ badSectors)

public:
    explicit QGridView(QWidget *parent = nullptr);

    /// Takes the progress back to the disk's begin.
    void Reset();
    /// Sets both lengths of the size hint, unless a stop was asked for.
    void SetHint(int size);
    /// The sectors that the tool tips tell.
    void SetRange(qlonglong start, qlonglong end);

    qlonglong totalSectors() const;
    qlonglong position() const { return m_i64Position; }
    /// The first ones that were found.
    QVariantList badSectors() const;
    static constexpr int MostBadSectors = 10000; ///< in badSectors(); a disk that has gone has millions

    QSize sizeHint() const override;

    qlonglong m_i64Position = 0; ///< sectors done; update() shows a new value

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void drawCells(QPainter *painter) const;
    void drawGrid(QPainter *painter) const;

    int m_nSizeHint;
    qlonglong m_i64Start = 0;
    qlonglong m_i64End = 0;
};
