// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/ElidingComboBox.h"

#include "ui/widgets/Style.h"

#include <QStyleOptionComboBox>
#include <QStylePainter>

QString ElidingComboBox::shownText() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    // The style keeps a pixel free at either side of the text.
    return fontMetrics().elidedText(currentText(), Qt::ElideRight, field.width() - 2);
}

void ElidingComboBox::showPopup()
{
    for (int i = 0; i < count(); ++i)
        setItemData(i, style::wholeTip(itemText(i)), Qt::ToolTipRole);
    QComboBox::showPopup();
}

void ElidingComboBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = shownText();
    style::setWholeTip(this, option.currentText == currentText() ? QString() : currentText());
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
