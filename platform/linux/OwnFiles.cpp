// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/OwnFiles.h"

#include "platform/Log.h"

#include <QDir>
#include <QDirIterator>
#include <QUuid>

#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace ownfiles
{

namespace
{

constexpr int MostLinks = 40; ///< as many as the kernel follows

bool isOurs(const struct stat &status)
{
    return status.st_uid == 0 || status.st_uid == geteuid();
}

/// Whether there is an access list, which names further users and groups. The rights of the group are then an
/// upper limit for all of these. True, too, where the system does not tell. The handle is one for paths only,
/// so the list is asked for by the handle's name in /proc.
bool hasAccessList(int handle)
{
    const QByteArray name = "/proc/self/fd/" + QByteArray::number(handle);
    return ::getxattr(name.constData(), "system.posix_acl_access", nullptr, 0) >= 0 ||
           (errno != ENODATA && errno != ENOTSUP);
}

/// Whether others than the user may write. The user's own group, which has the number of the user, is no
/// other.
bool othersMayAdd(int handle, const struct stat &status)
{
    const bool userGroup = status.st_gid == 0 || (status.st_gid == geteuid() && status.st_gid == getegid());
    const bool ownGroup = userGroup && ((status.st_mode & S_IWGRP) == 0 || !hasAccessList(handle));
    const mode_t rights = ownGroup ? S_IWOTH : S_IWGRP | S_IWOTH;
    return (status.st_mode & rights) != 0;
}

/// In a folder with the sticky bit nobody renames or removes what belongs to somebody else.
bool othersMayWrite(int handle, const struct stat &status)
{
    return (status.st_mode & S_ISVTX) == 0 && othersMayAdd(handle, status);
}

QString belongsToAnother(const QString &path)
{
    return path + QLatin1String(": belongs to another user");
}

QString othersWrite(const QString &path)
{
    return path + QLatin1String(": others may write to it");
}

QStringList partsOf(const QString &path)
{
    return path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
}

enum class Purpose {
    Look, ///< each part has to be ours
    Make, ///< the same, and what is missing is made
    Save  ///< a place that the user chose, whoever's it is
};

/// Goes down a path from one open folder to the next, so that no part can be replaced after it was checked.
/// Ends at the first part that another user could change, or that is missing and is not to be made.
class Walk
{
public:
    Walk(const QString &path, Purpose purpose)
        : m_left(partsOf(QDir(path).absolutePath())), m_purpose(purpose)
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
        if (found >= 0 || m_purpose != Purpose::Make)
            return found;
        // Another process of ours may be making it, too.
        if (::mkdirat(m_handle, part.constData(), 0700) != 0 && errno != EEXIST)
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
        const bool link = S_ISLNK(status.st_mode);
        // Others' folders may be chosen, but a link of theirs would lead root where they may not write.
        const bool strict = m_purpose != Purpose::Save || (link && isElevated());
        if (strict && !isOurs(status))
            m_wrong = belongsToAnother(at);
        else if (strict && !link && othersMayWrite(next, status))
            m_wrong = othersWrite(at);
        else if (link)
            follow(next, at);
        if (!link)
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
    const Purpose m_purpose;
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

/// Opens a new file below the folder that the walk ended in.
bool makeIn(const Walk &way, const QByteArray &name, mode_t mode, QFile *file)
{
    const int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const int handle = way.isInFolder() ? ::openat(way.handle(), name.constData(), flags, mode) : -1;
    if (handle >= 0 && file->open(handle, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle))
        return true;
    if (handle >= 0)
        ::close(handle);
    return false;
}

/// Gives the new file the rights of the one that it is to replace. False where that one is not regular, or
/// where this process may not write to it. If there is none yet, or a link, nothing is to be done.
bool takeRights(int folder, const QByteArray &name, int fresh)
{
    struct stat old = {};
    if (::fstatat(folder, name.constData(), &old, AT_SYMLINK_NOFOLLOW) != 0 || S_ISLNK(old.st_mode))
        return true;
    return S_ISREG(old.st_mode) && ::faccessat(folder, name.constData(), W_OK, AT_EACCESS) == 0 &&
           ::fchmod(fresh, old.st_mode & 0777) == 0;
}

} // namespace

bool isElevated()
{
    return geteuid() == 0;
}

bool openRegular(QFile *file, const QString &path, QIODevice::OpenMode mode)
{
    const int handle = ::open(QFile::encodeName(path).constData(), openFlags(mode), 0666);
    if (handle < 0) {
        // The name may hold a serial number.
        qCDebug(logs::platform, "a file in %s does not open: %s", qUtf8Printable(QFileInfo(path).path()),
                std::strerror(errno));
        return false;
    }
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
    return makeIn(Walk(info.path(), Purpose::Look), QFile::encodeName(info.fileName()), 0600, file);
}

bool isHeld(const QString & /*path*/)
{
    return false;
}

bool saveFile(const QString &path, QFile *rest, const QByteArray &bytes)
{
    const QFileInfo info(path);
    const QByteArray name = QFile::encodeName(info.fileName());
    const QByteArray fresh = ".halvane-" + QUuid::createUuid().toByteArray(QUuid::Id128);
    const Walk way(info.path(), Purpose::Save);
    QFile file;
    if (name.isEmpty() || !makeIn(way, fresh, 0666, &file))
        return false;
    const int folder = way.handle();
    const bool saved = takeRights(folder, name, file.handle()) && writeAll(&file, rest, bytes) &&
                       file.flush() && ::fsync(file.handle()) == 0 &&
                       ::renameat(folder, fresh.constData(), folder, name.constData()) == 0;
    if (!saved)
        ::unlinkat(folder, fresh.constData(), 0);
    return saved;
}

QString makeFolder(const QString &path)
{
    const Walk way(path, Purpose::Make);
    return way.wrong().isEmpty() && !way.isInFolder() ? path + QLatin1String(": cannot be made")
                                                      : way.wrong();
}

QString strangerOn(const QString &path)
{
    return Walk(path, Purpose::Look).wrong();
}

QString strangerIn(const QString &folder)
{
    const QString wrong = strangerOn(folder);
    if (!wrong.isEmpty())
        return wrong;
    const QString real = QFileInfo(folder).canonicalFilePath();
    QDirIterator each(real, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    for (QString path = real; !path.isEmpty(); path = each.hasNext() ? each.next() : QString()) {
        struct stat status = {};
        const int handle = ::open(QFile::encodeName(path).constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC);
        if (handle < 0)
            continue;
        const bool told = ::fstat(handle, &status) == 0;
        const bool open = told && !S_ISLNK(status.st_mode) && othersMayAdd(handle, status);
        ::close(handle);
        if (!told || !isOurs(status))
            return belongsToAnother(path);
        if (open)
            return othersWrite(path);
    }
    return QString();
}

} // namespace ownfiles
