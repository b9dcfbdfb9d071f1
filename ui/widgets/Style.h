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

/// The colours of all texts, and of all that stands behind them. Each text has a contrast of 4.5 to each
/// ground but Main; there and on its two darker kinds only OnMain stands. Grey controls that do nothing are
/// excepted.
namespace colour
{
constexpr char Text[] = "#000000";
constexpr char Grey[] = "#474747";   ///< captions and values
constexpr char Accent[] = "#1a63b8"; ///< the chosen, the link, what is under the pointer
constexpr char Passed[] = "#187818";
constexpr char Failed[] = "#c00000";
constexpr char OnMain[] = "#ffffff";
constexpr char Disabled[] = "#8a949e";

constexpr char White[] = "#ffffff";
constexpr char Pale[] = "#f5f5f5";   ///< navigation, foot, every second row
constexpr char Head[] = "#f8fafc";   ///< of a table
constexpr char Chosen[] = "#e4f0fd"; ///< chosen row or entry
constexpr char Main[] = "#1f72d1";   ///< the main button
constexpr char MainHover[] = "#1a63b8";
constexpr char MainPressed[] = "#14569f";

/// Signs without letters have 3 to White and Pale.
constexpr char Sign[] = "#2a81e5";      ///< chosen card, bar, line of a graph
constexpr char GaugeSign[] = "#0080c0"; ///< ring of a clone
constexpr char EmptySign[] = "#8c8c8c"; ///< ring of a disk without volumes, disk that tells nothing
constexpr char GoodSign[] = "#2a9d2a";  ///< a disk in order, as are the next two
constexpr char WarmSign[] = "#b87d00";
constexpr char BadSign[] = "#d93030";
} // namespace colour

/// A style sheet that gives a label that colour.
QString label(const char *colour);

extern const QString BlackLabel;
extern const QString GreyLabel;
extern const QString PassedLabel;
extern const QString FailedLabel;
extern const QString UnseenLabel; ///< white on white: keeps its room and shows nothing

/// Names the families that stand in for "Segoe UI". Once, at the start.
void substituteFonts(bool chinese);
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

/// A style sheet whose colours are named: "@text", "@accent", "@chosen" stand for those of the table above.
QString sheet(QString text);

/// The look of the window's fields: combos, spin boxes, line edits, check boxes and scroll bars. Belongs on a
/// top-level window.
QString fieldSheet();

/// A light button with a border; the main one is blue with white text.
enum class ButtonRole { Light, Main };
void styleButton(QPushButton *button, ButtonRole role);

} // namespace style
