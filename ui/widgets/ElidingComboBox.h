#pragma once

#include <QComboBox>

/// A combo box that elides a current text too long for it, where the plain one cuts it; a tool tip holds the
/// whole text then, and that of each entry of the list. Without the meta-object macro, so that it goes by the
/// name of QComboBox.
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
