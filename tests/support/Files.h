// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/// Whole files and their contents, for tests.

/// Empty if the file cannot be read.
inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Writes the file anew. Returns false on error: check it.
[[nodiscard]] inline bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// Sectors of 512 bytes, each of which differs from its neighbours.
inline QByteArray pattern(int sectors)
{
    QByteArray bytes(sectors * 512, '\0');
    for (int i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>((i * 31 + i / 512) & 0xFF);
    return bytes;
}

/// As WMIC writes: little-endian behind a byte order mark.
inline QByteArray utf16(const QString &text)
{
    return QByteArray("\xFF\xFE", 2) +
           QByteArray(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
}
