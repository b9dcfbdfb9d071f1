// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

/// A navigation button that only tells what the mouse does: press and release do no click handling, the down
/// state is set by the application and stays until it is cleared.
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
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};

/// The same with signal names of its own: the back button of the self-test page.
class MyButton1 : public QPushButton
{
    Q_OBJECT

public:
    explicit MyButton1(QWidget *parent = nullptr);

signals:
    void ChangePixmap1();
    void OnUpdatePixmap1();
    void OnPressPixmap1();
    void OnReleasePixmap1();

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};
