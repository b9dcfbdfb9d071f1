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

/// The native window of a widget, if there still is a shown top-level widget at that address.
QWindow *nativeWindow(QWidget *widget)
{
    if (!QApplication::topLevelWidgets().contains(widget) || !widget->isVisible())
        return nullptr;
    return widget->windowHandle();
}

/// Tells the widgets that the mouse has left. A display does that by itself; without one a button would stay
/// highlighted.
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
        line->setText(text); // typing would open a list of completions, which takes the next key
    }
}

} // namespace hand
