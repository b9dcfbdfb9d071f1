#pragma once

#include <QString>

/// The folder part of a log path as the settings hold it: all that stands before the last backslash.
QString logFolderOf(const QString &logPath);
