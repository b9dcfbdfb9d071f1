// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/WindowsPlatform.h"

#include "platform/HttpDownload.h"
#include "platform/JsonSettings.h"
#include "platform/Log.h"
#include "platform/NativePlatform.h"
#include "platform/OwnFiles.h"
#include "platform/tools/SystemTools.h"
#include "platform/windows/DesktopShell.h"
#include "platform/windows/Native.h"
#include "platform/windows/PrivateFolder.h"
#include "platform/windows/SystemInventory.h"
#include "platform/windows/TaskBar.h"

#include <QDeadlineTimer>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryFile>
#include <QUrl>

#include <algorithm>
#include <array>

#include <dbt.h>
#include <shellapi.h>

using windows::wide;

namespace
{

/// Characters of the buffers that folders are read into.
constexpr DWORD PathCharacters = 512;
constexpr DWORD UserNameCharacters = 257;
constexpr DWORD DriveStringCharacters = 260;

bool canWriteInto(const QString &folder)
{
    // Attributes do not tell what the access rights allow.
    QTemporaryFile probe(folder + QLatin1String("/XXXXXX.tmp"));
    return probe.open();
}

/// The environment of a tool: one that is called without a folder lies in the folder that it works in, or in
/// the system's, and in no folder that a user could name.
std::wstring toolEnvironment(const QString &systemFolder)
{
    std::wstring block;
    wchar_t *const own = ::GetEnvironmentStringsW();
    for (const wchar_t *entry = own; entry && *entry; entry += ::wcslen(entry) + 1) {
        // Without the other one the interpreter takes itself where it starts a second one, as for a pipe.
        if (::_wcsnicmp(entry, L"PATH=", 5) != 0 && ::_wcsnicmp(entry, L"COMSPEC=", 8) != 0)
            block.append(entry).push_back(L'\0');
    }
    ::FreeEnvironmentStringsW(own);
    const QString windows = systemFolder.section(QLatin1Char('\\'), 0, -2);
    block.append(QStringLiteral("PATH=%1;%2;%1\\Wbem").arg(systemFolder, windows).toStdWString());
    return block.append(2, L'\0');
}

/// Closes what a started process has brought.
void close(const PROCESS_INFORMATION &process)
{
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
}

/// Starts a command line in a console of its own. In no `folder` it works in that of this process.
bool startLine(const std::wstring &line, const QString &systemFolder, const std::wstring &folder, bool hidden,
               DWORD flags, PROCESS_INFORMATION *process)
{
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    if (hidden) {
        startup.dwFlags = STARTF_USESHOWWINDOW;
        startup.wShowWindow = SW_HIDE;
    }
    // The system may write into the line.
    std::wstring buffer = line;
    std::wstring environment = toolEnvironment(systemFolder);
    const BOOL started =
        ::CreateProcessW(nullptr, buffer.data(), nullptr, nullptr, FALSE,
                         CREATE_NEW_CONSOLE | CREATE_UNICODE_ENVIRONMENT | flags, environment.data(),
                         folder.empty() ? nullptr : folder.c_str(), &startup, process);
    qCDebug(logs::platform, "a command of %d characters %s", static_cast<int>(line.size()),
            started ? "starts" : "does not start");
    return started != FALSE;
}

/// A program by its full path, with the rights of this process. The user's registry is not asked for it.
bool startProgram(const QString &path, const QString &parameters, const QString &systemFolder)
{
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    std::wstring line = QStringLiteral("\"%1\" %2").arg(path, parameters).toStdWString();
    std::wstring environment = toolEnvironment(systemFolder);
    if (!::CreateProcessW(wide(path), line.data(), nullptr, nullptr, FALSE, CREATE_UNICODE_ENVIRONMENT,
                          environment.data(), nullptr, &startup, &process))
        return false;
    close(process);
    return true;
}

/// Newer systems come without this tool; its tables are made here then.
bool isMissingTable(const std::wstring &line)
{
    const QString program = tools::CommandInterpreter::programOf(line);
    return program.endsWith(QLatin1String("\\wbem\\WMIC.exe"), Qt::CaseInsensitive) &&
           !QFile::exists(program);
}

/// Makes a table of that tool from what `read` tells of the PC. False where it tells nothing.
bool makeTable(const std::wstring &line,
               const std::function<std::optional<inventory::Machine>(const QString &alias)> &read)
{
    bool isMade = false;
    tools::CommandInterpreter interpreter;
    interpreter.addTool(QStringLiteral("wmic"), [&](const QStringList &arguments, const QByteArray &) {
        const auto machine = read(arguments.value(0));
        isMade = machine.has_value();
        return isMade ? tools::wmic(*machine, arguments) : QByteArray();
    });
    return interpreter.run(line, [](const QString &path) { return path; }) && isMade;
}

} // namespace

