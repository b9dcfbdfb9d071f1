// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/InventoryPlatform.h"

#include "platform/IoControl.h"
#include "platform/Log.h"
#include "platform/tools/DiskWords.h"
#include "platform/tools/SystemTools.h"

#include <algorithm>
#include <cstddef>

namespace
{

/// The geometry that is reported for every disk.
constexpr quint32 TracksPerCylinder = 255;
constexpr quint32 SectorsPerTrack = 63;

template<typename Record>
QByteArray bytesOf(const Record &record, std::size_t size = sizeof(Record))
{
    return QByteArray(reinterpret_cast<const char *>(&record), static_cast<int>(size));
}

quint32 mediaTypeOf(const inventory::Disk &disk)
{
    if (disk.media == QLatin1String("fixed"))
        return io::MediaFixed;
    return disk.media == QLatin1String("removable") ? io::MediaRemovable : io::MediaUnknown;
}

} // namespace

InventoryPlatform::InventoryPlatform()
{
    addTool("wmic", [this](const QStringList &words) { return tools::wmic(machine(), words); });
    addTool("manage-bde", [this](const QStringList &words) { return tools::manageBde(machine(), words); });
    addTool("tasklist", [this](const QStringList &) {
        inventory::Machine running;
        running.processes = processes();
        return tools::tasklist(running);
    });
    addTool("diskpart", [this](const QStringList &words) {
        const auto native = [this](const QString &path) { return NativePath(path); };
        return tools::diskpart(words, native, *scriptedDisks());
    });
    m_interpreter.addTool(QStringLiteral("findstr"), &tools::findstr);
}

void InventoryPlatform::addTool(const char *name, const std::function<QByteArray(const QStringList &)> &tool,
                                int milliseconds)
{
    m_interpreter.addTool(
        QLatin1String(name), [tool](const QStringList &words, const QByteArray &) { return tool(words); },
        milliseconds);
}

void InventoryPlatform::addSmartctl(const std::function<QByteArray(const QStringList &)> &tool,
                                    int milliseconds)
{
    addTool("smartctl", tool, milliseconds);
    addTool("smartctl64bit", tool, milliseconds);
}

bool InventoryPlatform::CreateProcessAndWait(const std::wstring &line, bool)
{
    qCDebug(logs::platform, "%s, a command of %d characters",
            qUtf8Printable(tools::CommandInterpreter::programOf(line)), static_cast<int>(line.size()));
    return m_interpreter.run(line, [this](const QString &path) { return NativePath(path); });
}

std::optional<inventory::Volume> InventoryPlatform::volumeOf(const QString &root)
{
    const QChar letter = root.isEmpty() ? QChar() : root.at(0).toUpper();
    for (const inventory::Volume &volume : machine().volumes) {
        if (volume.letter == letter)
            return volume;
    }
    return std::nullopt;
}

QStringList InventoryPlatform::GetLogicalDriveStringsW()
{
    QStringList roots;
    for (const inventory::Volume &volume : machine().volumes)
        roots.append(QString(volume.letter) + QLatin1String(":\\"));
    roots.sort();
    return roots;
}

bool InventoryPlatform::GetVolumeInformationW(const QString &root, QString *label, QString *fileSystem)
{
    const auto volume = volumeOf(root);
    const bool readable = volume && volume->type != QLatin1String("noroot") &&
                          !(volume->type == QLatin1String("cdrom") && volume->size == 0) &&
                          !(volume->label.isEmpty() && volume->fileSystem.isEmpty());
    if (label)
        *label = readable ? volume->label : QString();
    if (fileSystem)
        *fileSystem = readable ? volume->fileSystem : QString();
    return readable;
}

quint32 InventoryPlatform::GetDriveTypeW(const QString &root)
{
    const auto volume = volumeOf(root);
    return volume ? static_cast<quint32>(tools::volumeTypes().indexOf(volume->type))
                  : quint32(io::DriveNoRootDir);
}

bool InventoryPlatform::GetDiskFreeSpaceExW(const QString &root, quint64 *totalBytes, quint64 *freeBytes)
{
    const auto volume = volumeOf(root);
    const bool readable = volume && volume->size != 0 && volume->type != QLatin1String("noroot");
    if (totalBytes)
        *totalBytes = readable ? volume->size : 0;
    if (freeBytes)
        *freeBytes = readable ? volume->free : 0;
    return readable;
}

QString InventoryPlatform::GetSystemDirectoryW()
{
    return QStringLiteral("C:\\Windows\\system32");
}

std::optional<DeviceChange> InventoryPlatform::decodeDeviceMessage(const QByteArray &, void *)
{
    return std::nullopt;
}

QByteArray InventoryPlatform::geometryAnswer(quint32 code, qint64 bytes, const inventory::Disk &disk)
{
    const qint64 cylinder = qint64{TracksPerCylinder} * SectorsPerTrack * disk.bytesPerSector;
    const io::DiskGeometry geometry{bytes / cylinder, mediaTypeOf(disk), TracksPerCylinder, SectorsPerTrack,
                                    disk.bytesPerSector};
    if (code == io::DiskGetDriveGeometry)
        return bytesOf(geometry);
    return code == io::DiskGetDriveGeometryEx ? bytesOf(io::DiskGeometryEx{geometry, bytes, {}})
                                              : QByteArray();
}

QByteArray InventoryPlatform::extentsAnswer(quint32 code, const QVector<inventory::Extent> &extents)
{
    if (code != io::VolumeGetVolumeDiskExtents || extents.isEmpty())
        return {};
    io::VolumeDiskExtents head{};
    head.numberOfDiskExtents = static_cast<quint32>(extents.size());
    QByteArray records = bytesOf(head, offsetof(io::VolumeDiskExtents, extents));
    for (const inventory::Extent &extent : extents)
        records +=
            bytesOf(io::DiskExtent{static_cast<quint32>(extent.disk), 0, static_cast<qint64>(extent.offset),
                                   static_cast<qint64>(extent.length)});
    return records;
}

bool InventoryPlatform::answer(const QByteArray &bytes, void *out, quint32 outSize, quint32 *returned)
{
    const bool fits = !bytes.isEmpty() && out && outSize >= static_cast<quint32>(bytes.size());
    if (fits)
        std::copy(bytes.cbegin(), bytes.cend(), static_cast<char *>(out));
    if (returned)
        *returned = fits ? static_cast<quint32>(bytes.size()) : 0;
    return fits;
}
