#pragma once

#include "smart/SmartRecords.h"

#include <QString>
#include <QStringList>

#include <optional>

class QTextStream;

/// Looks which kind of drive the report at `path` is of and sets g_App.m_bNVMe; a report without either
/// section, or a file that does not open, leaves it. Main thread only.
void DetectReportKind(const QString &path);

/// Takes in the report at `path` by the kind that DetectReportKind() found: fills the list of that kind,
/// g_strModelName, g_strSerialNumber, g_strFirmware, g_strAtaVersion (those that the report names) and
/// g_bSmartAvailable and g_driveVerdict, and removes the file. A file that does not open changes nothing.
/// Main thread only.
void ParseSmartReport(const QString &path);

/// The steps of reading a report: text in, records out. Linear in the text's size; nothing in a text is an
/// error.
namespace report
{

/// Rows kept of one report. A drive's table holds a few dozen; more is not a report.
constexpr int MaxRows = 16384;

/// Words by which a table begins. They pass through the translation.
struct Markers {
    QStringList ataHeaders;
    QString nvmeHeader;
};
Markers translatedMarkers();

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

/// Appends a record for each row of the attribute table to the list. True if a line ahead of the table holds
/// "PASSED".
bool readAtaTable(QTextStream &stream, const Markers &markers, SmartAttributeRecord *&head,
                  SmartAttributeRecord *&tail);

/// The same for the health log of an NVMe drive.
bool readNvmeLog(QTextStream &stream, const Markers &markers, NvmeAttributeRecord *&head,
                 NvmeAttributeRecord *&tail);

} // namespace report
