// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LinuxPlatform.h"

#include "platform/FrontDoor.h"
#include "platform/HttpDownload.h"
#include "platform/IoControl.h"
#include "platform/JsonSettings.h"
#include "platform/NativePlatform.h"
#include "platform/OwnFiles.h"
#include "platform/linux/DesktopNotes.h"
#include "platform/linux/DesktopUser.h"
#include "platform/linux/LinuxDisks.h"
#include "platform/linux/LinuxMachine.h"
#include "platform/linux/LinuxTools.h"
#include "platform/linux/LogonEntry.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QSettings>
#include <QSysInfo>
#include <QThread>
#include <QUrl>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr quint32 ExecutionContinuous = 0x80000000u;
constexpr quint32 ExecutionRequired = 0x00000043u; ///< system, display or away mode

const QString DiskPrefix = QStringLiteral("\\\\.\\PHYSICALDRIVE");
const QString VolumePrefix = QStringLiteral("\\\\.\\");

/// The disk of a raw device's name; null for another name.
const inventory::Disk *diskOf(const inventory::Machine &machine, const QString &name)
{
    bool isNumber = false;
    const int number = name.mid(DiskPrefix.size()).toInt(&isNumber);
    return isNumber && name.startsWith(DiskPrefix, Qt::CaseInsensitive) ? inventory::diskOf(machine, number)
                                                                        : nullptr;
}

/// A path as a shell takes it.
QString quoted(QString path)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9/._+-]+$"));
    if (plain.match(path).hasMatch())
        return path;
    return QLatin1Char('\'') + path.replace(QLatin1Char('\''), QStringLiteral("'\\''")) + QLatin1Char('\'');
}

} // namespace

LinuxPlatform::LinuxPlatform(folders::Places places) : m_places(std::move(places))
{
    addSmartctl([this](const QStringList &words) { return linuxtools::smartctl(machine(), words); });
    addTool("taskkill", &linuxtools::taskkill);
    addTool("shutdown", &linuxtools::shutdown);
}

LinuxPlatform::~LinuxPlatform() = default;

// Raw devices

Platform::RawHandle LinuxPlatform::CreateFileW(const QString &name, quint32 access, quint32,
                                               quint32 disposition)
{
    if (disposition != io::OpenExisting)
        return InvalidHandle;

    const lsblk::Inventory known = pc();
    const bool writable = (access & io::GenericWrite) != 0;
    auto open = std::make_shared<OpenDevice>();
    if (const inventory::Disk *disk = diskOf(known.machine, name)) {
        open->device = linuxdisks::open(*disk, writable);
        open->disk = *disk;
    } else if (name.size() == VolumePrefix.size() + 2 && name.startsWith(VolumePrefix) &&
               name.endsWith(QLatin1Char(':'))) {
        const QChar letter = name.at(VolumePrefix.size()).toUpper();
        open->disk.node = known.volumeNodes.value(letter);
        if (!open->disk.node.isEmpty())
            open->device = RawDevice::open(open->disk.node, writable);
        for (const inventory::Volume &volume : known.machine.volumes) {
            if (volume.letter == letter)
                open->extents = volume.extents;
        }
    }
    if (!open->device)
        return InvalidHandle;
    open->disk.bytesPerSector = open->device->bytesPerSector();

    const std::lock_guard<std::mutex> guard(m_mutex);
    const RawHandle handle = m_nextHandle++;
    m_open.insert(handle, open);
    return handle;
}

std::shared_ptr<LinuxPlatform::OpenDevice> LinuxPlatform::find(RawHandle handle)
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    return m_open.value(handle);
}

bool LinuxPlatform::SetFilePointer(RawHandle handle, qint64 byteOffset)
{
    const auto open = find(handle);
    return open && open->device->seek(byteOffset);
}

bool LinuxPlatform::ReadFile(RawHandle handle, void *buffer, quint32 bytes, quint32 *transferred)
{
    const auto open = find(handle);
    const qint64 got = open ? open->device->read(buffer, bytes) : -1;
    if (transferred)
        *transferred = got < 0 ? 0 : static_cast<quint32>(got);
    return got >= 0;
}

