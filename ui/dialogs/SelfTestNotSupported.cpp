// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/SelfTestNotSupported.h"

const DialogShape Shape = {
    "SelfTestNotSupportedDialog",
    480,
    QT_TRANSLATE_NOOP("SelfTestNotSupportedDialog", "Velmora Halvane"),
    {"CenterTitleLabel", QT_TRANSLATE_NOOP("SelfTestNotSupportedDialog", "Drive Test")},
    {"ImageLbl", "img_SelectRegion.png"},
    {{"WarningTxtLbl", QT_TRANSLATE_NOOP("SelfTestNotSupportedDialog", "Self-test not supported.")},
     {"WarningTxtLbl_2",
      QT_TRANSLATE_NOOP("SelfTestNotSupportedDialog", "Selected disk doesn't support self test.")}},
    {{"CloseButton", QT_TRANSLATE_NOOP("SelfTestNotSupportedDialog", "Close")}}};

SelfTestNotSupported::SelfTestNotSupported(QWidget *parent) : MessageDialog(Shape, parent) {}
