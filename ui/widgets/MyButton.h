// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

/// Base of the two kinds of buttons that tell by signals what the mouse does; a press is no click. A key or a
/// screen reader that presses them sends the same signals.
class PressButton : public QPushButton
{
protected:
    explicit PressButton(QWidget *parent);

    virtual void tellPress() = 0;
    virtual void tellRelease() = 0;

    void mousePressEvent(QMouseEvent *) override { tellPress(); }
    void mouseReleaseEvent(QMouseEvent *) override { tellRelease(); }
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override { QWidget::keyReleaseEvent(event); }
    /// The base would take back the down state, which means "on show".
    void focusOutEvent(QFocusEvent *event) override { QWidget::focusOutEvent(event); }
};

/// A navigation button. The keys up and down move the focus to its neighbours.
class MyButton : public PressButton
{
    Q_OBJECT

public:
    explicit MyButton(QWidget *parent = nullptr) : PressButton(parent) {}

    /// Its screen is on show: it is down, and a screen reader calls it checked.
    void setCurrent(bool current);

signals:
    void ChangePixmap();    ///< the pointer came over the button
    void OnUpdatePixmap();  ///< the pointer left it
    void OnPressPixmap();   ///< a mouse button went down on it
    void OnReleasePixmap(); ///< and up again

protected:
    void tellPress() override { emit OnPressPixmap(); }
    void tellRelease() override { emit OnReleasePixmap(); }
    void enterEvent(QEvent *) override { emit ChangePixmap(); }
    void leaveEvent(QEvent *) override { emit OnUpdatePixmap(); }
    void keyPressEvent(QKeyEvent *event) override;
};

/// The same with signal names of its own: the back button of the self-test page.
class MyButton1 : public PressButton
{
    Q_OBJECT

public:
    explicit MyButton1(QWidget *parent = nullptr) : PressButton(parent) {}

signals:
    void ChangePixmap1();    ///< the pointer came over the button
    void OnUpdatePixmap1();  ///< the pointer left it
    void OnPressPixmap1();   ///< a mouse button went down on it
    void OnReleasePixmap1(); ///< and up again

protected:
    void tellPress() override { emit OnPressPixmap1(); }
    void tellRelease() override { emit OnReleasePixmap1(); }
    void enterEvent(QEvent *) override { emit ChangePixmap1(); }
    void leaveEvent(QEvent *) override { emit OnUpdatePixmap1(); }
};
