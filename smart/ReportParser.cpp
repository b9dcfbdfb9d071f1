// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/ReportParser.h"

#include "inventory/CommandRunner.h"
#include "smart/TextCuts.h"

#include <QCoreApplication>
#include <QTextStream>

#include <utility>

namespace report
{

namespace
{

const QString AtaSection = QStringLiteral("START OF READ SMART DATA SECTION");
const QString Passed = QStringLiteral("PASSED");

/// Words of the header line. The tool writes them in no other language; the translations hold exact copies.
const QString NvmeSection =
    QStringLiteral(QT_TRANSLATE_NOOP("MainWindow", "SMART/Health Information (NVMe Log"));
const QStringList AtaHeaders = {
    QT_TRANSLATE_NOOP("MainWindow", "ID#"), QT_TRANSLATE_NOOP("MainWindow", "ATTRIBUTE_NAME"),
    QT_TRANSLATE_NOOP("MainWindow", "FLAG"), QT_TRANSLATE_NOOP("MainWindow", "VALUE")};

/// A line that a report is searched for, and what becomes of it in a drive's identity.
template<typename Drive>
struct LineRule {
    enum Place { Anywhere, AtStart };
    Place place;
    QStringList markers; ///< one of them is enough; at the start only the first counts
    void (*take)(Drive &seen, const QString &line); ///< null: nothing becomes of it

