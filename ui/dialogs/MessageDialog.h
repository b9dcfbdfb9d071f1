// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

/// A dialog that shows a shape and nothing else: what the product's questions and messages are.
class MessageDialog : public QDialog
{
    Q_OBJECT

signals:
    void confirmed(); ///< the first of two buttons was pressed
    void dismissed(); ///< the last button was pressed, by Escape too

protected:
    MessageDialog(const DialogShape &shape, QWidget *parent);

    /// Puts other texts in place of the title and of the two lines.
    void SetTexts(const QString &title, const QString &first, const QString &second);

    DialogFrame m_Frame;
};