bool LinuxPlatform::WriteFile(RawHandle handle, const void *buffer, quint32 bytes, quint32 *transferred)
{
    const auto open = find(handle);
    // Nothing else in this system keeps root from writing over the disk that it runs from.
    if (open && !open->isProtected)
        open->isProtected = linuxdisks::isProtected(open->disk.node);
    const qint64 put = open && !*open->isProtected ? open->device->write(buffer, bytes) : -1;
    if (transferred)
        *transferred = put < 0 ? 0 : static_cast<quint32>(put);
    return put >= 0;
}

bool LinuxPlatform::DeviceIoControl(RawHandle handle, quint32 code, const void *, quint32, void *out,
                                    quint32 outSize, quint32 *returned)
{
    const auto open = find(handle);
    QByteArray told; // SMART comes from smartctl alone
    if (open && code == io::StorageQueryProperty)
        told = QByteArray::fromStdString(io::storageDescriptor(open->device->serial().constData()));
    else if (open && code == io::VolumeGetVolumeDiskExtents)
        told = extentsAnswer(code, open->extents);
    else if (open)
        told = geometryAnswer(code, open->device->size(), open->disk);
    return answer(told, out, outSize, returned);
}

bool LinuxPlatform::FlushFileBuffers(RawHandle handle)
{
    const auto open = find(handle);
    return open && open->device->flush();
}

bool LinuxPlatform::IsGone(RawHandle handle)
{
    const auto open = find(handle);
    return !open || open->device->isGone();
}

void LinuxPlatform::CloseHandle(RawHandle handle)
{
    std::shared_ptr<OpenDevice>
        last; // closed after the lock is free: closing a disk that was written to takes time
    const std::lock_guard<std::mutex> guard(m_mutex);
    last = m_open.take(handle);
}

bool LinuxPlatform::IsAccessDenied(const QString &name)
{
    const inventory::Machine known = machine();
    const inventory::Disk *disk = diskOf(known, name);
    return disk && RawDevice::isDenied(disk->node);
}

DiskUse LinuxPlatform::DismountDisk(int number)
{
    const inventory::Machine known = machine();
    const inventory::Disk *disk = inventory::diskOf(known, number);
    return disk ? linuxdisks::release(disk->node) : DiskUse{DiskUse::Unknown, {}};
}

std::optional<quint64> LinuxPlatform::DiskActivity(int number)
{
    const inventory::Machine known = machine();
    const inventory::Disk *disk = inventory::diskOf(known, number);
    return disk ? linuxmachine::activityOf(disk->node) : std::nullopt;
}

// Volumes

lsblk::Inventory LinuxPlatform::pc()
{
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        if (m_pc)
            return *m_pc;
    }
    BeginListing();
    const std::lock_guard<std::mutex> guard(m_mutex);
    return *m_pc;
}

lsblk::Inventory LinuxPlatform::known()
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    return m_pc.value_or(lsblk::Inventory());
}

void LinuxPlatform::setKnown(lsblk::Inventory found)
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    m_pc = std::move(found);
}

void LinuxPlatform::BeginListing()
{
    setKnown(linuxmachine::read(known()));
}

bool LinuxPlatform::BeginDiskListing(qint32 milliseconds, const std::function<bool()> &mayGoOn)
{
    const linuxtools::Limits limits(milliseconds, mayGoOn);
    lsblk::Inventory found = linuxmachine::readDisks(known());
    const bool well = limits.allow();
    setKnown(well ? std::move(found) : known()); // so that nobody asks again without limits
    return well;
}

inventory::Machine LinuxPlatform::machine()
{
    return pc().machine;
}

QStringList LinuxPlatform::processes()
{
    return linuxtools::processes();
}

std::unique_ptr<tools::ScriptedDisks> LinuxPlatform::scriptedDisks()
{
    return std::make_unique<linuxdisks::Scripts>(machine());
}

// Programs and pages

bool LinuxPlatform::CreateProcessAndWaitFor(const std::wstring &line, qint32 milliseconds,
                                            const std::function<bool()> &mayGoOn, bool hidden)
{
    const linuxtools::Limits limits(milliseconds, mayGoOn);
    return CreateProcessAndWait(line, hidden) && !limits.wereReached();
}

QString LinuxPlatform::findProgram(const QString &file)
{
    // A document can be marked as a program, too: some file systems mark all their files.
    if (!file.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive))
        return {};
    for (const QString &name : {file, file.left(file.size() - 4)}) {
        const QFileInfo program(QDir(QCoreApplication::applicationDirPath()), name);
        if (program.isFile() && program.isExecutable())
            return program.filePath();
    }
    return {};
}

