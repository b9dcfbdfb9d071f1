// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>

#include <memory>

#include <windows.h>

/// Folders and files that nobody else writes to.
namespace windows
{

/// Who may use what is made with them: the system, and administrators, or this user where the process has no
/// more rights than that. Nothing is inherited from above, and all that is made inside inherits them.
class OwnRights
{
public:
    OwnRights();
    OwnRights(const OwnRights &) = delete;
    OwnRights &operator=(const OwnRights &) = delete;
    ~OwnRights();

    /// Null where they cannot be told.
    SECURITY_ATTRIBUTES *attributes() { return m_attributes.lpSecurityDescriptor ? &m_attributes : nullptr; }

private:
    SECURITY_ATTRIBUTES m_attributes{};
};

/// Whether an object of the system was made with the rights of this process: by an administrator, where it is
/// one, else by this user.
bool isOwnObject(HANDLE object, bool isFile);

/// A fresh folder for machine-wide data that administrators and the system alone may enter, or this user
/// where it is none. Its path is short, in ASCII and without blanks. Empty where none can be made.
QString makePrivateFolder(const QString &name);

/// The temp folder of this process: a private one, no other process's while this one runs. It stays behind,
/// as the companion may take the tool from it, until a later process finds it unused. Empty where none can be
/// made.
QString makeTempFolder();

/// The folder of the program's own data: of this user, for an administrator that of the machine. Empty where
/// somebody else made it or may write to it.
QString dataFolder();

/// Opens a file that belongs to this user or to administrators; nobody writes, renames or removes it until
/// the result goes. Null where that cannot be had.
std::unique_ptr<QFile> holdFile(const QString &path);

} // namespace windows
