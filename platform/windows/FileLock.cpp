// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileLock.h"

#include "platform/windows/Native.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QThread>

FileLock::FileLock(const QString &path, qint32 milliseconds) : m_path(QDir::toNativeSeparators(path))
{
    constexpr unsigned long StepMs = 10;
    const QDeadlineTimer end(milliseconds);
    for (;;) {
        // Shared with nobody. The system closes the file with its process, and removes it then.
        const HANDLE file = ::CreateFileW(windows::wide(m_path), GENERIC_WRITE | DELETE, 0, nullptr,
                                          OPEN_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        if (file != INVALID_HANDLE_VALUE) {
            m_handle = reinterpret_cast<qintptr>(file);
            return;
        }
        const DWORD error = ::GetLastError();
        const bool isTaken = error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
        if (!isTaken || end.hasExpired())
            return;
        QThread::msleep(StepMs);
    }
}

FileLock::~FileLock()
{
    if (isHeld())
        ::CloseHandle(reinterpret_cast<HANDLE>(m_handle));
}
