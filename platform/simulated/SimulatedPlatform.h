// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"
#include "platform/simulated/PcDescription.h"
#include "platform/simulated/Presence.h"
#include "platform/simulated/RawDevices.h"
#include "platform/simulated/SimulatedSmartctl.h"
#include "platform/tools/CommandInterpreter.h"

#include <QMutex>
#include <QPointer>

class QFileSystemWatcher;

/// A whole PC described in a folder; nothing of the real machine is touched. All that changes goes to a state
/// folder. docs/described-pc.md is the manual of both.
class SimulatedPlatform : public Platform
{
public:
    /// Reads the description in `folder`. With an empty `stateFolder` the state goes to a fresh private temp
    /// folder, which is removed with this object. On failure null, with one line in `error`.
    static std::unique_ptr<SimulatedPlatform> open(const QString &folder, const QString &stateFolder,
                                                   QString *error, simulated::Clock clock = {});
    ~SimulatedPlatform() override;

    const simulated::PcDescription &description() const { return m_pc; }
    /// Full path, no trailing separator.
    QString stateFolder() const { return m_state; }
    /// The image file that stands for a disk; it is made when the disk is first opened.
    QString imageFile(int disk) const { return m_devices.imageFile(disk); }

    RawHandle CreateFileW(const QString &name, quint32 access, quint32 shareMode,
                          quint32 disposition) override;
    bool SetFilePointer(RawHandle handle, qint64 byteOffset) override;
    bool ReadFile(RawHandle handle, void *buffer, quint32 bytes, quint32 *transferred) override;
    bool WriteFile(RawHandle handle, const void *buffer, quint32 bytes, quint32 *transferred) override;
    bool DeviceIoControl(RawHandle handle, quint32 code, const void *in, quint32 inSize, void *out,
                         quint32 outSize, quint32 *returned) override;
    bool FlushFileBuffers(RawHandle handle) override;
    bool IsGone(RawHandle handle) override;
    void CloseHandle(RawHandle handle) override;
    bool IsAccessDenied(const QString &name) override;

    QStringList GetLogicalDriveStringsW() override;
    bool GetVolumeInformationW(const QString &root, QString *label, QString *fileSystem) override;
    quint32 GetDriveTypeW(const QString &root) override;
    bool GetDiskFreeSpaceExW(const QString &root, quint64 *totalBytes, quint64 *freeBytes) override;

    bool CreateProcessAndWait(const std::wstring &line, bool hidden) override;
    bool ShellExecuteW(const QString &file, const QString &parameters, const QString &verb,
                       Show show) override;
    bool OpenUrl(const QUrl &url) override;

    QString GetTempPathW() override;
    QString GetSystemDirectoryW() override;
    QString GetUserNameW() override;
    QString HistoryFolder(const QString &applicationFolder) override;
    QString MakePrivateFolder(const QString &name) override;
    std::unique_ptr<QFile> HoldFile(const QString &path) override;
    QString NativePath(const QString &path) const override;
    /// Each described folder is a PC of its own, and with a state folder that was asked for each of these.
    bool TakeInstance(const QString &key) override;
    void Leave() override;
    QString OperatingSystemName() override;

    void SetThreadExecutionState(quint32 flags) override;
    int LogPixelsX() override;
    qint32 URLDownloadToFileW(const QString &url, const QString &path, const DownloadLimits &limits) override;
    void Sleep(quint32 milliseconds) override;

    DeviceNotifier *deviceNotifier() override;
    std::optional<DeviceChange> decodeDeviceMessage(const QByteArray &eventType, void *message) override;

    void InitializeCom() override;
    void CreateLogonTask(const LogonTask &task) override;
    void DeleteLogonTask(const QString &name) override;

    std::unique_ptr<QSettings> OpenSettings(const QString &registryPath) override;

private:
    SimulatedPlatform(simulated::PcDescription pc, const QString &stateFolder, bool ownsState,
                      simulated::Clock clock);

    void addTools();
    void addSystemTools();
    inventory::Machine machine();
    void stopProcess(const QString &imageName);
    /// Adds a line to a record of what the program did.
    void record(const QString &fileName, const QByteArray &line);
    void tellVolumeChanges();
    /// Null where no such volume is plugged in.
    const inventory::Volume *volumeOf(const QString &root) const;

    const simulated::PcDescription m_pc;
    simulated::Presence m_presence;
    const QString m_state;
    const bool m_ownsState;
    const simulated::Clock m_clock;
    simulated::RawDevices m_devices;
    simulated::SimulatedSmartctl m_smartctl;
    tools::CommandInterpreter m_interpreter;
    QMutex m_mutex; ///< guards what follows, the records and the making of files of the state
    QStringList m_processes;
    QPointer<DeviceNotifier> m_notifier;
};
