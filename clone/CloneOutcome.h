#pragma once

#include "clone/LostSectors.h"

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

/// How a clone ended.
struct CloneOutcome {
    enum class End {
        Complete,
        WithErrors, ///< copied but for what `lost` tells
        Stopped,
        Refused, ///< nothing was written
        Failed   ///< the destination is empty or a part of a copy
    };
    End end = End::Complete;
    CloneFault fault = CloneFault::None;
    QString detail; ///< what uses the destination, where the fault is of that kind
    LostSectors lost;
    qint64 total = 0; ///< sectors of the source
};
