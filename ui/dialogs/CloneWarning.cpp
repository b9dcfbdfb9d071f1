#include "ui/dialogs/CloneWarning.h"

#include "ui/widgets/Style.h"

#include <QEvent>

CloneWarning::CloneWarning(QWidget *parent) : QDialog(parent), m_Frame(this)
{
    setupUi(this);
    m_Frame.dress({CenterTitleLabel, ImageLbl, QStringLiteral("img_Warning.png"), CancelButton, StartButton,
                   WarningLbl, CancelButton});
    WarningTxtLbl_2->setFont(style::semiBold(10));
}

void CloneWarning::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi(this);
    QDialog::changeEvent(event);
}
