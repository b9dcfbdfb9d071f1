// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

/// A label of one plain line that draws a text too long for its room in smaller letters. Without Q_OBJECT,
/// so that its class name stays QLabel.
class FittingLabel : public QLabel
{
public:
    /// `room` is the width in pixels that a text may take.
    explicit FittingLabel(int room, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont fittingFont() const;

    const int m_nRoom;
};
