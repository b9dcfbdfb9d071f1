// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QUuid>

/// The words that the system's tables use for disks, volumes and partitions.
namespace tools
{

enum class Bus { Ata, Usb, Nvme, Sas, Card, Other };

/// IDE, USB, SCSI or SD.
QString interfaceWord(Bus bus);

/// The model of a disk: "<vendor> <product> ATA Device". The last two words are the bus, in three letters,
/// and the word Device. A vendor that names the bus only is left out; `name` ("Disk 3") stands in for a
/// product that is not told.
QString diskModel(const QString &vendor, const QString &product, const QString &name, Bus bus);

/// The kinds of volumes of inventory::Volume, by the numbers of io::DriveType.
const QStringList &volumeTypes();

/// "GPT: System" and its kin; null for the partition that is the system's own reserve, which is not listed.
QString gptPartitionType(const QUuid &type);

/// "Installable File System" and its kin; null for an entry that is not used.
QString mbrPartitionType(quint8 type);

} // namespace tools
