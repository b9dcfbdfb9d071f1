// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/MessageDialog.h"

/// A panel with two lines and a close button: asks for a clone target, or tells what must end first.
class DestinitionWarning : public MessageDialog
{
    Q_OBJECT

public:
    explicit DestinitionWarning(QWidget *parent = nullptr);

    using MessageDialog::SetTexts;
};
