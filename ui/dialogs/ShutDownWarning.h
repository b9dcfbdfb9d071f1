#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

#include "ui_ShutDownWarning.h"

/// Tells that a disk has reached the temperature at which the PC had better be shut down.
class ShutDownWarning : public QDialog, public Ui::SmartShutdownDialog
{
    Q_OBJECT

public:
    explicit ShutDownWarning(QWidget *parent = nullptr);

public slots:
    void OnOk();
    /// Stores that this warning is no longer wanted, and hides it.
    void OnDontShowClicked();

protected:
    void changeEvent(QEvent *event) override;

private:
    DialogFrame m_Frame;
};
