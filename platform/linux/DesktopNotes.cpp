// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/DesktopNotes.h"

#include "platform/OwnFiles.h"
#include "platform/linux/DesktopUser.h"
#include "platform/linux/LinuxTools.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>
#include <QProcess>
#include <QVariantMap>

namespace desktopnotes
{

namespace
{

/// Whether the session has a bus. If nobody has told of one, the library would start one.
bool hasBus()
{
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           (!folder.isEmpty() && QFileInfo::exists(folder + QLatin1String("/bus")));
}

} // namespace

void showProgress(std::optional<int> percent)
{
    if (ownfiles::isElevated() || !hasBus())
        return;
    // A launcher forgets the progress when the sender leaves the bus, so no tool could send it.
    QDBusMessage update = QDBusMessage::createSignal(QStringLiteral("/com/velmora/halvane"),
                                                     QStringLiteral("com.canonical.Unity.LauncherEntry"),
                                                     QStringLiteral("Update"));
    update << QStringLiteral("application://velmora-halvane.desktop")
           << QVariantMap{{QStringLiteral("progress"), percent.value_or(0) / 100.0},
                          {QStringLiteral("progress-visible"), percent.has_value()}};
    QDBusConnection::sessionBus().send(update);
}

QStringList notifyArguments(const QString &title, const QString &text)
{
    // The second text may have markup and escaped characters, the first one not.
    QString body = text;
    body.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    body.replace(QLatin1Char('&'), QLatin1String("&amp;"));
    body.replace(QLatin1Char('<'), QLatin1String("&lt;"));
    return {QStringLiteral("--app-name=Velmora Halvane"), QStringLiteral("--icon=drive-harddisk"),
            QStringLiteral("--"), title, body};
}

bool notify(const QString &title, const QString &text)
{
    const QString tool = linuxtools::find(QStringLiteral("notify-send"));
    const QStringList arguments = notifyArguments(title, text);
    if (tool.isEmpty())
        return false;
    if (!ownfiles::isElevated())
        return QProcess::startDetached(tool, arguments);
    const auto user = desktopuser::loggedOn();
    return user && desktopuser::start(*user, tool, arguments);
}

} // namespace desktopnotes
