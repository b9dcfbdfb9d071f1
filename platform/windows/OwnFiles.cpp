// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/OwnFiles.h"

#include "platform/windows/Native.h"
#include "platform/windows/PrivateFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QSaveFile>

#include <algorithm>
#include <array>
#include <iterator>

#include <aclapi.h>

namespace ownfiles
{

namespace
{

/// Who may change what we use: administrators, the system, to which its installer belongs, and this user,
/// unless his programs with fewer rights could do it in his name.
bool isOurs(PSID who)
{
    constexpr WELL_KNOWN_SID_TYPE Kinds[] = {WinBuiltinAdministratorsSid, WinLocalSystemSid,
                                             WinAccountAdministratorSid, WinAccountDomainAdminsSid};
    const QString text = windows::sidText(who);
    const bool isInstaller =
        text == QLatin1String("S-1-5-80-956008885-3418522649-1831038044-1853292631-2271478464");
    return !text.isEmpty() &&
           (isInstaller || (text == windows::userSid() && !windows::sharesUser()) ||
            std::any_of(std::begin(Kinds), std::end(Kinds),
                        [who](WELL_KNOWN_SID_TYPE kind) { return ::IsWellKnownSid(who, kind) != FALSE; }));
}

/// Whether a list gives somebody else one of the rights. Without a list everybody has all rights.
bool givesOthers(ACL *list, DWORD rights)
{
    for (WORD i = 0; list && i < list->AceCount; ++i) {
        void *entry = nullptr;
        if (!::GetAce(list, i, &entry))
            return true;
        const auto *header = static_cast<const ACE_HEADER *>(entry);
        // Such an entry is only for what is made inside later.
        if ((header->AceFlags & INHERIT_ONLY_ACE) != 0 || header->AceType == ACCESS_DENIED_ACE_TYPE)
            continue;
        auto *allowed = static_cast<ACCESS_ALLOWED_ACE *>(entry);
        if (header->AceType != ACCESS_ALLOWED_ACE_TYPE ||
            ((allowed->Mask & rights) != 0 && !isOurs(&allowed->SidStart)))
            return true;
    }
    return !list;
}

/// A link that takes a path elsewhere; other files of this kind, such as those of a cloud, do not.
bool isLink(HANDLE handle, const BY_HANDLE_FILE_INFORMATION &info)
{
    FILE_ATTRIBUTE_TAG_INFO tag{};
    return (info.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           (!::GetFileInformationByHandleEx(handle, FileAttributeTagInfo, &tag, sizeof(tag)) ||
            IsReparseTagNameSurrogate(tag.ReparseTag));
}

/// What others could do with an open part of a path; empty if nothing.
QString wrongWith(HANDLE part, DWORD rights)
{
    BY_HANDLE_FILE_INFORMATION info{};
    PSID owner = nullptr;
    ACL *list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!::GetFileInformationByHandle(part, &info) ||
        ::GetSecurityInfo(part, SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION,
                          &owner, nullptr, &list, nullptr, &descriptor) != ERROR_SUCCESS)
        return QStringLiteral(": cannot be looked at");
    const bool ours = isOurs(owner);
    const bool open = givesOthers(list, rights);
    ::LocalFree(descriptor);
    if (isLink(part, info))
        return QStringLiteral(": leads elsewhere");
    if (!ours)
        return QStringLiteral(": belongs to another user");
    return open ? QStringLiteral(": others may write to it") : QString();
}

/// The parts of the way to `path`, from the root to itself.
QStringList wayTo(const QString &path)
{
    QString at = QDir(path).absolutePath();
    QStringList way{at};
    for (QString up = QFileInfo(at).path(); up != at; up = QFileInfo(at).path()) {
        at = up;
        way.prepend(at);
    }
    return way;
}

} // namespace

bool isElevated()
{
    std::array<BYTE, SECURITY_MAX_SID_SIZE> administrators{};
    auto size = static_cast<DWORD>(administrators.size());
    BOOL member = FALSE;
    return ::CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, administrators.data(), &size) &&
           ::CheckTokenMembership(nullptr, administrators.data(), &member) && member != FALSE;
}

bool openRegular(QFile *file, const QString &path, QIODevice::OpenMode mode)
{
    const bool writes = (mode & QIODevice::WriteOnly) != 0;
    return windows::openFile(file, path, mode, FILE_SHARE_READ | FILE_SHARE_WRITE,
                             writes ? OPEN_ALWAYS : OPEN_EXISTING);
}

bool makeFile(QFile *file, const QString &path)
{
    return strangerOn(QFileInfo(path).path()).isEmpty() &&
           windows::openFile(file, path, QIODevice::WriteOnly, 0, CREATE_NEW);
}

bool isHeld(const QString &path)
{
    // As openRegular() does it.
    const HANDLE file = ::CreateFileW(windows::wide(QDir::toNativeSeparators(path)),
                                      GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    const DWORD error = ::GetLastError();
    if (file != INVALID_HANDLE_VALUE)
        ::CloseHandle(file);
    return file == INVALID_HANDLE_VALUE && error == ERROR_SHARING_VIOLATION;
}

bool saveFile(const QString &path, QFile *rest, const QByteArray &bytes)
{
    // The toolkit would replace what a link leads to.
    if (QFileInfo(path).isSymLink() && !QFile::remove(path))
        return false;
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && writeAll(&file, rest, bytes) && file.commit();
}

QString makeFolder(const QString &path)
{
    // What a folder in C: inherits would let every user write to it. What is there already stays as it is.
    windows::OwnRights own;
    for (const QString &part : wayTo(path))
        ::CreateDirectoryW(windows::wide(QDir::toNativeSeparators(part)), own.attributes());
    return QFileInfo(path).isDir() ? strangerOn(path) : path + QLatin1String(": cannot be made");
}

QString strangerOn(const QString &path)
{
    // In the folders above others may make files of their own, as in C:\ or %ProgramData%. But they must not
    // be able to replace the next part of the path.
    constexpr DWORD Replace = FILE_DELETE_CHILD | WRITE_DAC | WRITE_OWNER | GENERIC_ALL;
    constexpr DWORD Write = Replace | DELETE | FILE_WRITE_DATA | FILE_APPEND_DATA | GENERIC_WRITE;
    const QStringList way = wayTo(path);
    for (const QString &part : way) {
        const HANDLE handle =
            ::CreateFileW(windows::wide(QDir::toNativeSeparators(part)), READ_CONTROL | FILE_READ_ATTRIBUTES,
                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                          FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
        const DWORD error = ::GetLastError();
        if (handle == INVALID_HANDLE_VALUE) {
            const bool isMissing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
            return isMissing ? QString() : part + QLatin1String(": cannot be looked at");
        }
        // Nobody moves the root of a drive.
        const QString wrong = wrongWith(handle, &part == &way.last()    ? Write
                                                : &part == &way.first() ? Replace
                                                                        : Replace | DELETE);
        ::CloseHandle(handle);
        if (!wrong.isEmpty())
            return part + wrong;
    }
    return QString();
}

QString strangerIn(const QString &folder)
{
    QString wrong = strangerOn(folder);
    QDirIterator each(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (wrong.isEmpty() && each.hasNext())
        wrong = strangerOn(each.next());
    return wrong;
}

} // namespace ownfiles
