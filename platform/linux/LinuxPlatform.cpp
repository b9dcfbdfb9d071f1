// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LinuxPlatform.h"

#include "platform/HttpDownload.h"
#include "platform/IoControl.h"
#include "platform/JsonSettings.h"
#include "platform/NativePlatform.h"
#include "platform/OwnFiles.h"
#include "platform/linux/LinuxDisks.h"
#include "platform/linux/LogonEntry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QSysInfo>
#include <QThread>

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr quint32 ExecutionContinuous = 0x80000000u;
constexpr quint32 ExecutionRequired = 0x00000043u; ///< system, display or away mode

/// The geometry that is reported for every disk.
constexpr quint32 TracksPerCylinder = 255;
constexpr quint32 SectorsPerTrack = 63;

const QString DiskPrefix = QStringLiteral("\\\\.\\PHYSICALDRIVE");
const QString VolumePrefix = QStringLiteral("\\\\.\\");

bool answerBytes(const std::string &bytes, void *out, quint32 outSize, quint32 *returned)
{
    if (!out || outSize < bytes.size())
        return false;
    std::memcpy(out, bytes.data(), bytes.size());
    if (returned)
        *returned = static_cast<quint32>(bytes.size());
    return true;
}

template<typename Record>
bool answer(const Record &record, void *out, quint32 outSize, quint32 *returned)
{
    return answerBytes(std::string(reinterpret_cast<const char *>(&record), sizeof(Record)), out, outSize,
                       returned);
}

io::DiskGeometry geometryOf(const RawDevice &device, quint32 mediaType)
{
    const qint64 cylinder = qint64{TracksPerCylinder} * SectorsPerTrack * device.bytesPerSector();
    return {device.size() / cylinder, mediaType, TracksPerCylinder, SectorsPerTrack, device.bytesPerSector()};
}

bool answerExtents(const QVector<inventory::Extent> &extents, void *out, quint32 outSize, quint32 *returned)
{
    const quint32 head = offsetof(io::VolumeDiskExtents, extents);
    const quint32 needed =
        head + static_cast<quint32>(sizeof(io::DiskExtent)) * static_cast<quint32>(extents.size());
    if (extents.isEmpty() || !out || outSize < needed)
        return false;
    auto *bytes = static_cast<char *>(out);
    std::memset(bytes, 0, head);
    const auto count = static_cast<quint32>(extents.size());
    std::memcpy(bytes, &count, sizeof(count));
    for (const inventory::Extent &extent : extents) {
        const io::DiskExtent record{static_cast<quint32>(extent.disk), 0, static_cast<qint64>(extent.offset),
                                    static_cast<qint64>(extent.length)};
        std::memcpy(bytes + head, &record, sizeof(record));
        bytes += sizeof(record);
    }
    if (returned)
        *returned = needed;
    return true;
}

std::optional<inventory::Disk> diskOf(const inventory::Machine &machine, int number)
{
    for (const inventory::Disk &disk : machine.disks) {
        if (disk.number == number)
            return disk;
    }
    return std::nullopt;
}

/// The disk of a raw device's name.
std::optional<inventory::Disk> diskOf(const inventory::Machine &machine, const QString &name)
{
    bool isNumber = false;
    const int number = name.mid(DiskPrefix.size()).toInt(&isNumber);
    return isNumber && name.startsWith(DiskPrefix, Qt::CaseInsensitive) ? diskOf(machine, number)
                                                                        : std::nullopt;
}

/// A path as a shell takes it.
QString quoted(QString path)
{
    return QLatin1Char('\'') + path.replace(QLatin1Char('\''), QStringLiteral("'\\''")) + QLatin1Char('\'');
}

quint32 mediaTypeOf(const inventory::Disk &disk)
{
    return disk.media == QLatin1String("removable") ? io::MediaRemovable : io::MediaFixed;
}

} // namespace

LinuxPlatform::LinuxPlatform(folders::Places places) : m_places(std::move(places))
{
    addTools();
}

LinuxPlatform::~LinuxPlatform() = default;

// Raw devices

Platform::RawHandle LinuxPlatform::CreateFileW(const QString &name, quint32 access, quint32,
                                               quint32 disposition)
{
    if (disposition != io::OpenExisting)
        return InvalidHandle;

    const lsblk::Inventory machine = pc();
    const bool writable = (access & io::GenericWrite) != 0;
    auto open = std::make_shared<OpenDevice>();
    if (const auto disk = diskOf(machine.machine, name)) {
        open->node = disk->node;
        open->device = linuxdisks::open(*disk, writable);
        open->mediaType = mediaTypeOf(*disk);
    } else if (name.size() == VolumePrefix.size() + 2 && name.startsWith(VolumePrefix) &&
               name.endsWith(QLatin1Char(':'))) {
        const QChar letter = name.at(VolumePrefix.size()).toUpper();
        open->node = machine.volumeNodes.value(letter);
        if (!open->node.isEmpty())
            open->device = RawDevice::open(open->node, writable);
        for (const inventory::Volume &volume : machine.machine.volumes) {
            if (volume.letter == letter)
                open->extents = volume.extents;
        }
    }
    if (!open->device)
        return InvalidHandle;

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
        open->isProtected = linuxdisks::isProtected(open->node);
    const qint64 put = open && !*open->isProtected ? open->device->write(buffer, bytes) : -1;
    if (transferred)
        *transferred = put < 0 ? 0 : static_cast<quint32>(put);
    return put >= 0;
}

