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

    /// Replaces the text: an empty block as heading, one more below two leading blank lines, then `text`.
    void SetText(const QString &text, int leadingBlankLines);

private:
    DialogFrame m_Frame;
    QTextEdit *m_pTextEdit;
};

/// Shows a message of the update in a modal SmallMessageDlg and returns when it was closed. With fewer than
/// two leading blank lines the text begins one line lower. Main thread only.
void ShowUpdateMessage(const QString &text, int leadingBlankLines);
