// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTranslator>

/// Finds the widgets of a window by name.
inline QPushButton *buttonOf(const QObject *window, const char *name)
{
    return window->findChild<QPushButton *>(QLatin1String(name));
}

inline QLabel *labelOf(const QObject *window, const char *name)
{
    return window->findChild<QLabel *>(QLatin1String(name));
}

/// The visible dialog of this class, whatever window it belongs to; null if there is none.
template<typename Dialog>
Dialog *dialog()
{
    for (QWidget *widget : QApplication::allWidgets()) {
        if (auto *found = qobject_cast<Dialog *>(widget); found && found->isVisible())
            return found;
    }
    return nullptr;
}

/// A language for as long as it lives: each text stands in the place of the $ of `form`.
class OtherLanguage : public QTranslator
{
public:
    explicit OtherLanguage(const char *form) : m_form(QLatin1String(form))
    {
        QCoreApplication::installTranslator(this);
        QCoreApplication::processEvents();
    }
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QString(m_form).replace(QLatin1Char('$'), QString::fromUtf8(source));
    }

private:
    QString m_form;
};

/// Counts the events of one kind that reach a widget.
class EventCounter : public QObject
{
public:
    EventCounter(QWidget *widget, QEvent::Type type) : m_type(type) { widget->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

private:
    QEvent::Type m_type;
};

/// Tells the widget of a new language.
inline void changeLanguage(QWidget *widget)
{
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(widget, &change);
}
