// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/SmartRecords.h"

#include <QString>

#include <vector>

/// What the attribute tree shows of a report, and what the history keeps of it.

/// One row of the tree.
struct AttributeRow {
    QString key;                ///< names the row in history and graph; never translated, once per table
    QString historyValue;       ///< what the history keeps of the row
    std::vector<QString> cells; ///< by tree column, up to and with the hidden one of the key
    int redCell = -1;           ///< column whose text is red, -1: none
};

/// A row for each record of the list, in its order.
std::vector<AttributeRow> ataRows(const SmartAttributeList &rows);
std::vector<AttributeRow> nvmeRows(const NvmeAttributeList &rows);

/// Status in the tree: a value has to be above its threshold. The temperature row (194) is judged by its raw
/// value, whole °C.
bool attributeFailed(const SmartAttributeRecord &record);

/// Status in the printed report, which differs: a value equal to its threshold is still good.
bool reportStatusFailed(const SmartAttributeRecord &record);

/// Whether the raw value is red: sectors that are bad or about to be. The printed report knows fewer keys, in
/// any case of letters. The key is in no language, so both hold in every one.
bool redInTree(const QString &key, const QString &raw);
bool redInReport(const QString &key, const QString &raw);

/// The number of an NVMe value without grouping, unit and remarks: "1,234,567 [632 GB]" gives "1234567", with
/// whatever stands between the groups.
QString cleanedNvmeValue(const QString &value);
