// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/ScreenRecorder.h"

#include "tour/ChartRecorder.h"
#include "tour/PaintedRecorder.h"
#include "tour/WidgetTexts.h"

#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QMenu>
#include <QTreeView>

namespace
{

QJsonObject placed(const QString &name, const QString &className, const QRect &rect)
{
    return {{QStringLiteral("name"), name},      {QStringLiteral("class"), className},
            {QStringLiteral("x"), rect.x()},     {QStringLiteral("y"), rect.y()},
            {QStringLiteral("w"), rect.width()}, {QStringLiteral("h"), rect.height()}};
}

QJsonObject widgetRecord(const QWidget *widget, const QWidget *window)
{
    const QRect rect(widget->mapTo(window, QPoint(0, 0)), widget->size());
    QJsonObject record =
        placed(widgettexts::name(widget), QLatin1String(widget->metaObject()->className()), rect);
    record[QStringLiteral("text")] = widgettexts::text(widget);
    record[QStringLiteral("styleSheet")] = widget->styleSheet();
    record[QStringLiteral("toolTip")] = widget->toolTip();
    record[QStringLiteral("enabled")] = widget->isEnabled();
    record[QStringLiteral("image")] = widgettexts::image(widget);
    return record;
}

/// A label with a name is recorded even if it is empty; a spacer without a name is not.
bool isTold(const QWidget *widget)
{
    return !widget->objectName().isEmpty() || !widgettexts::text(widget).isEmpty() ||
           widgettexts::hasPicture(widget);
}

QJsonArray widgetRecords(const QWidget *window)
{
    QJsonArray records;
    for (const QWidget *widget : widgettexts::visibleChildren(window)) {
        if (isTold(widget))
            records.append(widgetRecord(widget, window));
    }
    return records;
}

QJsonArray menuRecords(const QMenu *menu)
{
    QJsonArray records;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions) {
        if (!action->isVisible() || action->isSeparator())
            continue;
        QJsonObject record = placed(action->objectName(), QLatin1String(action->metaObject()->className()),
                                    menu->actionGeometry(const_cast<QAction *>(action)));
        record[QStringLiteral("text")] = action->text();
        record[QStringLiteral("styleSheet")] = QString();
        record[QStringLiteral("toolTip")] = action->toolTip();
        record[QStringLiteral("enabled")] = action->isEnabled();
        record[QStringLiteral("image")] = action->property("imagePath").toString();
        records.append(record);
    }
    return records;
}

QJsonArray comboRecords(const QWidget *window)
{
    QJsonArray records;
    const QList<QComboBox *> combos = window->findChildren<QComboBox *>();
    for (const QComboBox *combo : combos) {
        if (!combo->isVisible())
            continue;
        QJsonArray items;
        for (int i = 0; i < combo->count(); ++i) {
            items.append(QJsonObject{{QStringLiteral("text"), combo->itemText(i)},
                                     {QStringLiteral("data"), QJsonValue::fromVariant(combo->itemData(i))}});
        }
        records.append(QJsonObject{{QStringLiteral("name"), combo->objectName()},
                                   {QStringLiteral("current"), combo->currentIndex()},
                                   {QStringLiteral("items"), items}});
    }
    return records;
}

QJsonObject cellRecord(const QTreeView *tree, const QModelIndex &cell)
{
    const QVariant brush = cell.data(Qt::ForegroundRole);
    const QColor colour = brush.canConvert<QBrush>() && brush.value<QBrush>().style() != Qt::NoBrush
                              ? brush.value<QBrush>().color()
                              : tree->palette().color(QPalette::Text);
    return {{QStringLiteral("text"), cell.data(Qt::DisplayRole).toString()},
            {QStringLiteral("color"), colour.name()}};
}

QJsonObject treeRecord(const QTreeView *tree)
{
    const QAbstractItemModel *model = tree->model();
    QJsonArray headers;
    QJsonArray hidden;
    QJsonArray widths;
    for (int column = 0; column < model->columnCount(); ++column) {
        headers.append(model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        widths.append(tree->columnWidth(column));
        if (tree->isColumnHidden(column))
            hidden.append(column);
    }
    QJsonArray rows;
    for (int row = 0; row < model->rowCount(); ++row) {
        QJsonArray cells;
        for (int column = 0; column < model->columnCount(); ++column)
            cells.append(cellRecord(tree, model->index(row, column)));
        rows.append(cells);
    }
    return {{QStringLiteral("name"), tree->objectName()},
            {QStringLiteral("headers"), headers},
            {QStringLiteral("hidden"), hidden},
            {QStringLiteral("widths"), widths},
            {QStringLiteral("rows"), rows}};
}

QJsonArray treeRecords(const QWidget *window)
{
    QJsonArray records;
    const QList<QTreeView *> trees = window->findChildren<QTreeView *>();
    for (const QTreeView *tree : trees) {
        if (tree->isVisible() && tree->model())
            records.append(treeRecord(tree));
    }
    return records;
}

} // namespace

namespace screenrecorder
{

QJsonObject describe(const QWidget *window)
{
    const auto *menu = qobject_cast<const QMenu *>(window);
    QJsonObject record{{QStringLiteral("title"), window->windowTitle()},
                       {QStringLiteral("widgets"), menu ? menuRecords(menu) : widgetRecords(window)},
                       {QStringLiteral("combos"), comboRecords(window)},
                       {QStringLiteral("trees"), treeRecords(window)},
                       {QStringLiteral("charts"), chartrecorder::charts(window)}};
    paintedrecorder::addTo(&record, window);
    return record;
}

} // namespace screenrecorder
