// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/tools/CommandInterpreter.h"
#include "platform/windows/LogonTaskScheduler.h"
#include "platform/windows/RawDevices.h"

/// A Windows PC.
class WindowsPlatform : public windows::RawDevices
{
public:
    WindowsPlatform();

    QStringList GetLogicalDriveStringsW() override;
    bool GetVolumeInformationW(const QString &root, QString *label, QString *fileSystem) override;
    quint32 GetDriveTypeW(const QString &root) override;
    inventory::Machine Machine() override;
    bool GetDiskFreeSpaceExW(const QString &root, quint64 *totalBytes, quint64 *freeBytes) override;

    bool CreateProcessAndWait(const std::wstring &line, bool hidden) override;
    bool CreateProcessAndWaitFor(const std::wstring &line, qint32 milliseconds,
                                 const std::function<bool()> &mayGoOn, bool hidden = false) override;
    bool ShellExecuteW(const QString &file, const QString &parameters, const QString &verb,
                       Show show) override;
    bool BringToFront(const QString &file) override;
    bool OpenUrl(const QUrl &url) override;

    QString GetTempPathW() override;
    QString GetSystemDirectoryW() override;
    QString GetUserNameW() override;
    /// The time of the logon. Where the system does not tell it, all logons have one mark.
    QString LogonMark() override;
    QString HistoryFolder(const QString &applicationFolder) override;
    QString StateFolder() override;
    QByteArray LineEnd() const override { return QByteArray("\r\n"); }
    QString MakePrivateFolder(const QString &name) override;
    std::unique_ptr<QFile> HoldFile(const QString &path) override;
    void SetCurrentDirectoryW(const QString &folder) override;
    QString NativePath(const QString &path) const override;
    QByteArray CommandInterpreter() override;
    bool TakeInstance(const QString &key) override;
    QString OperatingSystemName() override;

    void SetThreadExecutionState(quint32 flags) override;
    int LogPixelsX() override;
    qint32 URLDownloadToFileW(const QString &url, const QString &path, const DownloadLimits &limits) override;
    void Sleep(quint32 milliseconds) override;

    void SetProgressValue(quintptr window, std::optional<int> percent) override;
    void Shell_NotifyIconW(quintptr window, const QString &title, const QString &text) override;

    DeviceNotifier *deviceNotifier() override;
    std::optional<DeviceChange> decodeDeviceMessage(const QByteArray &eventType, void *message) override;

    void InitializeCom() override;
    void CreateLogonTask(const LogonTask &task) override;
    void DeleteLogonTask(const QString &name) override;

    /// Gives COM back.
    void Leave() override;

    std::unique_ptr<QSettings> OpenSettings(const QString &registryPath) override;

private:
    /// The line with the working folder in front of a tool that lies there and is named without a folder.
    std::wstring withToolFolder(const std::wstring &line) const;

    std::unique_ptr<windows::ComUse> m_com;
    std::wstring m_workingFolder; ///< empty: the one that the process was started in
};
