// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/Metrics.h"

#include "inventory/CommandRunner.h"
#include "platform/IoControl.h"
#include "platform/OwnFiles.h"
#include "platform/PlainText.h"
#include "platform/Platform.h"
#include "state/Product.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <optional>

namespace
{

using Answer = DiskReading::Answer;

constexpr double Percent = 0.01;
constexpr double Hour = 3600;
constexpr double Day = 24 * Hour;
constexpr double Millisecond = 0.001;
constexpr int LongestLabel = 128;
constexpr qint64 LoggedHours = 65536; // an ATA drive's log counts its hours up to here, and begins anew

/// One line of a metric: what stands behind the labels of the disk, and the value.
struct Sample {
    QByteArray label;
    double value;
};
using Samples = std::vector<Sample>;

/// A metric of each disk, volume or PC.
template<typename Of>
struct Metric {
    const char *name;
    const char *type;
    const char *help;
    Samples (*samples)(const Of &);
};

struct Pc {
    const ToolUse &tool;
    qint64 now; ///< ms since 1970
};

Samples just(double value)
{
    return {{QByteArray(), value}};
}

/// Nothing where it is not known.
template<typename Number>
Samples known(const std::optional<Number> &value, double unit = 1)
{
    return value ? just(static_cast<double>(*value) * unit) : Samples();
}

QByteArray label(const char *name, const QString &value)
{
    QString plain = plaintext::line(value.simplified().left(LongestLabel));
    plain.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QByteArray(name) + "=\"" + plain.toUtf8() + '"';
}

Samples verdicts(const DiskSummary &disk)
{
    Samples samples;
    for (const auto &[name, verdict] :
         {std::pair("passed", DriveVerdict::Passed), std::pair("failed", DriveVerdict::Failed)})
        samples.push_back(
            {label("verdict", QLatin1String(name)), disk.reading.verdict == verdict ? 1.0 : 0.0});
    return samples;
}

Samples states(const DiskSummary &disk)
{
    Samples samples;
    for (int each = 0; disk.asked && each <= static_cast<int>(DiskState::NotSupported); ++each) {
        const auto state = static_cast<DiskState>(each);
        samples.push_back({label("state", once::nameOf(state)), disk.state == state ? 1.0 : 0.0});
    }
    return samples;
}

Samples limits(const DiskSummary &disk)
{
    Samples samples;
    for (const auto &[name, limit] :
         {std::pair("warning", disk.setLimits.warning), std::pair("shutdown", disk.setLimits.shutDown)}) {
        if (limit && disk.reading.celsius)
            samples.push_back({label("limit", QLatin1String(name)), double(*limit)});
    }
    return samples;
}

Samples selfTestAge(const DiskSummary &disk)
{
    const DiskReading &reading = disk.reading;
    if (!reading.selfTestHours || !reading.powerOnHours)
        return {};
    const qint64 hours = *reading.powerOnHours - *reading.selfTestHours;
    if (hours < 0)
        return {};
    return just(double(reading.nvme ? hours : hours % LoggedHours) * Hour);
}

/// In the order of the text. Without a report there are only the ones of AlwaysTold.
const Metric<DiskSummary> DiskMetrics[] = {
    {"halvane_disk_up", "gauge", "1 if the disk answers, 0 if it does not.",
     [](const DiskSummary &disk) {
         return disk.asked ? just(disk.answer == Answer::NoAnswer ? 0 : 1) : Samples();
     }},
    {"halvane_disk_asleep", "gauge", "1 if the disk sleeps and was not woken.",
     [](const DiskSummary &disk) {
         return disk.asked ? just(disk.answer == Answer::Asleep ? 1 : 0) : Samples();
     }},
    {"halvane_disk_state", "gauge", "1 for the state in which the disk is.", states},
    {"halvane_disk_size_bytes", "gauge", "Size of the disk in bytes.",
     [](const DiskSummary &disk) { return disk.bytes > 0 ? just(double(disk.bytes)) : Samples(); }},
    {"halvane_disk_last_report_timestamp_seconds", "gauge",
     "When the disk last gave a report, in seconds since 1970.",
     [](const DiskSummary &disk) { return just(double(disk.lastReport) * Millisecond); }},
    {"halvane_disk_verdict", "gauge", "1 for what the drive says of itself; 0 for both if it says nothing.",
     verdicts},
    {"halvane_disk_temperature_celsius", "gauge", "Temperature in degrees Celsius.",
     [](const DiskSummary &disk) { return disk.isNow() ? known(disk.reading.celsius) : Samples(); }},
    {"halvane_disk_temperature_limit_celsius", "gauge",
     "Temperature from which on Settings count a disk as too warm, in degrees Celsius.", limits},
    {"halvane_disk_health_ratio", "gauge", "Health from 0 to 1.",
     [](const DiskSummary &disk) { return known(disk.reading.health, Percent); }},
    {"halvane_disk_life_seconds", "gauge", "Estimated rest of the life in seconds.",
     [](const DiskSummary &disk) { return known(disk.reading.lifeDays, Day); }},
    {"halvane_disk_power_on_seconds_total", "counter", "Time that the disk was on, in seconds.",
     [](const DiskSummary &disk) { return known(disk.reading.powerOnHours, Hour); }},
    {"halvane_disk_reallocated_sectors", "gauge", "Sectors that were replaced.",
     [](const DiskSummary &disk) { return known(disk.reading.reallocated); }},
    {"halvane_disk_pending_sectors", "gauge", "Sectors that wait to be replaced.",
     [](const DiskSummary &disk) { return known(disk.reading.pending); }},
    {"halvane_disk_uncorrectable_errors", "gauge", "Errors that could not be corrected.",
     [](const DiskSummary &disk) { return known(disk.reading.uncorrectable); }},
    {"halvane_disk_media_errors_total", "counter", "Errors of the medium that an NVMe drive counts.",
     [](const DiskSummary &disk) { return known(disk.reading.mediaErrors); }},
    {"halvane_disk_wear_ratio", "gauge", "Part of the life that writing has used up; may exceed 1.",
     [](const DiskSummary &disk) { return known(disk.reading.wear, Percent); }},
    {"halvane_disk_spare_ratio", "gauge", "Spare that is left, from 0 to 1.",
     [](const DiskSummary &disk) { return known(disk.reading.spare, Percent); }},
    {"halvane_disk_spare_threshold_ratio", "gauge", "Spare below which the drive warns.",
     [](const DiskSummary &disk) { return known(disk.reading.spareThreshold, Percent); }},
    {"halvane_disk_written_bytes_total", "counter", "Data that was written to the disk, in bytes.",
     [](const DiskSummary &disk) { return known(disk.reading.written); }},
    {"halvane_disk_self_test_failed", "gauge", "1 if the newest self-test failed.",
     [](const DiskSummary &disk) {
         return disk.reading.selfTestMark.isEmpty() ? Samples()
                                                    : just(disk.reading.selfTest.isEmpty() ? 0 : 1);
     }},
    {"halvane_disk_self_test_age_seconds", "gauge",
     "Time that the disk was on since its newest self-test, in seconds.", selfTestAge},
    {"halvane_disk_scan_bad_sectors", "gauge", "Bad sectors that the last whole scan found.",
     [](const DiskSummary &disk) { return disk.scan ? just(double(disk.scan->badSectors)) : Samples(); }},
    {"halvane_disk_scan_timestamp_seconds", "gauge", "When the last whole scan ended, in seconds since 1970.",
     [](const DiskSummary &disk) {
         return disk.scan ? just(double(disk.scan->when) * Millisecond) : Samples();
     }},
};
constexpr int AlwaysTold = 4;

const Metric<metrics::VolumeSpace> VolumeMetrics[] = {
    {"halvane_volume_size_bytes", "gauge", "Size of the volume in bytes.",
     [](const metrics::VolumeSpace &volume) { return just(double(volume.size)); }},
    {"halvane_volume_free_bytes", "gauge", "Free space of the volume in bytes.",
     [](const metrics::VolumeSpace &volume) { return just(double(volume.free)); }},
};

const Metric<Pc> PcMetrics[] = {
    {"halvane_build_info", "gauge", "1; the label is the version of the companion.",
     [](const Pc &) {
         return Samples{{label("version", QLatin1String(product::Version)), 1}};
     }},
    {"halvane_last_round_timestamp_seconds", "gauge",
     "When the companion last went over the disks, in seconds since 1970.",
     [](const Pc &pc) { return just(double(pc.now) * Millisecond); }},
    {"halvane_tool_runs_total", "counter", "Runs of the report tool.",
     [](const Pc &pc) { return just(double(pc.tool.runs)); }},
    {"halvane_tool_failures_total", "counter",
     "Runs of the report tool that had to be ended, or that reached no disk.",
     [](const Pc &pc) { return just(double(pc.tool.failures)); }},
    {"halvane_tool_run_seconds_total", "counter", "Time that the runs of the report tool took, in seconds.",
     [](const Pc &pc) { return just(double(pc.tool.milliseconds) * Millisecond); }},
};

/// Something that metrics are about, with its labels.
template<typename Of>
struct Labelled {
    const Of &of;
    QByteArray labels;
};

/// All lines of a metric. Without a line there is no head either.
template<typename Of>
void append(QByteArray *text, const Metric<Of> &metric, const std::vector<Labelled<Of>> &each)
{
    QByteArray lines;
    for (const Labelled<Of> &one : each) {
        for (const Sample &sample : metric.samples(one.of)) {
            const char *comma = one.labels.isEmpty() || sample.label.isEmpty() ? "" : ",";
            const QByteArray labels = one.labels + comma + sample.label;
            lines += QByteArray(metric.name) + (labels.isEmpty() ? labels : '{' + labels + '}') + ' ' +
                     QByteArray::number(sample.value, 'g', 15) + '\n';
        }
    }
    if (!lines.isEmpty())
        *text += QByteArray("# HELP ") + metric.name + ' ' + metric.help + "\n# TYPE " + metric.name + ' ' +
                 metric.type + '\n' + lines;
}

QByteArray labelsOf(const DiskSummary &disk)
{
    return label("disk", QString::number(disk.number)) + ',' + label("model", disk.model) + ',' +
           label("serial", disk.serial) + ',' + label("firmware", disk.reading.firmware) + ',' +
           label("interface", disk.interfaceText);
}

QByteArray labelsOf(const metrics::VolumeSpace &volume)
{
    return label("volume", volume.letter) + ',' + label("label", volume.label) + ',' +
           label("file_system", volume.fileSystem);
}

} // namespace

