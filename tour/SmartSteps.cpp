// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Globals.h"
#include "tour/Steps.h"
#include "tour/Walk.h"
#include "tour/Windows.h"

#include <QAbstractItemModel>
#include <QLabel>
#include <QTreeView>
#include <QVector>
#include <QtCharts/QChartView>

#include <algorithm>

namespace
{

const QString TreeName = QStringLiteral("m_pAttributeTree");
constexpr int NameColumn = 1;
/// Of ATA and NVMe. In a table of the other kind the column is empty or has another meaning.
constexpr int KeyColumns[] = {7, 3};

struct Row {
    int number = 0;
    QString name;
    QString key; ///< the name that is not translated
};

/// Rows whose graphs are recorded: of each line the first name that the table has.
const QVector<QStringList> &wanted()
{
    static const QVector<QStringList> names{
        {QStringLiteral("Temperature Celsius"), QStringLiteral("Airflow Temperature"),
         QStringLiteral("Temperature")},
        {QStringLiteral("Reallocated Sector")},
        {QStringLiteral("Total LBAs Written"), QStringLiteral("Data Units Written")}};
    return names;
}

const QWidget *page()
{
    return windows::byClass(QStringLiteral("SmartStatus"));
}

/// The rows that the tree shows; none if no graph shows beside it. GUI thread.
QVector<Row> shownRows()
{
    QVector<Row> rows;
    const QtCharts::QChartView *graph = page() ? page()->findChild<QtCharts::QChartView *>() : nullptr;
    const QTreeView *tree = page() ? page()->findChild<QTreeView *>(TreeName) : nullptr;
    if (!graph || !graph->isVisible() || !tree || !tree->isVisible())
        return rows;
    const auto textAt = [tree](int row, int column) {
        return tree->model()->index(row, column).data().toString();
    };
    const auto keyAt = [&textAt](int row) {
        const QString ata = textAt(row, KeyColumns[0]);
        return ata.isEmpty() ? textAt(row, KeyColumns[1]) : ata;
    };
    for (int row = 0; row < tree->model()->rowCount(); ++row)
        rows.append({row, textAt(row, NameColumn), keyAt(row)});
    return rows;
}

QVector<Row> chosenRows(const QVector<Row> &rows)
{
    QVector<Row> chosen;
    for (const QStringList &names : wanted()) {
        for (const QString &name : names) {
            const auto found = std::find_if(rows.cbegin(), rows.cend(),
                                            [&name](const Row &row) { return row.key.contains(name); });
            if (found == rows.cend())
                continue;
            chosen.append(*found);
            break;
        }
    }
    return chosen;
}

bool showsGraphOf(const QString &name)
{
    const QLabel *title = page() ? page()->findChild<QLabel *>(QStringLiteral("GraphLabel")) : nullptr;
    return title && title->text().endsWith(name);
}

/// The first row's graph shows after a read and is in the picture of the page; these are further ones.
void seeGraphs(Walk &walk)
{
    const QVector<Row> rows = chosenRows(walk.program().ask(shownRows));
    for (const Row &row : rows) {
        walk.clickRow(TreeName, row.number);
        walk.record(QStringLiteral("smart-status"));
        // A drive without a serial number may have no history, so a missing graph is no failure.
        const bool lost =
            walk.program().ask([row]() { return !g_strSerialNumber.isEmpty() && !showsGraphOf(row.name); });
        if (lost)
            throw StepFailed(QStringLiteral("no graph of ") + row.name);
    }
}

/// Presses a button that saves a file. Without SMART the button is disabled and nothing is pressed.
void save(Walk &walk, const QString &button, const QString &pattern)
{
    if (walk.program().ask([]() { return g_bSmartAvailable; })) {
        walk.saveAs(button, pattern.arg(walk.program().ask(windows::selectedDisk)));
        return;
    }
    const bool pressable = walk.program().ask([button]() {
        return windows::button(windows::byClass(QStringLiteral("MainWindow")), {button}) != nullptr;
    });
    if (pressable)
        throw StepFailed(button + QStringLiteral(" can be pressed where there is nothing to save"));
}

Step saveStep(const QString &what, int drive, const QString &button, const QString &pattern)
{
    return {QStringLiteral("%1 of drive %2").arg(what).arg(drive),
            [button, pattern](Walk &walk) { save(walk, button, pattern); }};
}

} // namespace

StepList smartSteps(int drive)
{
    return {{QStringLiteral("graphs of drive %1").arg(drive), seeGraphs},
            saveStep(QStringLiteral("report"), drive, QStringLiteral("ReportSaveButton"),
                     QStringLiteral("report-disk%1.pdf")),
            saveStep(QStringLiteral("screenshot"), drive, QStringLiteral("ScreenshotButton"),
                     QStringLiteral("screenshot-disk%1.jpg"))};
}
