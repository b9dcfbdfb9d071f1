// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/SectorRuns.h"

#include <QString>

/// Why a clone cannot begin, or cannot go on.
enum class CloneFault {
    None,
    NoDisks,
    NoMemory,
    SourceNotOpen,
    DestinationNotOpen,
    SourceIsAnother,
    DestinationIsAnother,
    SourceEmpty,
    DestinationSmaller,
    DestinationOfSystem,
    DestinationMounted,
    DestinationHeld,
    DestinationUnknown,
    DestinationTakesNothing,
    SourceGone,
    DestinationGone,
};

/// What a copy lacks. A sector is in one of the two lists at most.
struct LostSectors {
    SectorRuns unread;        ///< could not be read; zeros on the destination
    SectorRuns unwritten;     ///< could not be written
    bool unconfirmed = false; ///< the destination did not confirm that what was written is stored

    bool any() const { return unread.count() > 0 || unwritten.count() > 0 || unconfirmed; }
};

/// How a clone ended.
struct CloneOutcome {
    enum class End {
        Complete,
        WithErrors, ///< copied, except for what `lost` lists
        Stopped,
        Refused, ///< nothing was written
        Failed   ///< the destination is empty or a part of a copy
    };
    End end = End::Complete;
    CloneFault fault = CloneFault::None;
    QString detail; ///< what uses the destination, if that is the fault
    LostSectors lost;
    qint64 total = 0; ///< sectors of the source
};