namespace metrics
{

std::vector<VolumeSpace> volumes()
{
    Platform &platform = Platform::current();
    std::vector<VolumeSpace> found;
    for (const QString &root : platform.GetLogicalDriveStringsW()) {
        const quint32 type = platform.GetDriveTypeW(root);
        VolumeSpace volume;
        // A network drive may keep the round waiting, and belongs to another PC.
        if ((type != io::DriveFixed && type != io::DriveRemovable) ||
            !platform.GetDiskFreeSpaceExW(root, &volume.size, &volume.free))
            continue;
        volume.letter = root.left(2);
        platform.GetVolumeInformationW(root, &volume.label, &volume.fileSystem);
        found.push_back(volume);
    }
    return found;
}

QByteArray text(const std::vector<DiskSummary> &disks, const std::vector<VolumeSpace> &volumes,
                const ToolUse &tool, const QDateTime &now)
{
    std::vector<Labelled<DiskSummary>> listed;
    std::vector<Labelled<DiskSummary>> reported;
    for (const DiskSummary &disk : disks) {
        if (disk.missing || (!disk.listed && !disk.asked))
            continue;
        listed.push_back({disk, labelsOf(disk)});
        if (disk.reading.answer == Answer::Report)
            reported.push_back(listed.back());
    }
    QByteArray text;
    const Pc pc{tool, now.toMSecsSinceEpoch()};
    for (const Metric<Pc> &metric : PcMetrics)
        append(&text, metric, {{pc, QByteArray()}});
    for (const Metric<DiskSummary> &metric : DiskMetrics)
        append(&text, metric, &metric - DiskMetrics < AlwaysTold ? listed : reported);
    std::vector<Labelled<VolumeSpace>> spaces;
    for (const VolumeSpace &volume : volumes)
        spaces.push_back({volume, labelsOf(volume)});
    for (const Metric<VolumeSpace> &metric : VolumeMetrics)
        append(&text, metric, spaces);
    return text;
}

bool save(const QString &path, const std::vector<DiskSummary> &disks, const ToolUse &tool,
          const QDateTime &now)
{
    const QString file = nativePath(path);
    if (!QDir::isAbsolutePath(file) || !ownfiles::saveFile(file, text(disks, volumes(), tool, now))) {
        ownfiles::complain(file + QLatin1String(": the metrics cannot be written to this path"));
        return false;
    }
    const QString folder = QFileInfo(file).path();
    if (ownfiles::strangerOn(folder).isEmpty())
        ownfiles::removeUnfinished(folder);
    return true;
}

} // namespace metrics
