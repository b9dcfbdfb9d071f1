#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

#include "ui_ScanSwitchClass.h"

/// Asks before results on screen are lost by moving to another screen.
class ScanSwitchClass : public QDialog, public Ui::ScanSwitchDialog
{
    Q_OBJECT

public:
    explicit ScanSwitchClass(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    DialogFrame m_Frame;
};
