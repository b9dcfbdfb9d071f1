#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

#include "ui_ConfarmetionClass.h"

/// Asks whether a running job is to be stopped.
class ConfarmetionClass : public QDialog, public Ui::ConfarmetionDialog
{
    Q_OBJECT

public:
    explicit ConfarmetionClass(QWidget *parent = nullptr);

    void SetTexts(const QString &title, const QString &first, const QString &second);

protected:
    void changeEvent(QEvent *event) override;

private:
    DialogFrame m_Frame;
};
