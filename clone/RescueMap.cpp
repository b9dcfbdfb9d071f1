// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/RescueMap.h"

#include "inventory/RawAccess.h"
#include "platform/OwnFiles.h"

#include <algorithm>

namespace rescuemap
{

namespace
{

constexpr char Finished = '+';
constexpr char Bad = '-';
constexpr char NotTried = '?';

QByteArray hex(qint64 sectors)
{
    return "0x" + QByteArray::number(sectors * SectorSize, 16).toUpper().rightJustified(8, '0');
}

void addLine(QByteArray &map, const SectorRun &run, char status)
{
    if (run.count > 0)
        map += hex(run.first) + "  " + hex(run.count) + "  " + status + '\n';
}

/// Both lists in the order of the disk, neighbours as one.
std::vector<SectorRun> allRuns(const LostSectors &lost)
{
    std::vector<SectorRun> found = lost.unread.runs();
    const std::vector<SectorRun> &more = lost.unwritten.runs();
    found.insert(found.end(), more.begin(), more.end());
    std::sort(found.begin(), found.end(),
              [](const SectorRun &a, const SectorRun &b) { return a.first < b.first; });
    SectorRuns merged;
    for (const SectorRun &run : found)
        merged.add(run.first, run.count);
    return merged.runs();
}

} // namespace

QByteArray text(const LostSectors &lost, qint64 total)
{
    QByteArray map = "# Mapfile. Created by Velmora Halvane\n"
                     "# current_pos  current_status  current_pass\n";
    map += lost.unconfirmed ? "0x00000000     ?               1\n" : "0x00000000     +               1\n";
    map += "#      pos        size  status\n";
    if (lost.unconfirmed) {
        addLine(map, {0, total}, NotTried);
        return map;
    }
    qint64 told = 0;
    for (const SectorRun &run : allRuns(lost)) {
        addLine(map, {told, run.first - told}, Finished);
        addLine(map, run, Bad);
        told = run.first + run.count;
    }
    addLine(map, {told, total - told}, Finished);
    return map;
}

bool save(const QString &path, const LostSectors &lost, qint64 total)
{
    return ownfiles::saveFile(path, text(lost, total));
}

} // namespace rescuemap
