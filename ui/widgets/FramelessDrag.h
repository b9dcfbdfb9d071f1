// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>

class QWidget;

/// Lets a frameless window be dragged with the left button. One global flag tells that a drag is on, as one
/// window at a time can be dragged. Main thread only.
class FramelessDrag : public QObject
{
public:
    /// `window` must outlive this object. Only presses at most `titleHeight` design pixels from the window's
    /// top drag; a negative height means the whole window.
    explicit FramelessDrag(QWidget *window, int titleHeight = -1);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void moveWindow(const QPoint &pointer);

    QWidget *m_pWindow;
    int m_nTitleHeight;
    QPoint m_ptDrag; ///< the window's place at the press, then the last place of the pointer
    int m_nPressX = 0;
    int m_nPressY = 0;
};
