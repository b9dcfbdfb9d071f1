#pragma once

#include <QFont>
#include <QRect>
#include <QString>

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

/// A design size in pixels on this display, truncated.
int px(int size);

/// White window background that fills the widget.
void setWhiteBackground(QWidget *widget);

/// Multiplies a widget's size and place by the display scale, truncated.
void scaleWidget(QWidget *widget);

/// Moves `widget` to the middle of `rect`.
void centreOn(QWidget *widget, const QRect &rect);

/// The look of the window's fields: combos, spin boxes, line edits, check boxes and scroll bars. Belongs on a
/// top-level window.
QString fieldSheet();

/// A light button with a border; the main one is blue with white text.
enum class ButtonRole { Light, Main };
void styleButton(QPushButton *button, ButtonRole role);

} // namespace style
