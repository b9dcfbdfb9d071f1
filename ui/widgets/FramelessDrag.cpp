// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/FramelessDrag.h"

#include "state/Globals.h"
#include "ui/widgets/Style.h"

#include <QMouseEvent>
#include <QWidget>

FramelessDrag::FramelessDrag(QWidget *window, int titleHeight)
    : m_pWindow(window), m_nTitleHeight(titleHeight)
{
}

void FramelessDrag::press(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    g_bDragging = false;
    m_nPressX = event->pos().x();
    m_nPressY = event->pos().y();
    m_ptDrag = m_pWindow->frameGeometry().topLeft();
    g_bDragging = true;
}

void FramelessDrag::move(QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton) || !g_bDragging)
        return;
    if (m_nTitleHeight >= 0 && m_nPressY > style::px(m_nTitleHeight))
        return;
    // The spot under the pointer stays on the screen, so that the window can be dragged back.
    const QRect reach = style::availableArea(event->globalPos());
    const QPoint held = style::placeWithin(QRect(event->globalPos(), QSize(1, 1)), reach);
    m_pWindow->move(held - QPoint(m_nPressX, m_nPressY));
    event->accept();
}

void FramelessDrag::release(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_ptDrag = event->globalPos();
    g_bDragging = false;
}
