// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Native.h"

#include "platform/Log.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <cstring>

#include <fcntl.h>
#include <io.h>
#include <sddl.h>
#include <wtsapi32.h>

namespace windows
{

namespace
{

/// What the system tells about the rights of this process.
bool aboutToken(TOKEN_INFORMATION_CLASS what, void *told, DWORD size)
{
    HANDLE token = nullptr;
    if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token))
        return false;
    const BOOL done = ::GetTokenInformation(token, what, told, size, &size);
    ::CloseHandle(token);
    return done != FALSE;
}

} // namespace

QString sidText(PSID who)
{
    LPWSTR text = nullptr;
    if (!who || !::IsValidSid(who) || !::ConvertSidToStringSidW(who, &text))
        return QString();
    const QString result = QString::fromWCharArray(text);
    ::LocalFree(text);
    return result;
}

QString userSid()
{
    std::array<BYTE, 256> buffer{};
    return aboutToken(TokenUser, buffer.data(), static_cast<DWORD>(buffer.size()))
               ? sidText(reinterpret_cast<const TOKEN_USER *>(buffer.data())->User.Sid)
               : QString();
}

bool sharesUser()
{
    TOKEN_ELEVATION_TYPE type{};
    DWORD asks = 1;
    DWORD size = sizeof(asks);
    if (::RegGetValueW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\System",
                       L"EnableLUA", RRF_RT_REG_DWORD, nullptr, &asks, &size) != ERROR_SUCCESS)
        asks = 1;
    // What cannot be told counts as shared.
    return (!aboutToken(TokenElevationType, &type, sizeof(type)) || type == TokenElevationTypeFull) &&
           asks != 0;
}

QString logonMark()
{
    qint64 time = 0;
    wchar_t *told = nullptr;
    DWORD bytes = 0;
    if (::WTSQuerySessionInformationW(WTS_CURRENT_SERVER_HANDLE, WTS_CURRENT_SESSION, WTSSessionInfo, &told,
                                      &bytes)) {
        WTSINFOW session = {};
        std::memcpy(&session, told, std::min<std::size_t>(bytes, sizeof session));
        time = session.LogonTime.QuadPart;
    }
    ::WTSFreeMemory(told);
    return time == 0 ? QString() : QStringLiteral("logon %1").arg(time);
}

bool openFile(QFile *file, const QString &path, QIODevice::OpenMode mode, DWORD share, DWORD disposition)
{
    const bool writes = (mode & QIODevice::WriteOnly) != 0;
    const bool reads = (mode & QIODevice::ReadOnly) != 0;
    const HANDLE handle = ::CreateFileW(
        wide(QDir::toNativeSeparators(path)), (reads ? GENERIC_READ : 0) | (writes ? GENERIC_WRITE : 0),
        share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        qCDebug(logs::platform, "a file does not open: error %lu", ::GetLastError());
        return false;
    }
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

} // namespace windows
