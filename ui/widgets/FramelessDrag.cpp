// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/FramelessDrag.h"

#include "state/Globals.h"
#include "ui/widgets/Style.h"

#include <QMouseEvent>
#include <QWidget>

FramelessDrag::FramelessDrag(QWidget *window, int titleHeight)
    : m_pWindow(window), m_nTitleHeight(titleHeight)
{
    window->installEventFilter(this);
}

bool FramelessDrag::eventFilter(QObject *watched, QEvent *event)
{
    // The second press of a double click drags the main window, too.
    QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonDblClick && m_nTitleHeight >= 0)
        type = QEvent::MouseButtonPress;
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseMove && type != QEvent::MouseButtonRelease)
        return QObject::eventFilter(watched, event);
    const auto *mouse = static_cast<QMouseEvent *>(event);
    if (type == QEvent::MouseMove) {
        if (g_bDragging && (mouse->buttons() & Qt::LeftButton))
            moveWindow(mouse->globalPos());
    } else if (mouse->button() == Qt::LeftButton) {
        g_bDragging = type == QEvent::MouseButtonPress;
        if (g_bDragging) {
            m_nPressX = mouse->pos().x();
            m_nPressY = mouse->pos().y();
        }
        m_ptDrag = g_bDragging ? m_pWindow->frameGeometry().topLeft() : mouse->globalPos();
    }
    return false;
}

void FramelessDrag::moveWindow(const QPoint &pointer)
{
    if (m_nTitleHeight >= 0 && m_nPressY > style::px(m_nTitleHeight))
        return;
    // The pointer counts as inside the screen, so a part of the window stays there and can be dragged back.
    const QPoint held = style::placeWithin(QRect(pointer, QSize(1, 1)), style::availableArea(pointer));
    m_pWindow->move(held - QPoint(m_nPressX, m_nPressY));
}
