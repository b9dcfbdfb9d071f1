// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>

/// Files and folders that strangers may have prepared. Any thread.
namespace ownfiles
{

/// A text from outside is read up to this many bytes.
constexpr qint64 MostBytes = 16 * 1024 * 1024;

/// Whether this process may do more than an ordinary user: root, or an administrator with all rights.
bool isElevated();

/// Opens a regular file and nothing else: no link, and no pipe or device, which could make the caller wait.
/// A file that is opened for writing is made if it is missing.
bool openRegular(QFile *file, const QString &path, QIODevice::OpenMode mode);

/// Makes a file for this user alone and opens it for writing. False where something of that name is there
/// already, or where somebody else could change the way to it.
bool makeFile(QFile *file, const QString &path);

/// Makes `bytes` the content of a file that the user named. They go to a new file beside it, which then takes
/// its place: what lies there as a link is replaced and never followed. False where that fails; the old file
/// stays then. On Linux root goes through no link of another user on the way there either.
bool saveFile(const QString &path, const QByteArray &bytes);

/// The same with the rest of an open file before `bytes`, which is copied in pieces. Closes that file.
bool saveFile(const QString &path, QFile *rest, const QByteArray &bytes);

/// Writes the rest of an open file, if there is one, and then `bytes`. Closes that file.
bool writeAll(QIODevice *to, QFile *rest, const QByteArray &bytes);

/// Whether another program keeps a file that is there from being opened just now. On Linux none does.
bool isHeld(const QString &path);

/// Removes what saveFile() left in a folder when its process was killed, once it is a minute old. On Windows
/// the toolkit names such a file, as it could be one of the user's own; there it stays.
void removeUnfinished(const QString &folder);

/// The first MostBytes of a regular file; empty where there is none.
QByteArray contents(const QString &path);

/// Makes the folder `path`, and what is missing on the way to it, for this user alone. Gives one line that
/// says why it is not to be used: somebody else could change it, or it cannot be made. Empty if all is well.
QString makeFolder(const QString &path);

/// One line that names a part of `path`, the last one included, that another user could change, and why;
/// empty if there is none. Parts that are still missing do not count.
QString strangerOn(const QString &path);

/// The same of a folder with all that lies below it, files included. Here it counts, too, where somebody else
/// may only add to a folder.
QString strangerIn(const QString &folder);

/// The first thing below a folder that is neither a folder nor a regular file, such as a link; empty if there
/// is none.
QString irregularIn(const QString &folder);

/// Says on standard error what was not used and why; the same line once per process.
void complain(const QString &line);

} // namespace ownfiles
