// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/RescueMap.h"

#include "inventory/MapFile.h"
#include "platform/OwnFiles.h"

namespace rescuemap
{

QByteArray text(const LostSectors &lost, qint64 total)
{
    if (lost.unconfirmed)
        return mapfile::text({}, 0, total);
    std::vector<SectorRun> found = lost.unread.runs();
    const std::vector<SectorRun> &more = lost.unwritten.runs();
    found.insert(found.end(), more.begin(), more.end());
    return mapfile::text(found, total, total);
}

bool save(const QString &path, const LostSectors &lost, qint64 total)
{
    return ownfiles::saveFile(path, text(lost, total));
}

} // namespace rescuemap
