// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/AttributeGraph.h"

#include <QtCharts/QChartView>

#include <memory>

namespace QtCharts
{
class QLineSeries;
class QValueAxis;
} // namespace QtCharts

/// The graph of one attribute, 700 by 220 design pixels. Main thread only.
class SmartChartView : public QtCharts::QChartView
{
    Q_OBJECT

public:
    explicit SmartChartView(QWidget *parent = nullptr);
    ~SmartChartView() override;

    /// Shows a new chart of the model; the one before is freed with its series and axes.
    void ShowGraph(const GraphModel &model);
    /// Shows no graph.
    void Clear();

protected:
    void drawForeground(QPainter *painter, const QRectF &rect) override;

private:
    void replaceChart(std::unique_ptr<QtCharts::QChart> fresh);
    void drawScale(QPainter *painter, const QtCharts::QValueAxis &axis) const;
    void drawLine(QPainter *painter, const QtCharts::QLineSeries &line) const;

    const QtCharts::QLineSeries *m_pLine = nullptr;     ///< the graph of several days; its points are rings
    const QtCharts::QValueAxis *m_pDenseAxis = nullptr; ///< has more ticks than there is room for labels
};

/// The view of the SMART Status screen; null before it is made.
extern SmartChartView *g_pSmartChartView;
