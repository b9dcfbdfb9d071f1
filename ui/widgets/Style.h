// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QPalette>
#include <QRect>
#include <QString>

#include <initializer_list>

class QPushButton;
class QWidget;

/// Fonts, colours and placing that all screens share.
namespace style
{

extern const QString BlackLabel;  ///< "QLabel {color : #000000;}"
extern const QString GreyLabel;   ///< "QLabel {color : #474747;}"
extern const QString PassedLabel; ///< green result text
extern const QString FailedLabel; ///< red result text

QFont font(int points, bool italic = false);
QFont semiBold(int points, bool italic = false);

/// The colours of all windows, message boxes and file dialogs, whatever the theme of the system is.
QPalette lightPalette();

/// A design size in pixels on this display, truncated.
int px(int size);

/// White window background that fills the widget.
void setWhiteBackground(QWidget *widget);

/// Shows or hides several widgets.
void setVisible(std::initializer_list<QWidget *> widgets, bool visible);

/// Multiplies the margins, spacings and fixed sizes of a form by the display scale.
void scaleForm(QWidget *window);

/// Multiplies a widget's size and place by the display scale, truncated.
void scaleWidget(QWidget *widget);

/// The area for windows on the screen nearest to `place`, without the desktop's own bars.
QRect availableArea(const QPoint &place);

/// The position nearest to the window's own at which all of it lies in `area`. Of a window that is too large,
/// the upper left corner does.
QPoint placeWithin(const QRect &window, const QRect &area);

/// Moves a window to `place`, or as near to it as possible within the screen on which its middle would lie.
void placeWindow(QWidget *window, const QPoint &place);

/// Moves `window` to the middle of `rect`, as far as the screen allows.
void centreOn(QWidget *window, const QRect &rect);

/// Makes all labels of a window show plain text. A label that shows links has that set in its form.
void showTextsAsData(QWidget *window);

/// A text for a tool tip, which shows it letter by letter: the name of a drive could be taken for HTML.
QString wholeTip(const QString &text);

/// Sets the tool tip of a widget whose text is cut: the whole text; an empty one takes the tip away. May be
/// called in paintEvent().
void setWholeTip(QWidget *widget, const QString &text);

/// Paints a widget again with the display's next frame, unless its window is minimised. Call it at the end of
/// paintEvent() of a widget whose picture changes all the time.
void paintAgain(QWidget *widget);

/// The look of the window's fields: combos, spin boxes, line edits, check boxes and scroll bars. Belongs on a
/// top-level window.
QString fieldSheet();

/// A light button with a border; the main one is blue with white text.
enum class ButtonRole { Light, Main };
void styleButton(QPushButton *button, ButtonRole role);

} // namespace style
