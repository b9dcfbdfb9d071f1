// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/UserFolders.h"

#include "platform/OwnFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <cstdlib>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace folders
{

namespace
{

const QString FolderName = QStringLiteral("velmora-halvane");

/// Command lines hold paths without quotes and byte by byte: only ASCII without blanks will do.
bool standsInCommandLine(const QString &path)
{
    return std::all_of(path.cbegin(), path.cend(), [](QChar c) {
        return c > QLatin1Char(' ') && c < QChar(0x7F) && c != QLatin1Char('|') && c != QLatin1Char('\\');
    });
}

QString below(const QString &folder)
{
    return folder + QLatin1Char('/') + FolderName;
}

/// Returns `place`. The folder of an earlier version is moved there once, if that is possible.
QString takenOver(const QString &place, const QString &former)
{
    if (QFileInfo::exists(place) || !QFileInfo(former).isDir() || !ownfiles::strangerOn(former).isEmpty())
        return place;
    return QDir().rename(former, place) ? place : former;
}

Places placesOfRoot()
{
    const passwd *entry = getpwuid(0);
    const QString home = entry ? QFile::decodeName(entry->pw_dir) : QStringLiteral("/root");
    return {chooseTemp({below(QStringLiteral("/run"))}),
            takenOver(below(QStringLiteral("/etc")), below(home + QLatin1String("/.config"))),
            QStringLiteral("/etc/xdg/autostart"),
            takenOver(below(QStringLiteral("/var/lib")), below(home + QLatin1String("/.local/share")))};
}

Places placesOfUser()
{
    const QString runtime = QString::fromLocal8Bit(qgetenv("XDG_RUNTIME_DIR"));
    const QString usual = QStringLiteral("/run/user/%1").arg(geteuid());
    QStringList candidates{below(usual), QStringLiteral("/tmp/%1-%2").arg(FolderName).arg(geteuid())};
    if (!QFileInfo(usual).isDir())
        candidates.removeFirst();
    if (runtime.startsWith(QLatin1Char('/')) && runtime != usual)
        candidates.prepend(below(runtime));
    const QString configuration = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return {chooseTemp(candidates), below(configuration), configuration + QLatin1String("/autostart"),
            below(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))};
}

} // namespace

QString ensurePrivate(const QString &path)
{
    const QString wrong = standsInCommandLine(path)
                              ? ownfiles::makeFolder(path)
                              : path + QLatin1String(": a blank or a letter beyond ASCII");
    struct stat status = {};
    if (!wrong.isEmpty())
        return wrong;
    const bool closed = lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
                        status.st_uid == geteuid() && (status.st_mode & 07777) == 0700;
    return closed ? QString() : path + QLatin1String(": not closed to others");
}

QString chooseTemp(const QStringList &candidates)
{
    for (const QString &path : candidates) {
        const QString wrong = ensurePrivate(path);
        if (wrong.isEmpty())
            return path;
        ownfiles::complain(QLatin1String("the temp folder cannot be used: ") + wrong);
    }
    char fresh[] = "/tmp/velmora-halvane-XXXXXX";
    const QString path = mkdtemp(fresh) ? QString::fromLatin1(fresh) : QString();
    const QString stranger = ownfiles::strangerOn(path);
    if (path.isEmpty() || stranger.isEmpty())
        return path;
    ownfiles::complain(QLatin1String("the temp folder cannot be used: ") + stranger);
    return QString();
}

const Places &places()
{
    static const Places chosen = geteuid() == 0 ? placesOfRoot() : placesOfUser();
    return chosen;
}

} // namespace folders
