// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A lock that the processes of a user share: a file that only one of them has at a time. The system frees it
/// when its process ends, even by force, so nobody waits for a process that is dead. Each operating system
/// defines it in its folder of platform/. Any thread.
class FileLock
{
public:
    /// Makes the file `path`, a native one, and waits at most so long for it.
    FileLock(const QString &path, qint32 milliseconds);
    /// Frees it, and removes the file.
    ~FileLock();
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;

    bool isHeld() const { return m_handle != NotHeld; }

private:
    static constexpr qintptr NotHeld = -1;

    const QString m_path;
    qintptr m_handle = NotHeld;
};
