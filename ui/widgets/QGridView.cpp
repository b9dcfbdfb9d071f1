// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/QGridView.h"

#include "scan/BlockMap.h"
#include "scan/ScanGlobals.h"
#include "state/Globals.h"
#include "state/Scale.h"
#include "ui/widgets/Style.h"

#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace
{

QColor colourOf(blockmap::Cell cell)
{
    constexpr QRgb colours[] = {blockmap::BackgroundColour, blockmap::ProcessedColour,
                                blockmap::WorkingColour, blockmap::BadColour};
    return QColor::fromRgba(colours[static_cast<int>(cell)]);
}

/// A bad cell is told by a cross as well, not by its colour alone.
void crossOut(QPainter *painter, const QPoint &corner, int side)
{
    const QRect cross = QRect(corner, QSize(side, side)).adjusted(side / 3, side / 3, -side / 3, -side / 3);
    painter->setPen(QPen(Qt::white, style::px(2)));
    painter->drawLine(cross.topLeft(), cross.bottomRight());
    painter->drawLine(cross.bottomLeft(), cross.topRight());
}

} // namespace

QGridView::QGridView(QWidget *parent) : QWidget(parent, Qt::FramelessWindowHint), m_nSizeHint(style::px(50))
{
    setAttribute(Qt::WA_MouseTracking);
    setAutoFillBackground(true);
    QPalette colours = palette();
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Window, QPalette::Base})
        colours.setColor(role, QColor::fromRgba(blockmap::BackgroundColour));
    setPalette(colours);
}

void QGridView::Reset()
{
    m_i64Position = 0;
    update();
}

void QGridView::SetHint(int size)
{
    if (g_bAbortJob)
        return;
    m_nSizeHint = size;
    updateGeometry();
}

void QGridView::SetRange(qlonglong start, qlonglong end)
{
    m_i64Start = start;
    m_i64End = end;
}

qlonglong QGridView::totalSectors() const
{
    return g_nMapTotalSectors;
}

QVariantList QGridView::badSectors() const
{
    QVariantList sectors;
    g_BadSectors.forEachRun([&sectors](const SectorRun &run) {
        const qint64 room = qMin<qint64>(run.count, MostBadSectors - sectors.size());
        for (qint64 i = 0; i < room; ++i)
            sectors.append(run.first + i);
    });
    return sectors;
}

QSize QGridView::sizeHint() const
{
    return QSize(m_nSizeHint, m_nSizeHint);
}

void QGridView::mouseMoveEvent(QMouseEvent *event)
{
    const QString text =
        blockmap::toolTip(blockmap::metrics(scale::percent()), mapFromGlobal(event->globalPos()), m_i64Start,
                          m_i64End, g_nBlockStep);
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(event->globalPos(), text, this);
}

void QGridView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawCells(&painter);
    drawGrid(&painter);
    style::paintAgain(this);
}

void QGridView::drawCells(QPainter *painter) const
{
    const blockmap::Metrics sizes = blockmap::metrics(scale::percent());
    const QVector<blockmap::Cell> cells =
        blockmap::cells(sizes, g_nMapTotalSectors, m_i64Position, g_BadSectors);
    const int columns = sizes.columns();
    for (int first = 0; first < cells.size();) {
        // Neighbours of one colour in a row are one rectangle.
        int end = first + 1;
        while (end < cells.size() && end % columns != 0 && cells.at(end) == cells.at(first))
            ++end;
        if (cells.at(first) != blockmap::Cell::Empty)
            painter->fillRect(first % columns * sizes.cell, first / columns * sizes.cell,
                              (end - first) * sizes.cell, sizes.cell, colourOf(cells.at(first)));
        if (cells.at(first) == blockmap::Cell::Bad) {
            for (int bad = first; bad < end; ++bad)
                crossOut(painter, QPoint(bad % columns, bad / columns) * sizes.cell, sizes.cell);
        }
        first = end;
    }
}

void QGridView::drawGrid(QPainter *painter) const
{
    const blockmap::Metrics sizes = blockmap::metrics(scale::percent());
    painter->setPen(QPen(QColor::fromRgba(blockmap::GridColour), 1));
    for (int x = 0; x <= sizes.width; x += sizes.cell)
        painter->drawLine(x, 0, x, sizes.height);
    // The widget cuts off the lines below the map.
    for (int y = 0; y <= sizes.width; y += sizes.cell)
        painter->drawLine(0, y, sizes.width, y);
    painter->drawRect(0, 0, sizes.width, sizes.height);
}