    bool holds(const QString &line) const
    {
        return place == AtStart ? line.startsWith(markers.first()) : cuts::holdsOneOf(line, markers);
    }
};

/// The first rule that holds decides.
template<typename Drive>
void applyRules(const QVector<LineRule<Drive>> &rules, Drive &seen, const QString &line)
{
    for (const LineRule<Drive> &rule : rules) {
        if (rule.holds(line)) {
            if (rule.take)
                rule.take(seen, line);
            return;
        }
    }
}

template<std::size_t Width>
void put(FixedText<Width> &field, const QString &value)
{
    field.assign(value);
}

void put(std::optional<QString> &field, const QString &value)
{
    field = value;
}

QString valueOf(const QString &line)
{
    return cuts::lastPart(line, QStringLiteral(":"));
}

QString inBrackets(const QString &line)
{
    return cuts::lastPart(line, QStringLiteral("[")).remove(QLatin1Char(']'));
}

/// The time keeps its colons.
QString localTime(const QString &line)
{
    return cuts::lastPart(line, QStringLiteral("Local Time is:"));
}

QString logicalSize(const QString &line)
{
    return cuts::firstParts(valueOf(line), QLatin1Char(','), 1).value(0).remove(QLatin1String("logical"));
}

QString inBytes(const QString &line)
{
    return valueOf(line) + QLatin1String(" bytes");
}

QString sataSpeed(const QString &line)
{
    return valueOf(line).remove(QLatin1Char(')'));
}

QString offlineTime(const QString &line)
{
    return cuts::without(cuts::lastPart(line, QStringLiteral("data collection:")), {"(  ", ")", "."});
}

/// What `Cut` takes from the line, into a field.
template<auto Field, QString (*Cut)(const QString &) = valueOf, typename Drive>
void take(Drive &seen, const QString &line)
{
    put(seen.*Field, Cut(line));
}

void takeSelfTestStatus(SmartIdentity &seen, const QString &line)
{
    if (valueOf(line).contains(QLatin1String("completed")))
        seen.SelfTestStatus.assign(QStringLiteral("Successfully Completed"));
}

/// The three lines look alike and go by their order. Each field strips literals of its own.
void takePollTime(SmartIdentity &seen, const QString &line)
{
    const QString value = valueOf(line);
    if (seen.ShortPollTime.isEmpty())
        seen.ShortPollTime.assign(cuts::without(value, {"(   ", "(  ", "( ", "(", ")", "."}));
    else if (seen.ExtendedPollTime.isEmpty())
        seen.ExtendedPollTime.assign(cuts::without(value, {"(  ", "( ", "(", ")", "."}));
    else if (seen.ConveyancePollTime.isEmpty())
        seen.ConveyancePollTime.assign(cuts::without(value, {"(   ", ")", "."}));
}

const QVector<LineRule<SmartIdentity>> &ataRules()
{
    using R = SmartIdentity;
    using Rule = LineRule<R>;
    static const QVector<Rule> rules = {
        {Rule::Anywhere, {"Model Family:"}, take<&R::ModelFamily>},
        {Rule::Anywhere, {"Device Model:", "Model Number:"}, take<&R::DeviceModel>},
        {Rule::Anywhere, {"Serial Number:"}, take<&R::SerialNumber>},
        {Rule::Anywhere, {"LU WWN Device Id:"}, take<&R::Wwn>},
        {Rule::Anywhere, {"Firmware Version:"}, take<&R::Firmware>},
        {Rule::Anywhere, {"User Capacity:"}, take<&R::UserCapacity, inBrackets>},
        {Rule::Anywhere, {"Sector Size:", "Sector Sizes:"}, take<&R::SectorSize, logicalSize>},
        {Rule::Anywhere, {"Rotation Rate:"}, take<&R::RotationRate>},
        {Rule::AtStart, {"ATA Version is:"}, take<&R::AtaVersion>},
        {Rule::AtStart, {"SATA Version is:"}, take<&R::SataVersion, sataSpeed>},
        {Rule::AtStart, {"Local Time is:"}, take<&R::LocalTime, localTime>},
        // Comes twice; the later one, "Enabled", stays.
        {Rule::Anywhere, {"SMART support is:"}, take<&R::SmartSupport>},
        {Rule::Anywhere, {"Self-test supported."}, nullptr},
        {Rule::Anywhere, {"Offline data collection status:"}, nullptr},
        {Rule::Anywhere,
         {"was never started."},
         [](R &seen, const QString &) { seen.OfflineStatus.assign(QStringLiteral("Never Started")); }},
        {Rule::Anywhere,
         {"was completed without error."},
         [](R &seen, const QString &) {
             seen.OfflineStatus.assign(QStringLiteral("Successfully Completed"));
         }},
        {Rule::Anywhere, {"Self-test execution status:"}, takeSelfTestStatus},
        {Rule::Anywhere, {"data collection:"}, take<&R::OfflineTotalTime, offlineTime>},
        {Rule::Anywhere, {"recommended polling time:"}, takePollTime},
    };
    return rules;
}

const QVector<LineRule<NvmeIdentity>> &nvmeRules()
{
    using R = NvmeIdentity;
    using Rule = LineRule<R>;
    static const QVector<Rule> rules = {
        {Rule::Anywhere, {"Model Number:"}, take<&R::ModelNumber>},
        {Rule::Anywhere, {"Serial Number:"}, take<&R::SerialNumber>},
        {Rule::Anywhere, {"Firmware Version:"}, take<&R::Firmware>},
        {Rule::Anywhere, {"Size/Capacity:"}, take<&R::Capacity, inBrackets>},
        {Rule::Anywhere, {"Formatted LBA Size:"}, take<&R::LbaSize, inBytes>},
        {Rule::AtStart, {"Local Time is:"}, take<&R::LocalTime, localTime>},
        {Rule::Anywhere, {"Maximum Data Transfer Size:"}, take<&R::MaxTransferSize>},
    };
    return rules;
}

/// False if the line holds nothing but blanks.
bool fillRow(SmartAttributeRecord &row, const QString &line)
{
    const QStringList parts = cuts::firstParts(line, QLatin1Char(' '), 10);
    if (parts.isEmpty())
        return false;
    row.Id = parts.at(0).toUInt();
    row.AttributeName.assign(parts.value(1));
    row.Flag.assign(parts.value(2));
    row.Value = parts.value(3).toUInt();
    row.Worst = parts.value(4).toUInt();
    row.Threshold = parts.value(5).toUInt();
    row.Type.assign(parts.value(6));
    row.Updated.assign(parts.value(7));
    row.WhenFailed.assign(parts.value(8));
    row.RawValue.assign(parts.value(9));
    return true;
}

/// False if the line holds nothing but colons.
bool fillRow(NvmeAttributeRecord &row, const QString &line)
{
    const QStringList parts = cuts::firstParts(line, QLatin1Char(':'), 2);
    if (parts.isEmpty())
        return false;
    row.Name.assign(parts.at(0).trimmed());
    row.Value.assign(parts.value(1).trimmed());
    return true;
}

/// A report's second reading, the same for both kinds.
template<typename Table, typename Drive>
Table readTable(QTextStream &stream, const QVector<LineRule<Drive>> &rules, const QStringList &headers)
{
    Table table;
    Drive seen;
    bool inTable = false;
    int count = 0;
    while (!stream.atEnd() && count < MaxRows) {
        const QString line = stream.readLine();
        if (count == 0)
            applyRules(rules, seen, line);
        if (inTable) {
            if (line.isEmpty())
                break;
            typename Table::Row row;
            if (fillRow(row, line)) {
                table.rows.append(std::move(row));
                ++count;
            }
        } else if (cuts::holdsOneOf(line, headers)) {
            inTable = true;
        } else if (line.contains(Passed)) {
            table.passed = true;
        }
    }
    if (count > 0)
        table.drive = seen;
    return table;
}

} // namespace

std::optional<bool> detectKind(QTextStream &stream)
{
    std::optional<bool> nvme;
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        if (line.contains(AtaSection))
            nvme = false;
        else if (line.contains(NvmeSection))
            nvme = true;
    }
    return nvme;
}

