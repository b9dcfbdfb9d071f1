// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QString>
#include <QVector>

class BadSectorList;

/// The arithmetic of the block map: which cell of it shows what. Sectors are of 512 bytes, lengths are
/// pixels.
namespace blockmap
{

/// \name Colours, as 0xAARRGGBB
/// @{
constexpr quint32 ProcessedColour = 0xFF2A81E5;
constexpr quint32 WorkingColour = 0xFF7E7E7E;
constexpr quint32 BadColour = 0xFFFF0000;
constexpr quint32 GridColour = 0xFFE0E0E0;
constexpr quint32 BackgroundColour = 0xFFFFFFFF;
/// @}

/// The sizes of the map on a display.
struct Metrics {
    int cell = 0; ///< side of a cell
    int width = 0;
    int height = 0;
    int toolTipColumns = 0; ///< scaled like a length, so that above 100 percent it is not columns()

    int columns() const { return width / cell; }
    int rowsInSight() const { return (height + cell - 1) / cell; }
};

/// For a display scale of at least 100 percent.
Metrics metrics(int scalePercent);

/// How many cells a disk of `total` sectors has: 400, or one for each sector of a smaller one.
qint64 cellCount(const Metrics &sizes, qint64 total);

/// How many sectors a cell stands for, rounded down; 0 without a disk.
qint64 sectorsPerCell(const Metrics &sizes, qint64 total);

/// The cell that turns red for a bad sector: the one before the cell that holds it, -1 for the first.
constexpr qint64 badCell(qint64 sector, qint64 perCell)
{
    return sector / perCell - 1;
}

enum class Cell : quint8 { Empty, Processed, Working, Bad };

/// The cells in sight, row by row, when `position` sectors of `total` have been processed. Costs a division
/// or two for each run of bad sectors.
QVector<Cell> cells(const Metrics &sizes, qint64 total, qint64 position, const BadSectorList &badSectors);

/// What the map shows, for those who hear it: how many cells, and how many of them hold bad sectors. Unlike
/// the picture, each sector counts for the cell that it lies in.
QString spoken(const Metrics &sizes, qint64 total, const BadSectorList &badSectors);

/// The tool tip at a place of the map, for the range of sectors that the map stands for and the sectors of a
/// block. Empty where there is none.
QString toolTip(const Metrics &sizes, const QPoint &place, qint64 start, qint64 end, qint64 blockStep);

} // namespace blockmap
