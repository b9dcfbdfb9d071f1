#include "inventory/CCreateDiskDriveList.h"

#include "app/state/GlobalApp.h"
#include "inventory/AtaIdentity.h"
#include "inventory/Capacity.h"
#include "inventory/RawAccess.h"
#include "platform/IoControl.h"

namespace
{

constexpr int SectorSize = 512;
constexpr std::size_t ExtentBytes = 1024;

/// Extents of a volume in the room that the system call gets; further ones lie behind the first.
union ExtentBuffer {
    io::VolumeDiskExtents extents;
    std::uint8_t bytes[ExtentBytes];
};

/// The drive code of the disk that holds the first extent of a volume, -1 if that cannot be told.
int firstDiskOfVolume(QChar letter)
{
    Platform &platform = Platform::current();
    const Platform::RawHandle handle =
        platform.CreateFileW(QStringLiteral("\\\\.\\%1:").arg(letter), io::GenericRead,
                             io::ShareRead | io::ShareWrite, io::OpenExisting);
    if (handle == Platform::InvalidHandle)
        return -1;
    ExtentBuffer buffer{};
    quint32 returned = 0;
    const bool answered = platform.DeviceIoControl(handle, io::VolumeGetVolumeDiskExtents, nullptr, 0,
                                                   &buffer, sizeof buffer, &returned);
    platform.CloseHandle(handle);
    if (!answered || buffer.extents.numberOfDiskExtents == 0)
        return -1;
    return static_cast<int>(buffer.extents.extents[0].diskNumber) + PhysicalDriveBase;
}

} // namespace

CCreateDiskDriveList::CCreateDiskDriveList()
{
    g_App.freeDiskList();
    g_App.m_nNextLogicalId = FirstLogicalId;
}

void CCreateDiskDriveList::BuildDriveList()
{
    m_driveStrings = Platform::current().GetLogicalDriveStringsW();
    probeDisks();
    appendPhysicalNodes(m_fixed, FixedDisk);
    appendPhysicalNodes(m_removable, RemovableDisk);
}

void CCreateDiskDriveList::probeDisks()
{
    m_fixed = {};
    m_removable = {};
    g_App.m_nFixedDisks = 0;
    g_App.m_nRemovableDisks = 0;
    Platform &platform = Platform::current();
    for (int number = 0; number < ProbedDisks; ++number) {
        const Platform::RawHandle handle = OpenDisk(PhysicalDriveBase + number);
        if (handle == Platform::InvalidHandle)
            continue;
        io::DiskGeometry geometry{};
        quint32 returned = 0;
        platform.DeviceIoControl(handle, io::DiskGetDriveGeometry, nullptr, 0, &geometry, sizeof geometry,
                                 &returned);
        platform.CloseHandle(handle);
        const auto note = [&](ProbeTable &table, std::uint8_t &count) {
            table.found[static_cast<std::size_t>(number)] = true;
            table.bytesPerSector.insert(number, static_cast<int>(geometry.bytesPerSector));
            ++count;
        };
        if (geometry.mediaType == io::MediaFixed)
            note(m_fixed, g_App.m_nFixedDisks);
        else if (geometry.mediaType == io::MediaRemovable)
            note(m_removable, g_App.m_nRemovableDisks);
    }
}

void CCreateDiskDriveList::appendPhysicalNodes(const ProbeTable &table, DiskKind kind)
{
    for (int number = 0; number < ListedDisks; ++number) {
        if (table.found[static_cast<std::size_t>(number)])
            appendToList(g_App.m_pDiskListHead, g_App.m_pDiskListTail,
                         makePhysicalNode(number, kind, table.bytesPerSector.value(number)));
    }
}

DiskNode *CCreateDiskDriveList::makePhysicalNode(int number, DiskKind kind, int bytesPerSector) const
{
    const int driveCode = PhysicalDriveBase + number;
    auto *node = new DiskNode;
    node->nId = static_cast<std::uint16_t>(driveCode);
    node->nKind = kind;
    node->pDetails = std::make_unique<DiskDetails>();
    DiskDetails &details = *node->pDetails;
    details.nDevice = static_cast<std::uint8_t>(driveCode);
    details.nSectorFactor = static_cast<std::uint32_t>(bytesPerSector) / SectorSize;
    quint64 sectors = 0;
    GetDiskSectorCount(driveCode, &sectors);
    details.nTotalSectors = sectors;
    details.szCapacity = capacityText(sectors * SectorSize, QStringLiteral("KB"));
    if (kind == FixedDisk) {
        details.pIdentity = std::make_unique<DiskIdentity>();
        ReadAtaIdentity(driveCode, details.pIdentity.get());
    }
    details.szDrives = QStringLiteral("Drive: ") + driveLetters(driveCode);
    return node;
}

QString CCreateDiskDriveList::driveLetters(int driveCode) const
{
    QString letters;
    for (const QString &root : m_driveStrings) {
        // The first extent alone counts, so that a spanned volume stands with one disk.
        if (!root.isEmpty() && firstDiskOfVolume(root.at(0)) == driveCode)
            letters += root.left(2) + QLatin1Char(' ');
    }
    return letters;
}
