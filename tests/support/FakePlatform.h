// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/IoControl.h"
#include "platform/Platform.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QMutex>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>
#include <QVector>

#include <cstring>
#include <functional>

/// A machine for tests, empty until a test fills it. Its folders are in a private temp folder. Set the fields
/// before the code under test runs; command lines may come from any thread.
class FakePlatform : public Platform
{
public:
    /// A physical disk. `bytes` may be shorter than `size`: the rest reads as zeros, and writes there fail.
    struct Disk {
        QByteArray bytes;
        quint32 mediaType = io::MediaFixed;
        quint32 bytesPerSector = 512;
        qint64 size = -1; ///< in bytes; -1: as long as `bytes`
        bool opens = true;
        bool gone = false;       ///< pulled out: refuses every transfer
        bool hasSize = true;     ///< false: the extended geometry is refused
        bool endsHard = false;   ///< a transfer that crosses the end fails instead of being cut there
        QByteArray serial;       ///< as the system tells it; empty: not at all
        QSet<qint64> badSectors; ///< reads that include one fail
        QSet<qint64> unwritable; ///< writes that include one fail
        /// Answers the SMART codes; without it they fail.
        std::function<bool(quint32 code, const QByteArray &in, QByteArray *out)> smart;

        qint64 length() const { return size < 0 ? qint64(bytes.size()) : size; }
    };

    struct Volume {
        QString label;
        QString fileSystem;
        quint32 type = io::DriveFixed;
        quint64 total = 0; ///< bytes
        quint64 free = 0;  ///< bytes
        QVector<io::DiskExtent> extents;
        Disk raw; ///< the volume's own bytes
    };

    /// Makes one, installs it, and returns it for the test to fill. Owned by Platform.
    template<typename Fake = FakePlatform>
    static Fake *install()
    {
        auto made = std::make_unique<Fake>();
        Fake *fake = made.get();
        Platform::install(std::move(made));
        return fake;
    }

    QMap<int, Disk> disks;
    QMap<QChar, Volume> volumes; ///< by upper-case letter
    /// Runs for each command line; false means that the interpreter did not start.
    std::function<bool(const QString &line)> onCommand;
    QString stateFolder; ///< none as long as it is empty
    QString systemFolder = QStringLiteral("C:\\Windows\\system32");
    std::function<qint32(const QString &url, const QString &path, const DownloadLimits &limits)> onDownload;
    std::function<void(quint32 milliseconds)> onSleep; ///< instead of a pause
    /// Runs for each transfer, with the bytes that were asked for; false makes it fail.
    std::function<bool(bool isWrite, qint64 sector, quint32 bytes)> onTransfer;
    std::function<DiskUse()> onDismount;
    std::function<void(const QString &path)> onHold; ///< runs before HoldFile opens the file
    bool flushes = true; ///< false: no disk confirms that it stores what was written

