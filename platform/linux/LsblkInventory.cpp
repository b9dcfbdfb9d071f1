// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LsblkInventory.h"

#include "platform/PlainText.h"
#include "platform/tools/DiskWords.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include <algorithm>
#include <limits>
#include <tuple>

namespace lsblk
{

namespace
{

using inventory::Disk;
using inventory::Extent;
using inventory::Partition;
using inventory::Volume;

constexpr quint64 SectorSize = 512;
constexpr quint64 MostBytes = std::numeric_limits<qint64>::max();
constexpr quint64 MostSectorBytes = 1024 * 1024; ///< of one sector; a larger number is not believed
const QString EfiSystemGuid = QStringLiteral("c12a7328-f81f-11d2-ba4b-00a0c93ec93b");
const QString BasicDataGuid = QStringLiteral("ebd0a0a2-b9e5-4433-87c0-68b6b72699c7");
const QString EfiSystemByte = QStringLiteral("0xef");

struct Transport {
    const char *name;
    tools::Bus bus;
};

constexpr Transport Transports[] = {
    {"sata", tools::Bus::Ata},  {"ata", tools::Bus::Ata}, {"usb", tools::Bus::Usb},
    {"nvme", tools::Bus::Nvme}, {"sas", tools::Bus::Sas}, {"mmc", tools::Bus::Card},
};

/// File systems by the names that the program knows.
struct FileSystemName {
    const char *kernel;
    const char *version;
    const char *name;
};

constexpr FileSystemName FileSystemNames[] = {
    {"ntfs", "", "NTFS"},     {"ntfs3", "", "NTFS"},    {"exfat", "", "exFAT"},
    {"vfat", "FAT12", "FAT"}, {"vfat", "FAT16", "FAT"}, {"vfat", "", "FAT32"},
};

QString text(const QJsonObject &device, const char *key)
{
    return plaintext::line(device.value(QLatin1String(key)).toString().simplified());
}

/// A count of at most MostBytes. Numbers are quoted by older versions of lsblk.
quint64 number(const QJsonObject &device, const char *key)
{
    const QJsonValue value = device.value(QLatin1String(key));
    if (value.isString())
        return std::min(value.toString().toULongLong(), MostBytes);
    // A double beyond the range must not be converted, and the largest qint64 is no exact double.
    const double told = std::max(0.0, value.toDouble());
    return told < static_cast<double>(MostBytes) ? static_cast<quint64>(told) : MostBytes;
}

/// Where a partition begins, in bytes.
quint64 startOf(const QJsonObject &partition)
{
    return std::min(number(partition, "start"), MostBytes / SectorSize) * SectorSize;
}

bool flag(const QJsonObject &device, const char *key)
{
    const QJsonValue value = device.value(QLatin1String(key));
    return value.isString() ? value.toString() == QLatin1String("1") : value.toBool();
}

QJsonArray children(const QJsonObject &device)
{
    return device.value(QLatin1String("children")).toArray();
}

/// Where a device is mounted: "/" before all others; empty where it is not in the folder tree.
QString mountPoint(const QJsonObject &device)
{
    QString first;
    for (const QJsonValue &value : device.value(QLatin1String("mountpoints")).toArray()) {
        const QString point = value.toString();
        if (point == QLatin1String("/"))
            return point;
        if (first.isEmpty() && point.startsWith(QLatin1Char('/')))
            first = point;
    }
    return first;
}

tools::Bus busOf(const QJsonObject &device)
{
    const QString name = text(device, "tran");
    for (const Transport &transport : Transports) {
        if (name == QLatin1String(transport.name))
            return transport.bus;
    }
    const bool isCard = name.isEmpty() && text(device, "kname").startsWith(QLatin1String("mmcblk"));
    return isCard ? tools::Bus::Card : tools::Bus::Other;
}

QString statusOf(const QJsonObject &device)
{
    const QString state = text(device, "state");
    const bool works = state.isEmpty() || state == QLatin1String("running") || state == QLatin1String("live");
    return works ? QStringLiteral("OK") : QStringLiteral("Error");
}

Disk toDisk(const QJsonObject &device, int diskNumber)
{
    Disk disk;
    disk.number = diskNumber;
    disk.media = flag(device, "rm") ? QStringLiteral("removable") : QStringLiteral("fixed");
    const tools::Bus bus = busOf(device);
    disk.model = tools::diskModel(text(device, "vendor"), text(device, "model"),
                                  QLatin1String("Disk ") + text(device, "kname"), bus);
    disk.interfaceType = tools::interfaceWord(bus);
    disk.status = statusOf(device);
    disk.serial = text(device, "serial");
    if (const quint64 sectorSize = number(device, "log-sec");
        sectorSize >= SectorSize && sectorSize <= MostSectorBytes)
        disk.bytesPerSector = static_cast<quint32>(sectorSize);
    disk.sectors = number(device, "size") / SectorSize;
    disk.node = text(device, "path");
    return disk;
}

/// Kernel names ascend by class, then by length: sdz before sdaa, nvme9n1 before nvme10n1.
bool nameBefore(const QJsonObject &left, const QJsonObject &right)
{
    const auto rank = [](const QString &name) { return std::make_tuple(name.left(2), name.size(), name); };
    return rank(text(left, "kname")) < rank(text(right, "kname"));
}

bool isPhysicalDisk(const QJsonObject &device)
{
    const QString name = text(device, "kname");
    return text(device, "type") == QLatin1String("disk") && !name.startsWith(QLatin1String("zram")) &&
           !name.startsWith(QLatin1String("ram"));
}

QVector<QJsonObject> findNode(const QJsonArray &devices, const QString &node)
{
    for (const QJsonValue &value : devices) {
        const QJsonObject device = value.toObject();
        if (text(device, "path") == node)
            return {device};
        const QVector<QJsonObject> deeper = findNode(children(device), node);
        if (!deeper.isEmpty())
            return deeper;
    }
    return {};
}

QVector<QJsonObject> chooseDisks(const QJsonArray &devices, const QStringList &onlyNodes)
{
    QVector<QJsonObject> disks;
    for (const QString &node : onlyNodes) {
        const QVector<QJsonObject> found = findNode(devices, node);
        const QString name = node.mid(node.lastIndexOf(QLatin1Char('/')) + 1);
        disks.append(!found.isEmpty()
                         ? found.first()
                         : QJsonObject{{QStringLiteral("path"), node}, {QStringLiteral("kname"), name}});
    }
    if (!onlyNodes.isEmpty())
        return disks;

    for (const QJsonValue &value : devices) {
        if (isPhysicalDisk(value.toObject()))
            disks.append(value.toObject());
    }
    std::sort(disks.begin(), disks.end(), nameBefore);
    return disks;
}

/// A disk of the previous look keeps its number; a new one gets the lowest that is free.
QVector<int> numbersOf(const QVector<QJsonObject> &disks, const QVector<Disk> &previous)
{
    QHash<QString, int> known;
    for (const Disk &disk : previous)
        known.insert(disk.node, disk.number);
    QVector<int> numbers;
    for (const QJsonObject &device : disks) {
        const QString node = text(device, "path");
        // take(): a node that stands twice in the list must not give one number to both.
        numbers.append(known.contains(node) ? known.take(node) : -1);
    }
    int next = 0;
    for (int &number : numbers) {
        while (number < 0 && numbers.contains(next))
            ++next;
        if (number < 0)
            number = next;
    }
    return numbers;
}

/// Gathers the mounted volumes of the device trees.
class VolumeCollector
{
public:
    /// `extent` is where the device lies, `holder` the file system type of the device that it lies in.
    void collect(const QJsonObject &device, const Extent &extent, const QString &holder, bool removable)
    {
        const QString point = mountPoint(device);
        if (!point.isEmpty())
            add(device, point, extent, holder, removable);
        for (const QJsonValue &value : children(device)) {
            const QJsonObject child = value.toObject();
            Extent inner = extent;
            if (text(child, "type") == QLatin1String("part")) {
                inner.offset = std::min(extent.offset + startOf(child), MostBytes);
                inner.length = number(child, "size");
            }
            collect(child, inner, text(device, "fstype"), removable);
        }
    }

