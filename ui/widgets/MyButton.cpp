// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/MyButton.h"

#include "ui/widgets/Style.h"

#include <QKeyEvent>

PressButton::PressButton(QWidget *parent) : QPushButton(parent)
{
    setAttribute(Qt::WA_MouseTracking);
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setIconSize(QSize(style::px(172), style::px(40)));
    setGeometry(0, 0, style::px(172), style::px(40));
    // So a screen reader presses a button that can be checked.
    connect(this, &QPushButton::toggled, this, [this] {
        tellPress();
        tellRelease();
    });
}

void PressButton::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (event->isAutoRepeat())
        return;
    tellPress();
    tellRelease();
}

void MyButton::setCurrent(bool current)
{
    const QSignalBlocker block(this);
    setDown(current);
    setChecked(current);
}

void MyButton::keyPressEvent(QKeyEvent *event)
{
    const int step = event->key() == Qt::Key_Down ? 1 : event->key() == Qt::Key_Up ? -1 : 0;
    const auto all = parentWidget()->findChildren<MyButton *>(QString(), Qt::FindDirectChildrenOnly);
    MyButton *neighbour = step ? all.value(all.indexOf(this) + step) : nullptr;
    if (neighbour && neighbour->isEnabled())
        neighbour->setFocus(Qt::TabFocusReason);
    else if (!step)
        PressButton::keyPressEvent(event);
}
