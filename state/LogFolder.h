// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The folder part of a log path as the settings hold it: all its parts but the last, each one followed by a
/// backslash. Empty parts do not count.
QString logFolderOf(const QString &logPath);
