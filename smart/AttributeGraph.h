// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>

#include <optional>
#include <vector>

/// What the graph of one attribute shows, apart from its looks.

enum class GraphKind { Ata, Nvme };

struct GraphPoint {
    double x;
    double y;
};

struct GraphSeries {
    std::vector<GraphPoint> points;
    bool dashed = false; ///< a thin grey dashed line
    bool pointsVisible = false;
};

struct GraphModel {
    bool singleDay = false;          ///< a cross that marks one point, in place of a line
    std::vector<GraphSeries> series; ///< three of a single day, else one
    double xMin = 0;                 ///< of the hidden X axis
    double xMax = 0;
    int xTicks = 0;
    double yMin = 0;
    double yMax = 0;
    int yTicks = 0; ///< 0: the axis keeps its default
    /// The numbers beside the Y axis, evenly apart, where the chart cannot tell the values apart because they
    /// are large and close to each other. Points and axis then count from one of them. Else empty.
    std::vector<QString> yLabels;
    std::vector<QString> labels; ///< of the days, oldest first
    double labelEnd = 0;         ///< where the one label of a single day ends on the hidden axis
};

/// "15-11-2026" gives "15-Nov", in every language. A month that does not exist adds nothing.
QString dayLabel(const QString &date);

/// What a graph of these dates and values shows, for those who hear it. Translated; empty without a date.
QString graphText(const std::vector<QString> &dates, const std::vector<qint64> &values);

/// The graph of the attribute `key`, from the stored `dates` ("dd-MM-yyyy", oldest first) and its values on
/// them; a value that is missing counts as 0. A single day is labelled with `today`. Nothing without a date.
std::optional<GraphModel> graphModel(GraphKind kind, const QString &key, const std::vector<QString> &dates,
                                     const std::vector<qint64> &values, const QDate &today);
