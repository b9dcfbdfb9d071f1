// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/SmartRecords.h"

#include <optional>

class QTextStream;

/// What a drive says of itself.
enum class DriveVerdict { NotTold, Passed, Failed };

/// The verdict in a report's own line, of ATA and NVMe or of SCSI, where only heat is no failure. NotTold
/// where the line is missing or says neither.
DriveVerdict readVerdictLine(QTextStream &stream);

/// `line` is what readVerdictLine() found. A "Pre-fail" attribute that is "FAILING_NOW" makes it Failed, too.
/// One of old age, or one that failed in the past, does not.
DriveVerdict ataVerdict(DriveVerdict line, const SmartAttributeList &rows);

/// The bits of an NVMe drive's critical warning; nothing where it tells none.
std::optional<uint> criticalWarning(const NvmeAttributeList &rows);
constexpr uint HeatWarning = 0x02;

/// Any bit of the critical warning is a failure, except that of heat, of which the line says "FAILED!", too.
DriveVerdict nvmeVerdict(DriveVerdict line, const NvmeAttributeList &rows);