bool LinuxPlatform::ShellExecuteW(const QString &file, const QString &parameters, const QString &, Show)
{
    const QUrl url(file);
    const bool isAddress = url.scheme().size() > 1;
    if (!isAddress) {
        const QString program = findProgram(NativePath(file));
        if (!program.isEmpty())
            return QProcess::startDetached(program, QProcess::splitCommand(parameters));
    }
    return !file.isEmpty() && desktopuser::open(isAddress ? file : NativePath(file));
}

bool LinuxPlatform::BringToFront(const QString &)
{
    return frontdoor::knock(nativeSocket(QStringLiteral("front")));
}

void LinuxPlatform::WhenWanted(const std::function<void()> &come)
{
    frontdoor::open(nativeSocket(QStringLiteral("front")), come);
}

bool LinuxPlatform::OpenUrl(const QUrl &url)
{
    // The toolkit takes the first opener of the search path.
    return ownfiles::isElevated() ? desktopuser::open(QString::fromLatin1(url.toEncoded()))
                                  : QDesktopServices::openUrl(url);
}

// Folders and names

QString LinuxPlatform::GetTempPathW()
{
    return m_places.temp.isEmpty() ? QString() : m_places.temp + QLatin1Char('/');
}

QString LinuxPlatform::GetUserNameW()
{
    const passwd *entry = getpwuid(geteuid());
    return entry ? QString::fromLocal8Bit(entry->pw_name) : qEnvironmentVariable("USER");
}

QString LinuxPlatform::LogonMark()
{
    return QLatin1String("start ") + QString::fromLatin1(QSysInfo::bootUniqueId());
}

QString LinuxPlatform::HistoryFolder(const QString &applicationFolder)
{
    const QString path = QDir::cleanPath(applicationFolder);
    // An installed program keeps nothing beside itself, even if root runs it.
    const bool installed = path.startsWith(QLatin1String("/usr/")) || path.startsWith(QLatin1String("/opt/"));
    const bool beside = !installed && QFileInfo(path).isDir() && QFileInfo(path).isWritable() &&
                        ownfiles::strangerOn(path).isEmpty();
    const QString own = (beside ? path : m_places.data) + QLatin1String("/history");
    const QString wrong = ownfiles::makeFolder(own);
    if (wrong.isEmpty())
        return own;
    ownfiles::complain(QLatin1String("no history is kept: ") + wrong);
    return QString();
}

QString LinuxPlatform::StateFolder()
{
    const QString wrong = ownfiles::makeFolder(m_places.data);
    if (wrong.isEmpty())
        return m_places.data;
    ownfiles::complain(QLatin1String("nothing is kept for the next start: ") + wrong);
    return QString();
}

QString LinuxPlatform::MakePrivateFolder(const QString &name)
{
    const QString path = GetTempPathW() + name;
    // If another user can change the path, even the removal of an old folder could hit a wrong one.
    if (m_places.temp.isEmpty() || !ownfiles::strangerOn(path).isEmpty() || QFileInfo(path).isSymLink())
        return QString();
    QDir(path).removeRecursively();
    return ::mkdir(QFile::encodeName(path).constData(), 0700) == 0 ? path : QString();
}

std::unique_ptr<QFile> LinuxPlatform::HoldFile(const QString &path)
{
    auto file = std::make_unique<QFile>();
    const bool ours = ownfiles::strangerOn(path).isEmpty();
    return ours && ownfiles::openRegular(file.get(), path, QIODevice::ReadOnly) ? std::move(file) : nullptr;
}

QString LinuxPlatform::NativePath(const QString &path) const
{
    QString native = path;
    native.replace(QLatin1Char('\\'), QLatin1Char('/'));
    // "C:" stands for the root folder of this machine: settings name paths with that letter.
    const bool onDriveC = native.startsWith(QLatin1String("C:"), Qt::CaseInsensitive) &&
                          (native.size() == 2 || native.at(2) == QLatin1Char('/'));
    if (onDriveC)
        native.remove(0, 2);
    // A file straight on it, as the first log is, lies with our data: nobody keeps files in the root folder.
    if (onDriveC && native.size() > 1 && native.lastIndexOf(QLatin1Char('/')) == 0)
        return m_places.data + native;
    return native.isEmpty() && onDriveC ? QStringLiteral("/") : native;
}

