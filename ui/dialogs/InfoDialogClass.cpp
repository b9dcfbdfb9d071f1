#include "ui/dialogs/InfoDialogClass.h"

#include <QEvent>

InfoDialogClass::InfoDialogClass(QWidget *parent) : QDialog(parent), m_Frame(this)
{
    setupUi(this);
    m_Frame.dress({HeaderLabel, InageLbl, QStringLiteral("img_Information.png"), OkButton, OkButton, label});
    SaveButton->hide();
    connect(OkButton, &QPushButton::clicked, this, &InfoDialogClass::hide);
}

void InfoDialogClass::SetTexts(const QString &title, const QString &text, const QString &second)
{
    HeaderLabel->setText(title);
    label->setText(text);
    label_2->setText(second);
    m_bTextsSet = true;
    m_Frame.fit();
}

void InfoDialogClass::OfferSaving(bool bOffer)
{
    SaveButton->setVisible(bOffer);
    m_Frame.fit();
}

void InfoDialogClass::translateTexts()
{
    // The title of an outcome stays; only the default one follows the language.
    const QString title = HeaderLabel->text();
    retranslateUi(this);
    if (m_bTextsSet)
        HeaderLabel->setText(title);
}

void InfoDialogClass::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translateTexts();
    QDialog::changeEvent(event);
}
