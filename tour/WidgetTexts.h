// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

class QWidget;

/// What a widget says of itself: its name, its text, its picture. GUI thread only.
namespace widgettexts
{

/// The object name; where a widget of the program has none, the name of its class.
QString name(const QWidget *widget);

/// The text as shown, untrimmed; empty for widgets that bear none.
QString text(const QWidget *widget);

/// The resource path of the picture that a label or button shows, empty where it has none or does not tell.
QString image(const QWidget *widget);

/// Whether it shows a picture, told or not.
bool hasPicture(const QWidget *widget);

/// Whether it is of a kind that is there to show a text or picture.
bool isBearer(const QWidget *widget);

/// The visible bearers below `window` but not in a window of their own, top to bottom, then left to right.
/// The inner parts of fields, lists and scroll bars are left out.
QVector<QWidget *> visibleChildren(const QWidget *window);

} // namespace widgettexts
