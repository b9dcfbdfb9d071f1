// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "clone/CloneOutcome.h"
#include "state/JobNotices.h"

#include <QString>

#include <optional>

/// What the clone screen decides and says. No disk is touched here.
namespace clonemessages
{

/// A title and two lines for the message box.
struct Message {
    QString title;
    QString text;
    QString second;
};

/// One side of a clone as it was chosen.
struct Side {
    int disk = -1;       ///< physical number
    quint64 sectors = 0; ///< of 512 bytes
};

/// Why a clone may not start: both sides are one disk, or the destination is the smaller one. Nothing where
/// it may.
std::optional<Message> refusal(const Side &source, const Side &destination);

/// \name Endings. All go into one box, so the last of a run, which is finished(), stands.
/// @{
Message failed();
/// `second` is the text of the second line at present; it stays.
Message aborted(const QString &second);
Message finished(const CloneOutcome &outcome);
/// @}

/// What is told of that end outside the window.
JobEnd jobEnd(const CloneOutcome &outcome);

/// Text of the remaining time; never less than a minute. `remaining` in ms, may be negative.
QString remainingText(qint64 remaining);

/// What the gauge shows, for those who hear it.
QString gaugeText(int percent);

/// Whole percent of `position` in `total`, both in sectors; 0 where there is no total.
int percentDone(qint64 position, quint64 total);

} // namespace clonemessages