/// Reads on until `last` is known, at most to the attribute section.
Identity readIdentity(QTextStream &stream, std::optional<QString> Identity::*last)
{
    using R = Identity;
    using Rule = LineRule<R>;
    static const QVector<Rule> rules = {
        {Rule::Anywhere, {"Device Model:", "Model Number:"}, take<&R::model>},
        {Rule::Anywhere, {"Serial Number:"}, take<&R::serial>},
        {Rule::Anywhere, {"Firmware Version:"}, take<&R::firmware>},
        // The line of the SATA version fits as well, but comes after this one.
        {Rule::Anywhere, {"ATA Version is:"}, take<&R::ataVersion>},
    };
    Identity identity;
    while (!(identity.*last) && !stream.atEnd()) {
        const QString line = stream.readLine();
        if (line.contains(AtaSection))
            break;
        applyRules(rules, identity, line);
    }
    return identity;
}

Identity readIdentity(QTextStream &stream)
{
    return readIdentity(stream, &Identity::ataVersion);
}

Identity readProbedIdentity(QTextStream &stream)
{
    return readIdentity(stream, &Identity::firmware);
}

SmartTable readAtaTable(QTextStream &stream)
{
    SmartTable table = readTable<SmartTable>(stream, ataRules(), AtaHeaders);
    if (table.drive.DeviceModel.isEmpty())
        table.drive.Wwn.clear();
    return table;
}

NvmeTable readNvmeLog(QTextStream &stream)
{
    return readTable<NvmeTable>(stream, nvmeRules(), {NvmeSection});
}

Report read(QTextStream &stream, bool nvme)
{
    Report report;
    report.nvme = nvme;
    report.identity = readIdentity(stream);
    stream.seek(0);
    const DriveVerdict line = readVerdictLine(stream);
    stream.seek(0);
    if (nvme) {
        report.log = readNvmeLog(stream);
        report.verdict = nvmeVerdict(line, report.log.rows);
    } else {
        report.ata = readAtaTable(stream);
        report.verdict = ataVerdict(line, report.ata.rows);
    }
    return report;
}

} // namespace report

std::optional<bool> DetectReportKind(const QString &path)
{
    std::optional<bool> nvme;
    runner::readOutput(
        path, [&nvme](QTextStream &stream) { nvme = report::detectKind(stream); }, runner::After::Keep);
    return nvme;
}

std::optional<report::Report> ParseSmartReport(const QString &path, bool nvme)
{
    std::optional<report::Report> report;
    runner::readOutput(path, [&](QTextStream &stream) { report = report::read(stream, nvme); });
    return report;
}
