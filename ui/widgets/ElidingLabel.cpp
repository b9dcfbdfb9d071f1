// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/ElidingLabel.h"

#include "ui/widgets/Style.h"

#include <QStyle>
#include <QStyleOption>
#include <QStylePainter>

QString ElidingLabel::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

QSize ElidingLabel::minimumSizeHint() const
{
    constexpr int FewestCharacters = 4;
    const QSize whole = QLabel::minimumSizeHint();
    return QSize(qMin(whole.width(), FewestCharacters * fontMetrics().averageCharWidth()), whole.height());
}

void ElidingLabel::paintEvent(QPaintEvent *)
{
    // The style's own way of drawing a label's text, so that the style sheet's colour holds.
    QStylePainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style::setWholeTip(this, shownText() == text() ? QString() : text());
    style()->drawItemText(&painter, contentsRect(), QStyle::visualAlignment(layoutDirection(), alignment()),
                          option.palette, isEnabled(), shownText(), foregroundRole());
}
