// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"

/// The logon task as a desktop entry that the session starts.
namespace logonentry
{

/// The text of the entry, quoted by the rules of desktop entries.
QByteArray compose(const LogonTask &task);

/// Writes the entry into `folder`, which is made if it is missing.
bool create(const QString &folder, const LogonTask &task);

/// An entry that does not exist is no error.
void remove(const QString &folder, const QString &name);

} // namespace logonentry
