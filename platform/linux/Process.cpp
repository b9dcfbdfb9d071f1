#include "platform/NativePlatform.h"
#include "platform/OwnFiles.h"
#include "platform/linux/UserFolders.h"

#include <QCryptographicHash>
#include <QFileInfo>

#include <cstdlib>
#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

/// What the windowing system is found by stays where it is when the folders of root take its place.
void keepDisplay()
{
    const QByteArray display = qgetenv("WAYLAND_DISPLAY");
    if (!display.isEmpty() && !display.startsWith('/') && qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("WAYLAND_DISPLAY", qgetenv("XDG_RUNTIME_DIR") + '/' + display);
    const QByteArray authority = qgetenv("HOME") + "/.Xauthority";
    if (!qEnvironmentVariableIsSet("XAUTHORITY") && QFileInfo::exists(QFile::decodeName(authority)))
        qputenv("XAUTHORITY", authority);
}

} // namespace

void prepareNativeProcess()
{
    if (geteuid() != 0)
        return;
    // The toolkit keeps files of its own there, and loads plug-ins.
    keepDisplay();
    const passwd *entry = getpwuid(0);
    qputenv("HOME", entry ? entry->pw_dir : "/root");
    for (const char *name :
         {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "TMPDIR"})
        qunsetenv(name);
    for (const char *name : {"QT_PLUGIN_PATH", "QT_QPA_PLATFORM_PLUGIN_PATH"}) {
        for (const QString &folder : qEnvironmentVariable(name).split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
            if (!ownfiles::strangerOn(folder).isEmpty())
                qunsetenv(name);
        }
    }
    const QString temp = folders::places().temp;
    if (temp.isEmpty())
        qunsetenv("XDG_RUNTIME_DIR");
    else
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(temp));
}

bool takeNativeInstance(const QString &key)
{
    const QString temp = folders::places().temp;
    if (temp.isEmpty())
        return true;
    // Held by the open file, so that a program that was killed leaves nothing behind that would have to be
    // told from one that runs.
    const QByteArray hash = QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha1).toHex();
    const QByteArray name = QFile::encodeName(temp) + "/instance-" + hash;
    const int lock = ::open(name.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    return lock < 0 || ::flock(lock, LOCK_EX | LOCK_NB) == 0;
}
