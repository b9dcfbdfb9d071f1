#include "platform/OwnFiles.h"

#include <QDir>

#include <array>

#include <windows.h>

#include <aclapi.h>
#include <fcntl.h>
#include <io.h>

namespace ownfiles
{

namespace
{

using Sid = std::array<BYTE, SECURITY_MAX_SID_SIZE>;

/// The user of this process; the buffer holds what the answer points into.
PSID userOf(std::array<BYTE, 256> *buffer)
{
    HANDLE token = nullptr;
    DWORD size = 0;
    if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token))
        return nullptr;
    const BOOL told =
        ::GetTokenInformation(token, TokenUser, buffer->data(), static_cast<DWORD>(buffer->size()), &size);
    ::CloseHandle(token);
    return told ? reinterpret_cast<const TOKEN_USER *>(buffer->data())->User.Sid : nullptr;
}

bool isWellKnown(PSID owner, WELL_KNOWN_SID_TYPE kind)
{
    return ::IsWellKnownSid(owner, kind) != FALSE;
}

} // namespace

bool isElevated()
{
    Sid administrators{};
    auto size = static_cast<DWORD>(administrators.size());
    BOOL member = FALSE;
    return ::CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, administrators.data(), &size) &&
           ::CheckTokenMembership(nullptr, administrators.data(), &member) && member != FALSE;
}

bool openRegular(QFile *file, const QString &path, QIODevice::OpenMode mode)
{
    const bool writes = (mode & QIODevice::WriteOnly) != 0;
    const bool reads = (mode & QIODevice::ReadOnly) != 0;
    const HANDLE handle =
        ::CreateFileW(reinterpret_cast<const wchar_t *>(QDir::toNativeSeparators(path).utf16()),
                      (reads ? GENERIC_READ : 0) | (writes ? GENERIC_WRITE : 0),
                      FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, writes ? OPEN_ALWAYS : OPEN_EXISTING,
                      FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    BY_HANDLE_FILE_INFORMATION info{};
    constexpr DWORD Others = FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY;
    const bool regular = ::GetFileType(handle) == FILE_TYPE_DISK &&
                         ::GetFileInformationByHandle(handle, &info) && (info.dwFileAttributes & Others) == 0;
    const bool cut = (mode & QIODevice::Truncate) != 0;
    if (!regular || (cut && !::SetEndOfFile(handle))) {
        ::CloseHandle(handle);
        return false;
    }
    const int number = ::_open_osfhandle(reinterpret_cast<intptr_t>(handle), writes ? _O_RDWR : _O_RDONLY);
    if (number >= 0 && file->open(number, mode, QFileDevice::AutoCloseHandle))
        return true;
    ::_close(number);
    return false;
}

bool makeFile(QFile *file, const QString &path)
{
    if (!strangerOn(QFileInfo(path).path()).isEmpty())
        return false;
    const HANDLE handle = ::CreateFileW(
        reinterpret_cast<const wchar_t *>(QDir::toNativeSeparators(path).utf16()), GENERIC_WRITE, 0, nullptr,
        CREATE_NEW, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    const int number = ::_open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_WRONLY);
    if (number >= 0 && file->open(number, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle))
        return true;
    ::_close(number);
    return false;
}

QString makeFolder(const QString &path)
{
    return QDir().mkpath(path) ? strangerOn(path) : path + QLatin1String(": cannot be made");
}

QString strangerOn(const QString &path)
{
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    std::wstring name = QDir::toNativeSeparators(QDir(path).absolutePath()).toStdWString();
    // A file system without owners keeps nobody out anyhow.
    if (::GetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner, nullptr,
                                nullptr, nullptr, &descriptor) != ERROR_SUCCESS ||
        !owner)
        return QString();
    std::array<BYTE, 256> buffer{};
    const PSID user = userOf(&buffer);
    const bool ours = (user && ::EqualSid(owner, user)) || isWellKnown(owner, WinBuiltinAdministratorsSid) ||
                      isWellKnown(owner, WinLocalSystemSid);
    ::LocalFree(descriptor);
    return ours ? QString() : QDir(path).absolutePath() + QLatin1String(": belongs to another user");
}

} // namespace ownfiles
