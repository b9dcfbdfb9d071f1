// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/ShutDownWarning.h"

#include "state/SettingsStore.h"

const DialogShape Shape = {
    "SmartShutdownDialog",
    480,
    QT_TRANSLATE_NOOP("SmartShutdownDialog", "Velmora Halvane"),
    {"CenterTitleLabel", QT_TRANSLATE_NOOP("SmartShutdownDialog", "Shutdown Warning")},
    {"ImageLbl", "img_warning.png"},
    {{"WarningLbl", QT_TRANSLATE_NOOP("SmartShutdownDialog", "Warning")},
     {"MediaNameLbl"},
     {"WarningTxtLbl",
      QT_TRANSLATE_NOOP("SmartShutdownDialog", "Hard Disk's temperature has reached the shutdown value.")},
     {"WarningBigLbl",
      QT_TRANSLATE_NOOP("SmartShutdownDialog", "It is advisable to shutdown the system immediately.")}},
    {{"ShutDownButton", QT_TRANSLATE_NOOP("SmartShutdownDialog", "Shutdown")},
     {"OkButton", QT_TRANSLATE_NOOP("SmartShutdownDialog", "OK")}},
    DialogButton::First};

ShutDownWarning::ShutDownWarning(QWidget *parent) : MessageDialog(Shape, parent)
{
    connect(this, &MessageDialog::dismissed, this, &ShutDownWarning::OnOk);
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
