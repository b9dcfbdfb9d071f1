// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/MessageDialog.h"

/// Asks before results on screen are lost by moving to another screen.
class ScanSwitchClass : public MessageDialog
{
    Q_OBJECT

public:
    explicit ScanSwitchClass(QWidget *parent = nullptr);
};
