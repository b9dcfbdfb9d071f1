// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

/// The device control codes that the program sends, and the records that go in and out. The records have the
/// layout that the operating system gives them, so that a platform may pass them straight through.
namespace io
{

constexpr std::uint32_t DiskGetDriveGeometry = 0x70000;
constexpr std::uint32_t DiskGetDriveGeometryEx = 0x700A0;
constexpr std::uint32_t VolumeGetVolumeDiskExtents = 0x560000;
constexpr std::uint32_t StorageQueryProperty = 0x2D1400;
constexpr std::uint32_t SmartGetVersion = 0x74080;
constexpr std::uint32_t SmartSendDriveCommand = 0x7C084;
constexpr std::uint32_t SmartRcvDriveData = 0x7C088;

constexpr std::uint32_t GenericRead = 0x80000000u;
constexpr std::uint32_t GenericWrite = 0x40000000u;
constexpr std::uint32_t ShareRead = 1;
constexpr std::uint32_t ShareWrite = 2;
constexpr std::uint32_t ShareDelete = 4;
constexpr std::uint32_t CreateNew = 1;
constexpr std::uint32_t OpenExisting = 3;

constexpr std::uint32_t MediaUnknown = 0;
constexpr std::uint32_t MediaRemovable = 11;
constexpr std::uint32_t MediaFixed = 12;

/// Answers of GetDriveTypeW.
enum DriveType : std::uint32_t {
    DriveUnknown = 0,
    DriveNoRootDir = 1,
    DriveRemovable = 2,
    DriveFixed = 3,
    DriveRemote = 4,
    DriveCdrom = 5,
    DriveRamDisk = 6
};

/// DISK_GEOMETRY, 24 bytes.
struct DiskGeometry {
    std::int64_t cylinders;
    std::uint32_t mediaType;
    std::uint32_t tracksPerCylinder;
    std::uint32_t sectorsPerTrack;
    std::uint32_t bytesPerSector;
};

/// DISK_GEOMETRY_EX with one byte of trailing data, 40 bytes with padding.
struct DiskGeometryEx {
    DiskGeometry geometry;
    std::int64_t diskSize; ///< bytes
    std::uint8_t data[8];
};

/// DISK_EXTENT, 24 bytes. Offsets and lengths are bytes.
struct DiskExtent {
    std::uint32_t diskNumber;
    std::uint32_t padding;
    std::int64_t startingOffset;
    std::int64_t extentLength;
};

/// VOLUME_DISK_EXTENTS with one extent; further ones follow it in the buffer.
struct VolumeDiskExtents {
    std::uint32_t numberOfDiskExtents;
    std::uint32_t padding;
    DiskExtent extents[1];
};

/// STORAGE_PROPERTY_QUERY, 12 bytes. All zero it asks for the descriptor of the device.
struct StoragePropertyQuery {
    std::uint32_t propertyId;
    std::uint32_t queryType;
    std::uint32_t additional;
};

/// Head of STORAGE_DEVICE_DESCRIPTOR, 36 bytes; the texts follow it in the buffer, each with a zero behind
/// it. An offset counts from the head's begin, 0 where there is no such text.
struct StorageDeviceDescriptor {
    std::uint32_t version;
    std::uint32_t size;
    std::uint8_t deviceType;
    std::uint8_t deviceTypeModifier;
    std::uint8_t removableMedia;
    std::uint8_t commandQueueing;
    std::uint32_t vendorIdOffset;
    std::uint32_t productIdOffset;
    std::uint32_t productRevisionOffset;
    std::uint32_t serialNumberOffset;
    std::uint32_t busType;
    std::uint32_t rawPropertiesLength;
};

/// A descriptor that tells a serial number alone.
inline std::string storageDescriptor(const std::string &serial)
{
    StorageDeviceDescriptor head{};
    head.version = sizeof(head);
    head.size = static_cast<std::uint32_t>(sizeof(head) + serial.size() + 1);
    head.serialNumberOffset = serial.empty() ? 0 : sizeof(head);
    return std::string(reinterpret_cast<const char *>(&head), sizeof(head)) + serial + '\0';
}

#pragma pack(push, 1)

/// GETVERSIONINPARAMS, 24 bytes.
struct GetVersionInParams {
    std::uint8_t version;
    std::uint8_t revision;
    std::uint8_t reserved;
    std::uint8_t ideDeviceMap;
    std::uint32_t capabilities;
    std::uint32_t reserved2[4];
};

/// IDEREGS, 8 bytes.
struct IdeRegs {
    std::uint8_t features;
    std::uint8_t sectorCount;
    std::uint8_t sectorNumber;
    std::uint8_t cylinderLow;
    std::uint8_t cylinderHigh;
    std::uint8_t driveHead;
    std::uint8_t command;
    std::uint8_t reserved;
};

/// SENDCMDINPARAMS, 33 bytes with its one byte of data.
struct SendCmdInParams {
    std::uint32_t bufferSize;
    IdeRegs regs;
    std::uint8_t driveNumber;
    std::uint8_t reserved[3];
    std::uint32_t reserved2[4];
    std::uint8_t buffer[1];
};

/// Head of SENDCMDOUTPARAMS, 16 bytes; the data follows it in the buffer (528 bytes with one sector).
struct SendCmdOutHeader {
    std::uint32_t bufferSize;
    std::uint8_t driverError;
    std::uint8_t ideError;
    std::uint8_t reserved[2];
    std::uint32_t reserved2[2];
};

#pragma pack(pop)

static_assert(sizeof(DiskGeometry) == 24, "layout of DISK_GEOMETRY");
static_assert(sizeof(DiskGeometryEx) == 40, "layout of DISK_GEOMETRY_EX");
static_assert(sizeof(VolumeDiskExtents) == 32, "layout of VOLUME_DISK_EXTENTS");
static_assert(sizeof(StoragePropertyQuery) == 12, "layout of STORAGE_PROPERTY_QUERY");
static_assert(sizeof(StorageDeviceDescriptor) == 36, "layout of STORAGE_DEVICE_DESCRIPTOR");
static_assert(sizeof(GetVersionInParams) == 24, "layout of GETVERSIONINPARAMS");
static_assert(sizeof(SendCmdInParams) == 33, "layout of SENDCMDINPARAMS");
static_assert(sizeof(SendCmdOutHeader) == 16, "layout of SENDCMDOUTPARAMS");

} // namespace io
