// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/CloseWgt.h"

#include <QPushButton>

const DialogShape Shape = {"m_pCloseWgt",
                           400,
                           QT_TRANSLATE_NOOP("m_pCloseWgt", "Velmora Halvane"),
                           {"HeaderLabel", QT_TRANSLATE_NOOP("m_pCloseWgt", "Exit")},
                           {"ImageLbl", "img_Question.png"},
                           {{"label", QT_TRANSLATE_NOOP("m_pCloseWgt", "Are you sure you want to exit?")}},
                           {{"YesButton", QT_TRANSLATE_NOOP("m_pCloseWgt", "Yes")},
                            {"NoButton", QT_TRANSLATE_NOOP("m_pCloseWgt", "No")}},
                           DialogButton::None,
                           DialogButton::First,
                           "frame"};

CloseWgt::CloseWgt(QWidget *parent) : QWidget(parent), m_Frame(this)
{
    m_Frame.build(Shape);
    m_Frame.dress();
    QPushButton *yes = m_Frame.button(DialogButton::First);
    QPushButton *no = m_Frame.button(DialogButton::Last);
    for (QPushButton *button : {yes, no})
        button->setStyleSheet(button->styleSheet() + QStringLiteral("QPushButton {color : #000000;}"));
    connect(yes, &QPushButton::clicked, this, &CloseWgt::confirmed);
    connect(no, &QPushButton::clicked, this, &CloseWgt::dismissed);
}
