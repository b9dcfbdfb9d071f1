// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantList>
#include <QWidget>

/// The block map of a surface scan: 25 by 16 cells, blue when read, grey in work, red with bad sectors. It
/// draws the progress that its page sets, and the bad sectors of scan/ScanGlobals.h. A tool tip tells the
/// sectors of a cell. Main thread only.
class QGridView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(qlonglong totalSectors READ totalSectors)
    Q_PROPERTY(qlonglong position READ position)
    Q_PROPERTY(QVariantList badSectors READ badSectors)

public:
    explicit QGridView(QWidget *parent = nullptr);

    /// Sets the progress to 0.
    void Reset();
    /// Sets width and height of the size hint, unless a stop was asked for.
    void SetHint(int size);
    /// The sectors that the tool tips tell.
    void SetRange(qlonglong start, qlonglong end);

    qlonglong totalSectors() const;
    qlonglong position() const { return m_i64Position; }
    /// The first MostBadSectors of them.
    QVariantList badSectors() const;
    static constexpr int MostBadSectors = 10000; ///< a disk that was pulled out has millions

    QSize sizeHint() const override;

    qlonglong m_i64Position = 0; ///< sectors read so far; call update() behind a change

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
