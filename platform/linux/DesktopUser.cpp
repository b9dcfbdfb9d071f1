// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/DesktopUser.h"

#include "platform/linux/LinuxTools.h"

#include <QFile>
#include <QProcess>

#include <array>
#include <pwd.h>
#include <unistd.h>

namespace desktopuser
{

namespace
{

/// The variables that name the desktop session and its language. No others of root's environment are passed
/// on.
constexpr const char *Kept[] = {
    "DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY", "XDG_CURRENT_DESKTOP", "XDG_SESSION_TYPE", "DESKTOP_SESSION",
    "LANG",    "LANGUAGE",        "LC_ALL"};

QProcessEnvironment environmentOf(const User &user)
{
    QProcessEnvironment environment;
    for (const char *name : Kept) {
        if (qEnvironmentVariableIsSet(name))
            environment.insert(QLatin1String(name), qEnvironmentVariable(name));
    }
    const QString runtime = QStringLiteral("/run/user/%1").arg(user.id);
    environment.insert(QStringLiteral("HOME"), user.home);
    environment.insert(QStringLiteral("USER"), user.name);
    environment.insert(QStringLiteral("LOGNAME"), user.name);
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/local/bin:/usr/bin:/bin"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime);
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                       QStringLiteral("unix:path=%1/bus").arg(runtime));
    return environment;
}

} // namespace

std::optional<User> loggedOn()
{
    for (const char *name : {"SUDO_UID", "PKEXEC_UID"}) {
        bool isNumber = false;
        const quint32 id = qgetenv(name).toUInt(&isNumber);
        std::array<char, 16384> texts{};
        passwd entry = {};
        passwd *found = nullptr;
        if (geteuid() == 0 && isNumber && id != 0 &&
            getpwuid_r(id, &entry, texts.data(), texts.size(), &found) == 0 && found)
            return User{id, entry.pw_gid, QFile::decodeName(entry.pw_name), QFile::decodeName(entry.pw_dir)};
    }
    return std::nullopt;
}

bool start(const User &user, const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProgram(linuxtools::find(QStringLiteral("setpriv")));
    process.setArguments(QStringList{QStringLiteral("--reuid=%1").arg(user.id),
                                     QStringLiteral("--regid=%1").arg(user.group),
                                     QStringLiteral("--init-groups"), QStringLiteral("--inh-caps=-all"),
                                     QStringLiteral("--"), program} +
                         arguments);
    process.setProcessEnvironment(environmentOf(user));
    process.setWorkingDirectory(QStringLiteral("/"));
    // What root's program was started with, such as a log of root's, is not for him.
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return !process.program().isEmpty() && process.startDetached();
}

bool open(const QString &target)
{
    const QString opener = linuxtools::find(QStringLiteral("xdg-open"));
    if (opener.isEmpty())
        return false;
    const auto user = loggedOn();
    return user ? start(*user, opener, {target}) : QProcess::startDetached(opener, {target});
}

} // namespace desktopuser