    /// The calls of the machine, in order.
    QStringList commands() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_commands;
    }
    QStringList openings;      ///< "<name> <access> <share> <disposition>" of CreateFileW, the access in hex
    QStringList labelsAsked;   ///< roots given to GetVolumeInformationW
    QVector<bool> hiddenFlags; ///< of the commands
    QStringList executed;      ///< "<verb> <file> <parameters>" of ShellExecuteW, and pages opened
    int openHandles() const { return m_handles.size(); }

    /// Appends `output` to the file that the line redirects to, as the interpreter does: its name ends at a
    /// blank.
    static bool answer(const QString &line, const QByteArray &output)
    {
        QFile file(toNative(line.section(QStringLiteral(">> "), 1).section(QLatin1Char(' '), 0, 0)));
        return file.open(QIODevice::WriteOnly | QIODevice::Append) && file.write(output) == output.size();
    }

    RawHandle CreateFileW(const QString &name, quint32 access, quint32 share, quint32 disposition) override
    {
        openings << QStringLiteral("%1 %2 %3 %4").arg(name).arg(access, 0, 16).arg(share).arg(disposition);
        const Disk *disk = find(name);
        if (!disk || !disk->opens)
            return InvalidHandle;
        m_handles.insert(m_nextHandle, {name, 0});
        return m_nextHandle++;
    }

    bool SetFilePointer(RawHandle handle, qint64 byteOffset) override
    {
        if (!m_handles.contains(handle) || byteOffset < 0)
            return false;
        m_handles[handle].position = byteOffset;
        return true;
    }

    bool ReadFile(RawHandle handle, void *buffer, quint32 bytes, quint32 *transferred) override
    {
        return transfer(handle, false, static_cast<char *>(buffer), bytes, transferred);
    }

    bool WriteFile(RawHandle handle, const void *buffer, quint32 bytes, quint32 *transferred) override
    {
        return transfer(handle, true, static_cast<char *>(const_cast<void *>(buffer)), bytes, transferred);
    }

    bool DeviceIoControl(RawHandle handle, quint32 code, const void *in, quint32 inSize, void *out,
                         quint32 outSize, quint32 *returned) override
    {
        QByteArray reply;
        const QByteArray asked(static_cast<const char *>(in), int(inSize));
        if (!m_handles.contains(handle) || !answerControl(m_handles[handle].name, code, asked, &reply) ||
            reply.size() > int(outSize))
            return false;
        std::memcpy(out, reply.constData(), size_t(reply.size()));
        if (returned)
            *returned = quint32(reply.size());
        return true;
    }

    bool FlushFileBuffers(RawHandle handle) override { return flushes && !IsGone(handle); }
    DiskUse DismountDisk(int) override { return onDismount ? onDismount() : DiskUse(); }
    bool IsGone(RawHandle handle) override
    {
        return !m_handles.contains(handle) || find(m_handles[handle].name)->gone;
    }
    void CloseHandle(RawHandle handle) override { m_handles.remove(handle); }
    bool IsAccessDenied(const QString &name) override
    {
        const Disk *disk = find(name);
        return disk && !disk->opens;
    }

    QStringList GetLogicalDriveStringsW() override
    {
        QStringList roots;
        for (auto it = volumes.cbegin(); it != volumes.cend(); ++it)
            roots << QString(it.key()) + QStringLiteral(":\\");
        return roots;
    }
    bool GetVolumeInformationW(const QString &root, QString *label, QString *fileSystem) override
    {
        labelsAsked << root;
        const Volume volume = volumes.value(root.at(0));
        *label = volume.label;
        *fileSystem = volume.fileSystem;
        return !volume.fileSystem.isEmpty();
    }
    quint32 GetDriveTypeW(const QString &root) override
    {
        return volumes.contains(root.at(0)) ? volumes[root.at(0)].type : quint32(io::DriveNoRootDir);
    }
    bool GetDiskFreeSpaceExW(const QString &root, quint64 *totalBytes, quint64 *freeBytes) override
    {
        const Volume volume = volumes.value(root.at(0));
        *totalBytes = volume.total;
        *freeBytes = volume.free;
        return volume.total != 0;
    }

    bool CreateProcessAndWait(const std::wstring &line, bool hidden) override
    {
        const QString text = QString::fromStdWString(line);
        {
            const QMutexLocker lock(&m_mutex);
            m_commands << text;
            hiddenFlags << hidden;
        }
        return !onCommand || onCommand(text);
    }
    bool ShellExecuteW(const QString &file, const QString &parameters, const QString &verb,
                       Show window) override
    {
        executed << verb + ' ' + file + ' ' + parameters + (window == Show::Maximised ? " maximised" : "");
        return true;
    }
    bool OpenUrl(const QUrl &url) override
    {
        executed << url.toString();
        return true;
    }

    QString GetTempPathW() override { return m_folder.path() + m_tempFolder + QLatin1Char('/'); }
    /// Moves the temp folder into a new folder with that name.
    void useTempFolder(const QString &name)
    {
        m_tempFolder = QLatin1Char('/') + name;
        QDir(m_folder.path()).mkpath(name);
    }
    QString GetSystemDirectoryW() override { return systemFolder; }
    QString GetUserNameW() override { return QStringLiteral("tester"); }
    QString HistoryFolder(const QString &) override { return m_folder.path(); }
    QString StateFolder() override { return stateFolder; }
    QString MakePrivateFolder(const QString &name) override
    {
        const QString path = m_folder.filePath(name);
        QDir(path).removeRecursively();
        return QDir().mkdir(path) ? path : QString();
    }
    std::unique_ptr<QFile> HoldFile(const QString &path) override
    {
        if (onHold)
            onHold(path);
        auto file = std::make_unique<QFile>(path);
        return file->open(QIODevice::ReadOnly) ? std::move(file) : nullptr;
    }
    QString NativePath(const QString &path) const override { return toNative(path); }
    QString OperatingSystemName() override { return QStringLiteral("Test system"); }

    void SetThreadExecutionState(quint32) override {}
    int LogPixelsX() override { return 96; }
    qint32 URLDownloadToFileW(const QString &url, const QString &path, const DownloadLimits &limits) override
    {
        return onDownload ? onDownload(url, path, limits) : -1;
    }
    void Sleep(quint32 milliseconds) override
    {
        if (onSleep)
            onSleep(milliseconds);
    }
    void SetProgressValue(quintptr, std::optional<int>) override {}
    void Shell_NotifyIconW(quintptr, const QString &, const QString &) override {}
    DeviceNotifier *deviceNotifier() override { return &m_notifier; }
    std::optional<DeviceChange> decodeDeviceMessage(const QByteArray &, void *) override { return {}; }
    void InitializeCom() override {}
    void CreateLogonTask(const LogonTask &) override {}
    void DeleteLogonTask(const QString &) override {}
    /// An INI file: after it was written, numbers are read as texts.
    std::unique_ptr<QSettings> OpenSettings(const QString &registryPath) override
    {
        const QString name = QString(registryPath).replace(QLatin1Char('\\'), QLatin1Char('_'));
        return std::make_unique<QSettings>(m_folder.filePath("settings" + name), QSettings::IniFormat);
    }

