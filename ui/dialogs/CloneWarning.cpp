// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/CloneWarning.h"

#include "ui/widgets/Style.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

const DialogShape Shape = {
    "CloningWarningDialog",
    560,
    QT_TRANSLATE_NOOP("CloningWarningDialog", "Velmora Halvane"),
    {"CenterTitleLabel", QT_TRANSLATE_NOOP("CloningWarningDialog", "Clone Disk")},
    {"ImageLbl", "img_Warning.png"},
    {{"WarningLbl", QT_TRANSLATE_NOOP("CloningWarningDialog", "Warning")},
     {"WarningTxtLbl",
      QT_TRANSLATE_NOOP(
          "CloningWarningDialog",
          "This action will create a clone of the source drive on the destination drive. Make sure that "
          "source and destination disk selection is correct since this operation is irreversible.")},
     {"WarningTxtLbl_2",
      QT_TRANSLATE_NOOP("CloningWarningDialog", "Existing data on the destination disk will be lost.")},
     {"SourceNameLbl"},
     {"DestinationNameLbl"}},
    {{"StartButton", QT_TRANSLATE_NOOP("CloningWarningDialog", "Start")},
     {"CancelButton", QT_TRANSLATE_NOOP("CloningWarningDialog", "Cancel")}},
    DialogButton::First};

CloneWarning::CloneWarning(QWidget *parent) : MessageDialog(Shape, parent)
{
    m_Frame.label("WarningTxtLbl_2")->setFont(style::semiBold(10));
}

void CloneWarning::NameDisks(const QString &source, const QString &destination)
{
    m_Frame.label("SourceNameLbl")->setText(source);
    m_Frame.label("DestinationNameLbl")->setText(destination);
}

void CloneWarning::HoldStart()
{
    QPushButton *start = m_Frame.button(DialogButton::First);
    start->setEnabled(false);
    QTimer::singleShot(QApplication::doubleClickInterval(), start, [start] { start->setEnabled(true); });
}
