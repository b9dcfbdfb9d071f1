// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QWidget>

/// A widget that writes its texts anew when the language changes. Its form is private: others use its
/// methods.
class Page : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    /// The language is another one now.
    virtual void retranslate() = 0;

    void changeEvent(QEvent *event) final
    {
        if (event->type() == QEvent::LanguageChange)
            retranslate();
        QWidget::changeEvent(event);
    }
};
