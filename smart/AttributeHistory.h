// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

class QDateTime;

/// One set of attribute values per disk and calendar day, of the last ten days: a list of dates and an INI
/// file with a section per date. Both are only ever replaced as a whole, flushed, so that a crash or a power
/// cut at any point leaves a readable file with the days of before or after. The program and its companion
/// both write them. Nothing here shows an error: where the folder cannot be written, there is no history. One
/// thread of a process.

/// The two files of a disk, as this machine opens them.
struct HistoryPaths {
    QString dates;  ///< one date per line, oldest first
    QString values; ///< QSettings::IniFormat, no extension
};

/// One attribute of a day: AttributeRow::key and AttributeRow::historyValue.
struct HistoryValue {
    QString key;
    QString value;
};

/// "dates-<serial>.txt" and "values-<serial>" in the platform's history folder: no serial number makes the
/// name of another file. Characters that a file name must not have become "_". Files of an earlier version
/// are moved there. Both are empty where there is no folder.
HistoryPaths historyPaths(const QString &serial);

/// "dd-MM-yyyy", as the day stands in both files.
QString historyDate(const QDateTime &moment);

/// Adds the date to the list, unless it is the last line. An older equal line does not count.
void AppendHistoryDate(const QString &datePath, const QString &date);

/// With eleven dates or more the oldest one goes, wherever it stands, and with it its section of values. One
/// date per call.
void PruneHistory(const QString &datePath, const QString &valuePath);

/// Takes the section of the date out of the value file. Whatever line has both brackets counts as a header.
void RemoveHistoryGroup(const QString &date, const QString &valuePath);

/// Enters the rows as the values of the day of `now`: the date, the pruning, the values. A second visit on
/// one day overwrites its values. One process at a time does this; another one waits for it, but not for
/// long. False where there is no history, or where the other process took too long.
bool recordHistory(const QString &serial, const QDateTime &now, const std::vector<HistoryValue> &rows);

/// The lines of the list. The file is opened for writing, too, and so made if it is missing; `opened` (may be
/// null) tells whether that went well.
std::vector<QString> readHistoryDates(const QString &datePath, bool *opened);

/// The values of `key` on the dates, in their order; 0 where it is missing or no whole number.
std::vector<qint64> readHistoryValues(const QString &valuePath, const std::vector<QString> &dates,
                                      const QString &key);
