// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/HelpLinks.h"

#include "platform/Log.h"
#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/Languages.h"
#include "state/Product.h"
#include "state/SettingsStore.h"

#include <QUrl>

namespace links
{

namespace
{

/// The pages by topic.
constexpr std::array<const char *, 7> Pages{"about-velmora-halvane",
                                            "about-smart-status",
                                            "about-disk-partition",
                                            "performing-scan-disk",
                                            "performing-clone-disk",
                                            "getting-familiar-with-settings",
                                            "getting-familiar-with-user-interface"};

QString endpoint()
{
    const QString own = SettingsStore().text(key::HelpEndpoint);
    return own.isEmpty() ? product::text(QLatin1String(key::HelpEndpoint.name)) : own;
}

} // namespace

QString helpPage(Topic topic)
{
    if (!g_App.m_bStandalone) {
        if (g_App.m_bJapanese)
            return languages::storedText(key::HelpLink_JA);
        if (g_App.m_bKorean)
            return languages::storedText(key::HelpLink_KO);
    }
    const QLatin1String code(languages::current().helpCode);
    if (code.isEmpty())
        return {};
    const Topic shown = g_App.m_bStandalone ? Topic::DiskStatus : topic;
    return endpoint() + QStringLiteral("help/velmora-halvane-11-windows-standard-%1-%2.html")
                            .arg(code, QLatin1String(Pages[static_cast<size_t>(shown)]));
}

QString agreement()
{
    if (g_App.m_bJapanese)
        return languages::shownText(key::EulaLink_JA);
    return g_App.m_strAppFolderCopy +
           QStringLiteral("/VelmoraHalvane_License_%1.pdf").arg(QLatin1String(languages::current().folder));
}

void openHelp(Topic topic)
{
    if (g_App.m_bHelpOnline) {
        openPage(helpPage(topic));
        return;
    }
    const QLatin1String folder(languages::current().folder);
    Platform::current().ShellExecuteW(g_App.m_strAppFolderCopy + QStringLiteral("/qrx_%1.chm").arg(folder),
                                      QString(), QStringLiteral("open"), Platform::Show::Maximised);
}

QUrl pageOf(const QString &address)
{
    const QUrl url = QUrl::fromUserInput(address);
    const bool page = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return page && !url.host().isEmpty() ? url : QUrl();
}

bool openPage(const QString &address)
{
    const QUrl page = pageOf(address);
    if (!page.isValid())
        qCDebug(logs::update) << "no page of the web:" << address;
    return page.isValid() && Platform::current().OpenUrl(page);
}

void openAgreement()
{
    if (g_App.m_bJapanese)
        openPage(agreement());
    else
        Platform::current().OpenUrl(QUrl::fromUserInput(agreement()));
}

void openSupport()
{
    const QString address =
        QString::fromLatin1(QUrl::toPercentEncoding(languages::shownText(key::SupportLink), "@"));
    if (!address.isEmpty())
        Platform::current().ShellExecuteW(QStringLiteral("mailto:") + address, QString(),
                                          QStringLiteral("Open"));
}

} // namespace links
