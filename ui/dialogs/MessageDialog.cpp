// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/MessageDialog.h"

#include <QPushButton>

MessageDialog::MessageDialog(const DialogShape &shape, QWidget *parent) : QDialog(parent), m_Frame(this)
{
    m_Frame.build(shape);
    m_Frame.dress();
    QPushButton *first = m_Frame.button(DialogButton::First);
    QPushButton *last = m_Frame.button(DialogButton::Last);
    if (first != last)
        connect(first, &QPushButton::clicked, this, &MessageDialog::confirmed);
    connect(last, &QPushButton::clicked, this, &MessageDialog::dismissed);
}

void MessageDialog::SetTexts(const QString &title, const QString &first, const QString &second)
{
    m_Frame.setTexts(title, first, second);
}
