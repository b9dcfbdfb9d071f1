// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/SelfTestGlobals.h"
#include "smart/SelfTestText.h"
#include "ui/screens/Page.h"

#include "ui_SelfTestPanel.h"

#include <optional>

/// What the Scan Disk page shows of a self-test: the disk, the progress and the times. Keeps what it shows,
/// so that a change of the language reaches all of it.
class SelfTestPanel : public Page
{
    Q_OBJECT

public:
    struct Shown {
        std::optional<SelfTestKind> kind;
        QString model;
        QString serial;
        int percent = 0;
        bool progress = true; ///< the progress bar and the percentage beside it
        bool times = true;    ///< the cards of the three times
        std::optional<selftest::Told> status;
        std::optional<int> pollingMinutes;
        std::optional<int> remainingMinutes;
        QString elapsed;
    };

    explicit SelfTestPanel(QWidget *parent = nullptr);

    /// A percentage below 0 or above 100 leaves the one before.
    void Show(const Shown &shown);

protected:
    void retranslate() override;

private:
    Ui::SelfTestPanelForm m_ui;
    Shown m_shown;
};
