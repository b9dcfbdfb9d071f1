// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

/// A combo box that elides a current text too long for it, where the plain one cuts it; a tool tip holds
/// the whole text then, and that of each entry of the list. Without Q_OBJECT, so that its class name stays
/// QComboBox.
class ElidingComboBox : public QComboBox
{
public:
    using QComboBox::QComboBox;

    void showPopup() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownText() const;
};
