// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/CloneTexts.h"

#include "state/DriveTexts.h"
#include "state/Globals.h"

#include <QCoreApplication>

namespace clonetexts
{

namespace
{

QString translated(const char *text)
{
    return QCoreApplication::translate("CloneDisk", text);
}

QString knownOrNot(const QString &value)
{
    const QString trimmed = value.trimmed();
    return trimmed.isEmpty() ? translated(QT_TRANSLATE_NOOP("CloneDisk", "Not Available")) : trimmed;
}

Details captionsOfDisk()
{
    Details texts;
    texts.diskNumber = translated(QT_TRANSLATE_NOOP("CloneDisk", "Disk Number \t: "));
    texts.model = translated(QT_TRANSLATE_NOOP("CloneDisk", "Model Number\t: "));
    texts.serial = translated(QT_TRANSLATE_NOOP("CloneDisk", "Serial: "));
    texts.firmware = translated(QT_TRANSLATE_NOOP("CloneDisk", "Firmware Revision : "));
    texts.interfaceType = translated(QT_TRANSLATE_NOOP("CloneDisk", "Interface Type\t   : "));
    texts.capacity = translated(QT_TRANSLATE_NOOP("CloneDisk", "Capacity\t: "));
    texts.sectors = translated(QT_TRANSLATE_NOOP("CloneDisk", "Total Sector\t   : "));
    return texts;
}

} // namespace

Details captions()
{
    Details texts = captionsOfDisk();
    texts.model = translated(QT_TRANSLATE_NOOP("CloneDisk", "Model Number : "));
    texts.capacity = translated(QT_TRANSLATE_NOOP("CloneDisk", "Capacity           : "));
    return texts;
}

Details details(const DiskNode &node, const WmicDiskRecord *record)
{
    static const WmicDiskRecord unknown;
    const WmicDiskRecord &known = record ? *record : unknown;

    Details texts = captionsOfDisk();
    texts.diskNumber += QString::number(node.nId - PhysicalDriveBase);
    texts.model += knownOrNot(known.szSmartModel.text());
    texts.serial += knownOrNot(known.szSmartSerial.text());
    texts.firmware += knownOrNot(known.szSmartFirmware.text());
    const QString interfaceName = known.szInterface.text().trimmed();
    texts.interfaceType +=
        interfaceName.isEmpty() ? translated(QT_TRANSLATE_NOOP("CloneDisk", "ATA Disk")) : interfaceName;
    texts.capacity += knownOrNot(node.szSize.text());
    texts.sectors += knownOrNot(node.pDetails ? QString::number(node.pDetails->nTotalSectors) : QString());
    return texts;
}

std::vector<Destination> destinations(const RecordList<DiskNode> &disks, int sourceId)
{
    std::vector<Destination> found;
    for (const drivetexts::Entry &entry : drivetexts::entries(disks)) {
        if (entry.node->nId != sourceId)
            found.push_back({entry.texts.drive, entry.node->nId});
    }
    return found;
}

} // namespace clonetexts
