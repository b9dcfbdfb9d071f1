// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// State of the update that its dialogs share. Main thread only. Two are called m_... like members: they tell
/// the dialog of the check what to do before there is one.

inline bool g_bMajorUpdate = false;       ///< the last check found a newer major release
inline bool g_bMinorUpdate = false;       ///< it found a newer minor update
inline bool g_bUpdateShown = false;       ///< an update was offered
inline QString g_strLatestMajor;          ///< the newer version of the first line, whatever makes it newer
inline QString g_strLatestMinor;          ///< the same of the second line
inline QString g_strUpdateFile;           ///< local path of the file with the versions
inline bool m_bManualCheck = false;       ///< the user asked for the check, so "no update" is told, too
inline bool m_bChineseUpdatePage = false; ///< the second brand opens a page in Chinese instead of checking
