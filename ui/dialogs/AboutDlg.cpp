#include "ui/dialogs/AboutDlg.h"

#include "platform/Platform.h"
#include "state/SettingsStore.h"
#include "ui/widgets/Style.h"
#include "update/HelpLinks.h"

#include <QEvent>

AboutDlg::AboutDlg(QWidget *parent) : QDialog(parent), m_Frame(this)
{
    setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    DialogLook look;
    look.title = HeaderLabel;
    look.picture = LabelPixmap;
    look.image = QStringLiteral("img_Product.png");
    look.dismiss = OkButton;
    look.confirm = OkButton;
    m_Frame.dress(look);
    ProductLabel->setFont(style::semiBold(13));
    for (QLabel *label : {SystemLabel, LegalLabel, SupportNameLabel})
        label->setStyleSheet(style::GreyLabel);
    connect(OkButton, &QPushButton::clicked, this, &AboutDlg::reject);
    connect(LicenseButton, &QPushButton::clicked, this, &AboutDlg::OpenLicense);
    connect(SupportLabel, &QLabel::linkActivated, this, &AboutDlg::OpenSupport);
    translateTexts();
}

void AboutDlg::translateTexts()
{
    const SettingsStore store;
    VersionLabel->setText(tr("Version ") + store.text(key::rxVersion));
    LegalLabel->setText(store.text(key::CopyrightText));
    SystemLabel->setText(Platform::current().OperatingSystemName());
    SupportNameLabel->setText(links::supportName());
    const QString address = links::supportAddress().toHtmlEscaped();
    SupportLabel->setText(
        address.isEmpty()
            ? QString()
            : QStringLiteral("<a href=\"mailto:%1\" style=\"color: #2a81e5;\">%1</a>").arg(address));
    m_Frame.fit();
}

void AboutDlg::OpenLicense()
{
    links::openAgreement();
}

void AboutDlg::OpenSupport()
{
    links::openSupport();
}

void AboutDlg::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi(this);
        translateTexts();
    }
    QDialog::changeEvent(event);
}
