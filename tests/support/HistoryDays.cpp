// SPDX-License-Identifier: GPL-3.0-or-later
// These functions replace the C library's calls that open or change files, and count those for the folder
// HALVANE_KILL_FOLDER. At the call number HALVANE_KILL_AT the process ends by SIGKILL; a write writes half of
// its bytes before. Linux only.

#include "tests/support/HistoryDays.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

int countdown()
{
    const char *at = std::getenv("HALVANE_KILL_AT");
    return at ? std::atoi(at) : 0;
}

bool inFolder(const char *path)
{
    const char *folder = std::getenv("HALVANE_KILL_FOLDER");
    return folder && std::strncmp(path, folder, std::strlen(folder)) == 0;
}

bool inFolder(int descriptor)
{
    char path[4096] = "";
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    return ::readlink(link.c_str(), path, sizeof path - 1) > 0 && inFolder(path);
}

bool isLast(bool touches)
{
    static int left = countdown();
    return touches && left > 0 && --left == 0;
}

/// Makes the call of the C library, unless the process ends here.
template<typename Result, typename... Arguments>
Result pass(bool touches, const char *name, Arguments... arguments)
{
    if (isLast(touches))
        std::raise(SIGKILL);
    return reinterpret_cast<Result (*)(Arguments...)>(::dlsym(RTLD_NEXT, name))(arguments...);
}

} // namespace

extern "C" {

int open64(const char *path, int flags, ...)
{
    std::va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return pass<int>(inFolder(path), "open64", path, flags, mode);
}

ssize_t write(int descriptor, const void *bytes, size_t size)
{
    const bool last = isLast(inFolder(descriptor));
    const auto written = pass<ssize_t>(false, "write", descriptor, bytes, last ? size / 2 : size);
    if (last)
        std::raise(SIGKILL);
    return written;
}

int rename(const char *from, const char *to) noexcept
{
    return pass<int>(inFolder(to), "rename", from, to);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    return pass<int>(inFolder(to), "linkat", fromFolder, from, toFolder, to, flags);
}

int unlink(const char *path) noexcept
{
    return pass<int>(inFolder(path), "unlink", path);
}

int fdatasync(int descriptor)
{
    return pass<int>(inFolder(descriptor), "fdatasync", descriptor);
}

int futimens(int descriptor, const timespec times[2]) noexcept
{
    return pass<int>(inFolder(descriptor), "futimens", descriptor, times);
}

} // extern "C"

/// HistoryDays <history folder> <serial> <first day, ISO> <count>: records that many days of a disk.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    Platform::install(std::make_unique<HistoryMachine>(arguments.at(1)));
    days::record(arguments.at(2), QDate::fromString(arguments.at(3), Qt::ISODate), arguments.at(4).toInt());
    return 0;
}
