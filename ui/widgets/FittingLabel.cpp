// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/FittingLabel.h"

#include <QFontMetrics>
#include <QStyle>
#include <QStyleOption>
#include <QStylePainter>

FittingLabel::FittingLabel(int room, QWidget *parent) : QLabel(parent), m_nRoom(room) {}

QFont FittingLabel::fittingFont() const
{
    constexpr int SmallestPoints = 8;
    QFont fitting = font();
    while (fitting.pointSize() > SmallestPoints &&
           QFontMetrics(fitting, this).horizontalAdvance(text()) > m_nRoom)
        fitting.setPointSize(fitting.pointSize() - 1);
    return fitting;
}

void FittingLabel::paintEvent(QPaintEvent *event)
{
    if (fontMetrics().horizontalAdvance(text()) <= m_nRoom) {
        QLabel::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    painter.setFont(fittingFont());
    QStyleOption option;
    option.initFrom(this);
    style()->drawItemText(&painter, contentsRect(), QStyle::visualAlignment(layoutDirection(), alignment()),
                          option.palette, isEnabled(), text(), foregroundRole());
}
