// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

#include <initializer_list>

/// A label of a caption and a value in one text, "Capacity\t: 931.51 GB". It draws the caption semibold and,
/// from its colon on, the rest at a common place, so that the values of several labels stand in one column
/// whatever the font and the language; tabs and blanks that pad the caption are dropped. A value that does
/// not fit is elided, and a tool tip holds the whole text.
///
/// Without Q_OBJECT, so that its class name stays QLabel.
class DetailLabel : public QLabel
{
public:
    using QLabel::QLabel;

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
    int captionWidth() const;
    int valueRoom() const;

    int m_nValueX = 0; ///< pixels
};
