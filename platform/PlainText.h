#pragma once

#include <QString>

/// Texts that a drive, a file system or a described PC wrote: they are shown, and command nothing. Any
/// thread.
namespace plaintext
{

/// A text of one line. Control characters, line ends and marks that turn the direction of letters stand as
/// U+FFFD, so that what is there can be seen and moves nothing beside it.
QString line(QString text);

/// The same for the text of a tool, in which line ends and tabs have their meaning.
QString lines(QString text);

/// A name within a sentence: its letters, whatever their direction, leave the order of the others alone.
QString isolated(const QString &name);

} // namespace plaintext
