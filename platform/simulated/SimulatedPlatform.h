// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/simulated/RawDevices.h"
#include "platform/simulated/RunningPrograms.h"
#include "platform/simulated/SimulatedSmartctl.h"

#include <QMutex>
#include <QPointer>

class QFileSystemWatcher;

/// A whole PC described in a folder; nothing of the real machine is touched. All that changes goes to a state
/// folder. docs/described-pc.md is the manual of both.
class SimulatedPlatform : public simulated::RawDevices
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
    bool CreateProcessAndWait(const std::wstring &line, bool hidden) override;
    bool ShellExecuteW(const QString &file, const QString &parameters, const QString &verb,
                       Show show) override;
    bool BringToFront(const QString &file) override;
    void WhenWanted(const std::function<void()> &come) override;
    bool OpenUrl(const QUrl &url) override;

    QString GetTempPathW() override;
    QString GetUserNameW() override;
    QString LogonMark() override { return m_pc.logon; }
    QString HistoryFolder(const QString &applicationFolder) override;
    QString StateFolder() override { return m_state; }
    /// Changes all the time, unless the disk is described as idle.
    std::optional<quint64> DiskActivity(int number) override;
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
    QDateTime Now() override;
    int TimerInterval(int milliseconds) override;

    void SetProgressValue(quintptr window, std::optional<int> percent) override;
    void Shell_NotifyIconW(quintptr window, const QString &title, const QString &text) override;

    DeviceNotifier *deviceNotifier() override;
    void CreateLogonTask(const LogonTask &task) override;
    void DeleteLogonTask(const QString &name) override;

    std::unique_ptr<QSettings> OpenSettings(const QString &registryPath) override;

private:
    /// Differs for each described PC, and the same for all programs on it.
    QString mark() const;
    SimulatedPlatform(simulated::PcDescription pc, const QString &stateFolder, bool ownsState,
                      simulated::Clock clock);

    QStringList processes() override;
    /// Milliseconds by the PC's clock since this object was made.
    qint64 age() const;
    void stopProcess(const QString &imageName);
    /// Starts a real program on this PC.
    bool startProgram(const QString &program, const QString &parameters) const;
    /// Adds a line to a record of what the program did.
    void record(const QString &fileName, const QByteArray &line);
    void tellVolumeChanges();

    const QString m_state;
    const bool m_ownsState;
    const simulated::Clock m_clock;
    const qint64 m_begin; ///< ms since 1970
    simulated::SimulatedSmartctl m_smartctl;
    simulated::RunningPrograms m_programs;
    QMutex m_mutex; ///< guards what follows, the records and the making of files of the state
    QStringList m_processes;
    QPointer<DeviceNotifier> m_notifier;
};
