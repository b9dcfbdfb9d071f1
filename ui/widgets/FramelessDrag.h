// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>

class QWidget;

/// Lets a frameless window be dragged with the left button. g_bDragging tells for all windows that one is
/// being dragged. Main thread only.
class FramelessDrag : public QObject
{
public:
    /// Watches `window`, which must outlive this object. The window is dragged only by its uppermost
    /// `titleHeight` design pixels, or by all of it if that is negative.
    explicit FramelessDrag(QWidget *window, int titleHeight = -1);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void moveWindow(const QPoint &pointer);

    QWidget *m_pWindow;
    int m_nTitleHeight;
    QPoint m_ptDrag; ///< the window's place at the press; from the release on, the pointer's
    int m_nPressX = 0;
    int m_nPressY = 0;
};
