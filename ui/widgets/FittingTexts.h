// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QLabel>

#include <initializer_list>

/// Labels and combos for texts that can be too long for their room. All are without Q_OBJECT, so that their
/// class names stay QLabel and QComboBox.

/// A label of one plain line that elides a text too long for it; a tool tip holds the whole text then. It
/// asks for the text's width and makes do with less.
class ElidingLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// A label of one plain line, the value of a tile: draws a text that would reach into the tile's picture in
/// smaller letters.
class FittingLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// A label of a caption and a value in one text, "Capacity\t: 931.51 GB". The caption is semibold. The value
/// begins with the colon, at a place that several labels share, so that their values stand in one column.
/// It is 20 design pixels high. Tabs and blanks that pad the caption are dropped. A value that does not fit
/// is elided, and a tool tip holds the whole text.
class DetailLabel : public QLabel
{
public:
    explicit DetailLabel(QWidget *parent) : QLabel(parent) { setFixedHeight(20); }

    /// A detail text taken apart at its first colon; all caption where there is none.
    struct Parts {
        QString caption; ///< trimmed
        QString value;   ///< with the colon
    };
    static Parts parts(const QString &text);

    /// Puts the values of the labels of one column at the same place, behind the widest caption.
    static void align(std::initializer_list<DetailLabel *> labels);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_nValueX = 0; ///< pixels
};

/// A combo box that elides a current text too long for it; a tool tip holds the whole text then, and that of
/// each entry of the list. Its entries look as the window's fields do.
class ElidingComboBox : public QComboBox
{
public:
    using QComboBox::QComboBox;

    void showPopup() override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};
