// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/SelfTest.h"
#include "ui/screens/Page.h"

#include "ui_SelfTestPanel.h"

/// What the Scan Disk page shows of a self-test: the disk, the progress and the times. Keeps what it shows,
/// so that a change of the language reaches all of it.
class SelfTestPanel : public Page
{
    Q_OBJECT

public:
    explicit SelfTestPanel(QWidget *parent = nullptr);

    /// A percentage below 0 or above 100 leaves the one before.
    void Show(const SelfTest::Shown &shown);

protected:
    void retranslate() override;

private:
    Ui::SelfTestPanelForm m_ui;
    SelfTest::Shown m_shown;
};
