#pragma once

#include "app/state/DiskRecords.h"

#include <QString>

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

/// The node's own display name: identity model and serial, or "Removable Drive".
QString displayName(const DiskNode &node);

/// Writes szSize, szDisplay and nDisplayBytes of a physical node.
void fillDisplayFields(DiskNode &node);

} // namespace drivetexts
