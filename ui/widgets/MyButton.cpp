// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/MyButton.h"

#include "ui/widgets/Style.h"

namespace
{

void initialise(QPushButton *button)
{
    button->setAttribute(Qt::WA_MouseTracking);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setIconSize(QSize(style::px(172), style::px(40)));
    button->setGeometry(0, 0, style::px(172), style::px(40));
}

} // namespace

MyButton::MyButton(QWidget *parent) : QPushButton(parent)
{
    initialise(this);
}

MyButton1::MyButton1(QWidget *parent) : QPushButton(parent)
{
    initialise(this);
}