WindowsPlatform::WindowsPlatform()
{
    // An empty card reader would ask for a medium in a box of the system's own.
    ::SetErrorMode(::GetErrorMode() | SEM_FAILCRITICALERRORS);
}

// Volumes

inventory::Machine WindowsPlatform::Machine()
{
    inventory::Machine machine = windows::readMachine(QStringLiteral("diskdrive"), this);
    machine.volumes = windows::readMachine(QStringLiteral("logicaldisk"), this).volumes;
    return machine;
}

QStringList WindowsPlatform::GetLogicalDriveStringsW()
{
    // Room for all letters: a volume may come between asking for the length and for the list.
    std::array<wchar_t, DriveStringCharacters> buffer{};
    const DWORD length = ::GetLogicalDriveStringsW(DriveStringCharacters, buffer.data());
    if (length == 0 || length >= DriveStringCharacters)
        return {};
    return QString::fromWCharArray(buffer.data(), static_cast<int>(length))
        .split(QChar(u'\0'), Qt::SkipEmptyParts);
}

bool WindowsPlatform::GetVolumeInformationW(const QString &root, QString *label, QString *fileSystem)
{
    std::array<wchar_t, MAX_PATH + 1> name{};
    std::array<wchar_t, MAX_PATH + 1> system{};
    const BOOL done =
        ::GetVolumeInformationW(wide(root), name.data(), static_cast<DWORD>(name.size()), nullptr, nullptr,
                                nullptr, system.data(), static_cast<DWORD>(system.size()));
    if (label)
        *label = done ? QString::fromWCharArray(name.data()) : QString();
    if (fileSystem)
        *fileSystem = done ? QString::fromWCharArray(system.data()) : QString();
    return done != FALSE;
}

quint32 WindowsPlatform::GetDriveTypeW(const QString &root)
{
    return ::GetDriveTypeW(wide(root));
}

bool WindowsPlatform::GetDiskFreeSpaceExW(const QString &root, quint64 *totalBytes, quint64 *freeBytes)
{
    ULARGE_INTEGER available{};
    ULARGE_INTEGER total{};
    ULARGE_INTEGER free{};
    const BOOL done = ::GetDiskFreeSpaceExW(wide(root), &available, &total, &free);
    if (totalBytes)
        *totalBytes = done ? total.QuadPart : 0;
    if (freeBytes)
        *freeBytes = done ? free.QuadPart : 0;
    return done != FALSE;
}

// Processes

bool WindowsPlatform::CreateProcessAndWait(const std::wstring &line, bool hidden)
{
    if (isMissingTable(line))
        return makeTable(line, [this](const QString &alias) { return windows::readMachine(alias, this); });

    PROCESS_INFORMATION process{};
    if (!startLine(withToolFolder(line), GetSystemDirectoryW(), m_workingFolder, hidden, 0, &process))
        return false;
    ::WaitForSingleObject(process.hProcess, INFINITE);
    close(process);
    return true;
}

std::wstring WindowsPlatform::withToolFolder(const std::wstring &line) const
{
    const QString program = tools::CommandInterpreter::programOf(line);
    const QString folder = QString::fromStdWString(m_workingFolder);
    const bool isHere = !folder.isEmpty() && !program.contains(QLatin1Char('\\')) &&
                        QFileInfo(QDir(folder), program).isFile();
    // A file dialog may have taken the process to another folder, where a tool of the same name may lie.
    return isHere ? tools::CommandInterpreter::withFolder(line, folder) : line;
}

bool WindowsPlatform::CreateProcessAndWaitFor(const std::wstring &line, qint32 milliseconds,
                                              const std::function<bool()> &mayGoOn, bool hidden)
{
    constexpr DWORD StepMs = 200;
    if (isMissingTable(line)) {
        return makeTable(line, [this, milliseconds, &mayGoOn](const QString &alias) {
            return windows::readMachineWithin(alias, this, milliseconds, mayGoOn);
        });
    }
    const HANDLE job = ::CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    ::SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof(limits));
    PROCESS_INFORMATION process{};
    if (!job || !startLine(hidden ? withToolFolder(line) : line, GetSystemDirectoryW(),
                           hidden ? m_workingFolder : std::wstring(), hidden, CREATE_SUSPENDED, &process)) {
        ::CloseHandle(job);
        return false;
    }
    // It was started suspended, so that it starts nothing before it is in the job.
    ::AssignProcessToJobObject(job, process.hProcess);
    ::ResumeThread(process.hThread);
    const QDeadlineTimer end(milliseconds);
    bool ended = false;
    do
        ended = ::WaitForSingleObject(process.hProcess, StepMs) == WAIT_OBJECT_0;
    while (!ended && !end.hasExpired() && mayGoOn());
    if (!ended)
        ::TerminateProcess(process.hProcess, 1);
    ::CloseHandle(job);
    close(process);
    return ended;
}

