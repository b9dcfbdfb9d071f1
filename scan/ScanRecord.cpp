// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/ScanRecord.h"

#include "inventory/MapFile.h"
#include "inventory/RawAccess.h"
#include "platform/OwnFiles.h"
#include "scan/BadSectorList.h"
#include "state/TimeText.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QStringList>

namespace
{

QString text(const char *source)
{
    return QCoreApplication::translate("ScanDisk", source);
}

std::vector<SectorRun> runsOf(const BadSectorList &bad)
{
    std::vector<SectorRun> runs;
    bad.forEachRun([&runs](const SectorRun &run) { runs.push_back(run); });
    return runs;
}

QString resultText(ScanRecord::End end)
{
    switch (end) {
    case ScanRecord::End::Complete:
        return text(QT_TRANSLATE_NOOP("ScanDisk", "Scan Completed."));
    case ScanRecord::End::Stopped:
        return text(QT_TRANSLATE_NOOP("ScanDisk", "Disk scan aborted by user."));
    default:
        return text(QT_TRANSLATE_NOOP("ScanDisk", "The disk is no longer connected."));
    }
}

QString runText(const SectorRun &run)
{
    if (run.count == 1)
        return text(QT_TRANSLATE_NOOP("ScanDisk", "Sector %1 (LBA), byte offset %2"))
            .arg(run.first)
            .arg(run.first * SectorSize);
    return text(QT_TRANSLATE_NOOP("ScanDisk", "Sectors %1 to %2 (LBA), byte offset %3"))
        .arg(run.first)
        .arg(run.first + run.count - 1)
        .arg(run.first * SectorSize);
}

} // namespace

bool ScanRecord::canBeSaved(const BadSectorList &bad) const
{
    return end != End::None && end != End::Failed && (scanned > 0 || !bad.isEmpty());
}

namespace scanrecord
{

ScanRecord::End endOf(bool stopped, const QString &verdict, bool gone)
{
    // A disk that did not open counts as read to its end, so a stop at the last moment must not hide that.
    if (verdict == QLatin1String("Failed") && !gone)
        return ScanRecord::End::Failed;
    if (stopped)
        return ScanRecord::End::Stopped;
    return gone ? ScanRecord::End::DiskGone : ScanRecord::End::Complete;
}

JobEnd jobEnd(ScanRecord::End end, qint64 badSectors)
{
    const QString count = text(QT_TRANSLATE_NOOP("ScanDisk", "Bad sectors: %1")).arg(badSectors);
    switch (end) {
    case ScanRecord::End::Complete:
        return {JobState::Job::Scan, badSectors > 0 ? JobEnd::Result::WithFaults : JobEnd::Result::Well,
                count};
    case ScanRecord::End::Stopped:
        return {JobState::Job::Scan, JobEnd::Result::Stopped, count};
    case ScanRecord::End::DiskGone:
        return {JobState::Job::Scan, JobEnd::Result::Failed, resultText(end)};
    default:
        return {JobState::Job::Scan, JobEnd::Result::Failed, QString()};
    }
}

QString suggestedName(const ScanRecord &record)
{
    return record.disk + record.begun.toString(QStringLiteral(" yyyy-MM-dd"));
}

qint64 badSectors(const ScanRecord &record, const BadSectorList &bad)
{
    qint64 count = 0;
    for (const SectorRun &run : mapfile::inOrder(runsOf(bad), record.total))
        count += run.count;
    return count;
}

QByteArray listText(const ScanRecord &record, const BadSectorList &bad)
{
    QStringList places;
    for (const SectorRun &run : mapfile::inOrder(runsOf(bad), record.total))
        places << runText(run);
    QStringList lines = {
        QLatin1String("Velmora Halvane: ") + text(QT_TRANSLATE_NOOP("ScanDisk", "Disk Scan")), QString(),
        // A name could contain a mark that stands for the next value.
        text(QT_TRANSLATE_NOOP("ScanDisk", "Disk:")) + QLatin1Char(' ') + record.disk};
    if (!record.serial.isEmpty())
        lines << text(QT_TRANSLATE_NOOP("ScanDisk", "Serial number:")) + QLatin1Char(' ') + record.serial;
    lines << text(QT_TRANSLATE_NOOP("ScanDisk", "Date:")) + QLatin1Char(' ') + timeText(record.begun)
          << text(QT_TRANSLATE_NOOP("ScanDisk", "Scanned: the first %1 of %2 sectors"))
                 .arg(record.scanned)
                 .arg(record.total)
          << text(QT_TRANSLATE_NOOP("ScanDisk", "Result:")) + QLatin1Char(' ') + resultText(record.end)
          << text(QT_TRANSLATE_NOOP("ScanDisk", "Bad sectors: %1")).arg(badSectors(record, bad)) << QString();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly | QIODevice::Text); // CR LF on Windows
    buffer.write((lines + places).join(QLatin1Char('\n')).toUtf8() + '\n');
    return bytes;
}

QByteArray mapText(const ScanRecord &record, const BadSectorList &bad)
{
    return mapfile::text(runsOf(bad), record.scanned, record.total);
}

bool save(const QString &path, const ScanRecord &record, const BadSectorList &bad)
{
    const bool asMap = path.endsWith(MapEnding, Qt::CaseInsensitive);
    return ownfiles::saveFile(path, asMap ? mapText(record, bad) : listText(record, bad));
}

} // namespace scanrecord
