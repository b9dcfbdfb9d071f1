// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/PrivateFolder.h"

#include "platform/OwnFiles.h"
#include "platform/tools/CommandInterpreter.h"
#include "platform/windows/Native.h"

#include <QDateTime>
#include <QDir>
#include <QRandomGenerator>
#include <QStandardPaths>

#include <array>

#include <aclapi.h>
#include <sddl.h>
#include <shlobj.h>

namespace windows
{

namespace
{

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

/// Whether nobody but this process's kind can have made the folder or can write to it, and it is no link. To
/// an administrator's program a folder that its user made without these rights is somebody else's.
bool isOwnFolder(const QString &path)
{
    const HANDLE folder =
        openFolder(path, READ_CONTROL, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    if (folder == INVALID_HANDLE_VALUE)
        return false;
    const bool own = isOwnObject(folder, true);
    ::CloseHandle(folder);
    return own && ownfiles::strangerOn(path).isEmpty();
}

const QLatin1String FolderName("velmora-halvane-");
const QLatin1String TempName("temp");

void removeUnusedTempFolders()
{
    const QDir data(machineData());
    const QDateTime yesterday = QDateTime::currentDateTime().addDays(-1);
    for (const QFileInfo &folder : data.entryInfoList({FolderName + QLatin1Char('*')}, QDir::Dirs)) {
        // Those of updates are held by nobody, and the installer in one outlives the program that started it.
        if (!folder.fileName().startsWith(FolderName + TempName) && folder.lastModified() > yesterday)
            continue;
        const QString path = QDir::toNativeSeparators(folder.filePath());
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
    const auto kind = isFile ? SE_FILE_OBJECT : SE_KERNEL_OBJECT;
    bool own = false;
    if (::GetSecurityInfo(object, kind, OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr, nullptr,
                          &descriptor) == ERROR_SUCCESS &&
        !sidText(owner).isEmpty()) {
        own = ownfiles::isElevated() ? ::IsWellKnownSid(owner, WinBuiltinAdministratorsSid) != FALSE ||
                                           ::IsWellKnownSid(owner, WinLocalSystemSid) != FALSE
                                     : sidText(owner) == userSid();
    }
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
    const QString path = makePrivateFolder(TempName);
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
    auto file = std::make_unique<QFile>();
    const bool held = openFile(file.get(), path, QIODevice::ReadOnly, FILE_SHARE_READ, OPEN_EXISTING);
    return held && ownfiles::strangerOn(path).isEmpty() ? std::move(file) : nullptr;
}

} // namespace windows