bool WindowsPlatform::ShellExecuteW(const QString &file, const QString &parameters, const QString &verb,
                                    Show show)
{
    constexpr INT_PTR LastError = 32;
    // Not every program that opens a document takes slashes; an address keeps its own.
    const QString target = QDir::isAbsolutePath(file) ? NativePath(file) : file;
    const int window = show == Show::Maximised ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
    // What the user's registry says about documents and pages is not for a program with more rights than his.
    if (ownfiles::isElevated()) {
        const bool isProgram =
            QDir::isAbsolutePath(file) && target.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive);
        if (isProgram)
            return startProgram(target, parameters, GetSystemDirectoryW());
        return windows::openByShell(target, parameters, verb, window);
    }
    const HINSTANCE result =
        ::ShellExecuteW(nullptr, verb.isEmpty() ? nullptr : wide(verb), wide(target),
                        parameters.isEmpty() ? nullptr : wide(parameters), nullptr, window);
    return reinterpret_cast<INT_PTR>(result) > LastError;
}

bool WindowsPlatform::BringToFront(const QString &file)
{
    return windows::bringToFront(file);
}

bool WindowsPlatform::OpenUrl(const QUrl &url)
{
    const QString target =
        url.isLocalFile() ? NativePath(url.toLocalFile()) : QString::fromLatin1(url.toEncoded());
    return ownfiles::isElevated() ? windows::openByShell(target, QString(), QString(), SW_SHOWNORMAL)
                                  : QDesktopServices::openUrl(url);
}

// Folders and names

QString WindowsPlatform::GetTempPathW()
{
    static const QString folder = windows::makeTempFolder();
    return folder.isEmpty() ? QString() : folder + QLatin1Char('\\');
}

QString WindowsPlatform::GetSystemDirectoryW()
{
    std::array<wchar_t, PathCharacters> buffer{};
    const UINT length = ::GetSystemDirectoryW(buffer.data(), PathCharacters);
    return length < PathCharacters ? QString::fromWCharArray(buffer.data(), static_cast<int>(length))
                                   : QString();
}

QString WindowsPlatform::GetUserNameW()
{
    std::array<wchar_t, UserNameCharacters> buffer{};
    DWORD length = UserNameCharacters;
    return ::GetUserNameW(buffer.data(), &length) ? QString::fromWCharArray(buffer.data()) : QString();
}

QString WindowsPlatform::LogonMark()
{
    return windows::logonMark();
}

bool WindowsPlatform::TakeInstance(const QString &key)
{
    return takeNativeInstance(key);
}

QString WindowsPlatform::HistoryFolder(const QString &applicationFolder)
{
    const bool beside = QDir(applicationFolder).exists() && canWriteInto(applicationFolder) &&
                        ownfiles::strangerOn(applicationFolder).isEmpty();
    const QString place = beside ? applicationFolder : windows::dataFolder();
    const QString own = place + QLatin1String("/history");
    const QString wrong =
        place.isEmpty() ? QStringLiteral("others may change the folder for it") : ownfiles::makeFolder(own);
    if (wrong.isEmpty())
        return own;
    ownfiles::complain(QLatin1String("no history is kept: ") + wrong);
    return QString();
}

QString WindowsPlatform::StateFolder()
{
    const QString folder = windows::dataFolder();
    return !folder.isEmpty() && ownfiles::makeFolder(folder).isEmpty() ? folder : QString();
}

QString WindowsPlatform::MakePrivateFolder(const QString &name)
{
    return windows::makePrivateFolder(name);
}

std::unique_ptr<QFile> WindowsPlatform::HoldFile(const QString &path)
{
    return windows::holdFile(path);
}

void WindowsPlatform::SetCurrentDirectoryW(const QString &folder)
{
    m_workingFolder = NativePath(folder).toStdWString();
    ::SetCurrentDirectoryW(m_workingFolder.c_str());
    // If set, this variable keeps the interpreter from looking into the working folder.
    ::SetEnvironmentVariableW(L"NoDefaultCurrentDirectoryInExePath", nullptr);
}

QString WindowsPlatform::NativePath(const QString &path) const
{
    return QDir::toNativeSeparators(path);
}

