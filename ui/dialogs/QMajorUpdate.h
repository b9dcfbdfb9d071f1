// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/QShowUpdate.h"

/// The twin of QShowUpdate that always speaks of a major release. The check itself opens QShowUpdate, which
/// tells both.
class QMajorUpdate : public QShowUpdate
{
    Q_OBJECT

public:
    explicit QMajorUpdate(QWidget *parent = nullptr);
};
