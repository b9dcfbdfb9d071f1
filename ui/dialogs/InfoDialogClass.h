#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

#include "ui_InfoDialogClass.h"

/// The message box for the outcome of a scan or a clone.
class InfoDialogClass : public QDialog, public Ui::InfoDialog
{
    Q_OBJECT

public:
    explicit InfoDialogClass(QWidget *parent = nullptr);

    void SetTexts(const QString &title, const QString &text, const QString &second);
    /// Shows or hides the button that saves a list; what it does is up to who offers it.
    void OfferSaving(bool bOffer);

protected:
    void changeEvent(QEvent *event) override;

private:
    DialogFrame m_Frame;
    void translateTexts();

    bool m_bTextsSet = false;
};