private:
    struct Handle {
        QString name;
        qint64 position = 0;
    };

    static QString toNative(QString path) { return path.replace(QLatin1Char('\\'), QLatin1Char('/')); }

    static bool touches(const QSet<qint64> &sectors, qint64 at, int length)
    {
        for (qint64 sector = at / 512; !sectors.isEmpty() && sector * 512 < at + length; ++sector) {
            if (sectors.contains(sector))
                return true;
        }
        return false;
    }

    Disk *find(const QString &name)
    {
        const QString disk = QStringLiteral("\\\\.\\PHYSICALDRIVE");
        const int number = name.startsWith(disk) ? name.mid(disk.size()).toInt() : -1;
        if (disks.contains(number))
            return &disks[number];
        return name.size() == 6 && volumes.contains(name.at(4)) ? &volumes[name.at(4)].raw : nullptr;
    }

    bool transfer(RawHandle handle, bool isWrite, char *buffer, quint32 bytes, quint32 *transferred)
    {
        if (!m_handles.contains(handle))
            return false;
        Handle &open = m_handles[handle];
        Disk *disk = find(open.name);
        const qint64 at = open.position;
        if (onTransfer && !onTransfer(isWrite, at / 512, bytes))
            return false;
        if (disk->gone || at >= disk->length())
            return false;
        const auto length = int(qMin<qint64>(bytes, disk->length() - at));
        if ((disk->endsHard && at + bytes > disk->length()) ||
            touches(isWrite ? disk->unwritable : disk->badSectors, at, length) ||
            (isWrite && at + length > disk->bytes.size()))
            return false;
        const QByteArray piece = at < disk->bytes.size() ? disk->bytes.mid(int(at), length) : QByteArray();
        if (isWrite)
            disk->bytes.replace(int(at), length, buffer, length);
        else
            std::memcpy(buffer, piece.leftJustified(length, '\0').constData(), size_t(length));
        open.position += length;
        if (transferred)
            *transferred = quint32(length);
        return true;
    }

    bool answerControl(const QString &name, quint32 code, const QByteArray &in, QByteArray *reply)
    {
        const Disk *disk = find(name);
        const io::DiskGeometry geometry{disk->length() / disk->bytesPerSector, disk->mediaType, 1, 1,
                                        disk->bytesPerSector};
        switch (code) {
        case io::DiskGetDriveGeometry:
            *reply = raw(geometry);
            return true;
        case io::DiskGetDriveGeometryEx:
            *reply = raw(io::DiskGeometryEx{geometry, disk->length(), {}});
            return disk->hasSize;
        case io::StorageQueryProperty:
            *reply = QByteArray::fromStdString(io::storageDescriptor(disk->serial.toStdString()));
            return !disk->serial.isEmpty();
        case io::VolumeGetVolumeDiskExtents:
            if (name.size() != 6 || volumes[name.at(4)].extents.isEmpty())
                return false;
            *reply = raw(quint64(volumes[name.at(4)].extents.size()));
            for (const io::DiskExtent &extent : qAsConst(volumes[name.at(4)].extents))
                reply->append(raw(extent));
            return true;
        default:
            return disk->smart && disk->smart(code, in, reply);
        }
    }

    template<typename Record>
    static QByteArray raw(const Record &record)
    {
        return QByteArray(reinterpret_cast<const char *>(&record), int(sizeof record));
    }

    QTemporaryDir m_folder;
    QString m_tempFolder;
    DeviceNotifier m_notifier;
    mutable QMutex m_mutex;
    QStringList m_commands;
    QMap<RawHandle, Handle> m_handles;
    RawHandle m_nextHandle = 1;
};