bool LinuxPlatform::TakeInstance(const QString &key)
{
    return takeNativeInstance(key);
}

QString LinuxPlatform::AdministratorCommand()
{
    // The starter takes the display through pkexec, which asks in a terminal, too.
    return linuxtools::find(QStringLiteral("pkexec")).isEmpty()
               ? QLatin1String("sudo ") + quoted(QCoreApplication::applicationFilePath())
               : quoted(QCoreApplication::applicationDirPath() + QLatin1String("/start"));
}

QString LinuxPlatform::OperatingSystemName()
{
    const QString machine = QSysInfo::currentCpuArchitecture();
    const QString word = machine == QLatin1String("x86_64") ? QStringLiteral("x64") : machine;
    return QStringLiteral("%1 (%2) %3").arg(QSysInfo::prettyProductName(), QSysInfo::kernelVersion(), word);
}

// Power, display, network, time

void LinuxPlatform::SetThreadExecutionState(quint32 flags)
{
    if ((flags & ExecutionContinuous) == 0)
        return;
    if ((flags & ExecutionRequired) != 0)
        m_inhibitor.hold();
    else
        m_inhibitor.release();
}

int LinuxPlatform::LogPixelsX()
{
    // A process without windows has no screens.
    const bool hasScreens = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    const QScreen *screen = hasScreens ? QGuiApplication::primaryScreen() : nullptr;
    return screen ? qRound(screen->logicalDotsPerInchX()) : 96;
}

qint32 LinuxPlatform::URLDownloadToFileW(const QString &url, const QString &path,
                                         const DownloadLimits &limits)
{
    return httpDownload(url, NativePath(path), limits);
}

void LinuxPlatform::Sleep(quint32 milliseconds)
{
    QThread::msleep(milliseconds);
}

// The desktop

void LinuxPlatform::SetProgressValue(quintptr, std::optional<int> percent)
{
    desktopnotes::showProgress(percent);
}

void LinuxPlatform::Shell_NotifyIconW(quintptr, const QString &title, const QString &text)
{
    if (!title.isEmpty())
        desktopnotes::notify(title, text);
}

// Volume arrival and removal

DeviceNotifier *LinuxPlatform::deviceNotifier()
{
    if (!m_watch)
        m_watch = std::make_unique<VolumeWatch>(linuxmachine::onlyNodes());
    m_watch->start();
    return m_watch.get();
}

// Logon task

void LinuxPlatform::CreateLogonTask(const LogonTask &task)
{
    LogonTask native = task;
    native.program = findProgram(NativePath(task.program));
    if (native.program.isEmpty())
        native.program = NativePath(task.program);
    if (ownfiles::isElevated()) {
        // Each session reads the entries of root: only a starter that root alone can change may stand there.
        const auto user = desktopuser::loggedOn();
        native = logonentry::ofRoot(native, user ? user->id : 0);
        const QString wrong = QFileInfo(native.program).isExecutable()
                                  ? ownfiles::strangerOn(native.program)
                                  : native.program + QLatin1String(" is missing");
        if (!wrong.isEmpty()) {
            ownfiles::complain(QLatin1String("nothing is started at logon: ") + wrong);
            return;
        }
    }
    logonentry::create(m_places.autostart, native);
}

void LinuxPlatform::DeleteLogonTask(const QString &name)
{
    logonentry::remove(m_places.autostart, name);
}

// Settings

std::unique_ptr<QSettings> LinuxPlatform::OpenSettings(const QString &registryPath)
{
    if (registryPath.isEmpty())
        return jsonsettings::openNothing();
    const QString file = jsonsettings::fileOf(m_places.configuration, registryPath);
    QString wrong = ownfiles::makeFolder(QFileInfo(file).path());
    // A link at that place could lead anywhere.
    if (wrong.isEmpty())
        wrong = ownfiles::strangerOn(file);
    if (wrong.isEmpty())
        return jsonsettings::open(file);
    ownfiles::complain(QLatin1String("settings are not kept: ") + wrong);
    return jsonsettings::openNothing();
}

std::unique_ptr<Platform> makeNativePlatform()
{
    return std::make_unique<LinuxPlatform>();
}
