#include "ui/ElidingLabel.h"

#include <QHelpEvent>
#include <QStyle>
#include <QStyleOption>
#include <QStylePainter>
#include <QToolTip>

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

bool ElidingLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || shownText() == text())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text(), this);
    return true;
}

void ElidingLabel::paintEvent(QPaintEvent *)
{
    // The style's own way of drawing a label's text, so that the style sheet's colour holds.
    QStylePainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawItemText(&painter, contentsRect(), QStyle::visualAlignment(layoutDirection(), alignment()),
                          option.palette, isEnabled(), shownText(), foregroundRole());
}
