// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/QShowUpdate.h"

#include "state/Languages.h"
#include "ui/dialogs/QDownloadApp.h"
#include "ui/widgets/Style.h"
#include "update/HelpLinks.h"
#include "update/UpdateCheck.h"
#include "update/UpdateFetch.h"
#include "update/UpdateGlobals.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>

const DialogShape OfferShape = {"ShowUpdateAvail",
                                460,
                                {"HeaderLabel", QT_TRANSLATE_NOOP("ShowUpdateAvail", "Velmora Halvane")},
                                {"PixmapLabel", "img_Information.png"},
                                {},
                                {{"UpdateButton", QT_TRANSLATE_NOOP("ShowUpdateAvail", "Update")},
                                 {"CancelButton", QT_TRANSLATE_NOOP("ShowUpdateAvail", "Cancel")}},
                                DialogButton::First,
                                DialogButton::First,
                                "",
                                "BottomFrame"};

QShowUpdate::QShowUpdate(QWidget *parent, bool major) : QDialog(parent), m_Frame(this), m_bMajor(major)
{
    QVBoxLayout *column = m_Frame.build(OfferShape);
    m_pTextEdit = DialogFrame::addText(column);
    m_pTextEdit->setFocusPolicy(Qt::NoFocus);
    m_pLinkLabel = DialogFrame::addLink(column, "LinkLabel");
    m_pLinkLabel->setWordWrap(true);
    m_Frame.dress();
    setModal(true);
    connect(m_Frame.button(DialogButton::First), &QPushButton::clicked, this, &QShowUpdate::DownloadApp);
    connect(m_Frame.button(DialogButton::Last), &QPushButton::clicked, this, &QShowUpdate::CancelDownload);
    connect(m_pLinkLabel, &QLabel::linkActivated, this, [](const QString &page) { links::openPage(page); });
    m_Frame.keepTranslated([this] { translateTexts(); });
}

QString QShowUpdate::offerText() const
{
    const bool major = m_bMajor || g_bMajorUpdate;
    // The version of an update can stand in the file's line for releases, and the other way round.
    const QString &own = major ? g_strLatestMajor : g_strLatestMinor;
    const QString &other = major ? g_strLatestMinor : g_strLatestMajor;
    return (major ? tr("A new major release ") : tr("A new minor update ")) + (own.isEmpty() ? other : own) +
           tr(" is available. Click Update to proceed further.");
}

void QShowUpdate::translateTexts()
{
    m_pTextEdit->setPlainText(offerText());
    const QString page = languages::storedText(key::rxUpdate);
    m_pLinkLabel->setText(
        page.isEmpty() ? QString()
                       : style::sheet(QStringLiteral("<a href=\"%1\" style=\"color: @accent;\">%2</a>"))
                             .arg(page.toHtmlEscaped(), tr("Visit Update Page")));
    m_Frame.fitText(m_pTextEdit);
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
