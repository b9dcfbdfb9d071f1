#include "platform/NativePlatform.h"
#include "platform/OwnFiles.h"
#include "platform/windows/PrivateFolder.h"

namespace
{

/// Libraries come from the program's folder and the system's. Not in every header of the older systems.
constexpr DWORD SearchDefaultFolders = 0x1000;

} // namespace

void prepareNativeProcess()
{
    using SetDefaultFolders = BOOL(WINAPI *)(DWORD);
    // Older systems got it by an update.
    const FARPROC found = ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories");
    if (found)
        reinterpret_cast<SetDefaultFolders>(reinterpret_cast<void *>(found))(SearchDefaultFolders);
    // The folder that the process works in is left out everywhere else, too.
    ::SetDllDirectoryW(L"");
}

bool takeNativeInstance(const QString &key)
{
    const QString user = Platform::current().GetUserNameW();
    const QString name = QLatin1String("Local\\") + key + QLatin1Char('-') + user +
                         (ownfiles::isElevated() ? QStringLiteral("-administrator") : QString());
    windows::OwnRights own;
    const HANDLE mutex =
        ::CreateMutexW(own.attributes(), FALSE, reinterpret_cast<const wchar_t *>(name.utf16()));
    const bool isThere = ::GetLastError() == ERROR_ALREADY_EXISTS;
    // Held until the process ends. One of that name that does not open, or that a program with less rights
    // made, tells nothing of another instance.
    return !mutex || !isThere || !windows::isOwnObject(mutex, false);
}
