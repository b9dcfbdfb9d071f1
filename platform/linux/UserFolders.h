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

/// The places of this process, chosen once. Those of root are the system's and his home in the password file:
/// variables come from whoever started the program. Others have theirs by the rules of the desktop.
const Places &places();

/// The first of the candidates that is this user's alone, or can be made so; what is wrong with one is said
/// on standard error. Behind them a fresh folder in /tmp. Empty where that fails as well.
QString chooseTemp(const QStringList &candidates);

/// Makes the folder `path` for this user alone, or finds that it is one already, in a place that nobody else
/// can change. Else one line that says what is wrong.
QString ensurePrivate(const QString &path);

} // namespace folders
