// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/SmartReport.h"

#include "smart/AttributeCatalogue.h"
#include "smart/AttributeRows.h"
#include "smart/SmartGlobals.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

#include <QFileInfo>

namespace
{

SmartReport::Row ataCells(const SmartAttributeRecord &record)
{
    const QString key = record.key();
    const QString raw = record.RawValue.text();
    const bool failed = reportStatusFailed(record);
    // The status word stays black; the numbers behind it are red. The raw value has a rule of its own.
    return {{QString::number(record.Id)},
            {ataName(key, record.Id, NameIn::Report)},
            {failed ? ReportTexts::tr("Failed") : ReportTexts::tr("OK")},
            {QString::number(record.Value), failed},
            {QString::number(record.Worst), failed},
            {QString::number(record.Threshold), failed},
            {raw, redInReport(key, raw)}};
}

QString statusOf(const SmartReport &report)
{
    const QString support = report.ata.SmartSupport.text();
    // There is no report of an NVMe disk whose SMART is not available.
    const bool passed = report.nvme || support.contains(QLatin1String("Enabled"));
    return report.smartFailed ? ReportTexts::tr("Failed") : passed ? ReportTexts::tr("Passed") : support;
}

} // namespace

SmartReport gatherSmartReport()
{
    SmartReport report;
    report.nvme = g_App.m_bNVMe;
    report.secondBrand = g_App.m_bKorvaneBrand;
    if (report.nvme) {
        report.log = g_nvmeTable.drive;
        for (const NvmeAttributeRecord &row : g_nvmeTable.rows)
            report.rows.push_back({{QString::number(report.rows.size())},
                                   {nvmeName(row.Name.text(), NameIn::Report)},
                                   {row.Value.text().trimmed()}});
    } else {
        report.ata = g_smartTable.drive;
        for (const SmartAttributeRecord &row : g_smartTable.rows)
            report.rows.push_back(ataCells(row));
    }
    report.smartFailed = g_driveVerdict == DriveVerdict::Failed;
    report.smartStatus = statusOf(report);
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
    return brand + fileNamePart((report.nvme ? report.log.ModelNumber : report.ata.DeviceModel).text());
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
