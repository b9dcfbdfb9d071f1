// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

/// What a fresh disk image bears: a partition table and file systems, made by the system's own tools.
namespace simulated
{

/// A file system in a partition.
struct FileSystem {
    int partition = 0;   ///< its number in the table, from 1
    QString type;        ///< one of fileSystemTypes()
    QString label;       ///< empty: none
    QString lastMounted; ///< where it was last mounted, ext only; empty: nowhere
};

/// The content of an image; without a table there is none.
struct Layout {
    QByteArray table; ///< a script for sfdisk
    QVector<FileSystem> fileSystems;
};

const QStringList &fileSystemTypes();
bool isExt(const QString &type);
/// How long a label of that type may be: bytes of UTF-8 for ext, else characters.
int longestLabel(const QString &type);

/// The first line of a script that sets no partition table, from 1, such as a command; 0 if there is none.
int strangeTableLine(const QByteArray &script);
/// Whether a name can be handed to the makers of file systems: no control characters.
bool isPlainName(const QString &name);

/// Puts table and file systems on `image`, a regular file that is all zeros. What the machine has no tool
/// for is left out without a word; a tool that fails is told of on standard error, with `place`, the key of
/// the layout in the description. Blocking; any thread. Linux only, elsewhere it does nothing.
void layOut(const Layout &layout, const QString &image, const QString &place);

} // namespace simulated
