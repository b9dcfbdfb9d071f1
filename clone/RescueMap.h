// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "clone/CloneOutcome.h"

#include <QByteArray>
#include <QString>

/// What a copy lacks, as a map file of GNU ddrescue: with it and the two disks that tool goes on where the
/// clone ended.
namespace rescuemap
{

/// The text for a source of `total` sectors. Lost sectors are told as bad ones, all others as finished; where
/// the destination did not confirm what was written, all as not tried.
QByteArray text(const LostSectors &lost, qint64 total);

/// Writes it to a file, whole or not at all. False where that fails.
bool save(const QString &path, const LostSectors &lost, qint64 total);

} // namespace rescuemap
