// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <algorithm>

/// A PC as plain records: what the tools of platform/tools/ speak about. Linux fills it from the kernel, the
/// simulated PC from its description. Values only, no handles; safe to copy between threads.
namespace inventory
{

/// One physical disk. Sectors are of 512 bytes.
struct Disk {
    int number = 0;
    QString media;         ///< "fixed", "removable", or another word for neither
    QString model;         ///< as the system's disk table shows it
    QString interfaceType; ///< IDE, SCSI, USB, …
    QString status;        ///< OK, Pred Fail, …
    QString serial;        ///< as the system knows it; empty where it does not
    quint32 bytesPerSector = 512;
    quint64 sectors = 0;
    QString node;       ///< device node or image file
    quint64 medium = 0; ///< tells this medium from every other one; 0: unknown
};

/// A piece of a disk that a volume lies on. Bytes.
struct Extent {
    int disk = 0;
    quint64 offset = 0;
    quint64 length = 0;
};

/// One volume with a letter.
struct Volume {
    QChar letter;
    QString label;
    QString type; ///< fixed removable cdrom remote ramdisk noroot unknown
    QString fileSystem;
    quint64 size = 0; ///< bytes
    quint64 free = 0; ///< bytes
    bool hasBitLockerLine = false;
    QString bitLocker; ///< the text behind "BitLocker Version:"
    QVector<Extent> extents;
    QString mountPoint; ///< empty where the volume is not mounted in a folder
};

/// One row of the partition table tool.
struct Partition {
    QString name; ///< "Disk #0, Partition #0"
    QString type; ///< "GPT: System"
    quint64 size = 0;
    int disk = 0;
};

struct Machine {
    QVector<Disk> disks;
    QVector<Volume> volumes;
    QVector<Partition> partitions;
    QStringList processes; ///< image names
};

/// The disk of that number; null if there is none.
inline const Disk *diskOf(const Machine &machine, int number)
{
    const auto disk = std::find_if(machine.disks.cbegin(), machine.disks.cend(),
                                   [number](const Disk &each) { return each.number == number; });
    return disk == machine.disks.cend() ? nullptr : &*disk;
}

} // namespace inventory
