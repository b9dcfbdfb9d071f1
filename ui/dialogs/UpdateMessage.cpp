// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/UpdateMessage.h"

#include "ui/dialogs/SmallMessageDlg.h"

#include <QApplication>
#include <QPointer>

void ShowUpdateMessage(const QString &text, int leadingBlankLines)
{
    // The window below may go while the message is up, and takes its children with it.
    QPointer<SmallMessageDlg> dialog = new SmallMessageDlg(QApplication::activeWindow());
    dialog->SetText(text, leadingBlankLines);
    dialog->exec();
    delete dialog;
}
