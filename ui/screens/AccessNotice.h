// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/screens/Page.h"

class QLabel;

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
    QLabel *addText(const char *name, const QFont &font);

    QLabel *m_pHeading = nullptr;
    QLabel *m_pReason = nullptr;
    QLabel *m_pAdvice = nullptr;
    QLabel *m_pCommand = nullptr; ///< to be copied; hidden where the desktop has an entry of its own
};
