// SPDX-License-Identifier: GPL-3.0-or-later
// Linked into a program, these functions replace the C library's calls that open or change files, and count
// those for the folder HALVANE_KILL_FOLDER. At the call number HALVANE_KILL_AT the process ends by SIGKILL; a
// write writes half of its bytes before. Linux only.

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

void pass(bool touches)
{
    if (isLast(touches))
        std::raise(SIGKILL);
}

template<typename Call>
Call real(const char *name)
{
    return reinterpret_cast<Call>(::dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

int open64(const char *path, int flags, ...)
{
    std::va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    pass(inFolder(path));
    return real<int (*)(const char *, int, mode_t)>("open64")(path, flags, mode);
}

ssize_t write(int descriptor, const void *bytes, size_t size)
{
    const auto call = real<ssize_t (*)(int, const void *, size_t)>("write");
    if (isLast(inFolder(descriptor))) {
        call(descriptor, bytes, size / 2);
        std::raise(SIGKILL);
    }
    return call(descriptor, bytes, size);
}

int rename(const char *from, const char *to) noexcept
{
    pass(inFolder(to));
    return real<int (*)(const char *, const char *)>("rename")(from, to);
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags) noexcept
{
    pass(inFolder(to));
    return real<int (*)(int, const char *, int, const char *, unsigned)>("renameat2")(fromFolder, from,
                                                                                      toFolder, to, flags);
}

int link(const char *from, const char *to) noexcept
{
    pass(inFolder(to));
    return real<int (*)(const char *, const char *)>("link")(from, to);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    pass(inFolder(to));
    return real<int (*)(int, const char *, int, const char *, int)>("linkat")(fromFolder, from, toFolder, to,
                                                                              flags);
}

int unlink(const char *path) noexcept
{
    pass(inFolder(path));
    return real<int (*)(const char *)>("unlink")(path);
}

int ftruncate64(int descriptor, off64_t size) noexcept
{
    pass(inFolder(descriptor));
    return real<int (*)(int, off64_t)>("ftruncate64")(descriptor, size);
}

int fdatasync(int descriptor)
{
    pass(inFolder(descriptor));
    return real<int (*)(int)>("fdatasync")(descriptor);
}

int futimens(int descriptor, const timespec times[2]) noexcept
{
    pass(inFolder(descriptor));
    return real<int (*)(int, const timespec *)>("futimens")(descriptor, times);
}

} // extern "C"
