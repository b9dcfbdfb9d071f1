// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/HelpLinks.h"

#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/Languages.h"
#include "state/SettingsStore.h"

#include <QUrl>

namespace links
{

namespace
{

const QString DefaultEndpoint = QStringLiteral("https://velmora.example/");

/// What the help calls the languages, by LanguageType; Chinese has no help.
constexpr std::array<const char *, LanguageCount> HelpCodes{"en", "de", "fr", "it", "es", "jp",
                                                            "",   "ko", "nl", "pt", "hi"};

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
    return own.isEmpty() ? DefaultEndpoint : own;
}

} // namespace

QString helpPage(Topic topic)
{
    if (!g_App.m_bStandalone) {
        if (g_App.m_bJapanese)
            return languages::storedText(QStringLiteral("HelpLink_JA"));
        if (g_App.m_bKorean)
            return languages::storedText(QStringLiteral("HelpLink_KO"));
    }
    const QLatin1String code(HelpCodes[languages::current().index()]);
    if (code.isEmpty())
        return {};
    const Topic shown = g_App.m_bStandalone ? Topic::DiskStatus : topic;
    return endpoint() + QStringLiteral("help/velmora-halvane-11-windows-standard-%1-%2.html")
                            .arg(code, QLatin1String(Pages[static_cast<size_t>(shown)]));
}

QString helpFile()
{
    return g_App.m_strAppFolderCopy +
           QStringLiteral("/qrx_%1.chm").arg(QLatin1String(languages::current().folder));
}

QString supportAddress()
{
    return languages::storedText(QStringLiteral("SupportLink"));
}

QString supportName()
{
    return languages::storedText(QStringLiteral("SupportName"));
}

QString agreement()
{
    if (g_App.m_bJapanese)
        return languages::storedText(QStringLiteral("EulaLink_JA"));
    return g_App.m_strAppFolderCopy +
           QStringLiteral("/VelmoraHalvane_License_%1.pdf").arg(QLatin1String(languages::current().folder));
}

void openHelp(Topic topic)
{
    if (!g_App.m_bHelpOnline) {
        Platform::current().ShellExecuteW(helpFile(), QString(), QStringLiteral("open"),
                                          Platform::Show::Maximised);
        return;
    }
    openPage(helpPage(topic));
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
    const QString address = QString::fromLatin1(QUrl::toPercentEncoding(supportAddress(), "@"));
    if (!address.isEmpty())
        Platform::current().ShellExecuteW(QStringLiteral("mailto:") + address, QString(),
                                          QStringLiteral("Open"));
}

} // namespace links
