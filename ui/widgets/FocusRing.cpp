// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/FocusRing.h"

#include "ui/widgets/Style.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QPainter>

namespace
{

constexpr int Line = 2;
constexpr int Radius = 4;
const QColor Colour(0x14, 0x56, 0x9f);

class Ring : public QWidget
{
public:
    explicit Ring(QWidget *window) : QWidget(window)
    {
        setObjectName(QStringLiteral("m_pFocusRing"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const int line = style::px(Line);
        const double inset = line / 2.0;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Colour, line));
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), style::px(Radius),
                                style::px(Radius));
    }
};

/// A list that drops down has the focus, too, but is none.
bool isInDialog(const QWidget *widget)
{
    const QWidget *window = widget->window();
    return !qobject_cast<const QMainWindow *>(window) && window->windowType() != Qt::Popup;
}

} // namespace

FocusRing::FocusRing(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    // The system's windows get events of their own.
    if (!watched->isWidgetType())
        return QObject::eventFilter(watched, event);
    auto *widget = static_cast<QWidget *>(watched);
    const auto holdsControl = [this, widget] {
        return m_pControl && (widget == m_pControl || widget->isAncestorOf(m_pControl));
    };
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto *key = static_cast<QKeyEvent *>(event);
        m_bKeys = true;
        if (!m_pControl)
            take(QApplication::focusWidget());
        // A key that is held must not answer the question that it has opened.
        if (key->isAutoRepeat() && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
            qobject_cast<QAbstractButton *>(widget))
            return true;
        break;
    }
    case QEvent::MouseButtonPress:
        m_bKeys = false;
        if (m_pControl && !isInDialog(m_pControl))
            take(nullptr);
        break;
    case QEvent::FocusIn: {
        const bool byMouse = static_cast<QFocusEvent *>(event)->reason() == Qt::MouseFocusReason;
        take(!byMouse && (m_bKeys || isInDialog(widget)) ? widget : nullptr);
        break;
    }
    case QEvent::FocusOut:
        take(nullptr);
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
        if (holdsControl())
            place();
        break;
    case QEvent::Hide:
        // A hidden window tells its controls only afterwards.
        if (holdsControl())
            take(nullptr);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void FocusRing::take(QWidget *control)
{
    if (control == m_pControl)
        return;
    m_pControl = control && !control->isWindow() ? control : nullptr;
    place();
}

void FocusRing::place()
{
    if (!m_pControl || !m_pControl->isVisible()) {
        delete m_pRing;
        return;
    }
    QWidget *window = m_pControl->window();
    if (!m_pRing || m_pRing->parentWidget() != window) {
        delete m_pRing;
        m_pRing = new Ring(window);
    }
    const int room = style::px(Line) + 1; // the gap tells it from the edge of a blue button
    const QRect control(m_pControl->mapTo(window, QPoint(0, 0)), m_pControl->size());
    m_pRing->setGeometry(control.adjusted(-room, -room, room, room) & window->rect());
    m_pRing->raise();
    m_pRing->show();
}
