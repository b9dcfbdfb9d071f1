// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/BlockMap.h"

#include "scan/BadSectorList.h"
#include "scan/ScanGlobals.h"
#include "state/Scale.h"

#include <QCoreApplication>

namespace blockmap
{

namespace
{

QString text(const char *source)
{
    return QCoreApplication::translate("QGridView", source);
}

/// Fills the cells from `first` up to, not including, `end`; some may lie beside or below the map.
void fill(QVector<Cell> &cells, qint64 first, qint64 end, Cell state)
{
    const qint64 last = qMin<qint64>(end, cells.size());
    for (qint64 cell = qMax<qint64>(first, 0); cell < last; ++cell)
        cells[static_cast<int>(cell)] = state;
}

qint64 roundedUp(qint64 value, qint64 unit)
{
    return (value + unit - 1) / unit * unit;
}

} // namespace

Metrics metrics(int scalePercent)
{
    // At least one pixel, even if a display claims to have almost no dots per inch.
    const auto px = [scalePercent](int length) { return qMax(1, scale::scaled(length, scalePercent)); };
    return {px(20), px(500), px(320), px(25)};
}

qint64 cellCount(const Metrics &sizes, qint64 total)
{
    const qint64 room = static_cast<qint64>(sizes.width) * sizes.height / (sizes.cell * sizes.cell);
    return room < total ? room : total;
}

qint64 sectorsPerCell(const Metrics &sizes, qint64 total)
{
    return total > 0 ? total / cellCount(sizes, total) : 0;
}

QVector<Cell> cells(const Metrics &sizes, qint64 total, qint64 position, const BadSectorList &badSectors)
{
    QVector<Cell> picture(sizes.columns() * sizes.rowsInSight(), Cell::Empty);
    const qint64 perCell = sectorsPerCell(sizes, total);
    if (perCell == 0)
        return picture;

    const qint64 processed = position / perCell;
    fill(picture, 0, processed, Cell::Processed);
    // At the disk's end the last row is filled, even if the disk has no cells for all of it.
    if (position == total)
        fill(picture, processed, roundedUp(processed, sizes.columns()), Cell::Processed);
    else
        fill(picture, processed - 1, processed, Cell::Working);

    qint64 lastBad = 0;
    badSectors.forEachRun([&](const SectorRun &run) {
        lastBad = run.first + run.count - 1;
        fill(picture, badCell(run.first, perCell), badCell(lastBad, perCell) + 1, Cell::Bad);
    });
    // The newest bad cell stays grey until the scan has passed it, or is at its end.
    if (position != 0 && position != total && lastBad >= position)
        fill(picture, badCell(lastBad, perCell), badCell(lastBad, perCell) + 1, Cell::Working);
    return picture;
}

QString spoken(const Metrics &sizes, qint64 total, const BadSectorList &badSectors)
{
    const qint64 count = total > 0 ? cellCount(sizes, total) : 0;
    QVector<Cell> held(static_cast<int>(count), Cell::Empty);
    badSectors.forEachRun([&](const SectorRun &run) {
        const qint64 perCell = sectorsPerCell(sizes, total);
        // The last cell has the rest of the disk, too.
        if (perCell > 0)
            fill(held, qMin(run.first / perCell, count - 1), (run.first + run.count - 1) / perCell + 1,
                 Cell::Bad);
    });
    return text(QT_TRANSLATE_NOOP("QGridView", "%1 cells, %2 with unreadable sectors"))
        .arg(count)
        .arg(held.count(Cell::Bad));
}

QString toolTip(const Metrics &sizes, const QPoint &place, qint64 start, qint64 end, qint64 blockStep)
{
    const qint64 block =
        static_cast<qint64>(place.y() / sizes.cell) * sizes.toolTipColumns + place.x() / sizes.cell;
    if (block < 0 || block > ScanBlockCount)
        return QString();
    const qint64 from = start + block * blockStep;
    if (block == ScanBlockCount)
        return QString::number(from) + text(QT_TRANSLATE_NOOP("QGridView", " to ")) + QString::number(end);
    const qint64 to = block == ScanBlockCount - 1 ? end : from + blockStep;
    return text(QT_TRANSLATE_NOOP("QGridView", "Start Sector of current block: ")) + QString::number(from) +
           QLatin1Char('\n') + text(QT_TRANSLATE_NOOP("QGridView", "End Sector of current block: ")) +
           QString::number(to) + QLatin1Char('\n') +
           text(QT_TRANSLATE_NOOP("QGridView", "Current Block Size : ")) + QString::number(blockStep) +
           text(QT_TRANSLATE_NOOP("QGridView", " MB"));
}

} // namespace blockmap
