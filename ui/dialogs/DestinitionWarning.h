#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

#include "ui_DestinitionWarning.h"

/// A panel with two lines and a close button: asks for a clone target, or tells what must end first.
class DestinitionWarning : public QDialog, public Ui::DestinitionWarningDailog
{
    Q_OBJECT

public:
    explicit DestinitionWarning(QWidget *parent = nullptr);

    void SetTexts(const QString &title, const QString &first, const QString &second);

protected:
    void changeEvent(QEvent *event) override;

private:
    void translateTexts();

    DialogFrame m_Frame;
    bool m_bTextsSet = false;
};
