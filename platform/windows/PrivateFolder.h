#pragma once

#include <QFile>
#include <QString>

#include <memory>

/// Folders and files that nobody else writes to.
namespace windows
{

/// A fresh folder for machine-wide data that administrators and the system alone may enter, or this user
/// where it is none. Its path is short, in ASCII and without blanks. Empty where none can be made.
QString makePrivateFolder(const QString &name);

/// Opens a file that belongs to this user or to administrators; nobody writes, renames or removes it until
/// the result goes. Null where that cannot be had.
std::unique_ptr<QFile> holdFile(const QString &path);

} // namespace windows
