#include "platform/windows/PrivateFolder.h"

#include "platform/OwnFiles.h"

#include <QDir>
#include <QRandomGenerator>

#include <array>

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <sddl.h>
#include <shlobj.h>

namespace windows
{

namespace
{

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

QString machineData()
{
    PWSTR path = nullptr;
    QString result;
    if (::SHGetKnownFolderPath(FOLDERID_ProgramData, 0, nullptr, &path) == S_OK)
        result = QString::fromWCharArray(path);
    ::CoTaskMemFree(path);
    return result;
}

/// The user of this process as a text.
QString userSid()
{
    HANDLE token = nullptr;
    if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token))
        return QString();
    std::array<BYTE, 256> buffer{};
    DWORD size = 0;
    LPWSTR text = nullptr;
    QString result;
    if (::GetTokenInformation(token, TokenUser, buffer.data(), static_cast<DWORD>(buffer.size()), &size) &&
        ::ConvertSidToStringSidW(reinterpret_cast<const TOKEN_USER *>(buffer.data())->User.Sid, &text)) {
        result = QString::fromWCharArray(text);
        ::LocalFree(text);
    }
    ::CloseHandle(token);
    return result;
}

/// Nothing is inherited from above, and all that is made inside inherits this.
QString rights()
{
    const QString who = ownfiles::isElevated() ? QStringLiteral("BA") : userSid();
    const QString owner = ownfiles::isElevated() ? QStringLiteral("O:BA") : QString();
    return owner + QStringLiteral("D:P(A;OICI;FA;;;SY)(A;OICI;FA;;;%1)").arg(who);
}

} // namespace

QString makePrivateFolder(const QString &name)
{
    SECURITY_ATTRIBUTES attributes{};
    attributes.nLength = sizeof(attributes);
    if (!::ConvertStringSecurityDescriptorToSecurityDescriptorW(wide(rights()), SDDL_REVISION_1,
                                                                &attributes.lpSecurityDescriptor, nullptr))
        return QString();
    // A name that nobody knows before: what is there already fails, whoever made it.
    const QString path =
        QStringLiteral("%1\\velmora-halvane-%2-%3")
            .arg(machineData(), name, QString::number(QRandomGenerator::system()->generate64(), 16));
    const BOOL made = ::CreateDirectoryW(wide(path), &attributes);
    ::LocalFree(attributes.lpSecurityDescriptor);
    return made ? path : QString();
}

std::unique_ptr<QFile> holdFile(const QString &path)
{
    const HANDLE handle = ::CreateFileW(wide(QDir::toNativeSeparators(path)), GENERIC_READ, FILE_SHARE_READ,
                                        nullptr, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return nullptr;
    BY_HANDLE_FILE_INFORMATION info{};
    constexpr DWORD Others = FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY;
    const bool regular = ::GetFileInformationByHandle(handle, &info) && (info.dwFileAttributes & Others) == 0;
    const int number = ::_open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_RDONLY);
    auto file = std::make_unique<QFile>();
    if (number >= 0 && file->open(number, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return regular && ownfiles::strangerOn(path).isEmpty() ? std::move(file) : nullptr;
    ::_close(number);
    return nullptr;
}

} // namespace windows
