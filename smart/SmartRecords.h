// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/FixedText.h"
#include "state/RecordList.h"

/// What an ATA report says of its drive. A value that the report does not have is an empty text.
struct SmartIdentity {
    FixedText<128> ModelFamily;
    FixedText<128> DeviceModel;
    FixedText<128> SerialNumber;
    FixedText<128> Wwn; ///< empty where the model is
    FixedText<128> Firmware;
    FixedText<32> UserCapacity; ///< "500 GB"
    FixedText<32> SectorSize;   ///< logical; "512 bytes " with its trailing blank
    FixedText<32> RotationRate;
    FixedText<128> AtaVersion;
    FixedText<128> SataVersion;
    FixedText<128> LocalTime;
    FixedText<32> SmartSupport;
    FixedText<128> OfflineStatus;  ///< "Never Started", "Successfully Completed" or empty
    FixedText<128> SelfTestStatus; ///< "Successfully Completed" or empty
    FixedText<128> OfflineTotalTime;
    FixedText<128> ShortPollTime;
    FixedText<128> ExtendedPollTime;
    FixedText<128> ConveyancePollTime;
};

/// One row of an ATA drive's attribute table. What the row does not have is an empty text or 0.
struct SmartAttributeRecord {
    quint32 Id = 0;
    FixedText<256> AttributeName; ///< with its underscores
    FixedText<128> Flag;
    quint32 Value = 0;
    quint32 Worst = 0;
    quint32 Threshold = 0;
    FixedText<128> Type;
    FixedText<128> Updated;
    FixedText<256> WhenFailed;
    FixedText<128> RawValue; ///< first word of the raw column
    SmartAttributeRecord *Next = nullptr;

    /// The name by which the attribute goes in catalogue, history and graph: that of the report with blanks
    /// for underscores. Never translated.
    QString key() const { return AttributeName.text().replace(QLatin1Char('_'), QLatin1Char(' ')); }
};

/// What an NVMe report says of its drive.
struct NvmeIdentity {
    FixedText<128> ModelNumber;
    FixedText<128> SerialNumber;
    FixedText<128> Firmware;
    FixedText<32> Capacity; ///< "500 GB"
    FixedText<32> LbaSize;  ///< "512 bytes"
    FixedText<128> LocalTime;
    FixedText<32> MaxTransferSize;
};

/// One line of an NVMe drive's health log.
struct NvmeAttributeRecord {
    FixedText<200> Name;
    FixedText<200> Value;
    NvmeAttributeRecord *Next = nullptr;
};

/// What a report says of its drive and in its table.
template<typename Drive, typename Record>
struct AttributeTable {
    using Row = Record;

    Drive drive; ///< as it is told up to the first row; empty without rows
    RecordList<Record, &Record::Next> rows;
    bool passed = false; ///< a line ahead of the table holds "PASSED"
};
using SmartTable = AttributeTable<SmartIdentity, SmartAttributeRecord>;
using NvmeTable = AttributeTable<NvmeIdentity, NvmeAttributeRecord>;
using SmartAttributeList = decltype(SmartTable::rows);
using NvmeAttributeList = decltype(NvmeTable::rows);
