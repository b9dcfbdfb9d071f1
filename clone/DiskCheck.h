#pragma once

#include "clone/CloneOutcome.h"
#include "clone/CloneTargets.h"

/// Whether two disks are still those that somebody agreed to.
namespace diskcheck
{

/// What the lists know of a disk, from which the question took its words.
DiskMark listed(const DiskDetails &details);

/// The first thing that is wrong with the disks as they are now: one does not open, or is another one than
/// was listed, the source has no sectors, or the destination too few.
CloneFault compare(const CloneTarget &source, const DiskMark &listedSource, const CloneTarget &destination,
                   const DiskMark &listedDestination);

/// What a use of the destination means for a clone.
CloneFault faultOf(DiskUse::Kind use);

} // namespace diskcheck
