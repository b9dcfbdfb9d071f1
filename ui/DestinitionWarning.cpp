#include "ui/DestinitionWarning.h"

#include <QEvent>

DestinitionWarning::DestinitionWarning(QWidget *parent) : QDialog(parent), m_Frame(this)
{
    setupUi(this);
    m_Frame.dress({CenterTitleLabel, ImageLbl, QStringLiteral("img_SelectRegion.png"), CloseButton,
                   CloseButton, WarningTxtLbl});
}

void DestinitionWarning::SetTexts(const QString &title, const QString &first, const QString &second)
{
    CenterTitleLabel->setText(title);
    WarningTxtLbl->setText(first);
    WarningTxtLbl_2->setText(second);
    m_Frame.fit();
}

void DestinitionWarning::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi(this);
    QDialog::changeEvent(event);
}
