// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <initializer_list>

class QFrame;
class QLabel;
enum class OverallResult;

/// A widget that writes its texts anew when the language changes. Its form is private: others use its
/// methods.
class Page : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    /// The language is another one now.
    virtual void retranslate() = 0;

    void changeEvent(QEvent *event) final;
};

/// What the pages of the main window treat alike.
namespace pagelook
{

/// Makes a widget with a set-up form a page: white, 764 by 452 design pixels, its form scaled to the display.
/// Call right after setupUi().
void makePage(QWidget *page);

/// Gives a new widget or layout its object name.
template<typename Object>
Object *named(Object *object, const char *name)
{
    object->setObjectName(QLatin1String(name));
    return object;
}

void styleLabels(std::initializer_list<QLabel *> labels, const QFont &font, const QString &sheet);
void styleHeadings(std::initializer_list<QLabel *> labels); ///< 13 point, black
void styleNames(std::initializer_list<QLabel *> labels);    ///< semibold 10 point, grey
/// 10 point, grey; plain text that can be wider than its room without pushing its neighbours away.
void styleValues(std::initializer_list<QLabel *> labels);

/// Lets the user select the texts with the mouse, and copy them by Ctrl+C or a context menu. A label that
/// draws itself is selected as a whole. Tab passes them by.
void makeCopyable(std::initializer_list<QLabel *> labels);
/// What is copied then: the selected text, else the whole one without the caption and colon of a detail.
QString copyText(const QLabel *label);
/// The texts of all labels that the page shows: a line for each row, a tab between its labels.
QString shownText(const QWidget *page);

/// Gives the labels the width of the widest, so that what stands behind them is aligned. Call it again when
/// their texts change.
void alignNames(std::initializer_list<QLabel *> labels);

/// What a result label reads, in the language that is loaded: green where the disk passed, else red.
void showResult(QLabel *label, OverallResult result);

/// A white card with a hairline border and round corners.
void styleCard(QFrame *frame);

} // namespace pagelook
