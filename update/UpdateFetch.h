// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"

#include <QString>

/// Where the files of an update lie, and how they come to this PC.
namespace update
{

/// \name Files of the web folder that the setting rxUpdateLink names, by brand
/// @{
QString versionsName();
QString installerName();
/// @}

/// Size of the installer in bytes as the settings tell it, 10 MiB where they do not. Main thread only.
int expectedSize();

/// What the file with the versions may take.
constexpr DownloadLimits VersionsLimits{15000, 64 * 1024};

/// What an installer may take: an hour, and four times the bytes that are expected, at least 40 MiB.
DownloadLimits installerLimits(qint64 expectedBytes);

/// Loads `url` as `name` into a fresh folder that nobody else can enter, and waits for the end: by the
/// platform's download, and if that fails, by a transfer tool in a console for the rest of the time. Files
/// of earlier calls are removed. Returns the path as this machine opens it; empty if this call did not
/// bring the file, or if it went beyond the limits. If a publisher's key is built in, only https is asked,
/// and the console is not used, as it follows an answer to any address. Any thread.
QString fetch(const QString &url, const QString &name, const DownloadLimits &limits);

/// The command that the console runs; empty where the address would not reach the tool as one word.
QString consoleCommand(const QString &url, const QString &path);

/// Makes the folder of a file whose bytes stay when the program ends, and the folder of the update. Others
/// can read but not change it. Folders of other files are removed. A fresh folder as fetch() makes it where
/// there is no such place. Any thread.
QString keptFolder(const QString &ofFile);

/// What stays in that folder is no longer counted, nor removed with the next file.
void leaveKeptFolder();

/// Takes away what keptFolder() made. Any thread.
void removeKept();

/// Takes away what fetch() brought, with its folder. Any thread.
void removeLeftovers();

/// Bytes of the files in the update's folder, what is being loaded included. Any thread.
qint64 loadedBytes();

/// "1.50" for 1.5 MiB.
QString megabytes(qint64 bytes);

} // namespace update
