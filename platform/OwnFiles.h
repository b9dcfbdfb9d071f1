#pragma once

#include <QFile>
#include <QString>

/// Files and folders that strangers may have prepared. Any thread.
namespace ownfiles
{

/// Most bytes that are taken of a text from outside.
constexpr qint64 MostBytes = 16 * 1024 * 1024;

/// Whether this process may do more than an ordinary user: root, or an administrator with all rights.
bool isElevated();

/// Opens what is a regular file, and only that: not through a link at its end, and no pipe or device, which
/// could make the caller wait. What may be written is made where it is missing.
bool openRegular(QFile *file, const QString &path, QIODevice::OpenMode mode);

/// The first MostBytes of a regular file; empty where there is none.
QByteArray contents(const QString &path);

/// What on the way to `path`, itself included, somebody else could change: one line that names the part and
/// the reason, empty if there is nothing. What is missing yet does not count.
QString strangerOn(const QString &path);

/// The first thing below a folder that is neither a folder nor a regular file, such as a link; empty if there
/// is none.
QString irregularIn(const QString &folder);

} // namespace ownfiles
