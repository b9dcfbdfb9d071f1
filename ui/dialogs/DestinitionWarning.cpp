#include "ui/dialogs/DestinitionWarning.h"

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
    m_bTextsSet = true;
    m_Frame.fit();
}

void DestinitionWarning::translateTexts()
{
    // What tells of a running job stays; the form's own question must not take its place.
    const QString title = CenterTitleLabel->text();
    const QString first = WarningTxtLbl->text();
    const QString second = WarningTxtLbl_2->text();
    retranslateUi(this);
    if (m_bTextsSet)
        SetTexts(title, first, second);
}

void DestinitionWarning::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translateTexts();
    QDialog::changeEvent(event);
}
