#include "ui/dialogs/ConfarmetionClass.h"

#include <QEvent>

ConfarmetionClass::ConfarmetionClass(QWidget *parent) : QDialog(parent), m_Frame(this)
{
    setupUi(this);
    m_Frame.dress({CenterTitleLabel, ImageLbl, QStringLiteral("img_Question.png"), NoButton, YesButton,
                   WarningTxtLbl, NoButton});
}

void ConfarmetionClass::SetTexts(const QString &title, const QString &first, const QString &second)
{
    CenterTitleLabel->setText(title);
    WarningTxtLbl->setText(first);
    WarningTxtLbl_2->setText(second);
    m_Frame.fit();
}

void ConfarmetionClass::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi(this);
    QDialog::changeEvent(event);
}
