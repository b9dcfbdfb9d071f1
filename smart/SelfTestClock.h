#pragma once

#include "smart/SelfTestGlobals.h"

/// The clock of a self-test: counts ticks, meant to come once a second, in the globals of SelfTestGlobals.h.
namespace selftest
{

/// Sets the counts and the elapsed time to zero.
void restartClock();

/// The seconds that the remaining minutes may fall: the polling time of the current kind, in 32 bits.
void setElapsedLimit();

/// Takes a minute off the remaining ones if 60 ticks have gone since the last; false if it is not time yet.
bool takeMinute();

/// Counts a tick by whether it found a status. True while one without is passed over: a drive that is busy or
/// was reset answers again, one that keeps silent has gone.
bool passesOver(bool found);

/// One tick. Behind the limit only the elapsed time runs on.
void tickClock();

/// "05:07:09"; an extended test of a large disk takes more than a day: "26:07:09".
QString elapsedText();

} // namespace selftest
