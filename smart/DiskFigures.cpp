// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/DiskFigures.h"

#include "platform/Log.h"
#include "platform/Platform.h"
#include "smart/AttributeHistory.h"
#include "smart/ReportParser.h"
#include "smart/SelfTestText.h"
#include "smart/SmartGlobals.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

#include <QDateTime>

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
    g_nHealthPercent = 0;
    g_nPerformancePercent = 0;
    g_lifeFigures = {};
    g_driveVerdict = DriveVerdict::NotTold;
    for (QString *text : {&g_strHealthText, &g_strPerformanceText, &g_strTemperatureText, &g_strInterface,
                          &g_strAtaVersion, &g_strGraphTitle, &g_strLastTestType, &g_strLastTestResult})
        text->clear();
    return true;
}

void forgetIdentity()
{
    for (QString *text : {&g_strSerialNumber, &g_strModelName, &g_strFirmware})
        text->clear();
}

void publish(const LoadedReport &loaded)
{
    g_strSmartReportPath = loaded.path;
    g_strSmartDevice = loaded.device;
}

void takeReportIn(const QString &path)
{
    g_App.m_bNVMe = DetectReportKind(path).value_or(g_App.m_bNVMe);
    auto report = ParseSmartReport(path, g_App.m_bNVMe);
    if (!report || (report->ata.rows.isEmpty() && report->log.rows.isEmpty()))
        qCDebug(logs::smart) << (report ? "a report without attributes" : "no report is there");
    if (report)
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

void updateLifeFigures()
{
    for (const SmartAttributeRecord &row : g_smartTable.rows)
        takeLifeRow(g_lifeFigures, row, g_nHealthPercent);
}

QString serialOfGraph()
{
    const WmicDiskRecord *record =
        g_strSerialNumber.isEmpty()
            ? findWmicDisk(static_cast<quint32>(PhysicalDriveBase + g_nCurrentDiskIndex))
            : nullptr;
    return record ? record->szSmartSerial.text() : g_strSerialNumber;
}

std::vector<AttributeRow> currentRows()
{
    return g_App.m_bNVMe ? nvmeRows(g_nvmeTable.rows) : ataRows(g_smartTable.rows);
}

void keepHistory(const std::vector<AttributeRow> &rows)
{
    std::vector<HistoryValue> values;
    for (const AttributeRow &row : rows)
        values.push_back({row.key, row.historyValue});
    recordHistory(g_strSerialNumber, Platform::current().Now(), values);
}

std::optional<DiskGraph> currentGraph(const QString &key)
{
    const HistoryPaths paths = historyPaths(serialOfGraph());
    bool opened = false;
    const std::vector<QString> dates = readHistoryDates(paths.dates, &opened);
    if (!opened)
        return std::nullopt;
    const std::vector<qint64> values = readHistoryValues(paths.values, dates, key);
    auto model = graphModel(g_App.m_bNVMe ? GraphKind::Nvme : GraphKind::Ata, key, dates, values,
                            Platform::current().Now().date());
    if (!model)
        return std::nullopt;
    return DiskGraph{std::move(*model), graphText(dates, values)};
}

void ReadPreviousTest(const QString &device)
{
    selftest::PreviousTest test;
    readTool(ToolPurpose::SelfTestLog, device,
             [&test](QTextStream &log) { test = selftest::newestTest(log); });
    if (!test.type.isNull())
        g_strLastTestType = test.type;
    if (!test.result.isNull())
        g_strLastTestResult = test.result;
}
