// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/DestinitionWarning.h"

const DialogShape Shape = {
    "DestinitionWarningDailog",
    480,
    QT_TRANSLATE_NOOP("DestinitionWarningDailog", "Velmora Halvane"),
    {"CenterTitleLabel", QT_TRANSLATE_NOOP("DestinitionWarningDailog", "Clone Disk")},
    {"ImageLbl", "img_SelectRegion.png"},
    {{"WarningTxtLbl", QT_TRANSLATE_NOOP("DestinitionWarningDailog", "Select target disk.")},
     {"WarningTxtLbl_2",
      QT_TRANSLATE_NOOP("DestinitionWarningDailog", "Select target disk to start cloning process.")}},
    {{"CloseButton", QT_TRANSLATE_NOOP("DestinitionWarningDailog", "Close")}}};

DestinitionWarning::DestinitionWarning(QWidget *parent) : MessageDialog(Shape, parent) {}
