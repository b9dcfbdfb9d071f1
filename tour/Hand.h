// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <Qt>

class QString;
class QWidget;

/// Mouse and keyboard. The events take the way of those from the display, so modal windows, open menus and
/// widgets on top get them as from a person. GUI thread only. A press may run an event loop of the program,
/// and then returns only after it.
namespace hand
{

/// A point of a widget in its window. Stays valid when the widget is deleted.
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

/// Replaces the text of a field by `text`, as a paste would.
void fill(QWidget *field, const QString &text);

} // namespace hand