    /// The volumes with their letters.
    void finish(const Inventory &previous, Inventory &result) const
    {
        QMap<QString, QChar> letters; // by mount point
        for (const Volume &volume : previous.machine.volumes) {
            const QString node = previous.volumeNodes.value(volume.letter);
            if (m_volumes.contains(volume.mountPoint) && m_nodes.value(volume.mountPoint) == node)
                letters.insert(volume.mountPoint, volume.letter);
        }
        if (m_volumes.contains(QStringLiteral("/")))
            letters.insert(QStringLiteral("/"), QLatin1Char('C'));
        const QList<QChar> kept = letters.values();
        char next = 'D';
        for (auto it = m_volumes.cbegin(); it != m_volumes.cend(); ++it) {
            while (next <= 'Z' && kept.contains(QLatin1Char(next)))
                ++next;
            if (!letters.contains(it.key()) && next <= 'Z')
                letters.insert(it.key(), QLatin1Char(next++));
            if (!letters.contains(it.key()))
                continue;
            Volume volume = it.value();
            volume.letter = letters.value(it.key());
            result.volumeNodes.insert(volume.letter, m_nodes.value(it.key()));
            result.machine.volumes.append(volume);
        }
    }

    /// The extent that "/" begins with; a length of 0 if it is not there.
    Extent systemExtent() const { return m_volumes.value(QStringLiteral("/")).extents.value(0); }

private:
    void add(const QJsonObject &device, const QString &point, const Extent &extent, const QString &holder,
             bool removable)
    {
        const QString node = text(device, "path");
        if (m_nodes.value(point, node) != node)
            return; // one folder bears one volume
        Volume &volume = m_volumes[point];
        volume.extents.append(extent);
        if (volume.extents.size() > 1)
            return; // a volume over several disks is listed below each of them
        volume.mountPoint = point;
        volume.label = text(device, "label");
        volume.fileSystem = fileSystemName(text(device, "fstype"), text(device, "fsver"));
        volume.hasBitLockerLine = true;
        volume.bitLocker =
            holder == QLatin1String("BitLocker") ? QStringLiteral("2.0") : QStringLiteral("None");
        volume.type = QStringLiteral("fixed");
        if (text(device, "type") == QLatin1String("rom"))
            volume.type = QStringLiteral("cdrom");
        else if (removable)
            volume.type = QStringLiteral("removable");
        m_nodes.insert(point, node);
    }

