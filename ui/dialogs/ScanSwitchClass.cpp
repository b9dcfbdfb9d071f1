// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/ScanSwitchClass.h"

const DialogShape Shape = {
    "ScanSwitchDialog",
    480,
    QT_TRANSLATE_NOOP("ScanSwitchDialog", "Velmora Halvane"),
    {"CenterTitleLabel", QT_TRANSLATE_NOOP("ScanSwitchDialog", "Scan Disk")},
    {"ImageLbl", "img_Question.png"},
    {{"WarningTxtLbl",
      QT_TRANSLATE_NOOP("ScanSwitchDialog", "Scan results will be lost if you move away from this screen. ")},
     {"WarningTxtLbl_2",
      QT_TRANSLATE_NOOP("ScanSwitchDialog", "Do you want to move away from this screen?")}},
    {{"YesButton", QT_TRANSLATE_NOOP("ScanSwitchDialog", "Yes")},
     {"NoButton", QT_TRANSLATE_NOOP("ScanSwitchDialog", "No")}},
    DialogButton::First};

ScanSwitchClass::ScanSwitchClass(QWidget *parent) : MessageDialog(Shape, parent) {}