bool LinuxPlatform::DeviceIoControl(RawHandle handle, quint32 code, const void *, quint32, void *out,
                                    quint32 outSize, quint32 *returned)
{
    const auto open = find(handle);
    if (returned)
        *returned = 0;
    if (!open)
        return false;
    const io::DiskGeometry geometry = geometryOf(*open->device, open->mediaType);
    switch (code) {
    case io::DiskGetDriveGeometry:
        return answer(geometry, out, outSize, returned);
    case io::DiskGetDriveGeometryEx:
        return answer(io::DiskGeometryEx{geometry, open->device->size(), {}}, out, outSize, returned);
    case io::VolumeGetVolumeDiskExtents:
        return answerExtents(open->extents, out, outSize, returned);
    case io::StorageQueryProperty:
        return answerBytes(io::storageDescriptor(open->device->serial().constData()), out, outSize, returned);
    default:
        // SMART comes from smartctl alone.
        return false;
    }
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
    const auto disk = diskOf(pc().machine, name);
    return disk &&
           faccessat(AT_FDCWD, QFile::encodeName(disk->node).constData(), R_OK | W_OK, AT_EACCESS) != 0 &&
           errno == EACCES;
}

DiskUse LinuxPlatform::DismountDisk(int number)
{
    const auto disk = diskOf(pc().machine, number);
    return disk ? linuxdisks::release(disk->node) : DiskUse{DiskUse::Unknown, {}};
}

// Volumes

lsblk::Inventory LinuxPlatform::pc()
{
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        if (m_pc)
            return *m_pc;
    }
    return readPc();
}

QStringList LinuxPlatform::GetLogicalDriveStringsW()
{
    // Each build of the disk list begins with this call. Only here the PC is read again, so that a number
    // stands for the same disk as long as a list shows it.
    QStringList roots;
    for (const inventory::Volume &volume : readPc().machine.volumes)
        roots.append(QString(volume.letter) + QLatin1String(":\\"));
    roots.sort();
    return roots;
}

std::optional<inventory::Volume> LinuxPlatform::volumeOf(const QString &root)
{
    const QChar letter = root.isEmpty() ? QChar() : root.at(0).toUpper();
    for (const inventory::Volume &volume : pc().machine.volumes) {
        if (volume.letter == letter)
            return volume;
    }
    return std::nullopt;
}

bool LinuxPlatform::GetVolumeInformationW(const QString &root, QString *label, QString *fileSystem)
{
    const auto volume = volumeOf(root);
    const bool readable = volume && !volume->fileSystem.isEmpty();
    if (label)
        *label = readable ? volume->label : QString();
    if (fileSystem)
        *fileSystem = readable ? volume->fileSystem : QString();
    return readable;
}

quint32 LinuxPlatform::GetDriveTypeW(const QString &root)
{
    const auto volume = volumeOf(root);
    if (!volume)
        return io::DriveNoRootDir;
    if (volume->type == QLatin1String("cdrom"))
        return io::DriveCdrom;
    return volume->type == QLatin1String("removable") ? io::DriveRemovable : io::DriveFixed;
}

bool LinuxPlatform::GetDiskFreeSpaceExW(const QString &root, quint64 *totalBytes, quint64 *freeBytes)
{
    const auto volume = volumeOf(root);
    if (totalBytes)
        *totalBytes = volume ? volume->size : 0;
    if (freeBytes)
        *freeBytes = volume ? volume->free : 0;
    return volume && volume->size > 0;
}

// Folders and names

QString LinuxPlatform::GetTempPathW()
{
    return m_places.temp.isEmpty() ? QString() : m_places.temp + QLatin1Char('/');
}

QString LinuxPlatform::GetSystemDirectoryW()
{
    return QStringLiteral("C:\\Windows\\system32");
}

QString LinuxPlatform::GetUserNameW()
{
    const passwd *entry = getpwuid(geteuid());
    return entry ? QString::fromLocal8Bit(entry->pw_name) : qEnvironmentVariable("USER");
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
    return native.isEmpty() && onDriveC ? QStringLiteral("/") : native;
}

bool LinuxPlatform::TakeInstance(const QString &key)
{
    return takeNativeInstance(key);
}

QString LinuxPlatform::AdministratorCommand()
{
    // pkexec clears the environment, but a window needs these two variables.
    const QString authority =
        qEnvironmentVariable("XAUTHORITY", QDir::homePath() + QLatin1String("/.Xauthority"));
    return QStringLiteral("pkexec env DISPLAY=%1 XAUTHORITY=%2 %3")
        .arg(qEnvironmentVariable("DISPLAY", QStringLiteral(":0")), quoted(authority),
             quoted(QCoreApplication::applicationFilePath()));
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
    const QScreen *screen = qGuiApp ? QGuiApplication::primaryScreen() : nullptr;
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

// Volume arrival and removal

DeviceNotifier *LinuxPlatform::deviceNotifier()
{
    if (!m_watch)
        m_watch = std::make_unique<VolumeWatch>(onlyNodes());
    m_watch->start();
    return m_watch.get();
}

std::optional<DeviceChange> LinuxPlatform::decodeDeviceMessage(const QByteArray &, void *)
{
    return std::nullopt;
}

// Logon task

void LinuxPlatform::InitializeCom() {}

void LinuxPlatform::CreateLogonTask(const LogonTask &task)
{
    LogonTask native = task;
    native.program = findProgram(NativePath(task.program));
    if (native.program.isEmpty())
        native.program = NativePath(task.program);
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
