// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/DiskRecords.h"

#include <QString>

#include <vector>

/// The texts under which a physical disk stands in the drive combos.
namespace drivetexts
{

struct ComboTexts {
    QString drive;  ///< item of the main window's combo
    QString source; ///< item of the clone source combo
};

/// The texts of a physical node. `record` is its line of the system's disk table, null if there is none;
/// `size` is the disk's size text.
ComboTexts comboTexts(const DiskNode &node, const WmicDiskRecord *record, const QString &size);

struct Entry {
    const DiskNode *node;
    ComboTexts texts;
};

/// The physical disks of a list, in its order, each with texts that no other one has: where two read alike,
/// the drive's text ends in the disk's number, and the source has the text of the drive.
std::vector<Entry> entries(const RecordList<DiskNode> &disks);

/// Writes szSize, szDisplay (identity model and serial, or "Removable Drive") and nDisplayBytes of a physical
/// node.
void fillDisplayFields(DiskNode &node);

/// The same of all physical nodes of a list. g_strSelectedSize becomes the size of the last one.
void fillDisplayFields(RecordList<DiskNode> &disks);

} // namespace drivetexts
