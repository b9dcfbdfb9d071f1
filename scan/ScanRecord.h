// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/SectorRuns.h"
#include "state/JobNotices.h"

#include <QDateTime>
#include <QString>

class BadSectorList;

/// What is known of the latest scan beside its bad sectors, as plain values: the lists may be read anew
/// before somebody saves it. Sectors are of 512 bytes.
struct ScanRecord {
    enum class End {
        None, ///< it runs, or there was none
        Complete,
        Stopped,
        Failed, ///< the disk did not open
        DiskGone
    };

    QString disk;   ///< as the list of the disks shows it
    QString serial; ///< empty where it is not known
    QDateTime begun;
    qint64 total = 0;   ///< sectors of the disk
    qint64 scanned = 0; ///< so many from sector 0 on
    End end = End::None;

    /// Whether the scan has ended, and has found out anything.
    bool canBeSaved(const BadSectorList &bad) const;
};

namespace scanrecord
{

/// How a scan ended, from what its thread told.
ScanRecord::End endOf(bool stopped, const QString &verdict, bool gone);

/// What is told of that end; a scan that has found `badSectors` is one with faults.
JobEnd jobEnd(ScanRecord::End end, qint64 badSectors);

/// The ending of a map file of GNU ddrescue, and that of a list for people.
inline const QString MapEnding = QStringLiteral(".map");
inline const QString ListEnding = QStringLiteral(".txt");

/// The name offered for the file, without an ending.
QString suggestedName(const ScanRecord &record);

/// How many sectors the saved list tells as bad: each once, and none behind the end of the disk.
qint64 badSectors(const ScanRecord &record, const BadSectorList &bad);

/// The bad sectors for people: the disk, the scan, and a line for each run. Translated; UTF-8 with the line
/// ends of the system.
QByteArray listText(const ScanRecord &record, const BadSectorList &bad);

/// What is known of each sector of the disk, as a map file. What was not scanned counts as not tried.
QByteArray mapText(const ScanRecord &record, const BadSectorList &bad);

/// Writes the one or the other to a file, by its ending, whole or not at all. False where that fails.
bool save(const QString &path, const ScanRecord &record, const BadSectorList &bad);

} // namespace scanrecord
