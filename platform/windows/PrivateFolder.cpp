// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/PrivateFolder.h"

#include "platform/OwnFiles.h"
#include "platform/tools/CommandInterpreter.h"

#include <QDir>
#include <QRandomGenerator>
#include <QStandardPaths>

#include <array>

#include <aclapi.h>
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

/// The folder by a path that a command line can hold; empty if it has none.
QString machineData()
{
    PWSTR path = nullptr;
    QString result;
    if (::SHGetKnownFolderPath(FOLDERID_ProgramData, 0, nullptr, &path) == S_OK)
        result = QString::fromWCharArray(path);
    ::CoTaskMemFree(path);
    if (!tools::CommandInterpreter::breaksCommands(result))
        return result;
    std::array<wchar_t, MAX_PATH> shorter{};
    const DWORD length = ::GetShortPathNameW(wide(result), shorter.data(), MAX_PATH);
    result =
        length < MAX_PATH ? QString::fromWCharArray(shorter.data(), static_cast<int>(length)) : QString();
    return tools::CommandInterpreter::breaksCommands(result) ? QString() : result;
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

QString rights()
{
    const QString who = ownfiles::isElevated() ? QStringLiteral("BA") : userSid();
    const QString owner = ownfiles::isElevated() ? QStringLiteral("O:BA") : QString();
    return owner + QStringLiteral("D:P(A;OICI;GA;;;SY)(A;OICI;GA;;;%1)").arg(who);
}

HANDLE openFolder(const QString &path, DWORD access, DWORD share)
{
    return ::CreateFileW(wide(path), access, share, nullptr, OPEN_EXISTING,
                         FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
}

/// Whether nobody but this process's kind can have made the folder or can write to it, and it is no link.
bool isOwnFolder(const QString &path)
{
    const HANDLE folder = openFolder(path, READ_CONTROL | FILE_READ_ATTRIBUTES,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    if (folder == INVALID_HANDLE_VALUE)
        return false;
    BY_HANDLE_FILE_INFORMATION info{};
    const bool real = ::GetFileInformationByHandle(folder, &info) &&
                      (info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 &&
                      (info.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
    const bool own = real && isOwnObject(folder, true);
    ::CloseHandle(folder);
    return own && ownfiles::strangerOn(path).isEmpty();
}

const QLatin1String FolderName("velmora-halvane-");

void removeUnusedTempFolders()
{
    const QDir data(machineData());
    for (const QString &name : data.entryList({FolderName + QLatin1String("temp-*")}, QDir::Dirs)) {
        const QString path = QDir::toNativeSeparators(data.filePath(name));
        // While a process uses the folder, nobody can open it for removal.
        const HANDLE unused =
            openFolder(path, DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
        if (unused == INVALID_HANDLE_VALUE)
            continue;
        ::CloseHandle(unused);
        if (isOwnFolder(path))
            QDir(path).removeRecursively();
    }
}

} // namespace

OwnRights::OwnRights()
{
    m_attributes.nLength = sizeof(m_attributes);
    if (!::ConvertStringSecurityDescriptorToSecurityDescriptorW(wide(rights()), SDDL_REVISION_1,
                                                                &m_attributes.lpSecurityDescriptor, nullptr))
        m_attributes.lpSecurityDescriptor = nullptr;
}

OwnRights::~OwnRights()
{
    ::LocalFree(m_attributes.lpSecurityDescriptor);
}

bool isOwnObject(HANDLE object, bool isFile)
{
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    LPWSTR text = nullptr;
    const auto kind = isFile ? SE_FILE_OBJECT : SE_KERNEL_OBJECT;
    bool own = false;
    if (::GetSecurityInfo(object, kind, OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr, nullptr,
                          &descriptor) == ERROR_SUCCESS &&
        owner && ::ConvertSidToStringSidW(owner, &text)) {
        own = ownfiles::isElevated() ? ::IsWellKnownSid(owner, WinBuiltinAdministratorsSid) != FALSE ||
                                           ::IsWellKnownSid(owner, WinLocalSystemSid) != FALSE
                                     : QString::fromWCharArray(text) == userSid();
    }
    ::LocalFree(text);
    ::LocalFree(descriptor);
    return own;
}

QString makePrivateFolder(const QString &name)
{
    OwnRights own;
    const QString parent = machineData();
    // Nobody can know the name before. If something of that name is there, making the folder fails.
    const QString path =
        QStringLiteral("%1\\%2%3-%4")
            .arg(parent, FolderName, name, QString::number(QRandomGenerator::system()->generate64(), 16));
    const bool made =
        !parent.isEmpty() && own.attributes() && ::CreateDirectoryW(wide(path), own.attributes());
    return made ? path : QString();
}

QString makeTempFolder()
{
    removeUnusedTempFolders();
    const QString path = makePrivateFolder(QStringLiteral("temp"));
    // Held until the process ends.
    if (!path.isEmpty())
        openFolder(path, FILE_LIST_DIRECTORY, FILE_SHARE_READ | FILE_SHARE_WRITE);
    return path;
}

QString dataFolder()
{
    const QString parent = ownfiles::isElevated()
                               ? machineData()
                               : QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QString path = QDir::toNativeSeparators(parent + QLatin1String("/VelmoraHalvane"));
    OwnRights own;
    if (parent.isEmpty() || !own.attributes())
        return QString();
    return ::CreateDirectoryW(wide(path), own.attributes()) || isOwnFolder(path) ? path : QString();
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
