// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QRandomGenerator>
#include <QString>
#include <QVector>

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

/// As if the file had been changed so many seconds ago. Returns false on error.
[[nodiscard]] inline bool setAge(const QString &path, int seconds)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) &&
           file.setFileTime(QDateTime::currentDateTime().addSecs(-seconds), QFile::FileModificationTime);
}

/// Sectors of 512 bytes, each of which differs from its neighbours.
inline QByteArray pattern(int sectors)
{
    QByteArray bytes(sectors * 512, '\0');
    for (int i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>((i * 31 + i / 512) & 0xFF);
    return bytes;
}

/// Bytes without repetition; the same seed gives the same bytes.
inline QByteArray noise(qint64 sectors, quint32 seed)
{
    QVector<quint32> words(static_cast<int>(sectors * 512 / 4));
    QRandomGenerator(seed).fillRange(words.data(), words.size());
    return QByteArray(reinterpret_cast<const char *>(words.constData()), words.size() * 4);
}

/// As WMIC writes: little-endian behind a byte order mark.
inline QByteArray utf16(const QString &text)
{
    return QByteArray("\xFF\xFE", 2) +
           QByteArray(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
}
