// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Hand.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace
{

/// The native window of a top-level widget, if that still is one and is shown: its address may be stale by
/// now.
QWindow *nativeWindow(QWidget *widget)
{
    if (!QApplication::topLevelWidgets().contains(widget) || !widget->isVisible())
        return nullptr;
    return widget->windowHandle();
}

/// A display tells a window when the mouse leaves it. Offscreen nothing does, and a button would stay lit.
void leave(QWidget *window)
{
    QList<QWidget *> all = window->findChildren<QWidget *>();
    all.append(window);
    for (QWidget *widget : qAsConst(all)) {
        if (!widget->underMouse())
            continue;
        QEvent event(QEvent::Leave);
        widget->setAttribute(Qt::WA_UnderMouse, false);
        QCoreApplication::sendEvent(widget, &event);
        widget->update();
    }
}

} // namespace

namespace hand
{

Place at(QWidget *widget, const QPoint &point)
{
    return {widget->window(), widget->mapTo(widget->window(), point)};
}

Place middleOf(QWidget *widget)
{
    return at(widget, widget->rect().center());
}

void move(const Place &place)
{
    static QPointer<QWidget> last;
    QWindow *window = nativeWindow(place.window);
    if (!window)
        return;
    if (last && last != place.window)
        leave(last);
    last = place.window;
    QTest::mouseMove(window, place.point);
}

void press(const Place &place)
{
    if (QWindow *window = nativeWindow(place.window))
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, place.point);
}

void release(const Place &place)
{
    if (QWindow *window = nativeWindow(place.window))
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, place.point);
}

void key(QWidget *window, Qt::Key key)
{
    if (QWindow *native = nativeWindow(window))
        QTest::keyClick(native, key);
}

void fill(QWidget *field, const QString &text)
{
    if (auto *line = qobject_cast<QLineEdit *>(field)) {
        line->setFocus();
        line->setText(text); // typing would bring up a list of completions that eats the next key
    }
}

} // namespace hand
