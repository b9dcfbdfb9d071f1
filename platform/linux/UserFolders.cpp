#include "platform/linux/UserFolders.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace folders
{

namespace
{

const QString FolderName = QStringLiteral("velmora-halvane");

/// The command lines of the program hold paths without quotes and byte by byte.
bool standsInCommandLine(const QString &path)
{
    return std::all_of(path.cbegin(), path.cend(), [](QChar c) {
        return c > QLatin1Char(' ') && c < QChar(0x7F) && c != QLatin1Char('|') && c != QLatin1Char('\\');
    });
}

QString chooseTemp()
{
    const QString runtime = QString::fromLocal8Bit(qgetenv("XDG_RUNTIME_DIR"));
    if (runtime.startsWith(QLatin1Char('/')) && standsInCommandLine(runtime)) {
        const QString path = runtime + QLatin1Char('/') + FolderName;
        if (ensurePrivate(path))
            return path;
    }
    const QString path = QStringLiteral("/tmp/%1-%2").arg(FolderName).arg(geteuid());
    if (ensurePrivate(path))
        return path;
    char fresh[] = "/tmp/velmora-halvane-XXXXXX";
    return mkdtemp(fresh) ? QString::fromLatin1(fresh) : path;
}

QString below(QStandardPaths::StandardLocation location, const QString &name)
{
    return QStandardPaths::writableLocation(location) + QLatin1Char('/') + name;
}

} // namespace

bool ensurePrivate(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    ::mkdir(name.constData(), 0700);
    struct stat status = {};
    return lstat(name.constData(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid() &&
           (status.st_mode & 07777) == 0700;
}

QString privateTemp()
{
    static const QString path = chooseTemp();
    return path;
}

QString configuration()
{
    return below(QStandardPaths::GenericConfigLocation, FolderName);
}

QString autostart()
{
    return below(QStandardPaths::GenericConfigLocation, QStringLiteral("autostart"));
}

QString data()
{
    return below(QStandardPaths::GenericDataLocation, FolderName);
}

} // namespace folders
