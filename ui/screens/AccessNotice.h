// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/screens/Page.h"

#include "ui_AccessNotice.h"

/// Stands in the place of every screen while this process may open no disk: says so, and how to start the
/// program with the rights to.
class AccessNotice : public Page
{
    Q_OBJECT

public:
    explicit AccessNotice(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private:
    Ui::AccessNotice m_ui;
};
