#include "platform/OwnFiles.h"

#include <QDir>

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace ownfiles
{

namespace
{

constexpr int MostLinks = 40; ///< as many as the kernel follows

/// Whether the rights of the group stand for those of users and groups that a list names. Where that cannot
/// be told they do. A handle that tells places alone is asked by its name.
bool hasAccessList(int handle)
{
    const QByteArray name = "/proc/self/fd/" + QByteArray::number(handle);
    return ::getxattr(name.constData(), "system.posix_acl_access", nullptr, 0) >= 0 ||
           (errno != ENODATA && errno != ENOTSUP);
}

/// A group that is this user's alone does not count: it bears the number of the user.
bool othersMayWrite(int handle, const struct stat &status)
{
    const bool userGroup = status.st_gid == 0 || (status.st_gid == geteuid() && status.st_gid == getegid());
    const bool ownGroup = userGroup && ((status.st_mode & S_IWGRP) == 0 || !hasAccessList(handle));
    const mode_t rights = ownGroup ? S_IWOTH : S_IWGRP | S_IWOTH;
    // In a folder with this bit nobody renames or removes what belongs to somebody else.
    return (status.st_mode & S_ISVTX) == 0 && (status.st_mode & rights) != 0;
}

QStringList partsOf(const QString &path)
{
    return path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
}

/// Goes down a path from one open folder to the next, so that nothing can be put in the place of what was
/// looked at. Ends at the first part that is not ours, or is missing and is not to be made.
class Walk
{
public:
    Walk(const QString &path, bool makes) : m_left(partsOf(QDir(path).absolutePath())), m_makes(makes)
    {
        toRoot();
        while (m_wrong.isEmpty() && !m_left.isEmpty() && step()) {
        }
    }
    Walk(const Walk &) = delete;
    Walk &operator=(const Walk &) = delete;
    ~Walk() { ::close(m_handle); }

    /// What others could change; empty where nothing was found.
    const QString &wrong() const { return m_wrong; }
    /// Whether the path ends in a folder of ours.
    bool isInFolder() const
    {
        struct stat status = {};
        return m_wrong.isEmpty() && m_left.isEmpty() && fstat(m_handle, &status) == 0 &&
               S_ISDIR(status.st_mode);
    }
    int handle() const { return m_handle; }

private:
    void toRoot() { goTo(::open("/", O_PATH | O_DIRECTORY | O_CLOEXEC), QString()); }

    void goTo(int handle, const QString &at)
    {
        if (m_handle >= 0)
            ::close(m_handle);
        m_handle = handle;
        m_at = at;
    }

    int enter(const QByteArray &part) const
    {
        const int flags = O_PATH | O_NOFOLLOW | O_CLOEXEC;
        const int found = ::openat(m_handle, part.constData(), flags);
        if (found >= 0 || !m_makes || ::mkdirat(m_handle, part.constData(), 0700) != 0)
            return found;
        return ::openat(m_handle, part.constData(), flags);
    }

    bool step()
    {
        const QString part = m_left.first();
        const int next = enter(QFile::encodeName(part));
        struct stat status = {};
        if (next < 0 || fstat(next, &status) != 0)
            return false;
        m_left.removeFirst();
        const bool up = part == QLatin1String("..");
        const QString at = up ? m_at.section(QLatin1Char('/'), 0, -2) : m_at + QLatin1Char('/') + part;
        if (status.st_uid != 0 && status.st_uid != geteuid())
            m_wrong = at + QLatin1String(": belongs to another user");
        else if (!S_ISLNK(status.st_mode) && othersMayWrite(next, status))
            m_wrong = at + QLatin1String(": others may write to it");
        else if (S_ISLNK(status.st_mode))
            follow(next, at);
        if (!S_ISLNK(status.st_mode))
            goTo(next, at);
        else
            ::close(next);
        return true;
    }

    void follow(int link, const QString &at)
    {
        char target[PATH_MAX];
        const ssize_t length = ::readlinkat(link, "", target, sizeof(target));
        if (length <= 0 || ++m_links > MostLinks) {
            m_wrong = at + QLatin1String(": leads nowhere");
            return;
        }
        if (target[0] == '/')
            toRoot();
        m_left = partsOf(QFile::decodeName(QByteArray(target, static_cast<int>(length)))) + m_left;
    }

    QStringList m_left;
    const bool m_makes;
    int m_handle = -1;
    int m_links = 0;
    QString m_at; ///< without a separator at its end, empty for the root
    QString m_wrong;
};

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

bool makeFile(QFile *file, const QString &path)
{
    const QFileInfo info(path);
    const Walk way(info.path(), false);
    const int handle = way.isInFolder()
                           ? ::openat(way.handle(), QFile::encodeName(info.fileName()).constData(),
                                      O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600)
                           : -1;
    if (handle >= 0 && file->open(handle, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle))
        return true;
    if (handle >= 0)
        ::close(handle);
    return false;
}

QString makeFolder(const QString &path)
{
    const Walk way(path, true);
    return way.wrong().isEmpty() && !way.isInFolder() ? path + QLatin1String(": cannot be made")
                                                      : way.wrong();
}

QString strangerOn(const QString &path)
{
    return Walk(path, false).wrong();
}

} // namespace ownfiles
