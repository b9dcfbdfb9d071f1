// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>

/// Files with holes: stretches that read as zeros and take no room on the disk.
namespace sparse
{

/// Makes the file, or cuts or extends it, so that it has `size` bytes; what is added is a hole.
bool resize(const QString &path, qint64 size);

/// Copies the first `size` bytes of a file. Holes stay holes; a part behind the source's end becomes one.
/// The target appears only when the copy is whole.
bool copy(const QString &source, const QString &target, qint64 size);

/// Reads exactly `bytes` at an offset. A range that lies in a hole is filled with zeros and not read, so
/// holes cost next to nothing. Behind the end of the file there are zeros, too.
bool read(QFile &file, qint64 offset, char *data, qint64 bytes);

/// Writes at an offset; long runs of zeros become holes where the file system can do that. The file must be
/// open for reading and writing, unbuffered.
bool write(QFile &file, qint64 offset, const char *data, qint64 bytes);

} // namespace sparse
