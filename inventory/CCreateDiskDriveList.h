// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/VolumeNodes.h"

#include <QMap>
#include <QStringList>

/// Builds the list of storage objects in g_App from the operating system's answers alone. Made on the stack,
/// used once and dropped; the list outlives it. Runs on a device-load thread, one at a time.
class CCreateDiskDriveList
{
public:
    static constexpr int ProbedDisks = 128; ///< disk numbers that are tried
    static constexpr int ListedDisks = 24;  ///< disk numbers that can become nodes
    static constexpr int Letters = 26;      ///< volumes that can become nodes
    static constexpr quint16 FirstLogicalId = 257;

    /// Frees the previous list, and the Linux partitions that the last walk found.
    CCreateDiskDriveList();
    virtual ~CCreateDiskDriveList() = default;
    CCreateDiskDriveList(const CCreateDiskDriveList &) = delete;
    CCreateDiskDriveList &operator=(const CCreateDiskDriveList &) = delete;

    /// Fills the list: fixed disks, removable disks, volumes, Linux partitions. What does not open or answer
    /// is left out silently.
    void BuildDriveList();

private:
    /// The physical disks of one class: bytes per sector by disk number.
    using ProbeTable = QMap<int, quint32>;

    void probeDisks();
    void appendPhysicalNodes(const ProbeTable &table, DiskKind kind);
    QString driveLetters(int driveCode);
    void appendVolumeNodes();
    void appendLinuxNodes();
    void appendLogicalNode(std::unique_ptr<DiskNode> node);

    QStringList m_driveStrings;
    KnownExtents m_extents;
    ProbeTable m_fixed;
    ProbeTable m_removable;
};
