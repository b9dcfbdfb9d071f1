// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QWidget>

/// Asks before the program ends.
/// Not modal: a job may be started beneath it.
class CloseWgt : public QWidget
{
    Q_OBJECT

public:
    explicit CloseWgt(QWidget *parent = nullptr);

signals:
    void confirmed();
    void dismissed();

private:
    DialogFrame m_Frame;
};
