// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/DriveVerdict.h"
#include "smart/SmartRecords.h"

#include <QString>
#include <QStringList>

#include <optional>

class QTextStream;

/// The steps of reading a report: text in, records out. Linear in the text's size; nothing in a text is an
/// error.
namespace report
{

/// Rows kept of one report. A drive's table holds a few dozen; more is not a report.
constexpr int MaxRows = 16384;

/// What the head of a report says; nothing where the line is missing.
struct Identity {
    std::optional<QString> model;
    std::optional<QString> serial;
    std::optional<QString> firmware;
    std::optional<QString> ataVersion;
};

/// True for NVMe, false for ATA by the last section line of the text; nothing where there is none.
std::optional<bool> detectKind(QTextStream &stream);

/// Reads up to the ATA version or the attribute section, else to the end.
Identity readIdentity(QTextStream &stream);

/// The shorter reading of the disk inventory: ends at the firmware line already, and knows no ATA version.
Identity readProbedIdentity(QTextStream &stream);

/// The attribute table of an ATA drive, and the health log of an NVMe drive.
SmartTable readAtaTable(QTextStream &stream);
NvmeTable readNvmeLog(QTextStream &stream);

/// What a report of one kind tells.
struct Report {
    Identity identity;
    DriveVerdict verdict = DriveVerdict::NotTold;
    bool nvme = false;
    SmartTable ata; ///< empty where the drive is of the other kind, as is the log
    NvmeTable log;
};
Report read(QTextStream &stream, bool nvme);

} // namespace report

/// Whether the report at `path` is of an NVMe drive. Nothing where it has neither section, or does not open.
std::optional<bool> DetectReportKind(const QString &path);

/// Reads the report at `path` as one of that kind, and removes the file. Nothing where it does not open.
std::optional<report::Report> ParseSmartReport(const QString &path, bool nvme);
