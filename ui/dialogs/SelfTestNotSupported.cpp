#include "ui/dialogs/SelfTestNotSupported.h"

#include <QEvent>

SelfTestNotSupported::SelfTestNotSupported(QWidget *parent) : QDialog(parent), m_Frame(this)
{
    setupUi(this);
    m_Frame.dress({CenterTitleLabel, ImageLbl, QStringLiteral("img_SelectRegion.png"), CloseButton,
                   CloseButton, WarningTxtLbl});
}

void SelfTestNotSupported::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi(this);
    QDialog::changeEvent(event);
}
