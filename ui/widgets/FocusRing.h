// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

/// Shows which control has the keyboard's focus, by a ring about it, in all windows of the program. A user
/// who has just used the mouse sees it in dialogs only. Each process has one, made by startlook::install().
/// Main thread only.
class FocusRing : public QObject
{
public:
    explicit FocusRing(QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void take(QWidget *control);
    void place();

    QPointer<QWidget> m_pControl; ///< which the ring is about
    QPointer<QWidget> m_pRing;    ///< goes with the control's window
    bool m_bKeys = false;         ///< the last press was one of a key
};
