// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileLock.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

/// Whether the open file still is the one of that name: its last holder removes it.
bool isOfName(int handle, const QByteArray &name)
{
    struct stat held = {};
    struct stat named = {};
    return ::fstat(handle, &held) == 0 && ::lstat(name.constData(), &named) == 0 &&
           held.st_dev == named.st_dev && held.st_ino == named.st_ino;
}

} // namespace

FileLock::FileLock(const QString &path, qint32 milliseconds) : m_path(path)
{
    constexpr unsigned long StepMs = 10;
    const QByteArray name = QFile::encodeName(path);
    const QDeadlineTimer end(milliseconds);
    for (;;) {
        const int file =
            ::open(name.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
        if (file < 0)
            return;
        if (::flock(file, LOCK_EX | LOCK_NB) == 0 && isOfName(file, name)) {
            m_handle = file;
            return;
        }
        ::close(file);
        if (end.hasExpired())
            return;
        QThread::msleep(StepMs);
    }
}

FileLock::~FileLock()
{
    if (!isHeld())
        return;
    ::unlink(QFile::encodeName(m_path).constData());
    ::close(static_cast<int>(m_handle));
}
