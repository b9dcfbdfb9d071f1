// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/MessageDialog.h"

#include "ui/widgets/Announce.h"
#include "ui/widgets/Style.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>

namespace
{

const DialogShape CloseShape = {
    "m_pCloseWgt",
    400,
    {"HeaderLabel", QT_TRANSLATE_NOOP("m_pCloseWgt", "Exit")},
    {"ImageLbl", "img_Question.png"},
    {{"label", QT_TRANSLATE_NOOP("m_pCloseWgt", "Are you sure you want to exit?")}},
    {{"YesButton", QT_TRANSLATE_NOOP("m_pCloseWgt", "Yes")},
     {"NoButton", QT_TRANSLATE_NOOP("m_pCloseWgt", "No")}},
    DialogButton::None,
    DialogButton::First,
    "frame"};

const DialogShape StopShape = {"ConfarmetionDialog",
                               480,
                               {"CenterTitleLabel"},
                               {"ImageLbl", "img_Question.png"},
                               {{"WarningTxtLbl"}, {"WarningTxtLbl_2"}},
                               {{"YesButton", QT_TRANSLATE_NOOP("ConfarmetionDialog", "Yes")},
                                {"NoButton", QT_TRANSLATE_NOOP("ConfarmetionDialog", "No")}}};

const DialogShape SwitchShape = {
    "ScanSwitchDialog",
    480,
    {"CenterTitleLabel", QT_TRANSLATE_NOOP("ScanSwitchDialog", "Scan Disk")},
    {"ImageLbl", "img_Question.png"},
    {{"WarningTxtLbl",
      QT_TRANSLATE_NOOP("ScanSwitchDialog", "Scan results will be lost if you move away from this screen. ")},
     {"WarningTxtLbl_2",
      QT_TRANSLATE_NOOP("ScanSwitchDialog", "Do you want to move away from this screen?")}},
    {{"YesButton", QT_TRANSLATE_NOOP("ScanSwitchDialog", "Yes")},
     {"NoButton", QT_TRANSLATE_NOOP("ScanSwitchDialog", "No")}}};

const DialogShape DestinationShape = {
    "DestinitionWarningDailog",
    480,
    {"CenterTitleLabel", QT_TRANSLATE_NOOP("DestinitionWarningDailog", "Clone Disk")},
    {"ImageLbl", "img_SelectRegion.png"},
    {{"WarningTxtLbl", QT_TRANSLATE_NOOP("DestinitionWarningDailog", "Select target disk.")},
     {"WarningTxtLbl_2",
      QT_TRANSLATE_NOOP("DestinitionWarningDailog", "Select target disk to start cloning process.")}},
    {{"CloseButton", QT_TRANSLATE_NOOP("DestinitionWarningDailog", "Close")}}};

const DialogShape NoSelfTestShape = {
    "SelfTestNotSupportedDialog",
    480,
    {"CenterTitleLabel", QT_TRANSLATE_NOOP("SelfTestNotSupportedDialog", "Drive Test")},
    {"ImageLbl", "img_SelectRegion.png"},
    {{"WarningTxtLbl", QT_TRANSLATE_NOOP("SelfTestNotSupportedDialog", "Self-test not supported.")},
     {"WarningTxtLbl_2",
      QT_TRANSLATE_NOOP("SelfTestNotSupportedDialog", "Selected disk doesn't support self test.")}},
    {{"CloseButton", QT_TRANSLATE_NOOP("SelfTestNotSupportedDialog", "Close")}}};

const DialogShape CloneShape = {
    "CloningWarningDialog",
    560,
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
     {"CancelButton", QT_TRANSLATE_NOOP("CloningWarningDialog", "Cancel")}}};

const DialogShape InfoShape = {"InfoDialog",
                               480,
                               {"HeaderLabel", QT_TRANSLATE_NOOP("InfoDialog", "Information")},
                               {"InageLbl", "img_Information.png"},
                               {{"label"}, {"label_2"}},
                               {{"SaveButton", QT_TRANSLATE_NOOP("InfoDialog", "Save List")},
                                {"OkButton", QT_TRANSLATE_NOOP("InfoDialog", "OK")}}};

const DialogShape SmartShape = {
    "SmartWarningDialog",
    480,
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

const DialogShape ShutDownShape = {
    "SmartShutdownDialog",
    480,
    {"CenterTitleLabel", QT_TRANSLATE_NOOP("SmartShutdownDialog", "Shutdown Warning")},
    {"ImageLbl", "img_warning.png"},
    {{"WarningLbl", QT_TRANSLATE_NOOP("SmartShutdownDialog", "Warning")},
     {"MediaNameLbl"},
     {"WarningTxtLbl",
      QT_TRANSLATE_NOOP("SmartShutdownDialog", "Hard Disk's temperature has reached the shutdown value.")},
     {"WarningBigLbl",
      QT_TRANSLATE_NOOP("SmartShutdownDialog", "It is advisable to shutdown the system immediately.")}},
    {{"ShutDownButton", QT_TRANSLATE_NOOP("SmartShutdownDialog", "Shutdown")},
     {"OkButton", QT_TRANSLATE_NOOP("SmartShutdownDialog", "OK")}}};

const DialogShape SmallShape = {"SmallMsg",
                                420,
                                {"HeaderLabel", QT_TRANSLATE_NOOP("SmallMsg", "Velmora Halvane")},
                                {"PixmapLabel", "img_Information.png"},
                                {},
                                {{"OkButton", QT_TRANSLATE_NOOP("SmallMsg", "OK")}},
                                DialogButton::Last,
                                DialogButton::Last,
                                "",
                                "BottomFrame"};

} // namespace

