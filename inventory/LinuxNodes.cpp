// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/LinuxNodes.h"

#include "inventory/BootSector.h"
#include "inventory/Capacity.h"

namespace
{

constexpr quint64 SuperblockSector = 2;

QString displayName(const LinuxPartitionEntry &entry, int number)
{
    const QString name =
        bootsector::extName(bootsector::readSector(entry.nDrive, entry.nStartSector + SuperblockSector));
    return name.isEmpty() ? QStringLiteral("Volume %1").arg(number) : name;
}

} // namespace

std::unique_ptr<DiskNode> makeLinuxNode(const LinuxPartitionEntry &entry, int number)
{
    auto node = std::make_unique<DiskNode>();
    node->nKind = LinuxPartition;
    node->pLogical = std::make_unique<LogicalDetails>();
    LogicalDetails &details = *node->pLogical;
    details.nStartSector = entry.nStartSector;
    details.nSectorCount = entry.nSectorCount;
    details.nEndSector = entry.nEndSector;
    details.nFsCode = entry.nType;
    details.nParentId = entry.nDrive;
    details.nTotalBytes = entry.nSectorCount * bootsector::SectorSize;
    details.szFileSystem = QStringLiteral("EXTx");
    details.szType = QStringLiteral("FIXED");
    details.szLabel = QStringLiteral("Linux Disk");
    details.szRoot = displayName(entry, number);
    details.szCapacity = capacityText(details.nTotalBytes, QStringLiteral("MB"));
    return node;
}
