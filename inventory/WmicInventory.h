// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/DiskRecords.h"

#include <QHash>
#include <QString>
#include <QVector>

#include <functional>

/// What the SMART report of a disk calls it.
struct ProbedIdentity {
    QString model;
    QString serial;
    QString firmware;
};

/// Reads a disk's report. The caller gives it, as this floor knows no reports.
using IdentityProbe = std::function<ProbedIdentity(int diskIndex, const QString &interfaceText)>;

/// Rebuilds the list g_wmicDisks from the system's disk table, asking `probe` for each disk. A
/// blank line makes a record of no disk. A disk whose report names no model or serial gets those that the
/// system knows. If the table cannot be read, the old list stays. Device-load threads only, after the list of
/// the physical disks. The tables come in a temp file of that name, which no other process may use.
void LoadDiskDrives(const IdentityProbe &probe, const QString &tempName = QStringLiteral("DiskInfo.txt"));

/// What the system's disk table tells of a disk besides.
struct DiskMedium {
    qint64 bytes = 0; ///< whole cylinders; 0: not told
    bool isRemovable = false;
};

/// The same of all disks that have a medium, by number; empty where the table cannot be had.
QHash<int, DiskMedium> LoadDiskMedia(const QString &tempName);

/// Rebuilds the list g_logicalDisks from the system's volume table. Where the table cannot be had
/// the old list stays. Device-load threads only.
void LoadLogicalDisks();

/// Number of the disk that holds the system partition as text; empty if no partition is called so, null if
/// the table cannot be had.
QString GetSystemDiskIndex();

/// The lines of the tables. Cut at blanks, never by column; a field that is missing counts as empty.
namespace wmic
{

/// The disk of a blank line: none has that number.
constexpr quint32 Nobody = 0xFFFFFFFFu;

struct DiskDriveLine {
    quint32 index = Nobody;
    QString interfaceText;
    /// Without its last word and the four characters before that: "NW500 ATA Device" gives "NW500 ".
    QString model;
    QString name; ///< the whole model, without the words of its driver
    QString status;
};

struct LogicalDiskLine {
    QString caption;
    QString fileSystem;
    qint64 freeBytes = 0;
    qint64 sizeBytes = 0;
};

/// Index, InterfaceType, Model, Status.
DiskDriveLine parseDiskDrive(const QString &line);

/// Caption, FileSystem, FreeSpace, Size.
LogicalDiskLine parseLogicalDisk(const QString &line);

/// "NO" or "YES" from the line of the encryption tool that tells of a volume's state; empty from any other.
QString bitLockerState(const QString &line);

/// The disk number of a line of the partition table.
QString partitionDisk(const QString &line);

/// Gives the i-th record the i-th number; what is left over on either side stays as it is.
void pairDiskIndexes(RecordList<LogicalDiskRecord> &volumes, const QVector<int> &diskIndexes);

} // namespace wmic
