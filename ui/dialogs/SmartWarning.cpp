// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/SmartWarning.h"

#include "state/SettingsStore.h"

const DialogShape Shape = {
    "SmartWarningDialog",
    480,
    QT_TRANSLATE_NOOP("SmartWarningDialog", "Velmora Halvane"),
    {"CenterTitleLabel", QT_TRANSLATE_NOOP("SmartWarningDialog", "SMART Warning")},
    {"ImageLbl", "img_warning.png"},
    {{"WarningLbl", QT_TRANSLATE_NOOP("SmartWarningDialog", "Warning")},
     {"MediaNameLbl"},
     {"WarningTxtLbl",
      QT_TRANSLATE_NOOP("SmartWarningDialog", "Hard Disk's temperature exceed the threshold value.")},
     {"WarningBigLbl",
      QT_TRANSLATE_NOOP("SmartWarningDialog",
                        "Your hard disk's temperature has exceeded threshold value. This may damage hard "
                        "disk. It is advisable to shutdown the system immediately.")}},
    {{"DontShowButton", QT_TRANSLATE_NOOP("SmartWarningDialog", "Don't show again")},
     {"OkButton", QT_TRANSLATE_NOOP("SmartWarningDialog", "OK")}}};

SmartWarning::SmartWarning(QWidget *parent) : MessageDialog(Shape, parent)
{
    connect(this, &MessageDialog::confirmed, this, &SmartWarning::OnDontShowClicked);
    connect(this, &MessageDialog::dismissed, this, &SmartWarning::OnOk);
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
