// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/MessageDialog.h"

/// The last question before a disk is overwritten; names the two disks.
class CloneWarning : public MessageDialog
{
    Q_OBJECT

public:
    explicit CloneWarning(QWidget *parent = nullptr);

    /// Shows what the disks are called.
    void NameDisks(const QString &source, const QString &destination);
    /// Takes no confirmation for as long as a double click may take.
    void HoldStart();
};
