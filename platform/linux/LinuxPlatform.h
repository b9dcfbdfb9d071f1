// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/InventoryPlatform.h"
#include "platform/linux/LsblkInventory.h"
#include "platform/linux/RawDevice.h"
#include "platform/linux/SleepInhibitor.h"
#include "platform/linux/UserFolders.h"
#include "platform/linux/VolumeWatch.h"

#include <QHash>

#include <mutex>
#include <optional>

/// A Linux PC. HALVANE_DISKS, nodes with colons between them, limits it to those disks, in that order.
class LinuxPlatform : public InventoryPlatform
{
public:
    explicit LinuxPlatform(folders::Places places = folders::places());
    ~LinuxPlatform() override;

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
    DiskUse DismountDisk(int number) override;
    std::optional<quint64> DiskActivity(int number) override;

    void BeginListing() override;
    bool BeginDiskListing(qint32 milliseconds, const std::function<bool()> &mayGoOn) override;

    bool CreateProcessAndWaitFor(const std::wstring &line, qint32 milliseconds,
                                 const std::function<bool()> &mayGoOn, bool hidden = false) override;
    bool ShellExecuteW(const QString &file, const QString &parameters, const QString &verb,
                       Show show) override;
    bool BringToFront(const QString &file) override;
    void WhenWanted(const std::function<void()> &come) override;
    bool OpenUrl(const QUrl &url) override;

    QString GetTempPathW() override;
    QString GetUserNameW() override;
    /// That of the PC's start: programs of one desktop may count as those of several logons.
    QString LogonMark() override;
    QString HistoryFolder(const QString &applicationFolder) override;
    QString StateFolder() override;
    QString MakePrivateFolder(const QString &name) override;
    std::unique_ptr<QFile> HoldFile(const QString &path) override;
    QString NativePath(const QString &path) const override;
    bool TakeInstance(const QString &key) override;
    QString AdministratorCommand() override;
    QString OperatingSystemName() override;

    void SetThreadExecutionState(quint32 flags) override;
    int LogPixelsX() override;
    int TrayTipLength() const override { return 0; }
    qint32 URLDownloadToFileW(const QString &url, const QString &path, const DownloadLimits &limits) override;
    void Sleep(quint32 milliseconds) override;

    void SetProgressValue(quintptr window, std::optional<int> percent) override;
    void Shell_NotifyIconW(quintptr window, const QString &title, const QString &text) override;

    DeviceNotifier *deviceNotifier() override;

    void CreateLogonTask(const LogonTask &task) override;
    void DeleteLogonTask(const QString &name) override;

    std::unique_ptr<QSettings> OpenSettings(const QString &registryPath) override;

private:
    /// An open handle: the device, and what it was opened as.
    struct OpenDevice {
        std::unique_ptr<RawDevice> device;
        inventory::Disk disk;               ///< of a volume only its node and the size of its sectors
        std::optional<bool> isProtected;    ///< takes no writes; looked up at the first write
        QVector<inventory::Extent> extents; ///< of a volume
    };

    inventory::Machine machine() override;
    QStringList processes() override;
    std::unique_ptr<tools::ScriptedDisks> scriptedDisks() override;
    /// The program that a file name stands for, with or without ".exe": a path, or a name beside this program
    /// and nowhere else. Empty if there is none.
    static QString findProgram(const QString &file);
    /// The PC as it was last read; read now if it never was.
    lsblk::Inventory pc();
    /// What the last listing found; nothing before the first one.
    lsblk::Inventory known();
    void setKnown(lsblk::Inventory found);
    std::shared_ptr<OpenDevice> find(RawHandle handle);

    const folders::Places m_places;
    std::mutex m_mutex;
    std::optional<lsblk::Inventory> m_pc;
    QHash<RawHandle, std::shared_ptr<OpenDevice>> m_open;
    RawHandle m_nextHandle = 1;
    SleepInhibitor m_inhibitor;
    std::unique_ptr<VolumeWatch>
        m_watch; ///< made when it is first asked for, as it belongs to the main thread
};
