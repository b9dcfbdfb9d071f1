// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/DiskRecords.h"

#include <QString>

#include <optional>

/// What the identity fields of Disk Status show for the selected disk. A field without a value keeps what it
/// showed before.
struct DiskIdentityTexts {
    QString diskNumber;
    std::optional<QString> model;
    std::optional<QString> serial;
    std::optional<QString> firmware;
    std::optional<QString> interfaceText;
    std::optional<QString> sectors;
    std::optional<QString> summary; ///< serial, interface and capacity in one line, for the main window
};

/// What the latest report says of the selected disk.
struct ReportIdentity {
    QString model;
    QString serial;
    QString firmware;
    bool smartAvailable = false;
};

/// After a report was read. `node` and `record` may be null.
DiskIdentityTexts identityTextsAfterRead(const DiskNode *node, const WmicDiskRecord *record, int diskNumber,
                                         const ReportIdentity &report);

/// After a change of language, from the records alone: the serial and the firmware come from other fields
/// there.
DiskIdentityTexts identityTextsAfterLanguageChange(const DiskNode *node, const WmicDiskRecord *record,
                                                   int diskNumber);