    QMap<QString, Volume> m_volumes; ///< by mount point
    QHash<QString, QString> m_nodes;
};

bool isEfiSystem(const QJsonObject &partition)
{
    const QString type = text(partition, "parttype").toLower();
    return type == EfiSystemGuid || type == EfiSystemByte;
}

QString partitionType(const QJsonObject &partition, const QString &tableType, bool system)
{
    if (tableType != QLatin1String("gpt"))
        return system ? QStringLiteral("Installable File System") : QStringLiteral("Unknown");
    if (system)
        return QStringLiteral("GPT: System");
    return text(partition, "parttype").toLower() == BasicDataGuid ? QStringLiteral("GPT: Basic Data")
                                                                  : QStringLiteral("GPT: Unknown");
}

/// A partition found on a disk, or a disk that is one volume.
struct FoundPartition {
    QJsonObject device;
    int disk = 0;
    int index = 0;
    quint64 offset = 0;
    QString tableType;
};

QVector<FoundPartition> findPartitions(const QVector<QJsonObject> &disks, const QVector<int> &numbers)
{
    QVector<FoundPartition> found;
    for (int i = 0; i < disks.size(); ++i) {
        const QJsonObject &device = disks.at(i);
        const int disk = numbers.at(i);
        QVector<FoundPartition> ofDisk;
        for (const QJsonValue &value : children(device)) {
            const QJsonObject child = value.toObject();
            if (text(child, "type") == QLatin1String("part"))
                ofDisk.append({child, disk, 0, startOf(child), text(device, "pttype")});
        }
        if (ofDisk.isEmpty() && !mountPoint(device).isEmpty())
            ofDisk.append({device, disk, 0, 0, QString()});
        std::sort(ofDisk.begin(), ofDisk.end(),
                  [](const auto &left, const auto &right) { return left.offset < right.offset; });
        for (int index = 0; index < ofDisk.size(); ++index)
            ofDisk[index].index = index;
        found += ofDisk;
    }
    return found;
}

/// The place of the first volume that lies on a partition; behind all volumes where none does.
int volumeOn(const FoundPartition &partition, const QVector<Volume> &volumes)
{
    const auto lies = [&partition](const Volume &volume) {
        return std::any_of(volume.extents.cbegin(), volume.extents.cend(),
                           [&partition](const Extent &extent) {
                               return extent.disk == partition.disk && extent.offset == partition.offset;
                           });
    };
    return static_cast<int>(std::find_if(volumes.cbegin(), volumes.cend(), lies) - volumes.cbegin());
}

/// The system partition is the one that the machine starts from, else the one that "/" lies on. The
/// partitions stand in the order of their volumes, because readers pair the two tables line by line;
/// partitions without a volume come last.
void addPartitions(QVector<FoundPartition> found, const Extent &systemExtent, Inventory &result)
{
    const QVector<Volume> &volumes = result.machine.volumes;
    std::stable_sort(found.begin(), found.end(), [&volumes](const auto &left, const auto &right) {
        return volumeOn(left, volumes) < volumeOn(right, volumes);
    });
    const bool hasEfi = std::any_of(found.cbegin(), found.cend(),
                                    [](const FoundPartition &item) { return isEfiSystem(item.device); });
    for (const FoundPartition &item : found) {
        const bool holdsRoot =
            systemExtent.length > 0 && item.disk == systemExtent.disk && item.offset == systemExtent.offset;
        const bool system = hasEfi ? isEfiSystem(item.device) : holdsRoot;
        Partition partition;
        partition.name = QStringLiteral("Disk #%1, Partition #%2").arg(item.disk).arg(item.index);
        partition.type = partitionType(item.device, item.tableType, system);
        partition.size = number(item.device, "size");
        partition.disk = item.disk;
        result.machine.partitions.append(partition);
    }
}

} // namespace

QStringList arguments()
{
    return {
        QStringLiteral("--json"), QStringLiteral("--bytes"), QStringLiteral("--output"),
        QStringLiteral(
            "NAME,KNAME,PATH,TYPE,SIZE,START,LOG-SEC,RM,TRAN,VENDOR,MODEL,SERIAL,STATE,FSTYPE,FSVER,LABEL,"
            "MOUNTPOINTS,PTTYPE,PARTTYPE")};
}

QString fileSystemName(const QString &kernelName, const QString &version)
{
    for (const FileSystemName &known : FileSystemNames) {
        const QString knownVersion = QLatin1String(known.version);
        if (kernelName == QLatin1String(known.kernel) && (knownVersion.isEmpty() || knownVersion == version))
            return QLatin1String(known.name);
    }
    return kernelName;
}

Inventory parse(const QByteArray &json, const QStringList &onlyNodes, const Inventory &previous)
{
    const QJsonArray devices =
        QJsonDocument::fromJson(json).object().value(QLatin1String("blockdevices")).toArray();
    const QVector<QJsonObject> disks = chooseDisks(devices, onlyNodes);
    // With a list of nodes, a disk's number is its place in the list.
    const QVector<int> numbers =
        numbersOf(disks, onlyNodes.isEmpty() ? previous.machine.disks : QVector<Disk>());

    Inventory result;
    VolumeCollector volumes;
    for (int i = 0; i < disks.size(); ++i) {
        const QJsonObject &device = disks.at(i);
        result.machine.disks.append(toDisk(device, numbers.at(i)));
        volumes.collect(device, {numbers.at(i), 0, number(device, "size")}, QString(), flag(device, "rm"));
    }
    std::sort(result.machine.disks.begin(), result.machine.disks.end(),
              [](const Disk &left, const Disk &right) { return left.number < right.number; });
    if (onlyNodes.isEmpty()) {
        // An optical disc lies on no disk of the list.
        for (const QJsonValue &value : devices) {
            if (text(value.toObject(), "type") == QLatin1String("rom"))
                volumes.collect(value.toObject(), {-1, 0, 0}, QString(), true);
        }
    }
    volumes.finish(previous, result);
    addPartitions(findPartitions(disks, numbers), volumes.systemExtent(), result);
    return result;
}

} // namespace lsblk
