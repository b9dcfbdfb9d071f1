// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/DonutChartView.h"

#include "state/Globals.h"
#include "ui/widgets/Style.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace
{

constexpr int Offset = 10; ///< of the ring, from the left edge of its half

const QColor EmptyColour(style::colour::EmptySign);

void fillColours()
{
    g_listSliceColours = {QColor(0x10, 0x97, 0xc6), QColor(0x00, 0x62, 0xc4), QColor(0x0b, 0x8a, 0xa3),
                          QColor(0x2a, 0x81, 0xe5), QColor(0xaa, 0x66, 0xcc), QColor(0x6f, 0x94, 0x00),
                          QColor(0xb8, 0x7d, 0x00), QColor(0xff, 0x44, 0x44), QColor(0x00, 0x99, 0xcc),
                          QColor(0x99, 0x33, 0xcc), QColor(0x66, 0x99, 0x00), QColor(0xd9, 0x6f, 0x00),
                          QColor(0xcc, 0x00, 0x00)};
}

/// A square of `side` in the middle of `size`, its place rounded down.
QRect centred(const QSize &size, int side)
{
    return QRect((size.width() - side) / 2, (size.height() - side) / 2, side, side);
}

QSize halfOf(const QWidget *widget)
{
    return QSize(widget->width() / 2, widget->height());
}

int spanOf(double value, double total, int circle)
{
    // Holds for 0 and for NaN.
    if (!(total < 0 || total > 0))
        return 0;
    const double limit = circle;
    return static_cast<int>(std::clamp(value * limit / total, -limit, limit));
}

} // namespace

DonutSeries::~DonutSeries()
{
    Clear();
}

void DonutSeries::AddSlice(double value, const QString &label, const QString &colourText)
{
    listSlices.append(new DonutSlice{label, value, colourText});
    dTotal = 0;
    for (const DonutSlice *slice : qAsConst(listSlices))
        dTotal += slice->dValue;
}

void DonutSeries::Clear()
{
    qDeleteAll(listSlices);
    listSlices.clear();
    dTotal = 0;
}

int DonutSeries::SpanSixteenths(double value) const
{
    constexpr int Circle = 5760;
    return spanOf(value, dTotal, Circle);
}

int DonutSeries::SpanDegrees(double value) const
{
    constexpr int Circle = 360;
    return spanOf(value, dTotal, Circle);
}

DonutChartView::DonutChartView(DonutSeries *series, DonutLegend *legend, QWidget *parent)
    : QWidget(parent), m_pSeries(series), m_pLegend(legend)
{
}

bool DonutChartView::hasSlices() const
{
    return m_pSeries && !m_pSeries->listSlices.isEmpty();
}

QVariantList DonutChartView::sliceValues() const
{
    QVariantList values;
    if (m_pSeries) {
        for (const DonutSlice *slice : qAsConst(m_pSeries->listSlices))
            values.append(slice->dValue);
    }
    return values;
}

void DonutChartView::Redraw()
{
    m_listRegions.clear();
    m_pImage = std::make_unique<QImage>(size(), QImage::Format_ARGB32);
    m_pImage->fill(Qt::white);
    if (!hasSlices() || halfOf(this).isEmpty())
        return;
    QPainter painter(m_pImage.get());
    painter.save();
    drawRing(&painter);
    painter.restore();
}

void DonutChartView::drawRing(QPainter *target)
{
    const bool right = m_pLegend && m_pLegend->nStyleC == 0;
    QPixmap pixmap(halfOf(this));
    pixmap.fill(Qt::white);
    const int side = std::min(pixmap.width(), pixmap.height());
    const QRect hole = centred(pixmap.size(), side / 2);
    {
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        // A line keeps neighbours apart, whatever their colours.
        const bool several = m_pSeries->listSlices.size() > 1;
        painter.setPen(several ? QPen(Qt::white, style::px(1)) : QPen(Qt::transparent));
        drawSlices(&painter, centred(pixmap.size(), side), hole);
        painter.setBrush(Qt::white);
        painter.drawEllipse(hole);
    }
    target->drawPixmap(right ? width() / 2 + Offset : Offset, 0, pixmap);
}

void DonutChartView::drawSlices(QPainter *painter, const QRect &outer, const QRect &hole)
{
    fillColours();
    QPainterPath holePath;
    holePath.addEllipse(hole);
    const int inset = m_pSeries->nSliceInset;
    int sixteenths = 0;
    int degrees = 0;
    for (int i = 0; i < m_pSeries->listSlices.size(); ++i) {
        const double value = m_pSeries->listSlices.at(i)->dValue;
        if (m_pSeries->bColourSlices)
            painter->setBrush(g_bNoPartitions ? EmptyColour
                                              : g_listSliceColours.at(i % g_listSliceColours.size()));
        const QRect rect = i == m_nExplodedSlice ? outer : outer.adjusted(inset, inset, -inset, -inset);
        const int spanSixteenths = m_pSeries->SpanSixteenths(value);
        const int spanDegrees = m_pSeries->SpanDegrees(value);
        painter->drawPie(rect, sixteenths, spanSixteenths);

        QPainterPath path;
        path.moveTo(width(), height() / 2);
        path.arcTo(rect, degrees, spanDegrees);
        path.closeSubpath();
        m_listRegions.append(path.subtracted(holePath));
        sixteenths += spanSixteenths;
        degrees += spanDegrees;
    }
}

void DonutChartView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    Redraw();
}

void DonutChartView::paintEvent(QPaintEvent *event)
{
    const QSize half = halfOf(this);
    const QRect rect = centred(half, std::min(half.width(), half.height())).translated(Offset, 0);
    QWidget::paintEvent(event);
    if (!hasSlices())
        return;
    {
        QPainter painter(this);
        if (m_pImage)
            painter.drawImage(0, 0, *m_pImage);
        painter.setFont(style::font(8));
        painter.setPen(QColor(style::colour::Grey));
        // A negative index: no disk is selected.
        if (g_nCurrentDiskIndex >= 0)
            painter.drawText(rect, Qt::AlignCenter, tr("Disk ") + QString::number(g_nCurrentDiskIndex));
    }
    style::paintAgain(this);
}
