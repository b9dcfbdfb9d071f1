// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/MapFile.h"

#include "inventory/RawAccess.h"

#include <algorithm>

namespace mapfile
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

void addLine(QByteArray &map, qint64 from, qint64 to, char status)
{
    if (from < to)
        map += hex(from) + "  " + hex(to - from) + "  " + status + '\n';
}

} // namespace

std::vector<SectorRun> inOrder(std::vector<SectorRun> runs, qint64 total)
{
    std::sort(runs.begin(), runs.end(),
              [](const SectorRun &a, const SectorRun &b) { return a.first < b.first; });
    SectorRuns merged;
    qint64 told = 0;
    for (const SectorRun &run : runs) {
        const qint64 first = std::max(run.first, told);
        const qint64 end = std::min(run.first + run.count, total);
        if (first < end)
            merged.add(first, end - first);
        told = std::max(told, end);
    }
    return merged.runs();
}

QByteArray text(const std::vector<SectorRun> &bad, qint64 tried, qint64 total)
{
    const bool whole = tried >= total;
    QByteArray map = "# Mapfile. Created by Velmora Halvane\n"
                     "# current_pos  current_status  current_pass\n";
    map += hex(whole ? 0 : tried) + "     " + (whole ? Finished : NotTried) + "               1\n";
    map += "#      pos        size  status\n";
    qint64 told = 0;
    const auto addSound = [&map, &told, tried](qint64 end) {
        const qint64 turn = std::clamp(tried, told, end);
        addLine(map, told, turn, Finished);
        addLine(map, turn, end, NotTried);
    };
    for (const SectorRun &run : inOrder(bad, total)) {
        addSound(run.first);
        told = run.first + run.count;
        addLine(map, run.first, told, Bad);
    }
    addSound(std::max(told, total));
    return map;
}

} // namespace mapfile
