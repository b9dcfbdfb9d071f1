#include "ui/dialogs/ScanSwitchClass.h"

#include <QEvent>

ScanSwitchClass::ScanSwitchClass(QWidget *parent) : QDialog(parent), m_Frame(this)
{
    setupUi(this);
    m_Frame.dress({CenterTitleLabel, ImageLbl, QStringLiteral("img_Question.png"), NoButton, YesButton,
                   WarningTxtLbl, NoButton});
}

void ScanSwitchClass::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi(this);
    QDialog::changeEvent(event);
}
