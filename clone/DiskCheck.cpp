// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/DiskCheck.h"

#include "state/DiskRecords.h"

namespace diskcheck
{

DiskMark listed(const DiskDetails &details)
{
    return {details.nTotalSectors, details.szSerial};
}

CloneFault compare(const CloneTarget &source, const DiskMark &listedSource, const CloneTarget &destination,
                   const DiskMark &listedDestination)
{
    if (!source.isOpen())
        return CloneFault::SourceNotOpen;
    if (!destination.isOpen())
        return CloneFault::DestinationNotOpen;
    if (!(source.mark() == listedSource))
        return CloneFault::SourceIsAnother;
    if (!(destination.mark() == listedDestination))
        return CloneFault::DestinationIsAnother;
    if (listedSource.sectors == 0)
        return CloneFault::SourceEmpty;
    return listedDestination.sectors < listedSource.sectors ? CloneFault::DestinationSmaller
                                                            : CloneFault::None;
}

CloneFault faultOf(DiskUse::Kind use)
{
    switch (use) {
    case DiskUse::Free:
        return CloneFault::None;
    case DiskUse::System:
        return CloneFault::DestinationOfSystem;
    case DiskUse::Mounted:
        return CloneFault::DestinationMounted;
    case DiskUse::Held:
        return CloneFault::DestinationHeld;
    case DiskUse::Unknown:
        break;
    }
    return CloneFault::DestinationUnknown;
}

} // namespace diskcheck
