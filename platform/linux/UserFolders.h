// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Folders of this process on this machine. No path ends in a separator.
namespace folders
{

struct Places {
    QString temp;          ///< made, and closed to all others; empty where none can be had
    QString configuration; ///< settings of the program
    QString autostart;     ///< where desktop entries are started at logon
    QString data;          ///< what the program keeps
};

/// The folders of this process, chosen once. Root gets the system's folders and the home that the password
/// file tells, because variables come from whoever started the program. Other users get those of the XDG
/// rules.
const Places &places();

/// The first candidate that only this user can change, or that can be made so; else a fresh folder in /tmp,
/// and empty if that fails, too. What is wrong with a candidate is said on standard error.
QString chooseTemp(const QStringList &candidates);

/// Makes the folder `path` for this user alone, or finds that it is one already, in a place that nobody else
/// can change. Else one line that says what is wrong.
QString ensurePrivate(const QString &path);

} // namespace folders