QByteArray WindowsPlatform::CommandInterpreter()
{
    // Without the switch it first runs what the user's registry names.
    return Platform::CommandInterpreter() + " /d";
}

QString WindowsPlatform::OperatingSystemName()
{
    const QSettings current(
        QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion"),
        QSettings::NativeFormat);
    QString name = current.value(QStringLiteral("ProductName")).toString();
    if (!name.startsWith(QLatin1String("Microsoft")))
        name.prepend(QLatin1String("Microsoft "));
    QString release = current.value(QStringLiteral("DisplayVersion")).toString();
    if (release.isEmpty())
        release = current.value(QStringLiteral("ReleaseId")).toString();
    if (!release.isEmpty())
        name += QLatin1Char(' ') + release;

    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof(version);
    ::GetVersionExW(&version);
    SYSTEM_INFO system{};
    ::GetNativeSystemInfo(&system);
    const bool wordOf64 = system.wProcessorArchitecture == PROCESSOR_ARCHITECTURE_AMD64;
    return QString::asprintf("%s (%lu.%lu.%lu)", name.toUtf8().constData(), version.dwMajorVersion,
                             version.dwMinorVersion, version.dwBuildNumber) +
           (wordOf64 ? QStringLiteral(" x64") : QString());
}

// Power, display, network, time

void WindowsPlatform::SetThreadExecutionState(quint32 flags)
{
    ::SetThreadExecutionState(flags);
}

int WindowsPlatform::LogPixelsX()
{
    const HDC screen = ::GetDC(nullptr);
    const int dots = screen ? ::GetDeviceCaps(screen, LOGPIXELSX) : 0;
    if (screen)
        ::ReleaseDC(nullptr, screen);
    return dots > 0 ? dots : 96;
}

qint32 WindowsPlatform::URLDownloadToFileW(const QString &url, const QString &path,
                                           const DownloadLimits &limits)
{
    // The system call of this name has no limits of time or size.
    return httpDownload(url, path, limits);
}

void WindowsPlatform::Sleep(quint32 milliseconds)
{
    ::Sleep(milliseconds);
}

// The desktop

void WindowsPlatform::SetProgressValue(quintptr window, std::optional<int> percent)
{
    windows::showProgress(reinterpret_cast<HWND>(window), percent);
}

void WindowsPlatform::Shell_NotifyIconW(quintptr window, const QString &title, const QString &text)
{
    windows::notify(reinterpret_cast<HWND>(window), title, text);
}

// Volume arrival and removal

DeviceNotifier *WindowsPlatform::deviceNotifier()
{
    return nullptr;
}

std::optional<DeviceChange> WindowsPlatform::decodeDeviceMessage(const QByteArray &eventType, void *message)
{
    if (eventType != "windows_generic_MSG" || !message)
        return std::nullopt;
    const auto *native = static_cast<const MSG *>(message);
    if (native->message != WM_DEVICECHANGE)
        return std::nullopt;
    DeviceChange change;
    change.event = static_cast<quint32>(native->wParam);
    // Other events bring no record, or one of another kind.
    const bool hasRecord = change.event == DBT_DEVICEARRIVAL || change.event == DBT_DEVICEREMOVECOMPLETE;
    if (hasRecord && native->lParam)
        change.deviceType = reinterpret_cast<const DEV_BROADCAST_HDR *>(native->lParam)->dbch_devicetype;
    return change;
}

// Logon task

void WindowsPlatform::InitializeCom()
{
    if (!m_com)
        m_com = windows::initializeCom();
}

void WindowsPlatform::Leave()
{
    m_com.reset();
}

void WindowsPlatform::CreateLogonTask(const LogonTask &task)
{
    LogonTask native = task;
    native.program = NativePath(task.program);
    // The task runs its program with the highest rights, so nobody else may be able to replace it.
    const QString stranger = ownfiles::strangerOn(native.program);
    if (stranger.isEmpty())
        windows::createLogonTask(native);
    else
        qCWarning(logs::platform).noquote() << "no logon task for" << stranger;
}

void WindowsPlatform::DeleteLogonTask(const QString &name)
{
    windows::deleteLogonTask(name);
}

// Settings

std::unique_ptr<QSettings> WindowsPlatform::OpenSettings(const QString &registryPath)
{
    if (registryPath.isEmpty())
        return jsonsettings::openNothing();
    return jsonsettings::openAs(registryPath, QSettings::NativeFormat);
}

std::unique_ptr<Platform> makeNativePlatform()
{
    return std::make_unique<WindowsPlatform>();
}
