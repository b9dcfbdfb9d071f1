// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "companion/TrayState.h"

#include <QIcon>

class QPainter;
class QRectF;

/// The drawings of the companion.
namespace traypicture
{

/// The number in a frame, drawn afresh for each size that a tray asks for at 96 to 192 DPI. The sign is told
/// by the colour and by a line below the number.
QIcon icon(const traystate::Icon &icon, bool darkBar);

/// The same in one size, in pixels of the display.
QPixmap pixmap(const traystate::Icon &icon, int size, bool darkBar);

/// The sign before a row of the flyout: a tick, a triangle, a cross, a moon or a dash.
void drawSign(QPainter *painter, const QRectF &place, const DiskSummary &disk);

/// The temperatures of the last day up to `now`, from left to right. A gap of over an hour stays open.
void drawDay(QPainter *painter, const QRectF &place, const DiskSummary &disk, qint64 now);

/// The colour of a sign in lines and frames.
QColor colourOf(traystate::Sign sign);

} // namespace traypicture
