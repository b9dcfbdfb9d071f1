// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PopupMenu.h"

#include "ui/widgets/Style.h"

#include <QShowEvent>

void PopupMenu::showEvent(QShowEvent *event)
{
    QMenu::showEvent(event);
    const QWidget *main = parentWidget() ? parentWidget()->window() : nullptr;
    if (!m_bAlignRight) {
        style::placeWindow(this, QPoint(x(), y() + style::px(12)));
    } else if (main && main->isVisible()) {
        const QRect frame = main->geometry();
        style::placeWindow(this, QPoint(frame.x() + frame.width() - width(), y()));
    }
}
