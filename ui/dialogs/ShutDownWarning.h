// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/MessageDialog.h"

/// Tells that a disk has reached the temperature at which the PC had better be shut down; confirmed() asks
/// for that.
class ShutDownWarning : public MessageDialog
{
    Q_OBJECT

public:
    explicit ShutDownWarning(QWidget *parent = nullptr);

public slots:
    void OnOk();
    /// Stores that this warning is no longer wanted, and hides it.
    void OnDontShowClicked();
};
