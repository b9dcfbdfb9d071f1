// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/DiskRecords.h"

#include <QString>

#include <vector>

/// What the Clone Disk screen shows of the disks that it offers.
namespace clonetexts
{

/// The texts of the detail labels of one disk, each a caption and a value.
struct Details {
    QString diskNumber;
    QString model;
    QString serial;
    QString firmware;
    QString interfaceType;
    QString capacity;
    QString sectors;
};

/// The captions without values, as they stand while no disk is chosen.
Details captions();

/// `record` is the disk's line of the system's disk table, null if there is none. What is not known reads
/// "Not Available", an interface without a name "ATA Disk".
Details details(const DiskNode &node, const WmicDiskRecord *record);

struct Destination {
    QString text;
    int diskId = 0; ///< DiskNode::nId
};

/// The physical disks of a list, in its order, but for the source. The texts are those of the drive combo, so
/// that two disks of one model can be told apart.
std::vector<Destination> destinations(const RecordList<DiskNode> &disks, int sourceId);

} // namespace clonetexts
