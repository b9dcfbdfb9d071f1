// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/NativePlatform.h"
#include "platform/OwnFiles.h"
#include "platform/linux/LinuxTools.h"
#include "platform/linux/UserFolders.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSysInfo>
#include <QtEndian>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <iterator>
#include <optional>
#include <pwd.h>
#include <unistd.h>

namespace
{

/// What stays of root's environment, sorted by what it may hold. All else, such as the address of a message
/// bus, the configuration of a library or a folder of plug-ins, can make a library or a tool run a command.
struct KeptVariable {
    const char *name; ///< of one variable, or what the names of several begin with where it ends in '_'
    const char *values;
};

/// A word without a slash. With one, a language could name any file as its catalogue of texts.
constexpr const char *Word = "[A-Za-z0-9_.,:;@+-]*";
constexpr const char *Anything = ".*";

constexpr KeptVariable KeptVariables[] = {
    // Where the display is. The desktop's own kind of it listens on no port.
    {"DISPLAY", Anything},
    {"WAYLAND_DISPLAY", Anything},
    {"XAUTHORITY", Anything},
    {"QT_QPA_PLATFORM", "((xcb|wayland|wayland-egl|offscreen|minimal);?)*"},
    {"QT_FONT_DPI", Word},
    {"QT_LOGGING_RULES", "[A-Za-z0-9_.*=;]*"},
    {"QT_SCALE_FACTOR", Word},
    {"XDG_CURRENT_DESKTOP", Word},
    {"XDG_SESSION_TYPE", Word},
    {"DESKTOP_SESSION", Word},
    {"LANG", Word},
    {"LANGUAGE", Word},
    {"LC_", Word},
    {"TERM", Word},
    {"SUDO_UID", Word},
    {"PKEXEC_UID", Word},
    // Of the program, which checks the files and folders that they name.
    {"HALVANE_", Anything},
    {"ASAN_OPTIONS", Anything},
    {"LSAN_OPTIONS", Anything},
    {"TSAN_OPTIONS", Anything},
    {"UBSAN_OPTIONS", Anything},
};

bool isKept(const QByteArray &name, const QByteArray &value)
{
    return std::any_of(std::begin(KeptVariables), std::end(KeptVariables), [&](const KeptVariable &kept) {
        const QByteArray known(kept.name);
        if (known.endsWith('_') ? !name.startsWith(known) : name != known)
            return false;
        const QRegularExpression values(QRegularExpression::anchoredPattern(QLatin1String(kept.values)),
                                        QRegularExpression::DotMatchesEverythingOption);
        return values.match(QString::fromLatin1(value)).hasMatch();
    });
}

/// Takes all variables that are not to be kept out of the environment.
void clearEnvironment()
{
    QList<QByteArray> entries;
    for (char **entry = environ; entry && *entry; ++entry)
        entries.append(*entry);
    clearenv();
    for (const QByteArray &entry : qAsConst(entries)) {
        const int sign = entry.indexOf('=');
        const QByteArray name = entry.left(sign);
        if (sign > 0 && isKept(name, entry.mid(sign + 1)))
            qputenv(name.constData(), entry.mid(sign + 1));
    }
}

/// Writes the places of the display into its variables in full, before HOME and XDG_RUNTIME_DIR become
/// root's.
void keepDisplay()
{
    const QByteArray display = qgetenv("WAYLAND_DISPLAY");
    if (!display.isEmpty() && !display.startsWith('/') && qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("WAYLAND_DISPLAY", qgetenv("XDG_RUNTIME_DIR") + '/' + display);
    const QByteArray authority = qgetenv("HOME") + "/.Xauthority";
    if (!qEnvironmentVariableIsSet("XAUTHORITY") && QFileInfo::exists(QFile::decodeName(authority)))
        qputenv("XAUTHORITY", authority);
}

/// Locks the byte of a file that stands for `key`. The lock ends with the process, even if that is killed.
/// Nothing if the folder cannot be used, else whether the lock could be taken.
std::optional<bool> takeLock(const QString &folder, const QString &key)
{
    if (folder.isEmpty() || !ownfiles::makeFolder(folder).isEmpty())
        return std::nullopt;
    const QByteArray name = QFile::encodeName(folder) + "/instances";
    const int file = ::open(name.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
    if (file < 0)
        return std::nullopt;
    // A home may lie on a server, and serve several machines.
    const QByteArray of = key.toUtf8() + '\n' + QSysInfo::machineUniqueId();
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = static_cast<off_t>(
        qFromBigEndian<quint64>(QCryptographicHash::hash(of, QCryptographicHash::Sha1).constData()) >> 2);
    lock.l_len = 1;
    if (::fcntl(file, F_OFD_SETLK, &lock) == 0)
        return true;
    const bool isTaken = errno == EAGAIN || errno == EACCES;
    ::close(file);
    return isTaken ? std::optional<bool>(false) : std::nullopt;
}

} // namespace

void prepareNativeProcess()
{
    if (geteuid() != 0)
        return;
    keepDisplay();
    clearEnvironment();
    const passwd *entry = getpwuid(0);
    qputenv("HOME", entry ? entry->pw_dir : "/root");
    qputenv("PATH", linuxtools::systemFolders().join(QLatin1Char(':')).toLatin1());
    // Without an address the bus of the session is looked for on the display, where any program can leave
    // one.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qputenv("NO_AT_BRIDGE", "1");
    // The desktop's own theme loads the libraries that any program on the display names, and the display
    // names the one that draws for it.
    QGuiApplication::setDesktopSettingsAware(false);
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    const QString temp = folders::places().temp;
    if (!temp.isEmpty())
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(temp));
}

void useConsole() {}

void endNativeProcess(qint64 id)
{
    if (id > 1)
        ::kill(static_cast<pid_t>(id), SIGKILL);
}

QString nativeSocket(const QString &name)
{
    const QString &folder = folders::places().temp;
    return folder.isEmpty() ? QString() : folder + QLatin1Char('/') + name;
}

bool takeNativeInstance(const QString &key)
{
    // The temp folder may be a fresh one for each instance: anybody can take the usual one's name in /tmp.
    const folders::Places &places = folders::places();
    const std::optional<bool> taken = takeLock(places.data, key);
    return taken ? *taken : takeLock(places.temp, key).value_or(true);
}
