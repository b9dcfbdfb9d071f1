#include "ui/dialogs/ShutDownWarning.h"

#include "state/SettingsStore.h"

#include <QEvent>

ShutDownWarning::ShutDownWarning(QWidget *parent) : QDialog(parent), m_Frame(this)
{
    setupUi(this);
    m_Frame.dress({CenterTitleLabel, ImageLbl, QStringLiteral("img_warning.png"), OkButton, ShutDownButton,
                   WarningLbl, OkButton});
    connect(OkButton, &QPushButton::clicked, this, &ShutDownWarning::OnOk);
}

void ShutDownWarning::OnOk()
{
    hide();
}

void ShutDownWarning::OnDontShowClicked()
{
    SettingsStore().writeNumber(key::ShutDownDontShow, 1);
    hide();
}

void ShutDownWarning::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi(this);
    QDialog::changeEvent(event);
}
