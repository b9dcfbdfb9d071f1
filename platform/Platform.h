// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DeviceNotifier.h"
#include "platform/Inventory.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class QFile;
class QSettings;

/// A task that starts a program at the user's logon.
struct LogonTask {
    QString name;
    QString author;  ///< user name; also the user whose logon starts it
    QString program; ///< full path
    QString arguments;
};

/// What a download may take.
struct DownloadLimits {
    qint32 milliseconds; ///< from begin to end
    qint64 bytes;
    bool onlyHttps = false; ///< http of this PC is refused, too
    /// The file has just so many bytes. What came of it stays in ".part" where the transfer breaks off, and
    /// the next call goes on behind it. The caller checks what came in the end.
    bool resumes = false;
};

/// What uses a disk that is to be erased.
struct DiskUse {
    enum Kind {
        Free,
        System,  ///< the running system needs it
        Mounted, ///< a volume of it is busy; `by` is the folder
        Held,    ///< something else lies on it, such as a pool or an encrypted volume; `by` names it
        Unknown
    };
    Kind kind = Free;
    QString by; ///< empty where nothing is told
};

/// The seam to the operating system: all that the program asks of the machine goes through here. The
/// operations bear the names of the system calls that they stand for.
///
/// One object serves all threads; every operation may be called from any thread unless it says otherwise.
/// Failures are answered by the return value, never by an exception.
class Platform
{
public:
    using RawHandle = std::intptr_t;
    static constexpr RawHandle InvalidHandle = -1;

    Platform() = default;
    Platform(const Platform &) = delete;
    Platform &operator=(const Platform &) = delete;
    virtual ~Platform() = default;

    /// The platform of this process. Chosen at the first call: the simulated PC when the environment variable
    /// HALVANE_PC names a folder, else the machine itself. A broken description of a PC ends the process with
    /// one line on standard error and exit code 2.
    static Platform &current();

    /// Installs a platform in place of the current one (tests). Main thread only, with no worker running.
    static void install(std::unique_ptr<Platform> platform);

    /// \name Raw devices
    /// Names are `\\.\PHYSICALDRIVE%d` and `\\.\%c:`. A handle is used by one thread at a time.
    /// @{
    virtual RawHandle CreateFileW(const QString &name, quint32 access, quint32 shareMode,
                                  quint32 disposition) = 0;
    /// Seeks to `byteOffset` from the start.
    virtual bool SetFilePointer(RawHandle handle, qint64 byteOffset) = 0;
    /// Transfers up to `bytes`; a transfer that crosses the end of the device is cut there and succeeds, one
    /// that begins at or behind it fails. `transferred` may be null.
    virtual bool ReadFile(RawHandle handle, void *buffer, quint32 bytes, quint32 *transferred) = 0;
    virtual bool WriteFile(RawHandle handle, const void *buffer, quint32 bytes, quint32 *transferred) = 0;
    /// The codes and records of platform/IoControl.h.
    virtual bool DeviceIoControl(RawHandle handle, quint32 code, const void *in, quint32 inSize, void *out,
                                 quint32 outSize, quint32 *returned) = 0;
    /// Returns when all that was written lies on the medium. False where the device does not confirm that.
    virtual bool FlushFileBuffers(RawHandle handle) = 0;
    /// Whether the device or its medium is no longer there: pulled out, switched off, or replaced by
    /// another one. Asks the system, not the medium, so it is quick. To be called after a failed transfer.
    virtual bool IsGone(RawHandle handle) = 0;
    virtual void CloseHandle(RawHandle handle) = 0;
    /// Whether the device is there, and only missing rights keep it from opening for reading and writing.
    virtual bool IsAccessDenied(const QString &) { return false; }
    /// Unmounts the volumes of a physical disk before it is erased, and tells what still uses the disk.
    /// Writes nothing. Always Free where the system's partition tool does this by itself.
    virtual DiskUse DismountDisk(int /*number*/) { return {}; }
    /// A number that changes when a physical disk is read or written; questions for its SMART data do not
    /// count. Asks the system, never the disk. Nothing where the system does not count.
    virtual std::optional<quint64> DiskActivity(int /*number*/) { return std::nullopt; }
    /// @}

