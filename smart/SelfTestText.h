#pragma once

#include "smart/SelfTestGlobals.h"

#include <QVector>

#include <optional>

class QTextStream;

/// What the report tool's capabilities text tells of a drive's self-tests. A text is read in one pass, so the
/// order of its lines counts: what stands before the line that is looked for is not seen again.
namespace selftest
{

struct Capabilities {
    bool supported = false;
    std::optional<int> minutes; ///< polling time of the kind asked for; 0 where it is no number
};

/// Reads up to the polling time of `kind`, or only up to the mark of self-tests where no kind is asked for.
Capabilities readCapabilities(QTextStream &text, std::optional<SelfTestKind> kind);

enum class Told { InProgress, Completed, ReadFailure };

struct StatusEvent {
    Told told;
    int remaining = 0; ///< percent, of InProgress alone; 0 where the drive tells no number
};

/// What a status text tells, in its order. Any other end of a test is not told.
QVector<StatusEvent> readStatus(QTextStream &text);

/// The percent that are done, wrapping as 32 bits do.
int percentDone(int remaining);

/// Whether a test with that much before it counts as ended: nothing left, or a number that is no percentage.
bool isOver(int remaining);

} // namespace selftest
