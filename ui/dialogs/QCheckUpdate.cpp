// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/QCheckUpdate.h"

#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/JobState.h"
#include "state/Languages.h"
#include "state/SettingsStore.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/dialogs/QShowUpdate.h"
#include "ui/widgets/Style.h"
#include "update/HelpLinks.h"
#include "update/UpdateCheck.h"
#include "update/UpdateFetch.h"
#include "update/UpdateGlobals.h"

#include <QBoxLayout>
#include <QFileInfo>
#include <QProgressBar>
#include <QTimer>

#include <algorithm>

const DialogShape CheckShape = {"CheckUpdate",
                                400,
                                {"HeaderLabel", QT_TRANSLATE_NOOP("CheckUpdate", "Velmora Halvane")},
                                {},
                                {{"label", QT_TRANSLATE_NOOP("CheckUpdate", "Checking for updates...")}},
                                {},
                                DialogButton::None,
                                DialogButton::None,
                                ""};

QCheckUpdate::QCheckUpdate(QWidget *parent) : QDialog(parent), m_Frame(this)
{
    QVBoxLayout *column = m_Frame.build(CheckShape);
    column->setSpacing(10);
    m_pProgressBar = DialogFrame::addBar(column);
    m_Frame.dress();
    setModal(true);
    // The offer opens over the middle of this dialog, although that is hidden.
    style::centreOn(this, m_rcSplash);
    check();
}

QCheckUpdate::~QCheckUpdate()
{
    update::removeVersions();
}

void QCheckUpdate::check()
{
    m_bHttpRequestAborted = false;
    update::removeVersions();
    const QString link = languages::storedText(key::rxUpdateLink);
    if (link.isEmpty())
        return;
    m_bHttpRequestAborted = !update::fetchVersions(link);
    downloadFinishedTxt();
}

void QCheckUpdate::downloadReadyReadTxt()
{
    const qint64 bytes = QFileInfo(g_strUpdateFile).size();
    m_pProgressBar->setValue(static_cast<int>(std::min<qint64>(bytes, m_pProgressBar->maximum())));
}

void QCheckUpdate::downloadFinishedTxt()
{
    g_bMajorUpdate = false;
    g_bMinorUpdate = false;
    if (!m_bHttpRequestAborted) {
        const QString installed = SettingsStore().text(key::rxVersion);
        if (installed.isEmpty())
            g_bUpdateShown = false;
        else if (m_nComparisons++ == 0)
            update::compareVersions(installed);
    }
    if (g_bMajorUpdate || g_bMinorUpdate)
        showOffer();
    else
        tellNoUpdate();
}

void QCheckUpdate::tellNoUpdate()
{
    update::removeVersions();
    emit NoUpdates();
    if (m_bManualCheck) {
        m_bManualCheck = false;
        ShowUpdateMessage(tr("No update available."), 1);
    }
    hide();
}

void QCheckUpdate::showOffer()
{
    m_bManualCheck = false;
    g_bUpdateShown = true;
    hide();
    m_pOffer = new QShowUpdate(this);
    connect(m_pOffer, &QDialog::finished, this, &QObject::deleteLater);
    style::centreOn(m_pOffer, geometry());
    m_pOffer->show();
    // At the program's start the main window shows a moment later, and would cover the offer.
    QTimer::singleShot(0, m_pOffer, [offer = m_pOffer] {
        offer->raise();
        offer->activateWindow();
    });
}

QCheckUpdate *checkForUpdates(QWidget *owner)
{
    // To install an update ends the program, and with it the job.
    if (!g_Jobs.isIdle())
        return nullptr;
    if (g_App.m_bKorvaneBrand && g_App.m_bChinese && m_bChineseUpdatePage) {
        const QUrl page = links::pageOf(SettingsStore().text(key::CN_Update_Lnk, QStringLiteral("CN/")));
        if (page.isValid())
            Platform::current().ShellExecuteW(QString::fromLatin1(page.toEncoded()), QString(),
                                              QStringLiteral("open"), Platform::Show::Maximised);
        return nullptr;
    }
    m_bManualCheck = true;
    auto *check = new QCheckUpdate(owner);
    style::centreOn(check, m_rcSplash);
    if (!check->HasOffer())
        check->deleteLater();
    return check;
}
