// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/InfoDialogClass.h"

#include <QLabel>
#include <QPushButton>

const DialogShape Shape = {"InfoDialog",
                           480,
                           QT_TRANSLATE_NOOP("InfoDialog", "Velmora Halvane"),
                           {"HeaderLabel", QT_TRANSLATE_NOOP("InfoDialog", "Information")},
                           {"InageLbl", "img_Information.png"},
                           {{"label"}, {"label_2"}},
                           {{"SaveButton", QT_TRANSLATE_NOOP("InfoDialog", "Save List")},
                            {"OkButton", QT_TRANSLATE_NOOP("InfoDialog", "OK")}}};

InfoDialogClass::InfoDialogClass(QWidget *parent) : MessageDialog(Shape, parent)
{
    m_Frame.button(DialogButton::First)->hide();
    connect(this, &MessageDialog::dismissed, this, &InfoDialogClass::hide);
}

QString InfoDialogClass::SecondText() const
{
    return m_Frame.label("label_2")->text();
}

void InfoDialogClass::SetSecondText(const QString &text)
{
    m_Frame.label("label_2")->setText(text);
}

void InfoDialogClass::OfferSaving(bool bOffer)
{
    m_Frame.button(DialogButton::First)->setVisible(bOffer);
    m_Frame.fit();
}
