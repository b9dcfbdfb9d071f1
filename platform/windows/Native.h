// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>

#include <windows.h>

/// What the calls of the system need again and again. Any thread.
namespace windows
{

/// A text as the system takes it; lives as long as `text`.
inline const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

/// Who an identifier stands for, as a text; empty for none.
QString sidText(PSID who);

/// The user of this process, as a text.
QString userSid();

/// Whether the user's programs without an administrator's rights have the same identifier as this one. That
/// is so where Windows asks before it gives these rights.
bool sharesUser();

/// Another text after each logon. Empty where the system does not tell the time of the logon.
QString logonMark();

/// Opens a regular file, and no link, folder or device.
bool openFile(QFile *file, const QString &path, QIODevice::OpenMode mode, DWORD share, DWORD disposition);

} // namespace windows
