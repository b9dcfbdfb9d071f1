// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/CloneTargets.h"

#include "platform/IoControl.h"
#include "state/DiskRecords.h"

#include <algorithm>
#include <cstring>

namespace
{

constexpr qint64 SectorBytes = 512;
constexpr qint64 Looks = 16;               ///< sectors to try on a disk that nothing was read from yet
constexpr quint64 Scatter = 2654435761ULL; ///< spreads them, so that they meet no pattern of bad sectors

} // namespace

CloneTarget::CloneTarget(DiskDetails &details)
    : m_details(details), m_driveCode(details.nDevice), m_handle(OpenDisk(m_driveCode))
{
    m_details.hDisk = m_handle;
    io::DiskGeometry geometry{};
    quint32 returned = 0;
    if (isOpen() && Platform::current().DeviceIoControl(m_handle, io::DiskGetDriveGeometry, nullptr, 0,
                                                        &geometry, sizeof geometry, &returned))
        m_unit = std::max<qint64>(1, geometry.bytesPerSector / SectorBytes);
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
                            static_cast<quint32>(sectors * SectorBytes), m_handle, write, moved);
}

bool CloneSource::read(qint64 sector, char *buffer, qint64 wanted, qint64 room)
{
    quint32 got = 0;
    if (!transfer(sector, buffer, room, false, &got) || got < wanted * SectorBytes)
        return false;
    // Behind the source's end the destination gets zeros, not what an earlier read left in the buffer.
    std::memset(buffer + got, 0, static_cast<std::size_t>(room * SectorBytes - got));
    m_good = sector;
    return true;
}

bool CloneSource::answers(qint64 total)
{
    if (isGone())
        return false;
    QByteArray sector(static_cast<int>(unit() * SectorBytes), '\0');
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
    if (!transfer(sector, buffer, room, true, &put) || put < wanted * SectorBytes)
        return false;
    const qint64 kept = std::min(room, unit()) * SectorBytes;
    m_goodSector = sector;
    m_good = QByteArray(buffer, static_cast<int>(kept));
    return true;
}

bool CloneDestination::answers()
{
    quint32 put = 0;
    return m_goodSector >= 0 && !isGone() &&
           transfer(m_goodSector, m_good.data(), m_good.size() / SectorBytes, true, &put) && put > 0;
}
