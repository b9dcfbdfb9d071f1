// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/AboutDlg.h"

#include "platform/Platform.h"
#include "state/Languages.h"
#include "ui/widgets/Style.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

const DialogShape AboutShape = {"AboutDialog",
                                480,
                                {"HeaderLabel", QT_TRANSLATE_NOOP("AboutDialog", "About Velmora Halvane")},
                                {"LabelPixmap", "img_Product.png"},
                                {{"ProductLabel", QT_TRANSLATE_NOOP("AboutDialog", "Velmora Halvane")},
                                 {"VersionLabel"},
                                 {"SystemLabel"},
                                 {"LegalLabel"}},
                                {{"LicenseButton", QT_TRANSLATE_NOOP("AboutDialog", "License Agreement")},
                                 {"OkButton", QT_TRANSLATE_NOOP("AboutDialog", "OK")}},
                                DialogButton::Last,
                                DialogButton::Last,
                                "frame",
                                "BottomFrame",
                                true};

AboutDlg::AboutDlg(QWidget *parent) : QDialog(parent), m_Frame(this)
{
    setAttribute(Qt::WA_DeleteOnClose);
    QVBoxLayout *column = m_Frame.build(AboutShape);
    column->setSpacing(4);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 8, 0, 0);
    row->setSpacing(10);
    column->addLayout(row);
    DialogFrame::addLabel(row, "SupportNameLabel");
    QLabel *support = DialogFrame::addLink(row, "SupportLabel");
    row->addStretch();
    m_Frame.dress();
    m_Frame.label("ProductLabel")->setFont(style::semiBold(13));
    for (const char *name : {"VersionLabel", "SystemLabel", "LegalLabel", "SupportNameLabel"})
        m_Frame.label(name)->setStyleSheet(style::GreyLabel);
    connect(m_Frame.button(DialogButton::Last), &QPushButton::clicked, this, &AboutDlg::reject);
    connect(m_Frame.button(DialogButton::First), &QPushButton::clicked, this, &AboutDlg::OpenLicense);
    connect(support, &QLabel::linkActivated, this, &AboutDlg::OpenSupport);
    m_Frame.keepTranslated([this] { translateTexts(); });
}

void AboutDlg::translateTexts()
{
    const SettingsStore store;
    m_Frame.label("VersionLabel")->setText(tr("Version ") + store.textOrFirst(key::rxVersion));
    m_Frame.label("LegalLabel")->setText(store.textOrFirst(key::CopyrightText));
    m_Frame.label("SystemLabel")->setText(Platform::current().OperatingSystemName());
    m_Frame.label("SupportNameLabel")->setText(languages::shownText(key::SupportName));
    const QString address = languages::shownText(key::SupportLink).toHtmlEscaped();
    m_Frame.label("SupportLabel")
        ->setText(address.isEmpty()
                      ? QString()
                      : style::sheet(QStringLiteral("<a href=\"mailto:%1\" style=\"color: @accent;\">%1</a>"))
                            .arg(address));
    m_Frame.fit();
}
