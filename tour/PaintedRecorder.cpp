// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/PaintedRecorder.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QVariant>
#include <QWidget>

namespace
{

/// A numeric list as JSON, whatever list type the property has.
QJsonArray numbers(const QVariant &list)
{
    QJsonArray values;
    const QVariantList items = list.toList();
    for (const QVariant &item : items)
        values.append(item.toDouble());
    return values;
}

QJsonValue donut(const QWidget *view)
{
    return numbers(view->property("sliceValues"));
}

QJsonValue blockMap(const QWidget *view)
{
    return QJsonObject{{QStringLiteral("total"), view->property("totalSectors").toDouble()},
                       {QStringLiteral("position"), view->property("position").toDouble()},
                       {QStringLiteral("badSectors"), numbers(view->property("badSectors"))}};
}

QJsonValue gauge(const QWidget *view)
{
    return view->property("value").toDouble();
}

struct View {
    const char *className;
    const char *property; ///< views without it are not recorded
    const char *key;      ///< in screens.json
    QJsonValue (*read)(const QWidget *);
};

const View views[] = {
    {"DonutChartView", "sliceValues", "donut", donut},
    {"QGridView", "totalSectors", "map", blockMap},
    {"QRoundProgressBar", "value", "gauge", gauge},
};

} // namespace

namespace paintedrecorder
{

void addTo(QJsonObject *record, const QWidget *window)
{
    const QList<QWidget *> all = window->findChildren<QWidget *>();
    for (const QWidget *widget : all) {
        for (const View &view : views) {
            if (widget->isVisible() && widget->inherits(view.className) &&
                widget->property(view.property).isValid())
                (*record)[QLatin1String(view.key)] = view.read(widget);
        }
    }
}

} // namespace paintedrecorder
