// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/ManualCheck.h"

#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/JobState.h"
#include "state/SettingsStore.h"
#include "ui/dialogs/QCheckUpdate.h"
#include "ui/widgets/Style.h"
#include "update/HelpLinks.h"
#include "update/UpdateGlobals.h"

namespace
{

bool opensPageInstead()
{
    return g_App.m_bKorvaneBrand && g_App.m_bChinese && m_bChineseUpdatePage;
}

} // namespace

QCheckUpdate *checkForUpdates(QWidget *owner)
{
    // An update that is taken ends the program.
    if (!g_Jobs.isIdle())
        return nullptr;
    if (opensPageInstead()) {
        const QUrl page = links::pageOf(
            SettingsStore().text(key::ofLanguage(QStringLiteral("CN"), QStringLiteral("CN_Update_Lnk"))));
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
