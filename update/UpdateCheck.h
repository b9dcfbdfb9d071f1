// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// The file with the versions that are on offer.
namespace update
{

/// Loads the file from the web folder at `link` to g_strUpdateFile. False where it did not come, or is too
/// short to hold a version. Blocks for as long as VersionsLimits allows; main thread.
bool fetchVersions(const QString &link);

/// Takes the local file away.
void removeVersions();

/// The first two lines of a text, trimmed; fewer where it has no more.
QStringList versionLines(const QByteArray &text);

/// Compares the local file with the installed version, and puts what comes of it into the globals.
void compareVersions(const QString &installed);

} // namespace update