    /// \name Volumes
    /// @{
    /// The begin of a new list of disks and volumes: what this object knows of the PC is read anew. Between
    /// two calls a number means the same disk, and a letter the same volume. Does nothing where the system
    /// itself gives them out.
    virtual void BeginListing() {}
    /// The same for somebody who wants to know of the disks alone: nothing is read from a disk, so that one
    /// that sleeps goes on to do so. A tool of the system is ended after a time, or when `mayGoOn` says no,
    /// which is asked several times a second on the caller's thread. False then: what was known stays.
    virtual bool BeginDiskListing(qint32 milliseconds, const std::function<bool()> &mayGoOn)
    {
        (void)milliseconds;
        (void)mayGoOn;
        BeginListing();
        return true;
    }
    /// The disks, volumes and partitions that are known. May leave out extents and encryption of volumes.
    virtual inventory::Machine Machine() { return {}; }
    /// The roots of all volumes, such as `C:\`.
    virtual QStringList GetLogicalDriveStringsW() = 0;
    /// False, with both texts empty, where there is no readable volume. Either pointer may be null.
    virtual bool GetVolumeInformationW(const QString &root, QString *label, QString *fileSystem) = 0;
    /// One of io::DriveType.
    virtual quint32 GetDriveTypeW(const QString &root) = 0;
    /// Bytes. False, with both zero, where there is no readable volume.
    virtual bool GetDiskFreeSpaceExW(const QString &root, quint64 *totalBytes, quint64 *freeBytes) = 0;
    /// @}

    /// \name Processes
    /// @{
    /// Runs a whole command line ("<interpreter> /c <command> ") and waits for its end without a time limit.
    /// Each element of `line` is one character as the process creation would get it. False if the interpreter
    /// could not be started; the command's own exit code is not told.
    virtual bool CreateProcessAndWait(const std::wstring &line, bool hidden) = 0;
    /// The same with limits, in a visible console if it is not `hidden`: a time, and `mayGoOn`, which is
    /// asked several times a second on the caller's thread. What still runs then is ended, with all that it
    /// started, and the result is false. A platform that carries out command lines by itself ignores both,
    /// but for the tools of the machine that it runs.
    virtual bool CreateProcessAndWaitFor(const std::wstring &line, qint32 milliseconds,
                                         const std::function<bool()> &mayGoOn, bool hidden = false)
    {
        (void)milliseconds;
        (void)mayGoOn;
        return CreateProcessAndWait(line, hidden);
    }
    /// How the window of an opened program shows. Used on Windows only.
    enum class Show { Normal, Maximised };
    /// Opens a file, program, page or mail address with what the desktop has for it. Returns at once.
    virtual bool ShellExecuteW(const QString &file, const QString &parameters, const QString &verb,
                               Show show = Show::Normal) = 0;
    /// Brings the window of a running program to the front. `file` is the program's name without a folder.
    /// False where it has no window, or where the system gives no such means.
    virtual bool BringToFront(const QString & /*file*/) { return false; }
    /// Calls `come` on this thread whenever BringToFront() wants the window of this program, where the system
    /// does not bring it by itself. Only one program of a user may ask for that.
    virtual void WhenWanted(const std::function<void()> & /*come*/) {}
    /// Opens a page or document. Main thread only.
    virtual bool OpenUrl(const QUrl &url) = 0;
    /// @}

