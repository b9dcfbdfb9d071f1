#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

#include "ui_SmartWarning.h"

/// Tells that a disk is warmer than the warning threshold.
class SmartWarning : public QDialog, public Ui::SmartWarningDialog
{
    Q_OBJECT

public:
    explicit SmartWarning(QWidget *parent = nullptr);

public slots:
    void OnOk();
    /// Stores that this warning is no longer wanted, and hides it.
    void OnDontShowClicked();

protected:
    void changeEvent(QEvent *event) override;

private:
    DialogFrame m_Frame;
};
