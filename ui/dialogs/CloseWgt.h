#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QWidget>

#include "ui_CloseWgt.h"

/// Asks before the program ends.
/// Not modal: a job may be started beneath it.
class CloseWgt : public QWidget, public Ui::m_pCloseWgt
{
    Q_OBJECT

public:
    explicit CloseWgt(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    DialogFrame m_Frame;
};
