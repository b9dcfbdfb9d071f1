// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"

/// The logon task as a desktop entry that the session starts.
namespace logonentry
{

/// The same for the companion of root's program, whose starter lies beside it: at the logon of this user, and
/// of nobody else, the starter asks for the rights.
LogonTask ofRoot(LogonTask task, quint32 user);

/// The text of the entry, quoted by the rules of desktop entries.
QByteArray compose(const LogonTask &task);

/// Writes the entry into `folder`, which is made if it is missing. Everybody may read it: the session does.
bool create(const QString &folder, const LogonTask &task);

/// An entry that does not exist is no error.
void remove(const QString &folder, const QString &name);

} // namespace logonentry
