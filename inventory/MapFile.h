// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/SectorRuns.h"

#include <QByteArray>

/// What is known of the sectors of a disk, as a map file of GNU ddrescue. Sectors are of 512 bytes.
namespace mapfile
{

/// The runs in the order of the disk, with each sector once, and none at or behind `total`.
std::vector<SectorRun> inOrder(std::vector<SectorRun> runs, qint64 total);

/// The text for a disk of `total` sectors of which the first `tried` were read. `bad` may have any order, and
/// may name a sector twice. All other sectors are finished, or not tried if they lie behind `tried`.
QByteArray text(const std::vector<SectorRun> &bad, qint64 tried, qint64 total);

} // namespace mapfile
