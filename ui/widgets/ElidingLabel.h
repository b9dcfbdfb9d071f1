// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

/// A label of one plain line that elides a text too long for it, where the plain one cuts it; a tool tip
/// holds the whole text then. It asks for the text's width and makes do with less. Without Q_OBJECT, so
/// that its class name stays QLabel.
class ElidingLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownText() const;
};
