// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/SmartChartView.h"

#include "ui/widgets/Style.h"

#include <QPainter>
#include <QPen>
#include <QtCharts/QBarCategoryAxis>
#include <QtCharts/QCategoryAxis>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

using namespace QtCharts;

SmartChartView *g_pSmartChartView = nullptr;

namespace
{

const QColor LineColour(style::colour::Sign);
const QColor GridColour(0xe9, 0xec, 0xef);
constexpr int RingRadius = 3;
constexpr int LabelGap = 4;
constexpr int DenseSteps = 5;
constexpr int RoomyTicks = 10; ///< with more, Qt Charts has no room to write the labels out

QPen dashedPen()
{
    return QPen(QBrush(Qt::gray, Qt::SolidPattern), 1, Qt::DashLine);
}

QPen solidPen()
{
    return QPen(QBrush(LineColour), style::px(2), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void dressAxis(QAbstractAxis *axis)
{
    axis->setLabelsColor(Qt::black);
    axis->setLabelsFont(style::font(10));
    axis->setLinePenColor(GridColour);
    axis->setGridLinePen(QPen(GridColour, 1));
}

/// For whole numbers. Qt Charts takes "%i" for a number of 32 bits.
QString numberFormat(double low, double high)
{
    return std::max(std::abs(low), std::abs(high)) > std::numeric_limits<qint32>::max()
               ? QStringLiteral("%lli")
               : QStringLiteral("%i");
}

std::unique_ptr<QChart> newChart()
{
    auto chart = std::make_unique<QChart>();
    chart->legend()->hide();
    chart->setBackgroundBrush(Qt::white);
    chart->setBackgroundRoundness(0);
    chart->setMargins(QMargins(style::px(10), 0, style::px(13), style::px(25)));
    return chart;
}

QLineSeries *addSeries(QChart *chart, const GraphSeries &source)
{
    auto *series = new QLineSeries;
    for (const GraphPoint &point : source.points)
        series->append(point.x, point.y);
    chart->addSeries(series);
    series->setPen(source.dashed ? dashedPen() : solidPen());
    series->setPointsVisible(source.pointsVisible);
    return series;
}

QValueAxis *addHiddenAxis(QChart *chart, const GraphModel &model)
{
    auto *axis = new QValueAxis;
    axis->setLabelFormat(numberFormat(model.xMin, model.xMax));
    axis->setRange(model.xMin, model.xMax);
    axis->setTickCount(model.xTicks);
    chart->addAxis(axis, Qt::AlignBottom);
    axis->hide();
    return axis;
}

/// For numbers so large that Qt Charts cannot tell them apart: the labels are texts.
QValueAxis *namedAxis(const GraphModel &model)
{
    auto *axis = new QCategoryAxis;
    axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    axis->setStartValue(model.yMin);
    const double steps = static_cast<double>(model.yLabels.size() - 1);
    double number = 0;
    for (const QString &label : model.yLabels)
        axis->append(label, model.yMin + (model.yMax - model.yMin) * number++ / steps);
    return axis;
}

QValueAxis *addValueAxis(QChart *chart, const GraphModel &model)
{
    QValueAxis *axis = model.yLabels.empty() ? new QValueAxis : namedAxis(model);
    axis->setRange(model.yMin, model.yMax);
    if (model.yLabels.empty())
        axis->setLabelFormat(numberFormat(model.yMin, model.yMax));
    if (model.yLabels.empty() && model.yTicks > 0)
        axis->setTickCount(model.yTicks);
    dressAxis(axis);
    if (axis->tickCount() > RoomyTicks) {
        // Qt Charts would shorten these labels to dots. They stay, transparent, and keep the room for the
        // labels that drawScale() draws.
        axis->setLabelsColor(Qt::transparent);
        axis->setGridLineVisible(false);
        axis->setLineVisible(false);
    }
    chart->addAxis(axis, Qt::AlignLeft);
    return axis;
}

void addDayAxis(QChart *chart, QAbstractAxis *days)
{
    dressAxis(days);
    days->setGridLineVisible(false);
    chart->addAxis(days, Qt::AlignBottom);
}

/// The labels, made distinct by blanks. Days of different years can look alike, and the axis drops a label
/// that it has already.
QStringList distinctLabels(const std::vector<QString> &labels)
{
    QStringList distinct;
    for (QString label : labels) {
        while (distinct.contains(label))
            label += QLatin1Char(' ');
        distinct.append(label);
    }
    return distinct;
}

void addCross(QChart *chart, const GraphModel &model, QValueAxis *values)
{
    QAbstractAxis *across = addHiddenAxis(chart, model);
    auto *day = new QCategoryAxis;
    for (const QString &label : model.labels)
        day->append(label, model.labelEnd);
    addDayAxis(chart, day);
    for (const GraphSeries &each : model.series) {
        QLineSeries *series = addSeries(chart, each);
        series->attachAxis(across);
        series->attachAxis(values);
        if (series == chart->series().constFirst())
            series->attachAxis(day);
    }
}

QLineSeries *addLine(QChart *chart, const GraphModel &model, QValueAxis *values)
{
    QLineSeries *line = addSeries(chart, model.series.front());
    line->attachAxis(values);
    // The line has a hidden axis and fills the whole width. The labels share the width evenly, so they belong
    // to an empty series with an axis of its own.
    auto *labelled = new QLineSeries;
    chart->addSeries(labelled);
    auto *days = new QBarCategoryAxis;
    days->append(distinctLabels(model.labels));
    addDayAxis(chart, days);
    labelled->attachAxis(days);
    addHiddenAxis(chart, model);
    return line;
}

} // namespace

SmartChartView::SmartChartView(QWidget *parent) : QChartView(parent)
{
    setObjectName(QStringLiteral("g_pSmartChartView"));
    setFixedSize(style::px(700), style::px(220));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // no key does anything here
    setBackgroundBrush(Qt::white);
    setRenderHint(QPainter::Antialiasing);
    chart()->setBackgroundVisible(false);
    g_pSmartChartView = this;
}

SmartChartView::~SmartChartView()
{
    if (g_pSmartChartView == this)
        g_pSmartChartView = nullptr;
}

void SmartChartView::ShowGraph(const GraphModel &model)
{
    auto fresh = newChart();
    QValueAxis *values = addValueAxis(fresh.get(), model);
    m_pLine = nullptr;
    if (model.singleDay)
        addCross(fresh.get(), model, values);
    else
        m_pLine = addLine(fresh.get(), model, values);
    m_pDenseAxis = values->tickCount() > RoomyTicks ? values : nullptr;
    replaceChart(std::move(fresh));
}

void SmartChartView::Clear()
{
    m_pLine = nullptr;
    m_pDenseAxis = nullptr;
    replaceChart(newChart());
}

void SmartChartView::replaceChart(std::unique_ptr<QChart> fresh)
{
    const std::unique_ptr<QChart> previous(chart());
    setChart(fresh.release());
}

void SmartChartView::drawForeground(QPainter *painter, const QRectF &rect)
{
    QChartView::drawForeground(painter, rect);
    painter->save();
    if (m_pDenseAxis)
        drawScale(painter, *m_pDenseAxis);
    if (m_pLine)
        drawLine(painter, *m_pLine);
    painter->restore();
}

void SmartChartView::drawScale(QPainter *painter, const QValueAxis &axis) const
{
    const QRectF plot = chart()->mapRectToScene(chart()->plotArea());
    painter->setFont(axis.labelsFont());
    const double lineHeight = painter->fontMetrics().height();
    for (int i = 0; i <= DenseSteps; ++i) {
        const double y = plot.bottom() - plot.height() * i / DenseSteps;
        const double value = axis.min() + (axis.max() - axis.min()) * i / DenseSteps;
        const QRectF place(0, y - lineHeight, plot.left() - style::px(LabelGap), 2 * lineHeight);
        painter->setPen(GridColour);
        painter->drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        painter->setPen(Qt::black);
        painter->drawText(place, Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip,
                          QString::number(static_cast<qint64>(value)));
    }
}

void SmartChartView::drawLine(QPainter *painter, const QLineSeries &line) const
{
    // The chart cuts off half of a line along the plot's edge. So the line is drawn once more, with its
    // points as rings.
    QPolygonF places;
    const QVector<QPointF> points = line.pointsVector();
    for (const QPointF &point : points)
        places.append(chart()->mapToScene(chart()->mapToPosition(point)));
    const double radius = style::px(RingRadius);
    const double reach = 2 * radius;
    painter->setClipRect(chart()->mapRectToScene(chart()->plotArea()).adjusted(-reach, -reach, reach, reach));
    painter->setPen(solidPen());
    painter->setBrush(Qt::NoBrush);
    painter->drawPolyline(places);
    painter->setBrush(Qt::white);
    for (const QPointF &place : qAsConst(places))
        painter->drawEllipse(place, radius, radius);
}
