// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "clone/CloneOutcome.h"
#include "clone/CloneTargets.h"

/// Whether the two disks are still those that the user agreed to.
namespace diskcheck
{

/// The mark of a disk as the lists have it; the question before the clone named this disk.
DiskMark listed(const DiskDetails &details);

/// The first thing that is wrong with the disks as they are now: one does not open, or is another one than
/// was listed, the source has no sectors, or the destination too few.
CloneFault compare(const CloneTarget &source, const DiskMark &listedSource, const CloneTarget &destination,
                   const DiskMark &listedDestination);

/// The fault that a use of the destination stands for.
CloneFault faultOf(DiskUse::Kind use);

} // namespace diskcheck
