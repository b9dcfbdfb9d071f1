#include "ui/dialogs/SmartWarning.h"

#include "state/SettingsStore.h"

#include <QEvent>

SmartWarning::SmartWarning(QWidget *parent) : QDialog(parent), m_Frame(this)
{
    setupUi(this);
    m_Frame.dress(
        {CenterTitleLabel, ImageLbl, QStringLiteral("img_warning.png"), OkButton, OkButton, WarningLbl});
    connect(OkButton, &QPushButton::clicked, this, &SmartWarning::OnOk);
    connect(DontShowButton, &QPushButton::clicked, this, &SmartWarning::OnDontShowClicked);
}

void SmartWarning::OnOk()
{
    hide();
}

void SmartWarning::OnDontShowClicked()
{
    SettingsStore().writeNumber(key::DontShow, 1);
    hide();
}

void SmartWarning::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi(this);
    QDialog::changeEvent(event);
}
