#include "ui/dialogs/CloseWgt.h"

#include <QEvent>

CloseWgt::CloseWgt(QWidget *parent) : QWidget(parent), m_Frame(this)
{
    setupUi(this);
    m_Frame.dress(
        {HeaderLabel, ImageLbl, QStringLiteral("img_Question.png"), NoButton, nullptr, nullptr, YesButton});
    for (QPushButton *button : {YesButton, NoButton})
        button->setStyleSheet(button->styleSheet() + QStringLiteral("QPushButton {color : #000000;}"));
}

void CloseWgt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi(this);
    QWidget::changeEvent(event);
}
