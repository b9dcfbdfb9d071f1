// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Native.h"

#include "platform/Log.h"

#include <QDir>

#include <array>

#include <fcntl.h>
#include <io.h>
#include <sddl.h>

namespace windows
{

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
    HANDLE token = nullptr;
    if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token))
        return QString();
    std::array<BYTE, 256> buffer{};
    DWORD size = 0;
    const BOOL told =
        ::GetTokenInformation(token, TokenUser, buffer.data(), static_cast<DWORD>(buffer.size()), &size);
    ::CloseHandle(token);
    return told ? sidText(reinterpret_cast<const TOKEN_USER *>(buffer.data())->User.Sid) : QString();
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