    /// \name Folders and names
    /// @{
    /// The program's temp folder, ending in a separator: only this user can change what is in it. Empty where
    /// there is none such. In ASCII without blanks.
    virtual QString GetTempPathW() = 0;
    /// The folder of the system's tools, without a trailing separator.
    virtual QString GetSystemDirectoryW() = 0;
    virtual QString GetUserNameW() = 0;
    /// A text that is another one after the next logon, or at least after the next start of the PC, whatever
    /// rights the process has. Empty if the system does not tell.
    virtual QString LogonMark() { return QStringLiteral("logon"); }
    /// Where the history of attribute values is kept; no trailing separator. A folder below
    /// `applicationFolder` where that can be written, else one of the user's; it is made if it is missing.
    /// Empty where others could change it.
    virtual QString HistoryFolder(const QString &applicationFolder) = 0;
    /// The folder for what the program keeps of this user's PC besides settings and history; no trailing
    /// separator. It is made if it is missing. Empty where there is none that others cannot change.
    virtual QString StateFolder() { return QString(); }
    /// The end of a line in text files.
    virtual QByteArray LineEnd() const { return QByteArray("\n"); }
    /// A fresh and empty folder `name` that nobody else can enter or change; where the process has the rights
    /// of an administrator, other programs of its user count as others. Full path in ASCII without blanks,
    /// empty where none can be made. The caller removes it.
    virtual QString MakePrivateFolder(const QString &name) = 0;
    /// Opens a regular file that nobody else could have written, for reading. While the result lives nobody
    /// can change or replace the file, as far as the system can prevent it. Null where there is no such
    /// file.
    virtual std::unique_ptr<QFile> HoldFile(const QString &path) = 0;
    /// Makes `folder` the working folder, so that programs named without a folder are found there first.
    /// Does nothing on systems that do not look for programs in the working folder.
    virtual void SetCurrentDirectoryW(const QString &folder) { Q_UNUSED(folder) }
    /// A path as this platform writes it: the program composes paths with backslashes.
    virtual QString NativePath(const QString &path) const = 0;
    /// The begin of a command line: the system's own interpreter with its switches. The variable COMSPEC is
    /// not used, as any program of the user can set it.
    virtual QByteArray CommandInterpreter()
    {
        return (GetSystemDirectoryW() + QLatin1String("\\cmd.exe")).toUtf8();
    }
    /// True if no other process of this user on this PC has taken `key`. It stays taken until this process
    /// ends, even by a crash; no other user can take it. To be called once.
    virtual bool TakeInstance(const QString & /*key*/) { return true; }
    /// A command line that starts this program with the rights to open raw disks, for people to copy; empty
    /// where the desktop has a menu entry for that.
    virtual QString AdministratorCommand() { return QString(); }
    /// To be called before the process ends without running destructors: removes what must not stay behind.
    virtual void Leave() {}
    /// The operating system's own name, version and machine word for the About box.
    virtual QString OperatingSystemName() = 0;
    /// @}

    /// \name Power, display, network, time
    /// @{
    virtual void SetThreadExecutionState(quint32 flags) = 0;
    /// Dots per inch of the display, 96 at a scale of one. Main thread only.
    virtual int LogPixelsX() = 0;
    /// Loads a page into a file, blocking; httpDownload() says from where. Zero on success, like the result
    /// code of the system call.
    virtual qint32 URLDownloadToFileW(const QString &url, const QString &path,
                                      const DownloadLimits &limits) = 0;
    /// A result of the download: the address is not allowed, or the answer went beyond the limits.
    static constexpr qint32 DownloadRefused = static_cast<qint32>(0x80004004u);
    /// A fixed pause of the program.
    virtual void Sleep(quint32 milliseconds) = 0;
    /// The time of the PC, local.
    virtual QDateTime Now() { return QDateTime::currentDateTime(); }
    /// The milliseconds of this machine in which so many pass by Now(). For timers.
    virtual int TimerInterval(int milliseconds) { return milliseconds; }
    /// @}

    /// \name What the desktop shows of a window, by its native id. Main thread only.
    /// @{
    /// The most characters that the tip of a tray's icon has there; 0: as many as one likes.
    virtual int TrayTipLength() const { return 127; }
    /// Shows the progress of a job, in percent, on the window's button in the task bar; none takes it away.
    /// Does nothing where the desktop has no such thing.
    virtual void SetProgressValue(quintptr window, std::optional<int> percent) = 0;
    /// Shows a short message beside the user's work. Both texts are plain; an empty title takes away what
    /// does not go by itself. Does nothing where the desktop has no such thing.
    virtual void Shell_NotifyIconW(quintptr window, const QString &title, const QString &text) = 0;
    /// @}

    /// \name Volume arrival and removal
    /// @{
    /// Null on a platform that tells of volumes by window message. Owned by the platform. Main thread only.
    virtual DeviceNotifier *deviceNotifier() = 0;
    /// What a native window message says, if it is a device message.
    virtual std::optional<DeviceChange> decodeDeviceMessage(const QByteArray &eventType, void *message) = 0;
    /// @}

    /// \name Logon task
    /// @{
    /// Starts what the task interface needs on this thread; diagnostics go to standard output.
    virtual void InitializeCom() = 0;
    virtual void CreateLogonTask(const LogonTask &task) = 0;
    /// A task that does not exist is no error.
    virtual void DeleteLogonTask(const QString &name) = 0;
    /// @}

    /// \name Settings
    /// @{
    /// Opens the settings below a registry path. Texts stay texts and numbers stay numbers in the store.
    /// Values written are kept when the object goes. An empty path gives a store that keeps nothing.
    virtual std::unique_ptr<QSettings> OpenSettings(const QString &registryPath) = 0;
    /// @}
};
