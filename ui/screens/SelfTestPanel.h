// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/SelfTestGlobals.h"
#include "smart/SelfTestText.h"
#include "ui/screens/Page.h"

#include "ui_SelfTestPanel.h"

#include <optional>

/// What the Scan Disk page shows of a self-test: the disk, the progress and the times. Keeps what it shows,
/// so that a change of the language reaches all of it.
class SelfTestPanel : public Page, private Ui::SelfTestPanelForm
{
    Q_OBJECT

public:
    explicit SelfTestPanel(QWidget *parent = nullptr);

    void SetTestName(std::optional<SelfTestKind> kind); ///< empty without a kind
    void SetDisk(const QString &model, const QString &serial);
    /// The progress bar and the percentage beside it.
    void ShowProgress(bool shown);
    void ShowTimes(bool shown);
    /// Percent, 0 to 100; any other number is not shown.
    void SetProgress(int percent);
    void SetStatus(std::optional<selftest::Told> status); ///< empty without one
    void SetPollingMinutes(std::optional<int> minutes);
    void SetRemainingMinutes(std::optional<int> minutes);
    void SetElapsed(const QString &text);

protected:
    void retranslate() override;

private:
    void showTexts();

    std::optional<SelfTestKind> m_kind;
    std::optional<int> m_pollingMinutes;
    std::optional<int> m_remainingMinutes;
    std::optional<selftest::Told> m_status;
};
