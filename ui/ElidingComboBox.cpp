#include "ui/ElidingComboBox.h"

#include <QHelpEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>

QString ElidingComboBox::shownText() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    // The style keeps a pixel free at either side of the text.
    return fontMetrics().elidedText(currentText(), Qt::ElideRight, field.width() - 2);
}

bool ElidingComboBox::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        const QString whole = shownText() == currentText() ? QString() : currentText();
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), whole.toHtmlEscaped(), this);
        return true;
    }
    return QComboBox::event(event);
}

void ElidingComboBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = shownText();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
