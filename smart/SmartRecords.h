#pragma once

#include "state/FixedText.h"

#include <cstdint>

/// One row of an ATA drive's attribute table. Every row bears the drive's identity too, so any one node can
/// describe the drive. A value that the report does not have is an empty text or 0.
struct SmartAttributeRecord {
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
    std::uint32_t Id = 0;
    FixedText<256> AttributeName; ///< with its underscores
    FixedText<128> Flag;
    std::uint32_t Value = 0;
    std::uint32_t Worst = 0;
    std::uint32_t Threshold = 0;
    FixedText<128> Type;
    FixedText<128> Updated;
    FixedText<256> WhenFailed;
    FixedText<128> RawValue; ///< first word of the raw column
    SmartAttributeRecord *Next = nullptr;
};

/// One line of an NVMe drive's health log, with the drive's identity.
struct NvmeAttributeRecord {
    FixedText<128> ModelFamily; ///< always empty
    FixedText<128> ModelNumber;
    FixedText<128> SerialNumber;
    FixedText<128> Firmware;
    FixedText<32> Capacity; ///< "500 GB"
    FixedText<32> LbaSize;  ///< "512 bytes"
    FixedText<128> LocalTime;
    FixedText<32> MaxTransferSize;
    FixedText<200> Name;
    FixedText<200> Value;
    NvmeAttributeRecord *Next = nullptr;
};

/// Frees a whole list of attribute records and nulls its head and tail.
template<typename Record>
void freeRecords(Record *&head, Record *&tail)
{
    while (head) {
        Record *next = head->Next;
        delete head;
        head = next;
    }
    tail = nullptr;
}

/// Appends a copy of `record` to a list, which owns the copy.
template<typename Record>
Record *appendRecord(Record *&head, Record *&tail, const Record &record)
{
    auto *node = new Record(record);
    node->Next = nullptr;
    if (tail)
        tail->Next = node;
    else
        head = node;
    tail = node;
    return node;
}
