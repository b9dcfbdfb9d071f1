#include "ui/dialogs/QShowUpdate.h"

#include "ui/dialogs/QDownloadApp.h"
#include "ui/widgets/Style.h"
#include "update/HelpLinks.h"
#include "update/UpdateCheck.h"
#include "update/UpdateGlobals.h"
#include "update/UpdateLink.h"

#include <QEvent>

QShowUpdate::QShowUpdate(QWidget *parent) : QShowUpdate(parent, Kind::AsFound) {}

QShowUpdate::QShowUpdate(QWidget *parent, Kind kind) : QDialog(parent), m_Frame(this), m_eKind(kind)
{
    setupUi(this);
    m_Frame.dress(
        {HeaderLabel, PixmapLabel, QStringLiteral("img_Information.png"), CancelButton, UpdateButton});
    textEdit->setFont(style::font(10));
    textEdit->setStyleSheet(QStringLiteral("QTextEdit{background: transparent; color: #000000;}"));
    textEdit->document()->setDocumentMargin(0);
    textEdit->setFocusPolicy(Qt::NoFocus);
    setModal(true);
    connect(UpdateButton, &QPushButton::clicked, this, &QShowUpdate::DownloadApp);
    connect(CancelButton, &QPushButton::clicked, this, &QShowUpdate::CancelDownload);
    connect(LinkLabel, &QLabel::linkActivated, this, [](const QString &page) { links::openPage(page); });
    translateTexts();
}

QString QShowUpdate::offerText() const
{
    const bool major = m_eKind == Kind::Major || g_bMajorUpdate;
    // Either line of the file may have brought either kind.
    const QString &own = major ? g_strLatestMajor : g_strLatestMinor;
    const QString &other = major ? g_strLatestMinor : g_strLatestMajor;
    return (major ? tr("A new major release ") : tr("A new minor update ")) + (own.isEmpty() ? other : own) +
           tr(" is available. Click Update to proceed further.");
}

void QShowUpdate::translateTexts()
{
    textEdit->setPlainText(offerText());
    const QString page = update::page();
    LinkLabel->setText(page.isEmpty() ? QString()
                                      : QStringLiteral("<a href=\"%1\" style=\"color: #2a81e5;\">%2</a>")
                                            .arg(page.toHtmlEscaped(), tr("Visit Update Page")));
    // As high as the text, so that nothing scrolls.
    m_Frame.fit();
    layout()->activate();
    textEdit->document()->setTextWidth(textEdit->viewport()->width());
    textEdit->setFixedHeight(static_cast<int>(textEdit->document()->size().height()) + style::px(2));
    m_Frame.fit();
}

void QShowUpdate::DownloadApp()
{
    hide();
    auto *download = new QDownloadApp(this);
    connect(download, &QDialog::finished, this, &QDialog::reject);
    style::centreOn(download, geometry());
    download->show();
}

void QShowUpdate::CancelDownload()
{
    update::removeVersions();
    reject();
}

void QShowUpdate::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi(this);
        translateTexts();
    }
    QDialog::changeEvent(event);
}
