#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

#include "ui_CloneWarning.h"

/// The last question before a disk is overwritten; names the two disks.
class CloneWarning : public QDialog, public Ui::CloningWarningDialog
{
    Q_OBJECT

public:
    explicit CloneWarning(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    DialogFrame m_Frame;
};
