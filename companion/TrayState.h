// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "companion/Watch.h"

/// What the tray and the flyout tell of the disks, as plain values and texts. Texts are translated.
namespace traystate
{

/// Colour and sign of an icon.
enum class Sign { Unknown, InOrder, Warm, Hot };

/// The icon of the tray.
struct Icon {
    QString number; ///< empty: nothing is known
    Sign sign = Sign::Unknown;
};

/// The sign of one disk.
Sign signOf(const DiskSummary &disk);

/// The hottest disk's temperature, or the lowest health. The sign is that of the worst disk.
Icon iconOf(const WatchView &view, bool showsHealth);

/// "Norvik NX500 1TB", or what there is in place of a name.
QString nameOf(const DiskSummary &disk);

/// "36 °C", or a dash where the disk tells none now.
QString temperatureOf(const DiskSummary &disk, bool fahrenheit);

/// How it stands with a disk in a few words.
QString stateOf(const DiskSummary &disk, bool fahrenheit);

/// A line for each disk: name, temperature, health. Where a tip has `mostCharacters`, which is not 0, long
/// names are cut, and there is room for five lines, else for 24. Of more disks the worst have a line, and a
/// last line counts the others.
QString toolTip(const WatchView &view, int mostCharacters);

/// "1 minute ago".
QString ageOf(const QDateTime &then, const QDateTime &now);

/// Title and text of a message.
QString titleOf(const WatchEvent &event);
QString messageOf(const WatchEvent &event, bool fahrenheit);

} // namespace traystate
