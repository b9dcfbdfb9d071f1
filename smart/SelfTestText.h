// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/SelfTestGlobals.h"
#include "state/JobNotices.h"

#include <QVector>

#include <optional>

class QTextStream;

/// What the report tool's texts tell of a drive's self-tests. A text is read in one pass, so the
/// order of its lines counts: what stands before the line that is looked for is not seen again.
namespace selftest
{

struct Capabilities {
    bool supported = false;
    std::optional<int> minutes; ///< polling time of the kind asked for; 0 where it is no number
};

/// Reads up to the polling time of `kind`, or only up to the mark of self-tests where no kind is asked for.
Capabilities readCapabilities(QTextStream &text, std::optional<SelfTestKind> kind);

/// How a self-test stands. All but InProgress are an end of it; the first ones are the drive's own codes 0
/// to 8.
enum class Told {
    Completed,
    Aborted,
    Interrupted,
    FatalError,
    UnknownElement,
    Electrical,
    Servo,
    ReadFailure,
    Handling,
    UnknownStatus, ///< a code that no standard names
    NoStatus,      ///< the text tells none: the tool or the drive has gone
    InProgress
};

struct StatusEvent {
    Told told;
    int remaining = 0; ///< percent, of InProgress alone; 0 where the drive tells no number
};

/// What a status text tells, in its order; at least one. The words of the tool decide, and the drive's number
/// where they tell nothing. The results of an NVMe drive's log count too.
QVector<StatusEvent> readStatus(QTextStream &text);

/// The newest self-test of a log. Translated; null where the log does not tell.
struct PreviousTest {
    QString type;
    QString result; ///< null also of a test on the very last line
};

/// Reads the text of a self-test log up to its newest test.
PreviousTest newestTest(QTextStream &log);

/// The newest self-test that has ended, of the log within a whole report.
struct LoggedTest {
    bool failed = false;
    QString words;               ///< the tool's own for how it ended
    QString mark;                ///< of the log: another one as soon as another test has ended
    std::optional<qint64> hours; ///< the drive's power-on time when it ended
};

/// Reads a report, or a log alone, of a drive of any kind; without a test in it the mark is empty.
LoggedTest newestLogged(QTextStream &report);

/// The words that a status is shown with: English, of the context MainWindow.
const char *shownWords(Told told);

/// What is told of that end outside the window.
JobEnd jobEnd(Told told);

/// Whether the drive itself tells how its test went, which counts more than that somebody aborted it.
bool isResult(Told told);

/// The percent that are done, wrapping as 32 bits do.
int percentDone(int remaining);

/// Whether a test with that much before it counts as ended: nothing left, or a number that is no percentage.
bool isOver(int remaining);

} // namespace selftest
