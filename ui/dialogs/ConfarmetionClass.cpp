// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/ConfarmetionClass.h"

const DialogShape Shape = {"ConfarmetionDialog",
                           480,
                           QT_TRANSLATE_NOOP("ConfarmetionDialog", "Velmora Halvane"),
                           {"CenterTitleLabel"},
                           {"ImageLbl", "img_Question.png"},
                           {{"WarningTxtLbl"}, {"WarningTxtLbl_2"}},
                           {{"YesButton", QT_TRANSLATE_NOOP("ConfarmetionDialog", "Yes")},
                            {"NoButton", QT_TRANSLATE_NOOP("ConfarmetionDialog", "No")}},
                           DialogButton::First};

ConfarmetionClass::ConfarmetionClass(QWidget *parent) : MessageDialog(Shape, parent) {}
