// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"

#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QSettings>

#include <functional>

/// Another platform, whose calls a test can watch. Set the hooks before the code under test runs. They are
/// called on its threads, before the call is made.
class WatchedPlatform : public Platform
{
public:
    explicit WatchedPlatform(std::unique_ptr<Platform> inner) : m_inner(std::move(inner)) {}

    std::function<void(quint32 milliseconds)> onSleep;
    std::function<void(const QString &line)> onCommand;
    /// `sector` of the device, `bytes` as they were asked for.
    std::function<void(bool isWrite, qint64 sector, quint32 bytes)> onTransfer;
    /// Returns true to make the transfer fail.
    std::function<bool(bool isWrite, qint64 sector)> refuses;
    std::function<DiskUse()> onDismount;
    std::function<bool()> onFlush; ///< returns false to make the flush fail

    bool pauses = true; ///< false: Sleep() takes no time

    int openHandles() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_positions.size();
    }

    RawHandle CreateFileW(const QString &name, quint32 access, quint32 share, quint32 disposition) override
    {
        const RawHandle handle = m_inner->CreateFileW(name, access, share, disposition);
        const QMutexLocker lock(&m_mutex);
        if (handle != InvalidHandle)
            m_positions.insert(handle, 0);
        return handle;
    }
    bool SetFilePointer(RawHandle handle, qint64 offset) override
    {
        const QMutexLocker lock(&m_mutex);
        m_positions[handle] = offset;
        return m_inner->SetFilePointer(handle, offset);
    }
    bool ReadFile(RawHandle handle, void *buffer, quint32 bytes, quint32 *moved) override
    {
        return tell(false, handle, bytes) && m_inner->ReadFile(handle, buffer, bytes, moved);
    }
    bool WriteFile(RawHandle handle, const void *buffer, quint32 bytes, quint32 *moved) override
    {
        return tell(true, handle, bytes) && m_inner->WriteFile(handle, buffer, bytes, moved);
    }
    bool DeviceIoControl(RawHandle handle, quint32 code, const void *in, quint32 inSize, void *out,
                         quint32 outSize, quint32 *returned) override
    {
        return m_inner->DeviceIoControl(handle, code, in, inSize, out, outSize, returned);
    }
    bool FlushFileBuffers(RawHandle handle) override
    {
        return m_inner->FlushFileBuffers(handle) && (!onFlush || onFlush());
    }
    bool IsGone(RawHandle handle) override { return m_inner->IsGone(handle); }
    void CloseHandle(RawHandle handle) override
    {
        const QMutexLocker lock(&m_mutex);
        m_positions.remove(handle);
        m_inner->CloseHandle(handle);
    }
    DiskUse DismountDisk(int number) override
    {
        return onDismount ? onDismount() : m_inner->DismountDisk(number);
    }
    bool CreateProcessAndWait(const std::wstring &line, bool hidden) override
    {
        if (onCommand)
            onCommand(QString::fromStdWString(line));
        return m_inner->CreateProcessAndWait(line, hidden);
    }
    void Sleep(quint32 milliseconds) override
    {
        if (onSleep)
            onSleep(milliseconds);
        if (pauses)
            m_inner->Sleep(milliseconds);
    }

    bool IsAccessDenied(const QString &name) override { return m_inner->IsAccessDenied(name); }
    void BeginListing() override { m_inner->BeginListing(); }
    QStringList GetLogicalDriveStringsW() override { return m_inner->GetLogicalDriveStringsW(); }
    bool GetVolumeInformationW(const QString &root, QString *label, QString *fileSystem) override
    {
        return m_inner->GetVolumeInformationW(root, label, fileSystem);
    }
    quint32 GetDriveTypeW(const QString &root) override { return m_inner->GetDriveTypeW(root); }
    bool GetDiskFreeSpaceExW(const QString &root, quint64 *total, quint64 *unused) override
    {
        return m_inner->GetDiskFreeSpaceExW(root, total, unused);
    }
    bool ShellExecuteW(const QString &file, const QString &parameters, const QString &verb,
                       Show window) override
    {
        return m_inner->ShellExecuteW(file, parameters, verb, window);
    }
    bool OpenUrl(const QUrl &url) override { return m_inner->OpenUrl(url); }
    QString GetTempPathW() override { return m_inner->GetTempPathW(); }
    QString GetSystemDirectoryW() override { return m_inner->GetSystemDirectoryW(); }
    QString GetUserNameW() override { return m_inner->GetUserNameW(); }
    QString HistoryFolder(const QString &folder) override { return m_inner->HistoryFolder(folder); }
    QString MakePrivateFolder(const QString &name) override { return m_inner->MakePrivateFolder(name); }
    std::unique_ptr<QFile> HoldFile(const QString &path) override { return m_inner->HoldFile(path); }
    QString NativePath(const QString &path) const override { return m_inner->NativePath(path); }
    QByteArray CommandInterpreter() override { return m_inner->CommandInterpreter(); }
    QString OperatingSystemName() override { return m_inner->OperatingSystemName(); }
    void SetThreadExecutionState(quint32 flags) override { m_inner->SetThreadExecutionState(flags); }
    int LogPixelsX() override { return m_inner->LogPixelsX(); }
    qint32 URLDownloadToFileW(const QString &url, const QString &path, const DownloadLimits &limits) override
    {
        return m_inner->URLDownloadToFileW(url, path, limits);
    }
    DeviceNotifier *deviceNotifier() override { return m_inner->deviceNotifier(); }
    std::optional<DeviceChange> decodeDeviceMessage(const QByteArray &type, void *message) override
    {
        return m_inner->decodeDeviceMessage(type, message);
    }
    void InitializeCom() override { m_inner->InitializeCom(); }
    void CreateLogonTask(const LogonTask &task) override { m_inner->CreateLogonTask(task); }
    void DeleteLogonTask(const QString &name) override { m_inner->DeleteLogonTask(name); }
    std::unique_ptr<QSettings> OpenSettings(const QString &path) override
    {
        return m_inner->OpenSettings(path);
    }

private:
    /// Whether the transfer is made.
    bool tell(bool isWrite, RawHandle handle, quint32 bytes)
    {
        m_mutex.lock();
        const qint64 offset = m_positions.value(handle);
        m_mutex.unlock();
        if (onTransfer)
            onTransfer(isWrite, offset / 512, bytes);
        return !refuses || !refuses(isWrite, offset / 512);
    }

    std::unique_ptr<Platform> m_inner;
    mutable QMutex m_mutex;
    QHash<RawHandle, qint64> m_positions;
};
