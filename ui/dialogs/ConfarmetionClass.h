// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/MessageDialog.h"

/// Asks whether a running job is to be stopped.
class ConfarmetionClass : public MessageDialog
{
    Q_OBJECT

public:
    explicit ConfarmetionClass(QWidget *parent = nullptr);

    using MessageDialog::SetTexts;
};
