// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/FixedText.h"
#include "state/RecordList.h"

#include <QString>
#include <QVector>

#include <memory>

/// The disk records that cross screens. All of them hang in singly linked lists that are freed and rebuilt at
/// every device load: keep an id, never a pointer, across a load.
///
/// Disk numbering: N is the operating system's disk number; the drive code, DiskNode::nId,
/// WmicDiskRecord::nDiskId and a combo item's data are all 128 + N. A drive code below 128 is a drive letter,
/// 0 for A.

constexpr int PhysicalDriveBase = 128;

/// Kinds of a DiskNode.
enum DiskKind : quint8 {
    FixedDisk = 0,
    VolumeNode = 1,
    RemovableDisk = 4,
    RawVolume = 15,
    LinuxPartition = 24
};

/// True for the kinds 0 and 4: a test that accepts physical disks masks with 251.
constexpr bool isPhysicalKind(quint8 kind)
{
    return (kind & 251u) == 0;
}

/// One row of a drive's own attribute table, as the drive's interface gives it.
struct IdentityAttribute {
    IdentityAttribute *pNext = nullptr;
    quint8 nAttrId = 0;
    QString szNameIndex; ///< decimal text
    quint32 nCurrent = 0;
    quint32 nThreshold = 0;
    quint32 nWorst = 0;
    quint8 nState = 0; ///< 1 above the threshold, 2 at it, 3 below it
};

/// What the drive's own interface says of a fixed disk.
struct DiskIdentity {
    RecordList<IdentityAttribute> attributes;
    FixedText<41> szModel;
    FixedText<21> szSerial;
    FixedText<9> szFirmware;
    quint32 nTemperature = 0; ///< first raw byte of attribute 194, 0 if absent
    quint16 nTemperatureCopy = 0;
    quint8 bSmartEnabled = 0;
    quint8 nThresholdState = 0; ///< worst state of the attribute list
    quint16 nCylinders = 0;
    quint16 nHeads = 0;
    quint16 nSectors = 0;
    quint32 nTotalLba = 0; ///< capped by its 32-bit field
    quint8 nAttributeCount = 0;
};

/// Details of a physical disk.
struct DiskDetails {
    quint8 nDevice = 0;                      ///< low byte of the node's nId
    qint64 hDisk = 0;                        ///< open handle of the clone engine, else zero
    quint64 nTotalSectors = 0;               ///< sectors of 512 bytes
    QString szSerial;                        ///< as the system tells it; empty where it does not
    quint32 nSectorFactor = 0;               ///< bytes per sector of the drive, divided by 512
    QString szCapacity;                      ///< "931.51 GB"
    QString szDrives;                        ///< "Drive: " and each letter with colon and a blank
    std::unique_ptr<DiskIdentity> pIdentity; ///< null for a removable disk
};

/// Details of a volume or a Linux partition. Sectors of 512 bytes.
struct LogicalDetails {
    quint8 nLetter = 0;
    QString szRoot;
    QString szLabel;
    QString szType;
    quint64 nFreeBytes = 0;
    quint64 nTotalBytes = 0;
    QString szFileSystem;
    quint8 bSpanned = 0;
    quint8 nParentId = 0;
    quint64 nStartSector = 0;
    quint64 nSectorCount = 0;
    quint64 nEndSector = 0;
    quint8 nFsCode = 0;
    quint8 nFsClass = 0;
    QString szCapacity;
    QVector<int> disks; ///< numbers of the disks that its extents name; empty where they are not known
};

/// One node for each physical disk (fixed, then removable), then one for each volume and Linux partition.
struct DiskNode {
    DiskNode *pNext = nullptr;
    quint16 nId = 0;
    quint8 nKind = FixedDisk;
    std::unique_ptr<DiskDetails> pDetails;    ///< physical kinds only
    std::unique_ptr<LogicalDetails> pLogical; ///< the other kinds only
    QString szDisplay;
    FixedText<32> szSize;      ///< capacity as shown; empty means no size
    quint32 nDisplayBytes = 0; ///< length of szDisplay in bytes of 16-bit characters
};

/// One line of the system's disk table, joined with the identity that the SMART report gives.
struct WmicDiskRecord {
    quint32 nIndex = 0;
    FixedText<128> szModel;
    FixedText<32> szInterface;
    FixedText<28> szStatus;
    FixedText<128> szSmartModel;
    FixedText<128> szSmartSerial;
    FixedText<128> szSmartFirmware;
    quint32 nDiskId = 0; ///< nIndex + 128
    WmicDiskRecord *pNext = nullptr;
};

/// One line of the system's volume table.
struct LogicalDiskRecord {
    FixedText<5> szCaption; ///< "C:"
    qint64 nFreeBytes = 0;
    qint64 nSizeBytes = 0;
    qint32 nDiskIndex = 0; ///< paired by position with the partition table's disk numbers
    FixedText<32> szFileSystem;
    FixedText<32> szBitLocker; ///< "YES", "NO" or empty
    LogicalDiskRecord *pNext = nullptr;
};
