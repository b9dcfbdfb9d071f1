// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

/// A navigation button that only tells what the mouse does; a press is no click. The application sets and
/// clears its down state.
class MyButton : public QPushButton
{
    Q_OBJECT

public:
    explicit MyButton(QWidget *parent = nullptr);

signals:
    void ChangePixmap();    ///< the pointer came over the button
    void OnUpdatePixmap();  ///< the pointer left it
    void OnPressPixmap();   ///< a mouse button went down on it
    void OnReleasePixmap(); ///< and up again

protected:
    void enterEvent(QEvent *) override { emit ChangePixmap(); }
    void leaveEvent(QEvent *) override { emit OnUpdatePixmap(); }
    void mousePressEvent(QMouseEvent *) override { emit OnPressPixmap(); }
    void mouseReleaseEvent(QMouseEvent *) override { emit OnReleasePixmap(); }
};

/// The same with signal names of its own: the back button of the self-test page.
class MyButton1 : public QPushButton
{
    Q_OBJECT

public:
    explicit MyButton1(QWidget *parent = nullptr);

signals:
    void ChangePixmap1();    ///< the pointer came over the button
    void OnUpdatePixmap1();  ///< the pointer left it
    void OnPressPixmap1();   ///< a mouse button went down on it
    void OnReleasePixmap1(); ///< and up again

protected:
    void enterEvent(QEvent *) override { emit ChangePixmap1(); }
    void leaveEvent(QEvent *) override { emit OnUpdatePixmap1(); }
    void mousePressEvent(QMouseEvent *) override { emit OnPressPixmap1(); }
    void mouseReleaseEvent(QMouseEvent *) override { emit OnReleasePixmap1(); }
};
