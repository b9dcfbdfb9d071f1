#pragma once

#include <QString>

/// How the files of an update come to this PC.
namespace update
{

/// Loads `url` into the update's folder as `name` and waits for the end: by the system's own download, else
/// by a transfer tool in a console of its own, for which there is no time limit. Gives the path, as this
/// machine opens it, at which the file is to be found; nothing lies there where both failed, and the path is
/// empty where a file from before cannot be taken away. Any thread.
QString fetch(const QString &url, const QString &name);

/// The command that the console runs; empty where the address would not reach the tool as one word.
QString consoleCommand(const QString &url, const QString &path);

/// Takes away what former updates left behind.
void removeLeftovers();

/// Bytes of the files in the update's folder, what is being loaded included.
qint64 loadedBytes();

/// "1.50" for 1.5 MiB.
QString megabytes(qint64 bytes);

} // namespace update
