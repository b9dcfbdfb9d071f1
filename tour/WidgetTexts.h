// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

class QWidget;

/// Name, text and picture of a widget. GUI thread only.
namespace widgettexts
{

/// The object name; for a widget of the program without one, the name of its class.
QString name(const QWidget *widget);

/// The text as shown, not trimmed; empty for widgets without a text.
QString text(const QWidget *widget);

/// The resource path of the picture of a label or button; empty if there is none or it is not known.
QString image(const QWidget *widget);

/// Whether it shows a picture, even if its path is not known.
bool hasPicture(const QWidget *widget);

/// Whether widgets of this kind show a text or picture.
bool isBearer(const QWidget *widget);

/// The visible widgets with a text or picture below `window`, top to bottom, then left to right, without
/// those in a window of their own. The inner parts of fields, lists and scroll bars are left out.
QVector<QWidget *> visibleChildren(const QWidget *window);

} // namespace widgettexts
