// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/MessageDialog.h"

/// The message box for the outcome of a scan or a clone. Hides when it is dismissed; confirmed() asks to save
/// a list.
class InfoDialogClass : public MessageDialog
{
    Q_OBJECT

public:
    explicit InfoDialogClass(QWidget *parent = nullptr);

    using MessageDialog::SetTexts;
    QString SecondText() const;
    void SetSecondText(const QString &text);
    /// Shows or hides the button that saves a list; what it does is up to who offers it.
    void OfferSaving(bool bOffer);
};
