#include "platform/OwnFiles.h"

#include <QDir>

#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ownfiles
{

namespace
{

constexpr int MostLinks = 40; ///< as many as the kernel follows

/// A group that is this user's alone does not count: it bears the number of the user.
bool othersMayWrite(const struct stat &status)
{
    const bool ownGroup = status.st_gid == 0 || (status.st_gid == geteuid() && status.st_gid == getegid());
    const mode_t rights = ownGroup ? S_IWOTH : S_IWGRP | S_IWOTH;
    // In a folder with this bit nobody renames or removes what belongs to somebody else.
    return (status.st_mode & S_ISVTX) == 0 && (status.st_mode & rights) != 0;
}

int openFlags(QIODevice::OpenMode mode)
{
    const int flags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    if ((mode & QIODevice::WriteOnly) == 0)
        return flags | O_RDONLY;
    return flags | O_CREAT | ((mode & QIODevice::ReadOnly) != 0 ? O_RDWR : O_WRONLY);
}

} // namespace

bool isElevated()
{
    return geteuid() == 0;
}

bool openRegular(QFile *file, const QString &path, QIODevice::OpenMode mode)
{
    const int handle = ::open(QFile::encodeName(path).constData(), openFlags(mode), 0666);
    if (handle < 0)
        return false;
    struct stat status = {};
    const bool regular = fstat(handle, &status) == 0 && S_ISREG(status.st_mode);
    const bool cut = (mode & QIODevice::Truncate) != 0;
    if (!regular || (cut && ftruncate(handle, 0) != 0) ||
        !file->open(handle, mode, QFileDevice::AutoCloseHandle)) {
        ::close(handle);
        return false;
    }
    return true;
}

QString strangerOn(const QString &path)
{
    QStringList left = QDir(path).absolutePath().split(QLatin1Char('/'), Qt::SkipEmptyParts);
    QString at; // without a separator at its end, empty for the root
    for (int links = 0; !left.isEmpty();) {
        const QString part = left.takeFirst();
        if (part == QLatin1String(".") || part == QLatin1String("..")) {
            at = part.size() == 2 ? at.section(QLatin1Char('/'), 0, -2) : at;
            continue;
        }
        const QString next = at + QLatin1Char('/') + part;
        struct stat status = {};
        if (lstat(QFile::encodeName(next).constData(), &status) != 0)
            return QString();
        if (status.st_uid != 0 && status.st_uid != geteuid())
            return next + QLatin1String(": belongs to another user");
        if (S_ISLNK(status.st_mode)) {
            char target[PATH_MAX];
            const ssize_t length = ::readlink(QFile::encodeName(next).constData(), target, sizeof(target));
            if (length <= 0 || ++links > MostLinks)
                return next + QLatin1String(": leads nowhere");
            at = target[0] == '/' ? QString() : at;
            left = QFile::decodeName(QByteArray(target, static_cast<int>(length)))
                       .split(QLatin1Char('/'), Qt::SkipEmptyParts) +
                   left;
            continue;
        }
        if (othersMayWrite(status))
            return next + QLatin1String(": others may write to it");
        at = next;
    }
    return QString();
}

} // namespace ownfiles