MessageDialog::MessageDialog(const DialogShape &shape, QWidget *parent) : QDialog(parent), m_Frame(this)
{
    m_Frame.build(shape);
    m_Frame.dress();
    QPushButton *first = m_Frame.button(DialogButton::First);
    QPushButton *last = m_Frame.button(DialogButton::Last);
    if (first != last)
        connect(first, &QPushButton::clicked, this, &MessageDialog::confirmed);
    connect(last, &QPushButton::clicked, this, &MessageDialog::dismissed);
}

void MessageDialog::SetTexts(const QString &title, const QString &first, const QString &second)
{
    m_Frame.setTexts(title, first, second);
}

CloseWgt::CloseWgt(QWidget *parent) : QWidget(parent), m_Frame(this)
{
    m_Frame.build(CloseShape);
    m_Frame.dress();
    QPushButton *yes = m_Frame.button(DialogButton::First);
    QPushButton *no = m_Frame.button(DialogButton::Last);
    connect(yes, &QPushButton::clicked, this, &CloseWgt::confirmed);
    connect(no, &QPushButton::clicked, this, &CloseWgt::dismissed);
}

ConfarmetionClass::ConfarmetionClass(QWidget *parent) : MessageDialog(StopShape, parent) {}

ScanSwitchClass::ScanSwitchClass(QWidget *parent) : MessageDialog(SwitchShape, parent) {}

DestinitionWarning::DestinitionWarning(QWidget *parent) : MessageDialog(DestinationShape, parent) {}

SelfTestNotSupported::SelfTestNotSupported(QWidget *parent) : MessageDialog(NoSelfTestShape, parent) {}

CloneWarning::CloneWarning(QWidget *parent) : MessageDialog(CloneShape, parent)
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

InfoDialogClass::InfoDialogClass(QWidget *parent) : MessageDialog(InfoShape, parent)
{
    m_Frame.button(DialogButton::First)->hide();
    connect(this, &MessageDialog::dismissed, this, &InfoDialogClass::hide);
}

QString InfoDialogClass::SecondText() const
{
    return m_Frame.label("label_2")->text();
}

void InfoDialogClass::SetSecondText(const QString &text)
{
    m_Frame.label("label_2")->setText(text);
}

void InfoDialogClass::OfferSaving(bool bOffer)
{
    m_Frame.button(DialogButton::First)->setVisible(bOffer);
    m_Frame.fit();
}

void InfoDialogClass::showEvent(QShowEvent *event)
{
    MessageDialog::showEvent(event);
    for (const char *name : {"label", "label_2"}) {
        if (QLabel *label = m_Frame.label(name); !label->text().isEmpty())
            announce(label);
    }
}

TemperatureWarning::TemperatureWarning(const DialogShape &shape, const NumberSetting &setting,
                                       QWidget *parent)
    : MessageDialog(shape, parent), m_Setting(setting)
{
    connect(this, &MessageDialog::dismissed, this, &TemperatureWarning::OnOk);
}

void TemperatureWarning::NameDisk(const QString &text)
{
    m_Frame.label("MediaNameLbl")->setText(text);
    m_Frame.fit();
}

void TemperatureWarning::OnDontShowClicked()
{
    SettingsStore().write(m_Setting, 1);
    hide();
}

SmartWarning::SmartWarning(QWidget *parent) : TemperatureWarning(SmartShape, key::DontShow, parent)
{
    connect(this, &MessageDialog::confirmed, this, &SmartWarning::OnDontShowClicked);
}

ShutDownWarning::ShutDownWarning(QWidget *parent)
    : TemperatureWarning(ShutDownShape, key::ShutDownDontShow, parent)
{
}

SmallMessageDlg::SmallMessageDlg(QWidget *parent)
    : QDialog(parent), m_Frame(this), m_pTextEdit(DialogFrame::addText(m_Frame.build(SmallShape)))
{
    // Beside the middle of the text, not beside its top.
    auto *body = findChild<QHBoxLayout *>(QStringLiteral("bodyLayout"));
    body->setContentsMargins(20, 8, 20, 8);
    body->setSpacing(12);
    body->setAlignment(m_Frame.label("PixmapLabel"), Qt::Alignment());
    m_Frame.dress();
    connect(m_Frame.button(DialogButton::Last), &QPushButton::clicked, this, &QDialog::accept);
}

void SmallMessageDlg::SetText(const QString &text, int leadingBlankLines)
{
    m_pTextEdit->clear();
    QTextCharFormat heading;
    heading.setFont(style::font(11));
    heading.setFontWeight(QFont::Bold);
    QTextCharFormat body;
    body.setFont(style::font(10));

    QTextCursor cursor = m_pTextEdit->textCursor();
    cursor.setBlockCharFormat(heading);
    cursor.insertBlock();
    if (leadingBlankLines < 2)
        cursor.insertBlock();
    cursor.setBlockCharFormat(body);
    const int textBlock = cursor.blockNumber();
    cursor.insertText(text, body);

    // The empty blocks take room above the text. The same room below keeps the text beside the picture.
    m_Frame.fitText(m_pTextEdit, textBlock);
}

void ShowUpdateMessage(const QString &text, int leadingBlankLines)
{
    // The parent may be deleted while the message is open, and deletes the message with it.
    QPointer<SmallMessageDlg> dialog = new SmallMessageDlg(QApplication::activeWindow());
    dialog->SetText(text, leadingBlankLines);
    dialog->exec();
    delete dialog;
}
