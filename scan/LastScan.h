// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scan/ScanRecord.h"

#include <QHash>
#include <QString>

/// The last whole scan of each disk, kept in the file `scans.json` of the platform's state folder for the
/// companion. Any thread; one process at a time writes.
struct LastScan {
    qint64 when = 0; ///< its end, ms since 1970
    qint64 badSectors = 0;
};

namespace lastscan
{

/// Keeps a scan that reached the end of its disk; others, and disks without a serial number, are left out.
void keep(const ScanRecord &record, qint64 badSectors);

/// By serial number, as the disk's report tells it.
QHash<QString, LastScan> load();

} // namespace lastscan
