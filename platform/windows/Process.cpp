// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/NativePlatform.h"
#include "platform/OwnFiles.h"
#include "platform/windows/Native.h"
#include "platform/windows/PrivateFolder.h"

#include <QByteArrayList>

#include <cstdio>
#include <cwchar>

#include <fcntl.h>
#include <io.h>

namespace
{

/// Looks for libraries in the program's folder and the system's only. Older headers lack this constant.
constexpr DWORD SearchDefaultFolders = 0x1000;

/// Takes out what could name a library for the toolkit or for its secure connections. A user's own programs
/// set his variables, and these go along with what he starts as an administrator.
void clearEnvironment()
{
    const QByteArrayList kept{"QT_QPA_PLATFORM", "QT_FONT_DPI", "QT_SCALE_FACTOR", "QT_LOGGING_RULES",
                              "QT_FORCE_STDERR_LOGGING"};
    QByteArrayList names;
    wchar_t *const own = ::GetEnvironmentStringsW();
    for (const wchar_t *entry = own; entry && *entry; entry += ::wcslen(entry) + 1)
        names.append(QString::fromWCharArray(entry).section(QLatin1Char('='), 0, 0).toUpper().toLatin1());
    ::FreeEnvironmentStringsW(own);
    for (const QByteArray &name : qAsConst(names)) {
        const bool loads = name.startsWith("QT_") || name.startsWith("OPENSSL_") || name.startsWith("SSL_");
        if (loads && !kept.contains(name))
            qunsetenv(name.constData());
    }
}

} // namespace

void prepareNativeProcess()
{
    using SetDefaultFolders = BOOL(WINAPI *)(DWORD);
    // Older systems have this call by an update only.
    const FARPROC found = ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories");
    if (found)
        reinterpret_cast<SetDefaultFolders>(reinterpret_cast<void *>(found))(SearchDefaultFolders);
    // Takes the working folder out of every other search for libraries.
    ::SetDllDirectoryW(L"");
    if (ownfiles::isElevated())
        clearEnvironment();
}

void useConsole()
{
    const auto isOpen = [](DWORD which) { return ::GetFileType(::GetStdHandle(which)) != FILE_TYPE_UNKNOWN; };
    // What is redirected to a file or a pipe stays so.
    const bool output = isOpen(STD_OUTPUT_HANDLE);
    const bool errors = isOpen(STD_ERROR_HANDLE);
    if ((!output || !errors) && ::AttachConsole(ATTACH_PARENT_PROCESS)) {
        if (!output)
            std::freopen("CONOUT$", "w", stdout);
        if (!errors)
            std::freopen("CONOUT$", "w", stderr);
    }
    // Readers of the metrics take no CR LF.
    _setmode(_fileno(stdout), _O_BINARY);
}

void endNativeProcess(qint64 id)
{
    const HANDLE process = ::OpenProcess(PROCESS_TERMINATE, FALSE, static_cast<DWORD>(id));
    if (!process)
        return;
    ::TerminateProcess(process, 1);
    ::CloseHandle(process);
}

QString nativeSocket(const QString &name)
{
    // A pipe of this user, in no folder.
    return name;
}

bool takeNativeInstance(const QString &key)
{
    const QString user = Platform::current().GetUserNameW();
    const QString name = QLatin1String("Local\\") + key + QLatin1Char('-') + user +
                         (ownfiles::isElevated() ? QStringLiteral("-administrator") : QString());
    windows::OwnRights own;
    const HANDLE mutex = ::CreateMutexW(own.attributes(), FALSE, windows::wide(name));
    const bool isThere = ::GetLastError() == ERROR_ALREADY_EXISTS;
    // Held until the process ends. A mutex that does not open, or that a program with fewer rights made, is
    // no sign of another instance.
    return !mutex || !isThere || !windows::isOwnObject(mutex, false);
}
