// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

class QTextEdit;

/// The plain message box of the update: a centred text.
class SmallMessageDlg : public QDialog
{
    Q_OBJECT

public:
    explicit SmallMessageDlg(QWidget *parent = nullptr);

    /// Replaces the text: an empty block as heading, a second one if `leadingBlankLines` is below 2, then
    /// `text`.
    void SetText(const QString &text, int leadingBlankLines);

private:
    DialogFrame m_Frame;
    QTextEdit *m_pTextEdit;
};

/// Shows a message of the update in a modal SmallMessageDlg, as its SetText() does, and returns when it was
/// closed. Main thread only.
void ShowUpdateMessage(const QString &text, int leadingBlankLines);
