// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>

/// A drop-down menu of a header button. It opens a little below the button, or with its right edge on that of
/// the main window.
class PopupMenu : public QMenu
{
    Q_OBJECT

public:
    PopupMenu(bool alignRight, QWidget *parent) : QMenu(parent), m_bAlignRight(alignRight) {}

protected:
    void showEvent(QShowEvent *event) override;

private:
    bool m_bAlignRight;
};
