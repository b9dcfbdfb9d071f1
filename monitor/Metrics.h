// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monitor/DiskSummary.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <vector>

/// What the runs of the report tool took, since the process began.
struct ToolUse {
    quint64 runs = 0;
    quint64 failures = 0; ///< ended by force, or the disk did not answer
    qint64 milliseconds = 0;
};

/// The state of the disks in the text format of Prometheus.
namespace metrics
{

/// A volume of this PC, with its space in bytes.
struct VolumeSpace {
    QString letter;
    QString label;
    QString fileSystem;
    quint64 size = 0;
    quint64 free = 0;
};

/// The fixed and removable volumes of this PC that can be read, by letter.
std::vector<VolumeSpace> volumes();

/// The whole text. Not in it is a disk that is missing, or known from an earlier run alone. One that sleeps
/// or does not answer has what its last report told, also before a restart, but no temperature. One that was
/// not asked yet has neither an answer nor a state.
QByteArray text(const std::vector<DiskSummary> &disks, const std::vector<VolumeSpace> &volumes,
                const ToolUse &tool, const QDateTime &now);

/// Writes the text to a file, which is replaced as a whole. The path has to be absolute, and its folder to be
/// there; a file that cannot be written is named on standard error, once.
bool save(const QString &path, const std::vector<DiskSummary> &disks, const ToolUse &tool,
          const QDateTime &now);

} // namespace metrics
