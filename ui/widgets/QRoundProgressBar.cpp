// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/QRoundProgressBar.h"

#include "clone/GaugeGeometry.h"
#include "state/Scale.h"
#include "ui/widgets/Style.h"

#include <QConicalGradient>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <utility>

namespace
{

const QColor BaseColour(235, 237, 238);
const QColor BarColour(style::colour::GaugeSign);
const QColor TextColour(style::colour::Grey);
constexpr int BasePenWidth = 17;
constexpr int CapPenWidth = 8;
constexpr double InnerShare = 0.84; ///< of the side
constexpr int TextPoints = 14;

QPen penOf(const QBrush &brush, double width, Qt::PenCapStyle cap)
{
    return QPen(brush, width, Qt::SolidLine, cap, Qt::BevelJoin);
}

/// A side of so many pixels, in design pixels.
int designSide(int pixels)
{
    const int percent = scale::percent();
    return percent > 0 ? qRound(pixels * 100.0 / percent) : pixels;
}

} // namespace

void QRoundProgressBar::keepInBounds()
{
    if (m_dMaximum < m_dMinimum)
        std::swap(m_dMinimum, m_dMaximum);
    m_dValue = std::clamp(m_dValue, m_dMinimum, m_dMaximum);
    repaintBar();
}

void QRoundProgressBar::repaintBar()
{
    m_bRebuildBrush = m_bRebuildBrush || !m_vecGradientStops.isEmpty();
    update();
}

void QRoundProgressBar::SetMinimum(double minimum)
{
    m_dMinimum = minimum;
    keepInBounds();
}

void QRoundProgressBar::SetMaximum(double maximum)
{
    m_dMaximum = maximum;
    keepInBounds();
}

void QRoundProgressBar::SetValue(int value)
{
    if (qFuzzyIsNull(m_dValue - value))
        return;
    m_dValue = std::clamp(static_cast<double>(value), m_dMinimum, m_dMaximum);
    update();
}

void QRoundProgressBar::SetNullPosition(double degrees)
{
    if (qFuzzyIsNull(m_dNullPosition - degrees))
        return;
    m_dNullPosition = degrees;
    repaintBar();
}

void QRoundProgressBar::SetBarStyle(int style)
{
    m_nBarStyle = style;
    update();
}

void QRoundProgressBar::SetDecimals(int decimals)
{
    if (decimals < 0 || decimals == m_nDecimals)
        return;
    m_nDecimals = decimals;
    OnValueFormatChanged();
}

void QRoundProgressBar::SetGradientStops(const QGradientStops &stops)
{
    m_vecGradientStops = stops;
    m_bRebuildBrush = !stops.isEmpty();
    update();
}

void QRoundProgressBar::OnValueFormatChanged()
{
    m_nUpdateFlags = gauge::placeholders(m_strFormat);
    update();
}

QString QRoundProgressBar::ValueToText(double value)
{
    return gauge::text(m_strFormat, m_nUpdateFlags, {m_dMinimum, m_dMaximum, value, m_nDecimals}) +
           QLatin1Char('\n') + tr("Complete");
}

void QRoundProgressBar::rebuildBrush()
{
    m_bRebuildBrush = false;
    QConicalGradient gradient(0.5, 0.5, m_dNullPosition);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    for (const QGradientStop &stop : qAsConst(m_vecGradientStops))
        gradient.setColorAt(1.0 - stop.first, stop.second);
    QPalette colours = palette();
    colours.setBrush(QPalette::Highlight, QBrush(gradient));
    setPalette(colours);
}

void QRoundProgressBar::paintEvent(QPaintEvent *)
{
    const int pixels = std::min(width(), height());
    const int side = designSide(pixels);
    if (side <= 0)
        return;
    const double scale = static_cast<double>(pixels) / side;
    const QRectF base = gauge::baseRect(side);
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        if (m_bRebuildBrush)
            rebuildBrush();
        PaintBackground(painter, QRectF(0, 0, side, side));
        PaintBase(painter, base);
        PaintValue(painter, base, m_dValue, gauge::sweep(m_dMinimum, m_dMaximum, m_dValue));
        QRectF inner;
        double innerRadius = 0;
        InnerRect(base, side, inner, innerRadius);
        PaintInnerBackground(painter, inner);
        PaintText(painter, inner, innerRadius, m_dValue);
    }
    QPainter painter(this);
    painter.fillRect(QRectF(base.topLeft() * scale, base.size() * scale), palette().window());
    painter.drawImage(0, 0, image);
}

void QRoundProgressBar::PaintBackground(QPainter &painter, const QRectF &rect)
{
    painter.fillRect(rect, palette().window());
}

void QRoundProgressBar::PaintBase(QPainter &painter, const QRectF &rect)
{
    painter.setPen(penOf(BaseColour, BasePenWidth, Qt::RoundCap));
    painter.setBrush(BaseColour);
    const gauge::Arc arc = gauge::baseArc(rect);
    painter.drawArc(arc.rect, arc.start, arc.span);
}

void QRoundProgressBar::PaintValue(QPainter &painter, const QRectF &rect, double value, double delta)
{
    if (qFuzzyIsNull(value - m_dMinimum))
        return;
    if (m_nBarStyle != LineStyle) {
        paintRing(painter, rect, value, delta);
        return;
    }
    const double inset = m_dOutlinePenWidth / 2;
    painter.setPen(penOf(palette().highlight(), m_dDataPenWidth, Qt::SquareCap));
    painter.drawArc(rect.adjusted(inset, inset, -inset, -inset), static_cast<int>(m_dNullPosition * 16),
                    static_cast<int>(-delta * 16));
}

void QRoundProgressBar::paintRing(QPainter &painter, const QRectF &rect, double value, double delta)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.moveTo(rect.center());
    path.arcTo(rect, m_dNullPosition, -delta);
    path.lineTo(rect.center());
    painter.setBrush(BarColour);
    painter.setPen(penOf(BarColour, static_cast<int>(m_dDataPenWidth), Qt::SquareCap));
    painter.drawPath(path);

    painter.setPen(QPen(BarColour, CapPenWidth));
    painter.drawArc(gauge::StartCap.rect, gauge::StartCap.start, gauge::StartCap.span);
    if (gauge::percent(m_dMinimum, m_dMaximum, value) > gauge::EndCapAbove)
        painter.drawEllipse(gauge::EndCap);
}

void QRoundProgressBar::InnerRect(const QRectF &, double outerRadius, QRectF &innerRect, double &innerRadius)
{
    innerRadius = m_nBarStyle == LineStyle ? outerRadius - m_dOutlinePenWidth : outerRadius * InnerShare;
    innerRect = gauge::innerRect(outerRadius, innerRadius);
}

void QRoundProgressBar::PaintInnerBackground(QPainter &painter, const QRectF &rect)
{
    if (m_nBarStyle != RingStyle)
        return;
    painter.setPen(penOf(Qt::white, 0, Qt::SquareCap));
    painter.setBrush(Qt::white);
    painter.drawEllipse(rect);
    painter.setPen(penOf(Qt::white, 0, Qt::RoundCap));
}

void QRoundProgressBar::PaintText(QPainter &painter, const QRectF &rect, double, double value)
{
    if (m_strFormat.isEmpty())
        return;
    // A point size follows the display by itself.
    const QRectF place = painter.transform().mapRect(rect);
    painter.save();
    painter.resetTransform();
    painter.setFont(style::font(TextPoints));
    painter.setPen(TextColour);
    painter.drawText(place, Qt::AlignCenter, ValueToText(value));
    painter.restore();
}
