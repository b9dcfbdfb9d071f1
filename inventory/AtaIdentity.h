// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/DiskRecords.h"

#include <QByteArray>

/// Identity and attribute table of a disk, read through the drive's own interface.
namespace ata
{

/// One text field of the identify data, as it lies there (the two bytes of each word swapped). Where the
/// first byte is a blank the text is freed of its leading blanks, else it is cut at its first blank.
QByteArray identifyText(const QByteArray &field);

/// Takes texts, sector count and, unless `atapi`, the geometry out of 512 bytes of identify data. Shorter
/// data counts as filled up with zeros.
void decodeIdentify(const QByteArray &data, bool atapi, DiskIdentity *identity);

/// Index of an attribute's name.
int nameIndex(int attributeId);

/// Appends the attributes of 512 bytes of SMART data to the identity's list, and takes the temperature and
/// the worst state. Nobody tells thresholds: they are 0.
void decodeAttributes(const QByteArray &data, DiskIdentity *identity);

} // namespace ata

/// Fills `identity` from the physical disk `driveCode`. It stays as it is where the disk does not open or
/// refuses, as USB and NVMe disks do. Returns whether the disk opened.
bool ReadAtaIdentity(int driveCode, DiskIdentity *identity);
