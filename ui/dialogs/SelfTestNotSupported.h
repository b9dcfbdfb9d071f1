#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

#include "ui_SelfTestNotSupported.h"

/// Tells that the selected disk has no self-test.
class SelfTestNotSupported : public QDialog, public Ui::SelfTestNotSupportedDialog
{
    Q_OBJECT

public:
    explicit SelfTestNotSupported(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    DialogFrame m_Frame;
};
