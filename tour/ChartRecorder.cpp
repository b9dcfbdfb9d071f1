// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/ChartRecorder.h"

#include <QJsonObject>
#include <QLabel>
#include <QWidget>
#include <QtCharts/QAbstractBarSeries>
#include <QtCharts/QBarCategoryAxis>
#include <QtCharts/QBarSet>
#include <QtCharts/QCategoryAxis>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <QtCharts/QDateTimeAxis>
#include <QtCharts/QValueAxis>
#include <QtCharts/QXYSeries>

using namespace QtCharts;

namespace
{

QString sideName(Qt::Alignment side)
{
    if (side & Qt::AlignLeft)
        return QStringLiteral("left");
    if (side & Qt::AlignRight)
        return QStringLiteral("right");
    return side & Qt::AlignTop ? QStringLiteral("top") : QStringLiteral("bottom");
}

/// A category axis also is a value axis, so it is tried first.
QJsonObject axisRecord(const QAbstractAxis *axis)
{
    QJsonObject record{{QStringLiteral("side"), sideName(axis->alignment())},
                       {QStringLiteral("visible"), axis->isVisible()}};
    if (const auto *named = qobject_cast<const QCategoryAxis *>(axis)) {
        // In this version of Qt the function for the labels is not const.
        const QStringList labels = const_cast<QCategoryAxis *>(named)->categoriesLabels();
        record[QStringLiteral("kind")] = QStringLiteral("category");
        record[QStringLiteral("labels")] = QJsonArray::fromStringList(labels);
        record[QStringLiteral("min")] = named->min();
        record[QStringLiteral("max")] = named->max();
    } else if (const auto *value = qobject_cast<const QValueAxis *>(axis)) {
        record[QStringLiteral("kind")] = QStringLiteral("value");
        record[QStringLiteral("min")] = value->min();
        record[QStringLiteral("max")] = value->max();
        record[QStringLiteral("ticks")] = value->tickCount();
    } else if (const auto *date = qobject_cast<const QDateTimeAxis *>(axis)) {
        record[QStringLiteral("kind")] = QStringLiteral("datetime");
        record[QStringLiteral("min")] = static_cast<double>(date->min().toMSecsSinceEpoch());
        record[QStringLiteral("max")] = static_cast<double>(date->max().toMSecsSinceEpoch());
        record[QStringLiteral("ticks")] = date->tickCount();
    } else if (const auto *bars = qobject_cast<const QBarCategoryAxis *>(axis)) {
        record[QStringLiteral("kind")] = QStringLiteral("category");
        record[QStringLiteral("labels")] =
            QJsonArray::fromStringList(const_cast<QBarCategoryAxis *>(bars)->categories());
    } else {
        record[QStringLiteral("kind")] = QLatin1String(axis->metaObject()->className());
    }
    return record;
}

QJsonObject seriesRecord(const QAbstractSeries *series)
{
    QJsonArray points;
    if (const auto *curve = qobject_cast<const QXYSeries *>(series)) {
        const QVector<QPointF> values = curve->pointsVector();
        for (const QPointF &point : values)
            points.append(QJsonArray{point.x(), point.y()});
    } else if (const auto *bars = qobject_cast<const QAbstractBarSeries *>(series)) {
        const QList<QBarSet *> sets = bars->barSets();
        for (const QBarSet *set : sets) {
            for (int i = 0; i < set->count(); ++i)
                points.append(QJsonArray{i, set->at(i)});
        }
    }
    return {{QStringLiteral("points"), points}};
}

/// The title of the chart, else the label beside it.
QString titleOf(const QChart *chart, const QWidget *window)
{
    if (!chart->title().isEmpty())
        return chart->title();
    const auto *label = window->findChild<const QLabel *>(QStringLiteral("GraphLabel"));
    return label && label->isVisible() ? label->text() : QString();
}

QJsonObject chartRecord(const QChart *chart, const QWidget *window)
{
    QJsonArray allSeries;
    const QList<QAbstractSeries *> series = chart->series();
    for (const QAbstractSeries *one : series)
        allSeries.append(seriesRecord(one));
    QJsonArray axes;
    const QList<QAbstractAxis *> all = chart->axes();
    for (const QAbstractAxis *axis : all)
        axes.append(axisRecord(axis));
    return {{QStringLiteral("title"), titleOf(chart, window)},
            {QStringLiteral("series"), allSeries},
            {QStringLiteral("axes"), axes}};
}

} // namespace

namespace chartrecorder
{

QJsonArray charts(const QWidget *window)
{
    QJsonArray records;
    const QList<QChartView *> views = window->findChildren<QChartView *>();
    for (const QChartView *view : views) {
        if (view->isVisible() && view->chart())
            records.append(chartRecord(view->chart(), window));
    }
    return records;
}

} // namespace chartrecorder
