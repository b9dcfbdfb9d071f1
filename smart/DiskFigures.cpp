// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/DiskFigures.h"

#include "smart/ReportParser.h"
#include "smart/SmartGlobals.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

namespace
{

int ownerOfFigures = NoDisk;

QString percentText(int percent)
{
    return QString::number(percent) + QLatin1Char('%');
}

void publish(report::Report &&report)
{
    g_strModelName = report.identity.model.value_or(g_strModelName);
    g_strSerialNumber = report.identity.serial.value_or(g_strSerialNumber);
    g_strFirmware = report.identity.firmware.value_or(g_strFirmware);
    g_strAtaVersion = report.identity.ataVersion.value_or(g_strAtaVersion);
    g_driveVerdict = report.verdict;
    g_bSmartAvailable = report.nvme ? report.log.passed : report.ata.passed;
    if (report.nvme)
        g_nvmeTable = std::move(report.log);
    else
        g_smartTable = std::move(report.ata);
}

} // namespace

bool takeUpDisk(int disk)
{
    if (disk == ownerOfFigures)
        return false;
    ownerOfFigures = disk;
    g_bReportPending = true;
    g_bSmartAvailable = false;
    g_App.m_bNVMe = false;
    g_smartTable = {};
    g_nvmeTable = {};
    for (int *number : {&g_nHealthPercent, &g_nPerformancePercent, &g_nPowerOnDays, &g_nPowerOnRestHours,
                        &g_nStartStopCount})
        *number = 0;
    g_nDiskLifeDays = 0;
    g_bHealthKnown = true;
    g_driveVerdict = DriveVerdict::NotTold;
    for (QString *text : {&g_strHealthText, &g_strPerformanceText, &g_strTemperatureText, &g_strInterface,
                          &g_strAtaVersion, &g_strGraphTitle, &g_strLastTestType, &g_strLastTestResult})
        text->clear();
    return true;
}

void publish(const LoadedReport &loaded)
{
    g_strSmartReportPath = loaded.path;
    g_strSmartDevice = loaded.device;
}

void takeReportIn(const QString &path)
{
    g_App.m_bNVMe = DetectReportKind(path).value_or(g_App.m_bNVMe);
    if (auto report = ParseSmartReport(path, g_App.m_bNVMe))
        publish(std::move(*report));
}

void RefreshTemperatureReport(int diskIndex)
{
    takeReportIn(LoadSmartReport(diskIndex).path);
}

void rateHealth()
{
    std::optional<int> health = FullPercent;
    if (g_bSmartAvailable)
        health = g_App.m_bNVMe ? healthOfNvme(g_nvmeTable.rows) : healthOfAta(g_smartTable.rows);
    g_bHealthKnown = health.has_value();
    g_nHealthPercent = health.value_or(FullPercent);
    g_strHealthText = percentText(g_nHealthPercent);
}

void ratePerformance()
{
    const bool byVersion = !g_App.m_bNVMe && g_bSmartAvailable;
    g_nPerformancePercent = byVersion ? performanceOf(g_strAtaVersion) : FullPercent;
    g_strPerformanceText = percentText(g_nPerformancePercent);
}

LifeFigures storedLifeFigures()
{
    return {g_nDiskLifeDays, g_nPowerOnDays, g_nPowerOnRestHours, g_nStartStopCount, g_bHealthKnown};
}

void updateLifeFigures()
{
    LifeFigures figures = storedLifeFigures();
    for (const SmartAttributeRecord &row : g_smartTable.rows)
        takeLifeRow(figures, row, g_nHealthPercent);
    g_nDiskLifeDays = figures.nDiskLifeDays;
    g_nPowerOnDays = figures.nPowerOnDays;
    g_nPowerOnRestHours = figures.nPowerOnRestHours;
    g_nStartStopCount = figures.nStartStopCount;
}

void publish(const PreviousTest &test)
{
    if (!test.type.isNull())
        g_strLastTestType = test.type;
    if (!test.result.isNull())
        g_strLastTestResult = test.result;
}
