// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/MessageDialog.h"

/// Tells that the selected disk has no self-test.
class SelfTestNotSupported : public MessageDialog
{
    Q_OBJECT

public:
    explicit SelfTestNotSupported(QWidget *parent = nullptr);
};
