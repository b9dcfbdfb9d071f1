// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>

/// A drop-down menu of a header button: a little below its place, or with its right edge on the main
/// window's.
class PopupMenu : public QMenu
{
    Q_OBJECT

public:
    PopupMenu(bool alignRight, QWidget *parent);

protected:
    void showEvent(QShowEvent *event) override;

private:
    bool m_bAlignRight;
};
