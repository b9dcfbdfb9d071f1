// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/CloneTargets.h"

#include "platform/IoControl.h"
#include "platform/Log.h"
#include "state/DiskRecords.h"

#include <algorithm>
#include <cstring>

namespace
{

constexpr qint64 Looks = 16;               ///< sectors to try on a disk that nothing was read from yet
constexpr quint64 Scatter = 2654435761ULL; ///< spreads them, so that they meet no pattern of bad sectors

} // namespace

CloneTarget::CloneTarget(DiskDetails &details)
    : m_details(details), m_driveCode(details.nDevice), m_handle(OpenDisk(m_driveCode))
{
    m_details.hDisk = m_handle;
    io::DiskGeometry geometry{};
    if (!isOpen())
        qCDebug(logs::clone) << "the disk does not open:" << diskName(m_driveCode);
    else if (askTarget(m_handle, io::DiskGetDriveGeometry, &geometry))
        m_unit = std::max<qint64>(1, geometry.bytesPerSector / SectorSize);
}

CloneTarget::~CloneTarget()
{
    if (isOpen())
        Platform::current().CloseHandle(m_handle);
    m_details.hDisk = 0;
}

bool CloneTarget::transfer(qint64 sector, void *buffer, qint64 sectors, bool write, quint32 *moved) const
{
    return ReadWriteSectors(m_driveCode, static_cast<quint64>(sector), buffer,
                            static_cast<quint32>(sectors * SectorSize), m_handle, write, moved);
}

bool CloneSource::read(qint64 sector, char *buffer, qint64 wanted, qint64 room)
{
    quint32 got = 0;
    if (!transfer(sector, buffer, room, false, &got) || got < wanted * SectorSize)
        return false;
    // Behind the source's end the destination gets zeros, not what an earlier read left in the buffer.
    std::memset(buffer + got, 0, static_cast<std::size_t>(room * SectorSize - got));
    m_good = sector;
    return true;
}

bool CloneSource::answers(qint64 total)
{
    if (isGone())
        return false;
    QByteArray sector(static_cast<int>(unit() * SectorSize), '\0');
    if (m_good >= 0 && read(m_good, sector.data(), 1, unit()))
        return true;
    for (qint64 look = 1; look <= Looks; ++look) {
        const auto place =
            static_cast<qint64>(static_cast<quint64>(look) * Scatter % static_cast<quint64>(total));
        if (read(place / unit() * unit(), sector.data(), 1, unit()))
            return true;
    }
    return false;
}

bool CloneDestination::write(qint64 sector, char *buffer, qint64 wanted, qint64 room)
{
    quint32 put = 0;
    if (!transfer(sector, buffer, room, true, &put) || put < wanted * SectorSize)
        return false;
    const qint64 kept = std::min(room, unit()) * SectorSize;
    m_goodSector = sector;
    m_good = QByteArray(buffer, static_cast<int>(kept));
    return true;
}

bool CloneDestination::answers()
{
    quint32 put = 0;
    return m_goodSector >= 0 && !isGone() &&
           transfer(m_goodSector, m_good.data(), m_good.size() / SectorSize, true, &put) && put > 0;
}
