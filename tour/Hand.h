// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <Qt>

class QString;
class QWidget;

/// Mouse and keyboard. The events enter where those of the display do, so modal windows, open menus and
/// widgets on top get them as they would from a person. GUI thread only; a press may run an event loop of the
/// program and return only after it.
namespace hand
{

/// A point of a widget in the window that it is in, as one value that stays good when the widget goes.
struct Place {
    QWidget *window = nullptr;
    QPoint point;
};

Place middleOf(QWidget *widget);
Place at(QWidget *widget, const QPoint &point);

void move(const Place &place);
void press(const Place &place);
void release(const Place &place);
void key(QWidget *window, Qt::Key key);

/// Makes `text` all that a field holds, as a paste over what it held.
void fill(QWidget *field, const QString &text);

} // namespace hand
