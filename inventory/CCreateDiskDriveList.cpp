// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CCreateDiskDriveList.h"

#include "inventory/AtaIdentity.h"
#include "inventory/RawAccess.h"
#include "platform/IoControl.h"
#include "platform/Log.h"
#include "state/GlobalApp.h"

namespace
{

/// Whether there is a disk that would be listed if this process had the rights to open it.
bool isDiskDenied()
{
    for (int number = 0; number < CCreateDiskDriveList::ListedDisks; ++number) {
        if (Platform::current().IsAccessDenied(diskName(PhysicalDriveBase + number)))
            return true;
    }
    return false;
}

} // namespace

CCreateDiskDriveList::CCreateDiskDriveList()
{
    g_App.m_diskList.clear();
    g_linuxPartitions.clear();
    g_App.m_nNextLogicalId = FirstLogicalId;
}

void CCreateDiskDriveList::BuildDriveList()
{
    Platform::current().BeginListing();
    m_driveStrings = Platform::current().GetLogicalDriveStringsW();
    probeDisks();
    appendPhysicalNodes(m_fixed, FixedDisk);
    appendPhysicalNodes(m_removable, RemovableDisk);
    g_App.m_bAccessDenied = g_App.m_diskList.isEmpty() && isDiskDenied();
    appendVolumeNodes();
    for (DiskNode &node : g_App.m_diskList)
        tieVolumeToDisk(&node, &m_extents);
    appendLinuxNodes();
}

void CCreateDiskDriveList::probeDisks()
{
    for (int number = 0; number < ProbedDisks; ++number) {
        const Platform::RawHandle handle = OpenDisk(PhysicalDriveBase + number);
        if (handle == Platform::InvalidHandle)
            continue;
        io::DiskGeometry geometry{};
        askTarget(handle, io::DiskGetDriveGeometry, &geometry);
        Platform::current().CloseHandle(handle);
        if (geometry.mediaType == io::MediaFixed)
            m_fixed.insert(number, geometry.bytesPerSector);
        else if (geometry.mediaType == io::MediaRemovable)
            m_removable.insert(number, geometry.bytesPerSector);
    }
    g_App.m_nFixedDisks = static_cast<quint8>(m_fixed.size());
    g_App.m_nRemovableDisks = static_cast<quint8>(m_removable.size());
    qCDebug(logs::inventory) << "disks that open:" << m_fixed.keys() << "removable:" << m_removable.keys();
}

void CCreateDiskDriveList::appendPhysicalNodes(const ProbeTable &table, DiskKind kind)
{
    for (auto disk = table.cbegin(); disk != table.cend() && disk.key() < ListedDisks; ++disk) {
        const int driveCode = PhysicalDriveBase + disk.key();
        DiskNode &node = g_App.m_diskList.append();
        node.nId = static_cast<quint16>(driveCode);
        node.nKind = kind;
        node.pDetails = std::make_unique<DiskDetails>();
        DiskDetails &details = *node.pDetails;
        details.nDevice = static_cast<quint8>(driveCode);
        details.nSectorFactor = static_cast<quint32>(disk.value() / SectorSize);
        const DiskMark mark = ReadDiskMark(driveCode);
        details.nTotalSectors = mark.sectors;
        details.szSerial = mark.serial;
        details.szCapacity = capacityText(mark.sectors * SectorSize, QStringLiteral("KB"));
        if (kind == FixedDisk) {
            details.pIdentity = std::make_unique<DiskIdentity>();
            ReadAtaIdentity(driveCode, details.pIdentity.get());
        }
        details.szDrives = QStringLiteral("Drive: ") + driveLetters(driveCode);
    }
}

QString CCreateDiskDriveList::driveLetters(int driveCode)
{
    QString letters;
    for (const QString &root : m_driveStrings) {
        // The first extent alone counts, so that a spanned volume stands with one disk.
        if (root.isEmpty())
            continue;
        const std::optional<VolumeExtents> extents = m_extents.of(root.at(0).toUpper());
        if (extents && extents->diskNumber + PhysicalDriveBase == static_cast<quint32>(driveCode))
            letters += root.left(2) + QLatin1Char(' ');
    }
    return letters;
}

void CCreateDiskDriveList::appendVolumeNodes()
{
    RemovableDisks removable;
    removable.count = g_App.m_nRemovableDisks;
    removable.first = g_App.m_diskList.find([](const DiskNode &node) { return node.nKind == RemovableDisk; });
    for (const QString &root : m_driveStrings.mid(0, Letters)) {
        if (root.isEmpty())
            return;
        appendLogicalNode(makeVolumeNode(root, removable));
    }
}

void CCreateDiskDriveList::appendLinuxNodes()
{
    // The nodes that come are none of physical disks, so the list may grow under the loop.
    int number = 0;
    for (const DiskNode &disk : g_App.m_diskList) {
        if (!isPhysicalKind(disk.nKind))
            continue;
        ResetPartitionWalk();
        ScanPartitionTable(disk.nId, 0);
        for (const LinuxPartitionEntry &entry : g_linuxPartitions)
            appendLogicalNode(makeLinuxNode(entry, ++number));
    }
}

void CCreateDiskDriveList::appendLogicalNode(std::unique_ptr<DiskNode> node)
{
    if (!node)
        return;
    node->nId = g_App.m_nNextLogicalId++;
    g_App.m_diskList.append(std::move(*node));
}
