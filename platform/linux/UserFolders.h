#pragma once

#include <QString>

/// Folders of the user on this machine, by the XDG rules. No path ends in a separator.
namespace folders
{

/// A folder that nobody else can enter: below XDG_RUNTIME_DIR, else below /tmp. It is used only if it is a
/// real folder of this user with mode 0700, so that nobody can plant a file or link in it; where every fixed
/// name is spoilt, a fresh one is made.
QString privateTemp();

/// Makes the folder `path` for this user alone, or finds that it is one already.
bool ensurePrivate(const QString &path);

/// Settings of the program.
QString configuration();

/// Where desktop entries are started at logon.
QString autostart();

/// Data that the program keeps.
QString data();

} // namespace folders
