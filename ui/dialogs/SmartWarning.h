// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/MessageDialog.h"

/// Tells that a disk is warmer than the warning threshold.
class SmartWarning : public MessageDialog
{
    Q_OBJECT

public:
    explicit SmartWarning(QWidget *parent = nullptr);

public slots:
    void OnOk();
    /// Stores that this warning is no longer wanted, and hides it.
    void OnDontShowClicked();
};
