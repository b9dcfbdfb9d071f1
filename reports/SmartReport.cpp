// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/SmartReport.h"

#include "smart/AttributeCatalogue.h"
#include "smart/AttributeKey.h"
#include "smart/AttributeRows.h"
#include "smart/PreviousTest.h"
#include "smart/Rating.h"
#include "smart/SmartGlobals.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace
{

/// The texts are translated in the context of the window that the report is saved from.
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(MainWindow)
};

/// Sectors that are bad or about to be: any count of them is printed in red. Goes by the key, so that it
/// does so in every language.
bool countsBadSectors(const QString &key)
{
    for (const char *word : {"Current Pending Sector", "Reallocated Sector Count", "Reallocated Sector Ct"}) {
        if (key.contains(QLatin1String(word), Qt::CaseInsensitive))
            return true;
    }
    return false;
}

SmartReport::Row ataRow(const SmartAttributeRecord &record)
{
    const QString key = keyOf(record.AttributeName.text());
    const QString raw = record.RawValue.text();
    const bool failed = reportStatusFailed(record);
    // The status word stays black; the numbers behind it are red. The raw value has a rule of its own.
    return {{QString::number(record.Id)},
            {ataReportName(key, record.Id)},
            {failed ? Texts::tr("Failed") : Texts::tr("OK")},
            {QString::number(record.Value), failed},
            {QString::number(record.Worst), failed},
            {QString::number(record.Threshold), failed},
            {raw, countsBadSectors(key) && raw.toLongLong() > 0}};
}

void takeAta(SmartReport &report, const SmartTable &table)
{
    const SmartIdentity &drive = table.drive;
    report.make = drive.ModelFamily.text();
    report.model = drive.DeviceModel.text();
    report.serial = drive.SerialNumber.text();
    report.firmware = drive.Firmware.text();
    report.capacity = drive.UserCapacity.text();
    report.sectorSize = drive.SectorSize.text();
    report.rotationRate = drive.RotationRate.text();
    report.ataVersion = drive.AtaVersion.text();
    report.sataVersion = drive.SataVersion.text();
    report.localTime = drive.LocalTime.text();
    const QString support = drive.SmartSupport.text();
    report.smartStatus = support.contains(QLatin1String("Enabled")) ? Texts::tr("Passed") : support;
    report.shortTestTime = drive.ShortPollTime.text();
    report.extendedTestTime = drive.ExtendedPollTime.text();
    for (const SmartAttributeRecord &row : table.rows)
        report.rows.push_back(ataRow(row));
}

void takeNvme(SmartReport &report, const NvmeTable &table)
{
    const NvmeIdentity &drive = table.drive;
    report.model = drive.ModelNumber.text();
    report.serial = drive.SerialNumber.text();
    report.firmware = drive.Firmware.text();
    report.capacity = drive.Capacity.text();
    report.sectorSize = drive.LbaSize.text();
    report.localTime = drive.LocalTime.text();
    report.maxTransferSize = drive.MaxTransferSize.text();
    report.smartStatus = Texts::tr("Passed"); // there is no report of a disk whose SMART is not available
    for (const NvmeAttributeRecord &row : table.rows)
        report.rows.push_back({{QString::number(report.rows.size())},
                               {nvmeReportName(row.Name.text())},
                               {row.Value.text().trimmed()}});
}

} // namespace

SmartReport gatherSmartReport()
{
    SmartReport report;
    report.nvme = g_App.m_bNVMe;
    report.secondBrand = g_App.m_bKorvaneBrand;
    if (report.nvme)
        takeNvme(report, g_nvmeTable);
    else
        takeAta(report, g_smartTable);
    report.smartFailed = g_driveVerdict == DriveVerdict::Failed;
    if (report.smartFailed)
        report.smartStatus = Texts::tr("Failed");
    report.temperature = g_strTemperatureText;
    report.performance = g_nPerformancePercent;
    report.performanceText = g_strPerformanceText;
    report.health = g_nHealthPercent;
    report.healthKnown = g_bHealthKnown;
    report.device = g_strSmartDevice;
    report.lastTestType = g_strLastTestType;
    report.lastTestResult = g_strLastTestResult;
    return report;
}

QString suggestedReportName(const SmartReport &report)
{
    const QString brand = report.secondBrand ? QStringLiteral("Korvane Smart Report ")
                                             : QStringLiteral("Velmora Smart Report ");
    return brand + fileNamePart(report.model);
}

QString savedPath(const QString &chosen, const QString &offered, const QString &ending)
{
    return !chosen.isEmpty() && QFileInfo(chosen).fileName() == offered ? chosen + ending : chosen;
}

QString fileNamePart(QString text)
{
    for (QChar &character : text) {
        if (character < QLatin1Char(' ') || QStringLiteral("\\/:*?\"<>|").contains(character))
            character = QLatin1Char('-');
    }
    return text;
}
