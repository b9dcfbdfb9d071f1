// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Inventory.h"
#include "platform/simulated/SectorRanges.h"

#include <QByteArray>
#include <QJsonObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/// A PC as its folder describes it; docs/described-pc.md is the manual of the format. Plain values.
namespace simulated
{

/// What a disk says of itself through the drive's own interface.
struct Identity {
    QString model;
    QString serial;
    QString firmware;
    QByteArray smart; ///< SMART data, at most 512 bytes
};

/// How a self-test of a drive ends.
struct SelfTestEnd {
    int status = 0;          ///< 0 completed … 8 handling damage, as the drive numbers it
    int remainingTenths = 0; ///< how much of the test is left then
};

struct Disk {
    inventory::Disk record; ///< its node is the image in the described folder, which may be missing
    bool opens = true;
    SectorRanges bad;
    SectorRanges unwritable;
    quint64 bytesPerSecond = 0; ///< 0: no limit
    bool failsPastEnd = false;
    QStringList reports; ///< full paths; the n-th run gets the n-th
    bool asleep = false; ///< answers `-n standby` without a report
    bool idle = false;   ///< nobody but the program reads it or writes to it
    QString capabilities;
    QString selfTestLog;
    std::optional<Identity> identity;
    SelfTestEnd selfTestEnd;
};

/// What becomes of a disk while the program runs.
struct ReportChange {
    qint64 afterSeconds = 0; ///< of the PC's clock, from the begin of the process
    int disk = 0;
    QString report;             ///< full path; empty: stays as it is
    std::optional<bool> asleep; ///< empty: stays as it is
};

struct PcDescription {
    QString folder; ///< full path
    QString name;
    QString user;
    QString logon; ///< another text is another logon
    QString operatingSystem;
    int dpi = 96;
    bool pauses = true;
    bool hasSmartctl = true;
    bool network = false;     ///< links may be asked, on this very PC only
    int toolMilliseconds = 0; ///< how long a run of smartctl takes
    QVector<Disk> disks;
    QVector<inventory::Volume> volumes;
    QSet<int> absentDisks; ///< not plugged in at first
    QSet<QChar> absentVolumes;
    QVector<inventory::Partition> partitions;
    QStringList processes;
    QStringList installed; ///< programs that can be started
    QJsonObject settings;  ///< first values of the settings store
    double secondsPerMinute = 1.0;
    QVector<ReportChange> reportChanges; ///< in the order of their time
    double clockSpeed = 1.0;             ///< how fast the PC's clock goes
    QString history;                     ///< full path of the folder of history files; empty if there is none
    QJsonObject tour;

    /// Null if there is no such disk.
    const Disk *disk(int number) const;
    /// Null if there is no such volume. Any letter case.
    const inventory::Volume *volume(QChar letter) const;
};

/// Reads a description whose files lie in `folder`, a full path. On failure empty, with one line in `error`
/// that names the key.
std::optional<PcDescription> parsePc(const QByteArray &json, const QString &folder, QString *error);

/// Reads `folder`/pc.json. On failure empty, with one line in `error` that names the file and the key.
std::optional<PcDescription> readPc(const QString &folder, QString *error);

} // namespace simulated
